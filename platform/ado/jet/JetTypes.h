#pragma once

#include "platform/ado/Provider.h"
#include "platform/jetfile/Schema.h"

namespace ado::jet {

// The ADO type of a Jet column as a Recordset's Field shows it (adVarWChar for Text,
// adLongVarWChar for Memo...).
DataTypeEnum fieldType(const jetfile::Column& column);
// The type the COLUMNS rowset and ADOX report (adWChar-like 130 for Text and Memo, 128 for
// binary data).
DataTypeEnum schemaType(const jetfile::Column& column);
// Field's DefinedSize: characters for Text, bytes for the fixed types.
long definedSize(const jetfile::Column& column);
// Text(n) length in characters, 0 for everything else.
long characterLength(const jetfile::Column& column);
// Whether the column may hold Null: not for Yes/No and autonumbers, nor when Required is set.
bool isNullable(const jetfile::Column& column);
// The DBCOLUMNFLAGS the provider reports for the column.
long columnFlags(const jetfile::Column& column);
// The column of a recordset over a table.
ColumnInfo columnInfo(const jetfile::Column& column);

} // namespace ado::jet
