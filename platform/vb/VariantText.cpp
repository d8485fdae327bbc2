#include "platform/vb/Variant.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace vb {
namespace {

template <class... Ts> struct Overloaded : Ts... {
    using Ts::operator()...;
};

// VB prints a Double with 15 significant digits and a Single with 7, switching to the
// exponent form (1E+15, 1E-05) where Qt's 'g' does; the decimal separator is the Italian comma.
QString numberText(double v, int digits) {
    QString text = QString::number(v, 'g', digits);
    text.replace(u'e', u'E');
    text.replace(u'.', u',');
    return text;
}

QString currencyText(std::int64_t count) {
    const bool negative = count < 0;
    // The magnitude as unsigned, so that the smallest value does not overflow.
    const std::uint64_t magnitude =
        negative ? ~static_cast<std::uint64_t>(count) + 1 : static_cast<std::uint64_t>(count);
    QString text = QString::number(magnitude / 10000);
    const std::uint64_t fraction = magnitude % 10000;
    if (fraction != 0) {
        QString digits = QString::number(fraction).rightJustified(4, u'0');
        while (digits.endsWith(u'0')) {
            digits.chop(1);
        }
        text += u',' + digits;
    }
    return negative ? u'-' + text : text;
}

// Short date and long time of the Italian settings; a date with no time prints alone, a time
// on day zero prints alone.
QString dateText(const QDateTime& d) {
    const bool hasTime = d.time().msecsSinceStartOfDay() >= 1000;
    const bool dayZero = d.date() == QDate(1899, 12, 30);
    if (dayZero && hasTime) {
        return d.time().toString(u"HH:mm:ss"_s);
    }
    if (!hasTime) {
        return d.date().toString(u"dd/MM/yyyy"_s);
    }
    return d.toString(u"dd/MM/yyyy HH:mm:ss"_s);
}

} // namespace

QString Variant::toString() const {
    return std::visit(
        Overloaded{
            [](const Empty&) { return QString(); },
            [](const Null&) { return QString(); },
            [](const Missing&) { return QString(); },
            [](bool b) { return b ? u"Vero"_s : u"Falso"_s; },
            [](std::uint8_t v) { return QString::number(v); },
            [](std::int16_t v) { return QString::number(v); },
            [](std::int32_t v) { return QString::number(v); },
            [](float v) { return numberText(static_cast<double>(v), 7); },
            [](double v) { return numberText(v, 15); },
            [](const Currency& c) { return currencyText(c.tenThousandths); },
            [](const Decimal& d) {
                QString text = d.toString();
                if (text.contains(u'.')) {
                    while (text.endsWith(u'0')) {
                        text.chop(1);
                    }
                    if (text.endsWith(u'.')) {
                        text.chop(1);
                    }
                }
                return text.replace(u'.', u',');
            },
            [](const QDateTime& d) { return d.isValid() ? dateText(d) : QString(); },
            [](const QString& s) { return s; },
            [](const QByteArray& b) {
                // A byte array read as a string is taken as UTF-16 code units, two bytes each.
                return QString(reinterpret_cast<const QChar*>(b.constData()), b.size() / 2);
            },
            [](const Object&) { return QString(); },
            [](const VariantArray&) { return QString(); },
        },
        m_value);
}

} // namespace vb
