#include "platform/jetfile/detail/Values.h"

#include "platform/jetfile/detail/Text.h"

#include <cmath>
#include <type_traits>

using namespace Qt::Literals::StringLiterals;

namespace jetfile::detail {

namespace {

// The dates Jet accepts: 100-01-01 to 9999-12-31 23:59:59.
constexpr double kFirstDate = -657434.0;
constexpr double kLastDate = 2958466.0;

} // namespace

QDateTime oleDate(double days) {
    // The whole part counts days from 1899-12-30; the fraction is the time of that day, counting
    // forward from its midnight even when the day is negative (-1.25 is 1899-12-29 06:00). A
    // time that rounds to 24:00 is midnight of the following day.
    const double whole = std::trunc(days);
    auto day = static_cast<qint64>(whole);
    auto ms = static_cast<qint64>(std::llround(std::fabs(days - whole) * 86400000.0));
    if (ms >= 86400000) {
        ms -= 86400000;
        ++day;
    }
    static const QDate kEpoch(1899, 12, 30);
    return {kEpoch.addDays(day), QTime::fromMSecsSinceStartOfDay(static_cast<int>(ms)), Qt::UTC};
}

namespace {

[[noreturn]] void badValue(const PageSource& source, const Column& column, const RowView& row,
                           const QString& reason) {
    source.damaged(u"column '%1': %2"_s.arg(column.name, reason), row.page());
}

void needSize(const PageSource& source, const Column& column, const RowView& row, std::size_t n,
              std::size_t size) {
    if (n != size) {
        badValue(source, column, row,
                 u"a value of %1 bytes where %2 are stored"_s.arg(QString::number(n),
                                                                  QString::number(size)));
    }
}

// In UTC, as a variant keeps its dates.
QDateTime decodeDate(const PageSource& source, const Column& column, const RowView& row,
                     const std::uint8_t* d) {
    const double days = leDouble(d);
    if (!(days > kFirstDate - 1.0 && days < kLastDate)) {
        badValue(source, column, row, u"a date outside the years 100 to 9999"_s);
    }
    return oleDate(days);
}

vb::Decimal decodeDecimal(const PageSource& source, const Column& column, const RowView& row,
                          const std::uint8_t* d) {
    // A sign byte, then the 128-bit magnitude as four little-endian words, most significant first.
    const std::uint32_t w3 = le32(d + 1);
    const std::uint32_t w2 = le32(d + 5);
    const std::uint32_t w1 = le32(d + 9);
    const std::uint32_t w0 = le32(d + 13);
    if (w3 != 0 || column.scale > vb::Decimal::kMaxScale) {
        badValue(source, column, row, u"a decimal beyond 28 digits"_s);
    }
    vb::Decimal value;
    value.hi = w2;
    value.lo = (static_cast<std::uint64_t>(w1) << 32) | w0;
    value.scale = column.scale;
    value.negative = d[0] != 0 && !value.isZero();
    return value;
}

void decodeTextInto(const PageSource& source, const Column& column, const RowView& row,
                    const std::uint8_t* d, std::size_t n, QString& text) {
    if (!decodeText(d, n, text)) {
        badValue(source, column, row, u"text of odd byte length %1"_s.arg(n));
    }
}

// The one switch over Jet's types. `sink` takes each value as it is made (put) and decodes a
// text into a string of its own choosing (text): MakeVariant builds a new variant, WriteInto
// writes into the caller's.
template <class Sink>
typename Sink::Result decodeWith(const PageSource& source, const Column& column,
                                 const RowView& row, LongValueReader& longValues, Sink& sink) {
    if (column.type() == ColumnType::Boolean) {
        return sink.put(row.flag(column));
    }
    if (row.isNull(column)) {
        return sink.put(vb::Null{});
    }
    const std::uint8_t* d = nullptr;
    std::size_t n = 0;
    row.data(column, d, n);
    switch (column.type()) {
    case ColumnType::Boolean:
        break;
    case ColumnType::Byte:
        needSize(source, column, row, n, 1);
        return sink.put(d[0]);
    case ColumnType::Integer:
        needSize(source, column, row, n, 2);
        return sink.put(static_cast<std::int16_t>(le16(d)));
    case ColumnType::Long:
        needSize(source, column, row, n, 4);
        return sink.put(static_cast<std::int32_t>(le32(d)));
    case ColumnType::Currency:
        needSize(source, column, row, n, 8);
        return sink.put(vb::Currency{static_cast<std::int64_t>(le64(d))});
    case ColumnType::Single:
        needSize(source, column, row, n, 4);
        return sink.put(leFloat(d));
    case ColumnType::Double:
        needSize(source, column, row, n, 8);
        return sink.put(leDouble(d));
    case ColumnType::DateTime:
        needSize(source, column, row, n, 8);
        return sink.put(decodeDate(source, column, row, d));
    case ColumnType::Guid:
        needSize(source, column, row, n, 16);
        return sink.put(guidText(d));
    case ColumnType::Numeric:
        needSize(source, column, row, n, 17);
        return sink.put(decodeDecimal(source, column, row, d));
    case ColumnType::Text:
        return sink.text(source, column, row, d, n);
    case ColumnType::Memo: {
        const QByteArray bytes = longValues.read(d, n, row.page());
        return sink.text(source, column, row, reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                         static_cast<std::size_t>(bytes.size()));
    }
    case ColumnType::Ole:
        return sink.put(longValues.read(d, n, row.page()));
    case ColumnType::Binary:
        break;
    }
    return sink.put(QByteArray(reinterpret_cast<const char*>(d), static_cast<qsizetype>(n)));
}

struct MakeVariant {
    using Result = vb::Variant;
    template <class T> vb::Variant put(T&& value) const { return vb::Variant(std::forward<T>(value)); }
    vb::Variant text(const PageSource& source, const Column& column, const RowView& row,
                     const std::uint8_t* d, std::size_t n) const {
        QString text;
        decodeTextInto(source, column, row, d, n, text);
        return vb::Variant(std::move(text));
    }
};

struct WriteInto {
    using Result = void;
    vb::Variant& into;
    // A walk meets the same type in a column at every record: a value of the type the variant
    // already holds is stored in its place, sparing a new variant and the change of type.
    template <class T> void put(T&& value) const {
        using Plain = std::remove_cvref_t<T>;
        if (const Plain* held = into.get<Plain>()) {
            *const_cast<Plain*>(held) = std::forward<T>(value); // `into` itself is not const
        } else {
            into = vb::Variant(std::forward<T>(value));
        }
    }
    void text(const PageSource& source, const Column& column, const RowView& row,
              const std::uint8_t* d, std::size_t n) const {
        decodeTextInto(source, column, row, d, n, into.holdString());
    }
};

} // namespace

vb::Variant decodeValue(const PageSource& source, const Column& column, const RowView& row,
                        LongValueReader& longValues) {
    MakeVariant sink;
    return decodeWith(source, column, row, longValues, sink);
}

void decodeValueInto(const PageSource& source, const Column& column, const RowView& row,
                     LongValueReader& longValues, vb::Variant& into) {
    WriteInto sink{into};
    try {
        decodeWith(source, column, row, longValues, sink);
    } catch (...) {
        into = vb::Variant();
        throw;
    }
}

} // namespace jetfile::detail
