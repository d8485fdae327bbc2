#include "platform/ado/Compare.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace ado {
namespace {

int sign(double d) { return d < 0 ? -1 : (d > 0 ? 1 : 0); }

std::optional<double> numberOf(const vb::Variant& v) {
    if (v.isEmpty()) {
        return 0.0;
    }
    if (const bool* b = v.get<bool>()) {
        return *b ? -1.0 : 0.0;
    }
    if (v.isNumber()) {
        return v.toDouble();
    }
    return std::nullopt;
}

std::optional<QDateTime> dateOf(const vb::Variant& v) {
    if (const QDateTime* d = v.get<QDateTime>()) {
        return *d;
    }
    if (const QString* s = v.get<QString>()) {
        return parseDateLiteral(*s);
    }
    if (auto n = numberOf(v)) {
        return vb::dateFromOle(*n);
    }
    return std::nullopt;
}

} // namespace

std::optional<QDateTime> parseDateLiteral(QStringView text) {
    static const QRegularExpression us(
        u"^\\s*(\\d{1,2})/(\\d{1,2})/(\\d{1,4})(?:\\s+(\\d{1,2}):(\\d{2})(?::(\\d{2}))?)?\\s*$"_s);
    static const QRegularExpression iso(
        u"^\\s*(\\d{4})-(\\d{1,2})-(\\d{1,2})(?:[ T](\\d{1,2}):(\\d{2})(?::(\\d{2}))?)?\\s*$"_s);
    int year = 0;
    int month = 0;
    int day = 0;
    QRegularExpressionMatch m = us.match(text.toString());
    if (m.hasMatch()) {
        month = m.capturedView(1).toInt();
        day = m.capturedView(2).toInt();
        year = m.capturedView(3).toInt();
    } else {
        m = iso.match(text.toString());
        if (!m.hasMatch()) {
            return std::nullopt;
        }
        year = m.capturedView(1).toInt();
        month = m.capturedView(2).toInt();
        day = m.capturedView(3).toInt();
    }
    const QDate date(year, month, day);
    const QTime time(m.capturedView(4).toInt(), m.capturedView(5).toInt(),
                     m.capturedView(6).toInt());
    if (!date.isValid() || !time.isValid()) {
        return std::nullopt;
    }
    return vb::makeDate(year, month, day, time.hour(), time.minute(), time.second());
}

std::optional<int> compareValues(const vb::Variant& a, const vb::Variant& b) {
    if (a.isNull() || b.isNull()) {
        return std::nullopt;
    }
    if (a.isDate() || b.isDate()) {
        const auto da = dateOf(a);
        const auto db = dateOf(b);
        if (!da || !db) {
            return std::nullopt;
        }
        return *da < *db ? -1 : (*db < *da ? 1 : 0);
    }
    const auto na = numberOf(a);
    const auto nb = numberOf(b);
    if (na && nb) {
        return sign(*na - *nb);
    }
    if (const QByteArray* ba = a.get<QByteArray>()) {
        if (const QByteArray* bb = b.get<QByteArray>()) {
            return sign(static_cast<double>(ba->compare(*bb)));
        }
        return std::nullopt;
    }
    const QString* sa = a.get<QString>();
    const QString* sb = b.get<QString>();
    if (sa && sb) {
        return sign(static_cast<double>(QString::compare(*sa, *sb, Qt::CaseInsensitive)));
    }
    // Text against a number: the text converted to a number when it is one.
    if ((sa && nb) || (sb && na)) {
        const auto converted = sa ? a.toDouble() : b.toDouble();
        if (!converted) {
            return std::nullopt;
        }
        return sa ? sign(*converted - *nb) : sign(*na - *converted);
    }
    return std::nullopt;
}

} // namespace ado
