#include "platform/ado/sqlserver/odbc/HResults.h"
#include "platform/ado/sqlserver/odbc/Types.h"
#include "platform/ado/sqlserver/odbc/Values.h"

#include <QUuid>

#include <sqlucode.h>

#include <algorithm>
#include <cstring>

using namespace Qt::StringLiterals;

namespace odbc {

// The buffer of one parameter: bytes that the driver reads at execution, and the indicator.
struct BoundParameters::Slot {
    QByteArray bytes;
    SQLLEN indicator = 0;
};

BoundParameters::BoundParameters() = default;
BoundParameters::~BoundParameters() = default;

namespace {

template <class T> QByteArray bytesOf(const T& value) {
    return QByteArray(reinterpret_cast<const char*>(&value), sizeof value);
}

[[noreturn]] void cannotConvert(std::size_t index, const vb::Variant& value, int adoType) {
    throw Failure(hr::DB_E_CANTCONVERTVALUE,
                  u"Parameter %1: the value '%2' cannot be sent as ADO type %3."_s.arg(
                      QString::number(index + 1), value.toString(), QString::number(adoType)));
}

template <class T> T require(const std::optional<T>& v, std::size_t index,
                             const ParameterValue& p) {
    if (!v) {
        cannotConvert(index, p.value, p.adoType);
    }
    return *v;
}

QByteArray utf16Bytes(const QString& text) {
    return QByteArray(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
}

// Text of any non-null value as the server should read it.
QString textOf(const vb::Variant& value) {
    if (const auto* s = value.get<QString>()) {
        return *s;
    }
    if (auto exact = decimalText(value); exact && !value.isBoolean()) {
        return *exact; // numbers with a decimal point, not the Italian comma
    }
    return value.toString();
}

Binding textBinding(qsizetype chars, long declared) {
    const auto size = static_cast<SQLULEN>(std::max<qsizetype>({chars, declared, 1}));
    if (size > static_cast<SQLULEN>(kMaxBoundedChars)) {
        return {SQL_C_WCHAR, SQL_WLONGVARCHAR, size, 0};
    }
    return {SQL_C_WCHAR, SQL_WVARCHAR, size, 0};
}

Binding binaryBinding(qsizetype bytes, long declared) {
    const auto size = static_cast<SQLULEN>(std::max<qsizetype>({bytes, declared, 1}));
    if (size > static_cast<SQLULEN>(kMaxBoundedBytes)) {
        return {SQL_C_BINARY, SQL_LONGVARBINARY, size, 0};
    }
    return {SQL_C_BINARY, SQL_VARBINARY, size, 0};
}

SQL_TIMESTAMP_STRUCT timestampOf(const QDateTime& when) {
    const QDate d = when.date();
    const QTime t = when.time();
    SQL_TIMESTAMP_STRUCT ts{};
    ts.year = static_cast<SQLSMALLINT>(d.year());
    ts.month = static_cast<SQLUSMALLINT>(d.month());
    ts.day = static_cast<SQLUSMALLINT>(d.day());
    ts.hour = static_cast<SQLUSMALLINT>(t.hour());
    ts.minute = static_cast<SQLUSMALLINT>(t.minute());
    ts.second = static_cast<SQLUSMALLINT>(t.second());
    ts.fraction = static_cast<SQLUINTEGER>(t.msec()) * 1000000u;
    return ts;
}

// The binding and, for a non-null value, the bytes to send.
Binding prepare(const ParameterValue& p, std::size_t index, QByteArray* bytes) {
    const bool null = p.value.isNull() || p.value.isEmpty() || p.value.isMissing();
    switch (p.adoType) {
    case adtype::SmallInt:
    case adtype::TinyInt:
        if (!null) {
            *bytes = bytesOf<SQLSMALLINT>(require(p.value.toInteger(), index, p));
        }
        return {SQL_C_SSHORT, SQL_SMALLINT, 5, 0};
    case adtype::Integer:
        if (!null) {
            *bytes = bytesOf<SQLINTEGER>(require(p.value.toLong(), index, p));
        }
        return {SQL_C_SLONG, SQL_INTEGER, 10, 0};
    case adtype::UnsignedTinyInt:
        if (!null) {
            const std::int16_t v = require(p.value.toInteger(), index, p);
            if (v < 0 || v > 255) {
                cannotConvert(index, p.value, p.adoType);
            }
            *bytes = bytesOf<SQLCHAR>(static_cast<SQLCHAR>(v));
        }
        return {SQL_C_UTINYINT, SQL_TINYINT, 3, 0};
    case adtype::Single:
        if (!null) {
            *bytes = bytesOf<float>(static_cast<float>(require(p.value.toDouble(), index, p)));
        }
        return {SQL_C_FLOAT, SQL_REAL, 7, 0};
    case adtype::Double:
        if (!null) {
            *bytes = bytesOf<double>(require(p.value.toDouble(), index, p));
        }
        return {SQL_C_DOUBLE, SQL_DOUBLE, 15, 0};
    case adtype::Boolean:
        if (!null) {
            // ADO's True is -1; the server's bit is 1.
            *bytes = bytesOf<SQLCHAR>(require(p.value.toBool(), index, p) ? 1 : 0);
        }
        return {SQL_C_BIT, SQL_BIT, 1, 0};
    case adtype::BigInt:
        if (!null) {
            *bytes = utf16Bytes(require(decimalText(p.value), index, p));
        }
        return {SQL_C_WCHAR, SQL_BIGINT, 19, 0};
    case adtype::Currency:
        if (!null) {
            // Money goes as exact text; a double would round it.
            const auto money = p.value.get<vb::Currency>() ? *p.value.get<vb::Currency>()
                                                           : require(p.value.toCurrency(), index, p);
            *bytes = utf16Bytes(currencyText(money));
        }
        return {SQL_C_WCHAR, SQL_DECIMAL, 19, 4};
    case adtype::Numeric:
    case adtype::Decimal: {
        if (!null) {
            *bytes = utf16Bytes(require(decimalText(p.value), index, p));
        }
        const int precision = p.precision > 0 ? p.precision : 18;
        return {SQL_C_WCHAR, SQL_NUMERIC, static_cast<SQLULEN>(precision),
                static_cast<SQLSMALLINT>(std::clamp(p.scale, 0, precision))};
    }
    case adtype::Date:
    case adtype::DBTimeStamp:
        if (!null) {
            *bytes = bytesOf(timestampOf(require(p.value.toDate(), index, p)));
        }
        return {SQL_C_TYPE_TIMESTAMP, SQL_TYPE_TIMESTAMP, 23, 3};
    case adtype::Guid:
        if (!null) {
            const QUuid id(textOf(p.value));
            if (id.isNull() && textOf(p.value).count(u'0') < 32) {
                cannotConvert(index, p.value, p.adoType);
            }
            SQLGUID g{};
            g.Data1 = id.data1;
            g.Data2 = id.data2;
            g.Data3 = id.data3;
            std::memcpy(g.Data4, id.data4, sizeof g.Data4);
            *bytes = bytesOf(g);
        }
        return {SQL_C_GUID, SQL_GUID, 16, 0};
    case adtype::Binary:
    case adtype::VarBinary:
    case adtype::LongVarBinary: {
        if (!null) {
            const auto* data = p.value.get<QByteArray>();
            if (data == nullptr) {
                cannotConvert(index, p.value, p.adoType);
            }
            *bytes = *data;
        }
        const Binding b = binaryBinding(bytes->size(), p.size);
        return p.adoType == adtype::LongVarBinary ? Binding{SQL_C_BINARY, SQL_LONGVARBINARY,
                                                            b.columnSize, 0}
                                                  : b;
    }
    case adtype::Char:
    case adtype::WChar:
    case adtype::VarChar:
    case adtype::VarWChar:
    case adtype::LongVarChar:
    case adtype::LongVarWChar: {
        if (!null) {
            *bytes = utf16Bytes(textOf(p.value));
        }
        const Binding b = textBinding(bytes->size() / 2, p.size);
        const bool isLong = p.adoType == adtype::LongVarChar || p.adoType == adtype::LongVarWChar;
        return isLong ? Binding{SQL_C_WCHAR, SQL_WLONGVARCHAR, b.columnSize, 0} : b;
    }
    default:
        throw Failure(hr::DB_E_BADPARAMETERTYPE,
                      u"Parameter %1: ADO type %2 is not supported by this provider."_s.arg(
                          QString::number(index + 1), QString::number(p.adoType)));
    }
}

} // namespace

void BoundParameters::bind(const Statement& stmt, const std::vector<ParameterValue>& parameters) {
    m_slots.clear();
    m_bindings.clear();
    for (std::size_t i = 0; i < parameters.size(); ++i) {
        auto slot = std::make_unique<Slot>();
        const Binding b = prepare(parameters[i], i, &slot->bytes);
        const ParameterValue& p = parameters[i];
        const bool null = p.value.isNull() || p.value.isEmpty() || p.value.isMissing();
        slot->indicator = null ? SQL_NULL_DATA : static_cast<SQLLEN>(slot->bytes.size());
        // An empty text still needs a valid address.
        if (slot->bytes.isEmpty()) {
            slot->bytes.resize(sizeof(SQLWCHAR));
            slot->bytes.fill('\0');
        }
        stmt.check(stmt.api().bindParameter(
            stmt.get(), static_cast<SQLUSMALLINT>(i + 1), b.cType, b.sqlType, b.columnSize,
            b.decimalDigits, slot->bytes.data(), static_cast<SQLLEN>(slot->bytes.size()),
            &slot->indicator));
        m_bindings.push_back(b);
        m_slots.push_back(std::move(slot));
    }
}

} // namespace odbc
