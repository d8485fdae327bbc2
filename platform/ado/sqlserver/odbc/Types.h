#pragma once

#include "platform/ado/sqlserver/odbc/OdbcApi.h"

#include <QString>

namespace odbc {

// ADO DataTypeEnum numbers this layer speaks.
namespace adtype {
inline constexpr int Empty = 0;
inline constexpr int SmallInt = 2;
inline constexpr int Integer = 3;
inline constexpr int Single = 4;
inline constexpr int Double = 5;
inline constexpr int Currency = 6;
inline constexpr int Date = 7;
inline constexpr int Boolean = 11;
inline constexpr int Variant = 12;
inline constexpr int Decimal = 14;
inline constexpr int TinyInt = 16;
inline constexpr int UnsignedTinyInt = 17;
inline constexpr int BigInt = 20;
inline constexpr int Guid = 72;
inline constexpr int Binary = 128;
inline constexpr int Char = 129;
inline constexpr int WChar = 130;
inline constexpr int Numeric = 131;
inline constexpr int DBTimeStamp = 135;
inline constexpr int VarChar = 200;
inline constexpr int LongVarChar = 201;
inline constexpr int VarWChar = 202;
inline constexpr int LongVarWChar = 203;
inline constexpr int VarBinary = 204;
inline constexpr int LongVarBinary = 205;
} // namespace adtype

// The ADO type of a result column, as SQL Server's OLE DB provider types its fields: by the
// server's type name where the driver's SQL type is ambiguous (money and decimal(19,4) share
// SQL_DECIMAL), and the (max) types as the long types MDAC knows (nvarchar(max) is ntext).
int fieldType(const ColumnDescription& column, const QString& serverTypeName);

// The ADO type's defined size of a field: characters for text, bytes for binary, the fixed
// size of the C value otherwise.
long definedSize(int adoType, const ColumnDescription& column);

// Whether an ADO type carries text, binary data, or a fixed-size value.
bool isTextType(int adoType);
bool isBinaryType(int adoType);

// ADOX's view of a column of server type `typeName` (sys.types) with sys.columns.max_length:
// its ADO type, its DefinedSize, and whether its values have one fixed size.
int catalogType(const QString& typeName, long maxLength);
long catalogSize(const QString& typeName, long maxLength);
bool isFixedType(const QString& typeName);

} // namespace odbc
