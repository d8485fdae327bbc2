#pragma once

#include "platform/ado/Enums.h"
#include "platform/ado/MemoryRowset.h"
#include "platform/ado/Provider.h"

#include <QStringList>

#include <memory>
#include <vector>

namespace ado {

// The OLE DB schema rowsets as providers build them: the standard columns in their order and
// types, and the restriction columns that OpenSchema's array lines up with.
std::vector<ColumnInfo> schemaColumns(SchemaEnum schema);
QStringList restrictionColumns(SchemaEnum schema);

// Throws adErrInvalidArgument when there are more restrictions than the rowset has.
void checkRestrictions(SchemaEnum schema, const std::vector<vb::Variant>& restrictions);
// The rows whose restriction columns equal every non-empty restriction, without regard to case.
std::vector<Row> applyRestrictions(SchemaEnum schema, const std::vector<ColumnInfo>& columns,
                                   std::vector<Row> rows,
                                   const std::vector<vb::Variant>& restrictions);

// A schema rowset from rows laid out as schemaColumns(schema), restricted.
std::unique_ptr<ProviderRowset> makeSchemaRowset(SchemaEnum schema, std::vector<Row> rows,
                                                 const std::vector<vb::Variant>& restrictions);

// Reads a row of a schema rowset by column name, for providers that build rows by name.
class SchemaRow {
public:
    explicit SchemaRow(SchemaEnum schema);
    SchemaRow& set(QStringView column, vb::Variant value);
    Row take() { return std::move(m_row); }

private:
    std::vector<ColumnInfo> m_columns;
    Row m_row;
};

} // namespace ado
