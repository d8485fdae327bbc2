#include "platform/vb/Variant.h"

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace vb {
namespace {

template <class... Ts> struct Overloaded : Ts... {
    using Ts::operator()...;
};

constexpr std::int64_t kMsPerDay = 86'400'000;

QDate oleEpoch() { return {1899, 12, 30}; }

// Rounds half to even, as CLng and CInt do.
double roundHalfEven(double v) {
    const double r = std::nearbyint(v); // the default rounding mode is to nearest, ties to even
    return r;
}

std::optional<double> parseNumber(const QString& text) {
    // Both the Italian and the invariant decimal separator are accepted, as VB's Val-free
    // conversions accept the locale's; blanks around the number are ignored.
    QString t = text.trimmed();
    if (t.isEmpty()) {
        return std::nullopt;
    }
    t.replace(u',', u'.');
    bool ok = false;
    const double v = t.toDouble(&ok);
    if (!ok) {
        return std::nullopt;
    }
    return v;
}

std::optional<bool> parseBool(const QString& text) {
    const QString t = text.trimmed().toUpper();
    if (t == u"TRUE" || t == u"VERO") {
        return true;
    }
    if (t == u"FALSE" || t == u"FALSO") {
        return false;
    }
    if (auto n = parseNumber(text)) {
        return *n != 0.0;
    }
    return std::nullopt;
}

} // namespace

Variant::Variant(QDateTime v) : m_value(v.isValid() ? v.toTimeSpec(Qt::UTC) : v) {}

VarType Variant::varType() const noexcept {
    return std::visit(
        Overloaded{
            [](const Empty&) { return VarType::Empty; },
            [](const Null&) { return VarType::Null; },
            [](const Missing&) { return VarType::Error; },
            [](bool) { return VarType::Boolean; },
            [](std::uint8_t) { return VarType::Byte; },
            [](std::int16_t) { return VarType::Integer; },
            [](std::int32_t) { return VarType::Long; },
            [](float) { return VarType::Single; },
            [](double) { return VarType::Double; },
            [](const Currency&) { return VarType::Currency; },
            [](const Decimal&) { return VarType::Decimal; },
            [](const QDateTime&) { return VarType::Date; },
            [](const QString&) { return VarType::String; },
            [](const QByteArray&) { return VarType::ByteArray; },
            [](const Object&) { return VarType::Object; },
            [](const VariantArray&) { return VarType::Array; },
        },
        m_value);
}

bool Variant::isNumber() const noexcept {
    switch (varType()) {
    case VarType::Integer:
    case VarType::Long:
    case VarType::Single:
    case VarType::Double:
    case VarType::Currency:
    case VarType::Decimal:
    case VarType::Byte:
        return true;
    default:
        return false;
    }
}

bool Variant::isNumeric() const {
    if (isNumber() || isBoolean() || isEmpty()) {
        return true;
    }
    if (const auto* s = get<QString>()) {
        return parseNumber(*s).has_value();
    }
    return false;
}

std::optional<double> Variant::toDouble() const {
    return std::visit(
        Overloaded{
            [](const Empty&) -> std::optional<double> { return 0.0; },
            [](const Null&) -> std::optional<double> { return std::nullopt; },
            [](const Missing&) -> std::optional<double> { return std::nullopt; },
            [](bool b) -> std::optional<double> { return b ? -1.0 : 0.0; },
            [](std::uint8_t v) -> std::optional<double> { return v; },
            [](std::int16_t v) -> std::optional<double> { return v; },
            [](std::int32_t v) -> std::optional<double> { return v; },
            [](float v) -> std::optional<double> { return v; },
            [](double v) -> std::optional<double> { return v; },
            [](const Currency& c) -> std::optional<double> {
                return static_cast<double>(c.tenThousandths) / 10000.0;
            },
            [](const Decimal& d) -> std::optional<double> { return d.toDouble(); },
            [](const QDateTime& d) -> std::optional<double> { return oleFromDate(d); },
            [](const QString& s) -> std::optional<double> { return parseNumber(s); },
            [](const QByteArray&) -> std::optional<double> { return std::nullopt; },
            [](const Object&) -> std::optional<double> { return std::nullopt; },
            [](const VariantArray&) -> std::optional<double> { return std::nullopt; },
        },
        m_value);
}

std::optional<std::int32_t> Variant::toLong() const {
    if (const auto* v = get<std::int32_t>()) {
        return *v;
    }
    const auto d = toDouble();
    if (!d || !std::isfinite(*d)) {
        return std::nullopt;
    }
    const double r = roundHalfEven(*d);
    if (r < std::numeric_limits<std::int32_t>::min() || r > std::numeric_limits<std::int32_t>::max()) {
        return std::nullopt;
    }
    return static_cast<std::int32_t>(r);
}

std::optional<std::int16_t> Variant::toInteger() const {
    const auto l = toLong();
    if (!l || *l < std::numeric_limits<std::int16_t>::min() ||
        *l > std::numeric_limits<std::int16_t>::max()) {
        return std::nullopt;
    }
    return static_cast<std::int16_t>(*l);
}

std::optional<bool> Variant::toBool() const {
    if (const auto* b = get<bool>()) {
        return *b;
    }
    if (const auto* s = get<QString>()) {
        return parseBool(*s);
    }
    const auto d = toDouble();
    if (!d) {
        return std::nullopt;
    }
    return *d != 0.0;
}

std::optional<Currency> Variant::toCurrency() const {
    if (const auto* c = get<Currency>()) {
        return *c;
    }
    if (const auto* d = get<Decimal>()) {
        // Through the text, so that a scaled value is not rounded by a double on the way.
        const QString text = d->toString();
        const qsizetype point = text.indexOf(u'.');
        QString whole = point < 0 ? text : text.left(point);
        QString fraction = point < 0 ? QString() : text.mid(point + 1);
        fraction = (fraction + u"0000"_s).left(4);
        bool ok = false;
        const qlonglong count = (whole + fraction).toLongLong(&ok);
        if (ok) {
            return Currency{count};
        }
        return std::nullopt;
    }
    const auto v = toDouble();
    if (!v) {
        return std::nullopt;
    }
    const double scaled = roundHalfEven(*v * 10000.0);
    if (!std::isfinite(scaled) || std::fabs(scaled) > 9.2233720368547e18) {
        return std::nullopt;
    }
    return Currency{static_cast<std::int64_t>(scaled)};
}

std::optional<QDateTime> Variant::toDate() const {
    if (const auto* d = get<QDateTime>()) {
        return *d;
    }
    if (const auto* s = get<QString>()) {
        const QString t = s->trimmed();
        for (const auto* format : {u"dd/MM/yyyy HH:mm:ss", u"dd/MM/yyyy", u"d/M/yyyy H:mm:ss",
                                   u"d/M/yyyy", u"HH:mm:ss", u"yyyy-MM-dd HH:mm:ss",
                                   u"yyyy-MM-dd"}) {
            QDateTime parsed = QDateTime::fromString(t, QString::fromUtf16(format));
            if (parsed.isValid()) {
                if (parsed.date() == QDate(1900, 1, 1) && t.size() <= 8) {
                    parsed.setDate(oleEpoch()); // a time alone stands on day zero
                }
                parsed.setTimeSpec(Qt::UTC);
                return parsed;
            }
        }
        return std::nullopt;
    }
    if (isNull() || isMissing() || get<QByteArray>() || get<Object>() || get<VariantArray>()) {
        return std::nullopt;
    }
    const auto d = toDouble();
    if (!d || !std::isfinite(*d) || *d < -657434.0 || *d >= 2958466.0) {
        return std::nullopt;
    }
    return dateFromOle(*d);
}

QDateTime makeDate(int year, int month, int day, int hour, int minute, int second, int msec) {
    return {QDate(year, month, day), QTime(hour, minute, second, msec), Qt::UTC};
}

QDateTime dateFromOle(double days) {
    const double whole = std::trunc(days);
    const double fraction = std::fabs(days - whole);
    auto ms = static_cast<std::int64_t>(std::llround(fraction * kMsPerDay));
    qint64 dayCount = static_cast<qint64>(whole);
    if (ms >= kMsPerDay) { // rounding reached midnight of the next day
        ms -= kMsPerDay;
        dayCount += days < 0 ? -1 : 1;
    }
    const QDate date = oleEpoch().addDays(dayCount);
    return {date, QTime::fromMSecsSinceStartOfDay(static_cast<int>(ms)), Qt::UTC};
}

double oleFromDate(const QDateTime& date) {
    const QDateTime utc = date.toTimeSpec(Qt::UTC);
    const auto dayCount = static_cast<double>(oleEpoch().daysTo(utc.date()));
    const double fraction = static_cast<double>(utc.time().msecsSinceStartOfDay()) / kMsPerDay;
    // Before day zero the time still counts forward from midnight, so its sign follows the day.
    return dayCount < 0 ? dayCount - fraction : dayCount + fraction;
}

} // namespace vb
