#pragma once

#include "platform/vb/Decimal.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <cstdint>
#include <memory>
#include <optional>
#include <variant>
#include <vector>

namespace vb {

struct Empty {
    friend bool operator==(Empty, Empty) = default;
};
struct Null {
    friend bool operator==(Null, Null) = default;
};
// An optional argument the caller left out.
struct Missing {
    friend bool operator==(Missing, Missing) = default;
};

// Money: a 64-bit count of ten-thousandths, never a double.
struct Currency {
    std::int64_t tenThousandths = 0;
    friend bool operator==(Currency, Currency) = default;
};

// An object reference; the system passes database handles and controls this way.
struct Object {
    std::shared_ptr<void> ptr;
    friend bool operator==(const Object&, const Object&) = default;
};

class Variant;
using VariantArray = std::shared_ptr<const std::vector<Variant>>;

// The subtype numbers of VarType.
enum class VarType : int {
    Empty = 0,
    Null = 1,
    Integer = 2,
    Long = 3,
    Single = 4,
    Double = 5,
    Currency = 6,
    Date = 7,
    String = 8,
    Object = 9,
    Error = 10, // a left-out argument
    Boolean = 11,
    Decimal = 14,
    Byte = 17,
    Array = 8192 | 12,     // array of variants
    ByteArray = 8192 | 17, // binary data
};

// The tagged value that field values, settings and optional arguments travel in. Dates are kept
// as QDateTime in UTC used as a plain calendar value (no zone, no daylight saving).
class Variant {
public:
    using Value = std::variant<Empty, Null, Missing, bool, std::uint8_t, std::int16_t, std::int32_t,
                               float, double, Currency, Decimal, QDateTime, QString, QByteArray,
                               Object, VariantArray>;

    Variant() = default;
    Variant(Empty) {}
    Variant(Null v) : m_value(v) {}
    Variant(Missing v) : m_value(v) {}
    Variant(bool v) : m_value(v) {}
    Variant(std::uint8_t v) : m_value(v) {}
    Variant(std::int16_t v) : m_value(v) {}
    Variant(std::int32_t v) : m_value(v) {}
    Variant(float v) : m_value(v) {}
    Variant(double v) : m_value(v) {}
    Variant(Currency v) : m_value(v) {}
    Variant(Decimal v) : m_value(v) {}
    Variant(QDateTime v);
    Variant(QString v) : m_value(std::move(v)) {}
    Variant(const char16_t* v) : m_value(QString::fromUtf16(v)) {}
    Variant(QByteArray v) : m_value(std::move(v)) {}
    Variant(Object v) : m_value(std::move(v)) {}
    Variant(VariantArray v) : m_value(std::move(v)) {}
    // A plain int is a Long, as VB's integer literals beyond 16 bits are.
    static Variant fromLong(long v) { return Variant(static_cast<std::int32_t>(v)); }

    const Value& value() const noexcept { return m_value; }
    VarType varType() const noexcept;

    bool isEmpty() const noexcept { return std::holds_alternative<Empty>(m_value); }
    bool isNull() const noexcept { return std::holds_alternative<Null>(m_value); }
    bool isMissing() const noexcept { return std::holds_alternative<Missing>(m_value); }
    bool isString() const noexcept { return std::holds_alternative<QString>(m_value); }
    bool isDate() const noexcept { return std::holds_alternative<QDateTime>(m_value); }
    bool isBoolean() const noexcept { return std::holds_alternative<bool>(m_value); }
    // Integer, Long, Single, Double, Currency, Decimal and Byte.
    bool isNumber() const noexcept;
    // IsNumeric: a number, a boolean, empty, or a string that converts to a number.
    bool isNumeric() const;

    // CStr under the suite's Italian regional settings ("1,5", "Vero", "31/12/2024 10:30:00"),
    // with Empty and Null as "" (what "" & value gives).
    QString toString() const;
    // CDbl, CLng (rounding half to even), CInt, CBool, CCur, CDate; empty when VB would raise
    // a type mismatch or an overflow.
    std::optional<double> toDouble() const;
    std::optional<std::int32_t> toLong() const;
    std::optional<std::int16_t> toInteger() const;
    std::optional<bool> toBool() const;
    std::optional<Currency> toCurrency() const;
    std::optional<QDateTime> toDate() const;

    // Exact equality of subtype and value; VB's own comparison lives in vb::compareText and
    // nxMisc, where the system needs it.
    friend bool operator==(const Variant& a, const Variant& b) { return a.m_value == b.m_value; }

    template <class T> const T* get() const noexcept { return std::get_if<T>(&m_value); }

    // Makes the variant a string if it is not one already and gives that string to write into:
    // a reader that decodes value after value into the same variant reuses its storage.
    QString& holdString() {
        if (QString* text = std::get_if<QString>(&m_value)) {
            return *text;
        }
        return m_value.emplace<QString>();
    }

private:
    Value m_value;
};

// OLE automation dates: days since 1899-12-30, the fraction's magnitude the time of day.
QDateTime dateFromOle(double days);
double oleFromDate(const QDateTime& date);
// A calendar date and time in the Variant's convention (UTC, no zone).
QDateTime makeDate(int year, int month, int day, int hour = 0, int minute = 0, int second = 0,
                   int msec = 0);

} // namespace vb
