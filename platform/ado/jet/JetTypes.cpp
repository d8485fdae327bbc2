#include "platform/ado/jet/JetTypes.h"

namespace ado::jet {

using jetfile::ColumnType;

DataTypeEnum fieldType(const jetfile::Column& column) {
    switch (column.type()) {
    case ColumnType::Boolean:
        return DataTypeEnum::adBoolean;
    case ColumnType::Byte:
        return DataTypeEnum::adUnsignedTinyInt;
    case ColumnType::Integer:
        return DataTypeEnum::adSmallInt;
    case ColumnType::Long:
        return DataTypeEnum::adInteger;
    case ColumnType::Currency:
        return DataTypeEnum::adCurrency;
    case ColumnType::Single:
        return DataTypeEnum::adSingle;
    case ColumnType::Double:
        return DataTypeEnum::adDouble;
    case ColumnType::DateTime:
        return DataTypeEnum::adDate;
    case ColumnType::Binary:
        return DataTypeEnum::adVarBinary;
    case ColumnType::Text:
        return DataTypeEnum::adVarWChar;
    case ColumnType::Ole:
        return DataTypeEnum::adLongVarBinary;
    case ColumnType::Memo:
        return DataTypeEnum::adLongVarWChar;
    case ColumnType::Guid:
        return DataTypeEnum::adGUID;
    case ColumnType::Numeric:
        return DataTypeEnum::adNumeric;
    }
    return DataTypeEnum::adVarBinary; // a type Jet 4 does not define: its raw bytes
}

DataTypeEnum schemaType(const jetfile::Column& column) {
    switch (column.type()) {
    case ColumnType::Text:
    case ColumnType::Memo:
        return DataTypeEnum::adWChar;
    case ColumnType::Binary:
    case ColumnType::Ole:
        return DataTypeEnum::adBinary;
    default:
        return fieldType(column);
    }
}

long definedSize(const jetfile::Column& column) {
    switch (column.type()) {
    case ColumnType::Boolean:
        return 2;
    case ColumnType::Byte:
        return 1;
    case ColumnType::Integer:
        return 2;
    case ColumnType::Long:
    case ColumnType::Single:
        return 4;
    case ColumnType::Currency:
    case ColumnType::Double:
    case ColumnType::DateTime:
        return 8;
    case ColumnType::Guid:
        return 16;
    case ColumnType::Numeric:
        return 19;
    case ColumnType::Text:
        return column.length / 2;
    case ColumnType::Binary:
        return column.length;
    case ColumnType::Memo:
        return 536870910;
    case ColumnType::Ole:
        return 1073741823;
    }
    return column.length;
}

long characterLength(const jetfile::Column& column) {
    return column.type() == ColumnType::Text ? column.length / 2 : 0;
}

bool isNullable(const jetfile::Column& column) {
    if (column.type() == ColumnType::Boolean || column.isAutoNumber()) {
        return false;
    }
    const auto required = column.properties.value(u"Required").toBool();
    return !required.value_or(false);
}

long columnFlags(const jetfile::Column& column) {
    // Jet sets "may be null" on every column, also on Yes/No and autonumbers (0x5A).
    long flags = adFldMayDefer | adFldUnknownUpdatable | adFldMayBeNull;
    if (column.isLongValue()) {
        flags |= adFldLong;
    }
    if (column.isFixedLength()) {
        flags |= adFldFixed;
    }
    if (isNullable(column)) {
        flags |= adFldIsNullable;
    }
    return flags;
}

ColumnInfo columnInfo(const jetfile::Column& column) {
    ColumnInfo info;
    info.name = column.name;
    info.type = fieldType(column);
    info.definedSize = definedSize(column);
    info.attributes = columnFlags(column);
    if (column.type() == ColumnType::Numeric) {
        info.precision = column.precision;
        info.numericScale = column.scale;
    }
    info.properties.push_back({QStringLiteral("ISAUTOINCREMENT"), column.isAutoNumber(), false});
    info.properties.push_back({QStringLiteral("BASECOLUMNNAME"), column.name, false});
    return info;
}

} // namespace ado::jet
