#include "platform/ado/sqlserver/odbc/Types.h"

#include <sqlucode.h>

#include <array>

using namespace Qt::StringLiterals;

namespace odbc {
namespace {

struct NameRule {
    const char16_t* name;
    int adoType;
};

// Server types whose ADO type the driver's SQL type alone does not settle.
constexpr std::array kByName{
    NameRule{u"money", adtype::Currency},        NameRule{u"smallmoney", adtype::Currency},
    NameRule{u"datetime", adtype::DBTimeStamp},  NameRule{u"smalldatetime", adtype::DBTimeStamp},
    NameRule{u"timestamp", adtype::Binary},      NameRule{u"ntext", adtype::LongVarWChar},
    NameRule{u"text", adtype::LongVarChar},      NameRule{u"image", adtype::LongVarBinary},
    NameRule{u"xml", adtype::LongVarWChar},
};

// Drivers report a (max) column with size 0, or with 2^30 or 2^31 - 1 characters.
bool isUnbounded(const ColumnDescription& column) {
    return column.size == 0 || column.size >= 0x3FFFFFFF;
}

} // namespace

int fieldType(const ColumnDescription& column, const QString& serverTypeName) {
    const QString name = serverTypeName.toLower();
    for (const NameRule& rule : kByName) {
        if (name == QStringView(rule.name)) {
            return rule.adoType;
        }
    }
    switch (column.sqlType) {
    case SQL_SMALLINT: return adtype::SmallInt;
    case SQL_INTEGER: return adtype::Integer;
    case SQL_REAL: return adtype::Single;
    case SQL_FLOAT:
    case SQL_DOUBLE: return adtype::Double;
    case SQL_BIT: return adtype::Boolean;
    case SQL_TINYINT: return adtype::UnsignedTinyInt;
    case SQL_BIGINT: return adtype::BigInt;
    case SQL_GUID: return adtype::Guid;
    case SQL_DECIMAL:
    case SQL_NUMERIC: return adtype::Numeric;
    case SQL_TYPE_TIMESTAMP:
    case SQL_DATETIME: return adtype::DBTimeStamp;
    case SQL_WCHAR: return adtype::WChar;
    case SQL_WVARCHAR: return isUnbounded(column) ? adtype::LongVarWChar : adtype::VarWChar;
    case SQL_WLONGVARCHAR: return adtype::LongVarWChar;
    case SQL_CHAR: return adtype::Char;
    case SQL_VARCHAR: return isUnbounded(column) ? adtype::LongVarChar : adtype::VarChar;
    case SQL_LONGVARCHAR: return adtype::LongVarChar;
    case SQL_BINARY: return adtype::Binary;
    case SQL_VARBINARY: return isUnbounded(column) ? adtype::LongVarBinary : adtype::VarBinary;
    case SQL_LONGVARBINARY: return adtype::LongVarBinary;
    default:
        // date, time, datetime2 and datetimeoffset reach MDAC clients as text.
        return adtype::VarWChar;
    }
}

bool isTextType(int adoType) {
    switch (adoType) {
    case adtype::Char:
    case adtype::WChar:
    case adtype::VarChar:
    case adtype::LongVarChar:
    case adtype::VarWChar:
    case adtype::LongVarWChar: return true;
    default: return false;
    }
}

bool isBinaryType(int adoType) {
    return adoType == adtype::Binary || adoType == adtype::VarBinary ||
           adoType == adtype::LongVarBinary;
}

long definedSize(int adoType, const ColumnDescription& column) {
    switch (adoType) {
    case adtype::LongVarWChar: return 1073741823;
    case adtype::LongVarChar:
    case adtype::LongVarBinary: return 2147483647;
    case adtype::SmallInt: return 2;
    case adtype::Boolean: return 2;
    case adtype::UnsignedTinyInt: return 1;
    case adtype::Integer:
    case adtype::Single: return 4;
    case adtype::Double:
    case adtype::Currency:
    case adtype::BigInt: return 8;
    case adtype::DBTimeStamp: return 16;
    case adtype::Guid: return 16;
    case adtype::Numeric: return 19;
    default: return static_cast<long>(column.size);
    }
}

int catalogType(const QString& typeName, long maxLength) {
    const QString t = typeName.toLower();
    const bool max = maxLength == -1;
    if (t == u"nvarchar") {
        return max ? adtype::LongVarWChar : adtype::VarWChar;
    }
    if (t == u"varchar") {
        return max ? adtype::LongVarChar : adtype::VarChar;
    }
    if (t == u"varbinary") {
        return max ? adtype::LongVarBinary : adtype::VarBinary;
    }
    struct Entry {
        const char16_t* name;
        int type;
    };
    static constexpr Entry kTypes[] = {
        {u"nchar", adtype::WChar},       {u"ntext", adtype::LongVarWChar},
        {u"xml", adtype::LongVarWChar},  {u"char", adtype::Char},
        {u"text", adtype::LongVarChar},  {u"binary", adtype::Binary},
        {u"image", adtype::LongVarBinary}, {u"timestamp", adtype::Binary},
        {u"int", adtype::Integer},       {u"smallint", adtype::SmallInt},
        {u"tinyint", adtype::UnsignedTinyInt}, {u"bigint", adtype::BigInt},
        {u"bit", adtype::Boolean},       {u"float", adtype::Double},
        {u"real", adtype::Single},       {u"money", adtype::Currency},
        {u"smallmoney", adtype::Currency}, {u"datetime", adtype::DBTimeStamp},
        {u"smalldatetime", adtype::DBTimeStamp}, {u"decimal", adtype::Numeric},
        {u"numeric", adtype::Numeric},   {u"uniqueidentifier", adtype::Guid},
        {u"sql_variant", adtype::Variant},
    };
    for (const Entry& e : kTypes) {
        if (t == QStringView(e.name)) {
            return e.type;
        }
    }
    return adtype::VarWChar; // date, time, datetime2, datetimeoffset: text to MDAC clients
}

long catalogSize(const QString& typeName, long maxLength) {
    const QString t = typeName.toLower();
    if (t == u"ntext" || t == u"xml" || ((t == u"nvarchar" || t == u"nchar") && maxLength == -1)) {
        return 1073741823;
    }
    if (t == u"nvarchar" || t == u"nchar") {
        return maxLength / 2;
    }
    if (t == u"text" || t == u"image" || maxLength == -1) {
        return 2147483647;
    }
    return maxLength;
}

bool isFixedType(const QString& typeName) {
    static constexpr const char16_t* kVariable[] = {u"varchar", u"nvarchar", u"varbinary",
                                                    u"text",    u"ntext",    u"image",
                                                    u"xml",     u"sql_variant"};
    const QString t = typeName.toLower();
    for (const char16_t* name : kVariable) {
        if (t == QStringView(name)) {
            return false;
        }
    }
    return true;
}

} // namespace odbc
