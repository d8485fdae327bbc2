#include "platform/ado/SchemaRowsets.h"

#include "platform/ado/Compare.h"
#include "platform/ado/Error.h"

using namespace Qt::StringLiterals;

namespace ado {
namespace {

using T = DataTypeEnum;

struct Col {
    const char16_t* name;
    DataTypeEnum type;
};

ColumnInfo column(const Col& c) {
    ColumnInfo info;
    info.name = QString::fromUtf16(c.name);
    info.type = c.type;
    const bool text = c.type == T::adVarWChar;
    info.definedSize = text ? 128 : (c.type == T::adDate ? 8 : 4);
    info.attributes = adFldIsNullable | adFldMayBeNull | (text ? 0 : adFldFixed);
    return info;
}

std::vector<ColumnInfo> columns(std::initializer_list<Col> list) {
    std::vector<ColumnInfo> result;
    for (const auto& c : list) {
        result.push_back(column(c));
    }
    return result;
}

} // namespace

std::vector<ColumnInfo> schemaColumns(SchemaEnum schema) {
    switch (schema) {
    case SchemaEnum::adSchemaCatalogs:
        return columns({{u"CATALOG_NAME", T::adVarWChar}, {u"DESCRIPTION", T::adVarWChar}});
    case SchemaEnum::adSchemaTables:
        return columns({{u"TABLE_CATALOG", T::adVarWChar},
                        {u"TABLE_SCHEMA", T::adVarWChar},
                        {u"TABLE_NAME", T::adVarWChar},
                        {u"TABLE_TYPE", T::adVarWChar},
                        {u"TABLE_GUID", T::adGUID},
                        {u"DESCRIPTION", T::adVarWChar},
                        {u"TABLE_PROPID", T::adUnsignedInt},
                        {u"DATE_CREATED", T::adDate},
                        {u"DATE_MODIFIED", T::adDate}});
    case SchemaEnum::adSchemaColumns:
        return columns({{u"TABLE_CATALOG", T::adVarWChar},
                        {u"TABLE_SCHEMA", T::adVarWChar},
                        {u"TABLE_NAME", T::adVarWChar},
                        {u"COLUMN_NAME", T::adVarWChar},
                        {u"COLUMN_GUID", T::adGUID},
                        {u"COLUMN_PROPID", T::adUnsignedInt},
                        {u"ORDINAL_POSITION", T::adUnsignedInt},
                        {u"COLUMN_HASDEFAULT", T::adBoolean},
                        {u"COLUMN_DEFAULT", T::adVarWChar},
                        {u"COLUMN_FLAGS", T::adUnsignedInt},
                        {u"IS_NULLABLE", T::adBoolean},
                        {u"DATA_TYPE", T::adUnsignedSmallInt},
                        {u"TYPE_GUID", T::adGUID},
                        {u"CHARACTER_MAXIMUM_LENGTH", T::adUnsignedInt},
                        {u"CHARACTER_OCTET_LENGTH", T::adUnsignedInt},
                        {u"NUMERIC_PRECISION", T::adUnsignedSmallInt},
                        {u"NUMERIC_SCALE", T::adSmallInt},
                        {u"DATETIME_PRECISION", T::adUnsignedInt},
                        {u"CHARACTER_SET_CATALOG", T::adVarWChar},
                        {u"CHARACTER_SET_SCHEMA", T::adVarWChar},
                        {u"CHARACTER_SET_NAME", T::adVarWChar},
                        {u"COLLATION_CATALOG", T::adVarWChar},
                        {u"COLLATION_SCHEMA", T::adVarWChar},
                        {u"COLLATION_NAME", T::adVarWChar},
                        {u"DOMAIN_CATALOG", T::adVarWChar},
                        {u"DOMAIN_SCHEMA", T::adVarWChar},
                        {u"DOMAIN_NAME", T::adVarWChar},
                        {u"DESCRIPTION", T::adVarWChar}});
    case SchemaEnum::adSchemaIndexes:
        return columns({{u"TABLE_CATALOG", T::adVarWChar},
                        {u"TABLE_SCHEMA", T::adVarWChar},
                        {u"TABLE_NAME", T::adVarWChar},
                        {u"INDEX_CATALOG", T::adVarWChar},
                        {u"INDEX_SCHEMA", T::adVarWChar},
                        {u"INDEX_NAME", T::adVarWChar},
                        {u"PRIMARY_KEY", T::adBoolean},
                        {u"UNIQUE", T::adBoolean},
                        {u"CLUSTERED", T::adBoolean},
                        {u"TYPE", T::adUnsignedSmallInt},
                        {u"FILL_FACTOR", T::adInteger},
                        {u"INITIAL_SIZE", T::adInteger},
                        {u"NULLS", T::adInteger},
                        {u"SORT_BOOKMARKS", T::adBoolean},
                        {u"AUTO_UPDATE", T::adBoolean},
                        {u"NULL_COLLATION", T::adInteger},
                        {u"ORDINAL_POSITION", T::adUnsignedInt},
                        {u"COLUMN_NAME", T::adVarWChar},
                        {u"COLUMN_GUID", T::adGUID},
                        {u"COLUMN_PROPID", T::adUnsignedInt},
                        {u"COLLATION", T::adSmallInt},
                        {u"CARDINALITY", T::adUnsignedBigInt},
                        {u"PAGES", T::adInteger},
                        {u"FILTER_CONDITION", T::adVarWChar},
                        {u"INTEGRATED", T::adBoolean}});
    case SchemaEnum::adSchemaPrimaryKeys:
        return columns({{u"TABLE_CATALOG", T::adVarWChar},
                        {u"TABLE_SCHEMA", T::adVarWChar},
                        {u"TABLE_NAME", T::adVarWChar},
                        {u"COLUMN_NAME", T::adVarWChar},
                        {u"COLUMN_GUID", T::adGUID},
                        {u"COLUMN_PROPID", T::adUnsignedInt},
                        {u"ORDINAL", T::adUnsignedInt},
                        {u"PK_NAME", T::adVarWChar}});
    case SchemaEnum::adSchemaForeignKeys:
        return columns({{u"PK_TABLE_CATALOG", T::adVarWChar},
                        {u"PK_TABLE_SCHEMA", T::adVarWChar},
                        {u"PK_TABLE_NAME", T::adVarWChar},
                        {u"PK_COLUMN_NAME", T::adVarWChar},
                        {u"PK_COLUMN_GUID", T::adGUID},
                        {u"PK_COLUMN_PROPID", T::adUnsignedInt},
                        {u"FK_TABLE_CATALOG", T::adVarWChar},
                        {u"FK_TABLE_SCHEMA", T::adVarWChar},
                        {u"FK_TABLE_NAME", T::adVarWChar},
                        {u"FK_COLUMN_NAME", T::adVarWChar},
                        {u"FK_COLUMN_GUID", T::adGUID},
                        {u"FK_COLUMN_PROPID", T::adUnsignedInt},
                        {u"ORDINAL", T::adUnsignedInt},
                        {u"UPDATE_RULE", T::adVarWChar},
                        {u"DELETE_RULE", T::adVarWChar},
                        {u"PK_NAME", T::adVarWChar},
                        {u"FK_NAME", T::adVarWChar},
                        {u"DEFERRABILITY", T::adSmallInt}});
    case SchemaEnum::adSchemaCheckConstraints:
        return columns({{u"CONSTRAINT_CATALOG", T::adVarWChar},
                        {u"CONSTRAINT_SCHEMA", T::adVarWChar},
                        {u"CONSTRAINT_NAME", T::adVarWChar},
                        {u"CHECK_CLAUSE", T::adVarWChar},
                        {u"DESCRIPTION", T::adVarWChar}});
    case SchemaEnum::adSchemaProcedures:
        return columns({{u"PROCEDURE_CATALOG", T::adVarWChar},
                        {u"PROCEDURE_SCHEMA", T::adVarWChar},
                        {u"PROCEDURE_NAME", T::adVarWChar},
                        {u"PROCEDURE_TYPE", T::adSmallInt},
                        {u"PROCEDURE_DEFINITION", T::adVarWChar},
                        {u"DESCRIPTION", T::adVarWChar},
                        {u"DATE_CREATED", T::adDate},
                        {u"DATE_MODIFIED", T::adDate}});
    case SchemaEnum::adSchemaDBInfoKeywords:
        return columns({{u"Keyword", T::adVarWChar}});
    case SchemaEnum::adSchemaDBInfoLiterals:
        return columns({{u"LiteralName", T::adVarWChar},
                        {u"LiteralValue", T::adVarWChar},
                        {u"InvalidChars", T::adVarWChar},
                        {u"InvalidStartingChars", T::adVarWChar},
                        {u"Literal", T::adInteger},
                        {u"Supported", T::adBoolean},
                        {u"Maxlen", T::adInteger}});
    }
    return {};
}

QStringList restrictionColumns(SchemaEnum schema) {
    switch (schema) {
    case SchemaEnum::adSchemaCatalogs:
        return {u"CATALOG_NAME"_s};
    case SchemaEnum::adSchemaTables:
        return {u"TABLE_CATALOG"_s, u"TABLE_SCHEMA"_s, u"TABLE_NAME"_s, u"TABLE_TYPE"_s};
    case SchemaEnum::adSchemaColumns:
        return {u"TABLE_CATALOG"_s, u"TABLE_SCHEMA"_s, u"TABLE_NAME"_s, u"COLUMN_NAME"_s};
    case SchemaEnum::adSchemaIndexes:
        return {u"TABLE_CATALOG"_s, u"TABLE_SCHEMA"_s, u"INDEX_NAME"_s, u"TYPE"_s,
                u"TABLE_NAME"_s};
    case SchemaEnum::adSchemaPrimaryKeys:
        return {u"TABLE_CATALOG"_s, u"TABLE_SCHEMA"_s, u"TABLE_NAME"_s};
    case SchemaEnum::adSchemaForeignKeys:
        return {u"PK_TABLE_CATALOG"_s, u"PK_TABLE_SCHEMA"_s, u"PK_TABLE_NAME"_s,
                u"FK_TABLE_CATALOG"_s, u"FK_TABLE_SCHEMA"_s, u"FK_TABLE_NAME"_s};
    case SchemaEnum::adSchemaCheckConstraints:
        return {u"CONSTRAINT_CATALOG"_s, u"CONSTRAINT_SCHEMA"_s, u"CONSTRAINT_NAME"_s};
    case SchemaEnum::adSchemaProcedures:
        return {u"PROCEDURE_CATALOG"_s, u"PROCEDURE_SCHEMA"_s, u"PROCEDURE_NAME"_s,
                u"PROCEDURE_TYPE"_s};
    case SchemaEnum::adSchemaDBInfoKeywords:
    case SchemaEnum::adSchemaDBInfoLiterals:
        return {};
    }
    return {};
}

void checkRestrictions(SchemaEnum schema, const std::vector<vb::Variant>& restrictions) {
    if (restrictions.size() > static_cast<std::size_t>(restrictionColumns(schema).size())) {
        raise(HResult::adErrInvalidArgument, u"ADODB.Connection"_s);
    }
}

std::vector<Row> applyRestrictions(SchemaEnum schema, const std::vector<ColumnInfo>& columns,
                                   std::vector<Row> rows,
                                   const std::vector<vb::Variant>& restrictions) {
    checkRestrictions(schema, restrictions);
    const QStringList names = restrictionColumns(schema);
    for (std::size_t r = 0; r < restrictions.size(); ++r) {
        const vb::Variant& wanted = restrictions[r];
        if (wanted.isEmpty() || wanted.isMissing() || wanted.isNull()) {
            continue;
        }
        std::size_t index = columns.size();
        for (std::size_t c = 0; c < columns.size(); ++c) {
            if (columns[c].name == names[static_cast<qsizetype>(r)]) {
                index = c;
            }
        }
        if (index == columns.size()) {
            continue;
        }
        std::erase_if(rows, [&](const Row& row) {
            const auto order = compareValues(row[index], wanted);
            return !order || *order != 0;
        });
    }
    return rows;
}

std::unique_ptr<ProviderRowset> makeSchemaRowset(SchemaEnum schema, std::vector<Row> rows,
                                                 const std::vector<vb::Variant>& restrictions) {
    auto columns = schemaColumns(schema);
    auto kept = applyRestrictions(schema, columns, std::move(rows), restrictions);
    return std::make_unique<MemoryRowset>(std::move(columns), std::move(kept));
}

SchemaRow::SchemaRow(SchemaEnum schema)
    : m_columns(schemaColumns(schema)), m_row(m_columns.size(), vb::Null{}) {}

SchemaRow& SchemaRow::set(QStringView column, vb::Variant value) {
    for (std::size_t i = 0; i < m_columns.size(); ++i) {
        if (m_columns[i].name == column) {
            m_row[i] = std::move(value);
            return *this;
        }
    }
    raise(HResult::adErrItemNotFound, u"ADODB.Fields"_s);
}

} // namespace ado
