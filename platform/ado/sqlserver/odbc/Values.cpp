#include "platform/ado/sqlserver/odbc/Values.h"

#include "platform/ado/sqlserver/odbc/HResults.h"
#include "platform/ado/sqlserver/odbc/Types.h"

#include <QUuid>

#include <sqlucode.h>

#include <algorithm>
#include <cstring>

using namespace Qt::StringLiterals;

namespace odbc {
namespace {

constexpr SQLLEN kChunkBytes = 8192;

template <class T> std::optional<T> readFixed(const Statement& stmt, SQLUSMALLINT column,
                                              SQLSMALLINT cType) {
    T value{};
    SQLLEN indicator = 0;
    stmt.check(stmt.api().getData(stmt.get(), column, cType, &value, sizeof value, &indicator));
    if (indicator == SQL_NULL_DATA) {
        return std::nullopt;
    }
    return value;
}

// Text or bytes of any length, in chunks: the driver answers 01004 while more is left.
std::optional<QByteArray> readLong(const Statement& stmt, SQLUSMALLINT column, bool wide) {
    const SQLSMALLINT cType = wide ? SQL_C_WCHAR : SQL_C_BINARY;
    const SQLLEN terminator = wide ? static_cast<SQLLEN>(sizeof(SQLWCHAR)) : 0;
    QByteArray data;
    QByteArray chunk(kChunkBytes, Qt::Uninitialized);
    for (;;) {
        SQLLEN indicator = 0;
        const SQLRETURN rc = stmt.api().getData(stmt.get(), column, cType, chunk.data(),
                                                kChunkBytes, &indicator);
        if (rc == SQL_NO_DATA) {
            break;
        }
        stmt.check(rc);
        if (indicator == SQL_NULL_DATA) {
            return std::nullopt;
        }
        // On 01004 the driver has filled the buffer; the indicator then holds what was left
        // before this call, or SQL_NO_TOTAL.
        const SQLLEN room = kChunkBytes - terminator;
        const bool whole = rc == SQL_SUCCESS;
        const SQLLEN got =
            indicator == SQL_NO_TOTAL ? room : std::clamp<SQLLEN>(indicator, 0, room);
        data.append(chunk.constData(), got - (wide ? got % 2 : 0));
        if (whole) {
            break;
        }
    }
    return data;
}

QString textOf(const QByteArray& utf16) {
    return QString::fromUtf16(reinterpret_cast<const char16_t*>(utf16.constData()),
                              utf16.size() / 2);
}

vb::Variant dateOf(const SQL_TIMESTAMP_STRUCT& t) {
    return vb::Variant(vb::makeDate(t.year, t.month, t.day, t.hour, t.minute, t.second,
                                    static_cast<int>(t.fraction / 1000000)));
}

std::optional<vb::Variant> readNumericText(const Statement& stmt, SQLUSMALLINT column,
                                           int adoType) {
    const std::optional<QByteArray> raw = readLong(stmt, column, true);
    if (!raw) {
        return std::nullopt;
    }
    const QString text = textOf(*raw);
    if (adoType == adtype::Currency) {
        if (const auto money = currencyFromText(text)) {
            return vb::Variant(*money);
        }
    } else if (const auto number = vb::Decimal::parse(text)) {
        return vb::Variant(*number);
    }
    throw Failure(hr::DB_E_CANTCONVERTVALUE,
                  u"Column %1: the value '%2' is not a number."_s.arg(QString::number(column), text));
}

} // namespace

vb::Variant readValue(const Statement& stmt, SQLUSMALLINT column, int adoType) {
    const auto orNull = [](const auto& value, auto convert) {
        return value ? vb::Variant(convert(*value)) : vb::Variant(vb::Null{});
    };
    const auto same = [](auto v) { return v; };
    switch (adoType) {
    case adtype::SmallInt:
        return orNull(readFixed<SQLSMALLINT>(stmt, column, SQL_C_SSHORT),
                      [](SQLSMALLINT v) { return static_cast<std::int16_t>(v); });
    case adtype::Integer:
        return orNull(readFixed<SQLINTEGER>(stmt, column, SQL_C_SLONG),
                      [](SQLINTEGER v) { return static_cast<std::int32_t>(v); });
    case adtype::UnsignedTinyInt:
        return orNull(readFixed<SQLCHAR>(stmt, column, SQL_C_UTINYINT),
                      [](SQLCHAR v) { return static_cast<std::uint8_t>(v); });
    case adtype::Single: return orNull(readFixed<float>(stmt, column, SQL_C_FLOAT), same);
    case adtype::Double: return orNull(readFixed<double>(stmt, column, SQL_C_DOUBLE), same);
    case adtype::Boolean:
        return orNull(readFixed<SQLCHAR>(stmt, column, SQL_C_BIT),
                      [](SQLCHAR v) { return v != 0; });
    case adtype::BigInt:
        return orNull(readFixed<SQLBIGINT>(stmt, column, SQL_C_SBIGINT), [](SQLBIGINT v) {
            vb::Decimal d;
            d.negative = v < 0;
            d.lo = d.negative ? 0 - static_cast<std::uint64_t>(v) : static_cast<std::uint64_t>(v);
            return d;
        });
    case adtype::DBTimeStamp:
    case adtype::Date: {
        const auto t = readFixed<SQL_TIMESTAMP_STRUCT>(stmt, column, SQL_C_TYPE_TIMESTAMP);
        return t ? dateOf(*t) : vb::Variant(vb::Null{});
    }
    case adtype::Guid:
        return orNull(readFixed<SQLGUID>(stmt, column, SQL_C_GUID), [](const SQLGUID& g) {
            const QUuid id(g.Data1, g.Data2, g.Data3, g.Data4[0], g.Data4[1], g.Data4[2],
                           g.Data4[3], g.Data4[4], g.Data4[5], g.Data4[6], g.Data4[7]);
            return id.toString(QUuid::WithBraces).toUpper();
        });
    case adtype::Currency:
    case adtype::Numeric:
    case adtype::Decimal: {
        const auto value = readNumericText(stmt, column, adoType);
        return value ? *value : vb::Variant(vb::Null{});
    }
    default:
        break;
    }
    const bool binary = isBinaryType(adoType);
    const std::optional<QByteArray> raw = readLong(stmt, column, !binary);
    if (!raw) {
        return vb::Variant(vb::Null{});
    }
    return binary ? vb::Variant(*raw) : vb::Variant(textOf(*raw));
}

std::optional<vb::Currency> currencyFromText(QStringView text) {
    const std::optional<vb::Decimal> d = vb::Decimal::parse(text.trimmed());
    if (!d || d->hi != 0) {
        return std::nullopt;
    }
    std::uint64_t magnitude = d->lo;
    int scale = d->scale;
    for (; scale < 4; ++scale) {
        if (magnitude > static_cast<std::uint64_t>(INT64_MAX) / 10) {
            return std::nullopt;
        }
        magnitude *= 10;
    }
    for (; scale > 4; --scale) {
        magnitude = (magnitude + 5) / 10; // money holds four decimals; round the fifth
    }
    if (magnitude > static_cast<std::uint64_t>(INT64_MAX)) {
        return std::nullopt;
    }
    const auto signedValue = static_cast<std::int64_t>(magnitude);
    return vb::Currency{d->negative ? -signedValue : signedValue};
}

QString currencyText(vb::Currency value) {
    const bool negative = value.tenThousandths < 0;
    const std::uint64_t magnitude = negative
                                        ? 0 - static_cast<std::uint64_t>(value.tenThousandths)
                                        : static_cast<std::uint64_t>(value.tenThousandths);
    return u"%1%2.%3"_s.arg(negative ? u"-"_s : QString(), QString::number(magnitude / 10000),
                            u"%1"_s.arg(magnitude % 10000, 4, 10, QChar(u'0')));
}

std::optional<QString> decimalText(const vb::Variant& value) {
    if (const auto* d = value.get<vb::Decimal>()) {
        return d->toString();
    }
    if (const auto* c = value.get<vb::Currency>()) {
        return currencyText(*c);
    }
    if (const auto* s = value.get<QString>()) {
        // Text typed by an Italian user writes the decimal comma.
        QString text = s->trimmed();
        text.replace(u',', u'.');
        if (const auto d = vb::Decimal::parse(text)) {
            return d->toString();
        }
        return std::nullopt;
    }
    if (value.isNumber() || value.isBoolean()) {
        const std::optional<double> d = value.toDouble();
        if (!d) {
            return std::nullopt;
        }
        QString text = QString::number(*d, 'f', 15);
        while (text.endsWith(u'0')) {
            text.chop(1);
        }
        if (text.endsWith(u'.')) {
            text.chop(1);
        }
        return text;
    }
    return std::nullopt;
}

} // namespace odbc
