#include "platform/ado/sqlserver/odbc/SchemaQueries.h"

#include "platform/ado/sqlserver/odbc/Diagnostics.h"
#include "platform/ado/sqlserver/odbc/HResults.h"
#include "platform/ado/sqlserver/odbc/Types.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace odbc {
namespace {

constexpr auto kNotSupported = static_cast<std::int32_t>(0x80040E53u); // DB_E_NOTSUPPORTED
constexpr auto kBadArguments = static_cast<std::int32_t>(0x800A0BB9u);

struct Restriction {
    const char16_t* condition; // on the derived table r; one '?' per use of the value
    int adoType;
};

struct Rowset {
    int id;
    const char16_t* select;
    std::vector<Restriction> restrictions;
    const char16_t* orderBy;
};

// The OLE DB type of a column of base type t.name (alias types resolve to their base type).
#define UPSIZER_OLEDB_TYPE                                                                   \
    u"case t.name when N'int' then 3 when N'smallint' then 2 when N'tinyint' then 17 "       \
    u"when N'bigint' then 20 when N'bit' then 11 when N'float' then 5 when N'real' then 4 "  \
    u"when N'money' then 6 when N'smallmoney' then 6 when N'datetime' then 135 "             \
    u"when N'smalldatetime' then 135 when N'decimal' then 131 when N'numeric' then 131 "     \
    u"when N'uniqueidentifier' then 72 when N'char' then 129 when N'varchar' then 129 "      \
    u"when N'text' then 129 when N'binary' then 128 when N'varbinary' then 128 "             \
    u"when N'image' then 128 when N'timestamp' then 128 when N'sql_variant' then 12 "        \
    u"else 130 end"

// Long values: text, ntext, image, the (max) types and xml, which MDAC sees as ntext.
#define UPSIZER_IS_LONG                                                                      \
    u"(t.name in (N'text', N'ntext', N'image', N'xml') or c.max_length = -1)"

const std::vector<Rowset>& rowsets() {
    static const std::vector<Rowset> all{
        {schema::Catalogs,
         u"select CATALOG_NAME = d.name, DESCRIPTION = convert(nvarchar(1), null) "
         u"from sys.databases d where has_dbaccess(d.name) = 1",
         {{u"r.CATALOG_NAME = ?", adtype::VarWChar}},
         u"CATALOG_NAME"},
        {schema::Tables,
         u"select TABLE_CATALOG = db_name(), TABLE_SCHEMA = schema_name(o.schema_id), "
         u"TABLE_NAME = o.name, TABLE_TYPE = convert(nvarchar(30), case "
         u"when o.type = 'V' then N'VIEW' when o.type = 'S' or o.is_ms_shipped = 1 "
         u"then N'SYSTEM TABLE' else N'TABLE' end), TABLE_GUID = convert(uniqueidentifier, null), "
         u"DESCRIPTION = convert(nvarchar(1), null), TABLE_PROPID = convert(int, null), "
         u"DATE_CREATED = o.create_date, DATE_MODIFIED = o.modify_date "
         u"from sys.objects o where o.type in ('U', 'S', 'V')",
         {{u"r.TABLE_CATALOG = ?", adtype::VarWChar},
          {u"r.TABLE_SCHEMA = ?", adtype::VarWChar},
          {u"r.TABLE_NAME = ?", adtype::VarWChar},
          {u"r.TABLE_TYPE = ?", adtype::VarWChar}},
         u"TABLE_TYPE, TABLE_CATALOG, TABLE_SCHEMA, TABLE_NAME"},
        // COLUMN_DEFAULT is the stored default without the parentheses the server wraps it in
        // ("((0))" reads "(0)", "(getdate())" reads "getdate()"); a definition stored without
        // them is given as it is rather than cut short.
        {schema::Columns,
         u"select TABLE_CATALOG = db_name(), TABLE_SCHEMA = schema_name(o.schema_id), "
         u"TABLE_NAME = o.name, COLUMN_NAME = c.name, COLUMN_GUID = convert(uniqueidentifier, null), "
         u"COLUMN_PROPID = convert(bigint, null), ORDINAL_POSITION = convert(bigint, "
         u"(select count(*) from sys.columns p where p.object_id = c.object_id "
         u"and p.column_id <= c.column_id)), "
         u"COLUMN_HASDEFAULT = convert(bit, case when d.object_id is null then 0 else 1 end), "
         u"COLUMN_DEFAULT = convert(nvarchar(4000), case when d.definition like N'(%)' "
         u"then substring(d.definition, 2, len(d.definition) - 2) else d.definition end), "
         u"COLUMN_FLAGS = convert(bigint, case when " UPSIZER_IS_LONG u" then 130 "
         u"when t.name in (N'varchar', N'nvarchar', N'varbinary', N'sql_variant') then 0 "
         u"else 16 end + case when c.is_nullable = 1 then 96 else 0 end + case "
         u"when t.name = N'timestamp' then 512 when c.is_identity = 0 and c.is_computed = 0 "
         u"then 4 else 0 end), "
         u"IS_NULLABLE = c.is_nullable, DATA_TYPE = convert(int, " UPSIZER_OLEDB_TYPE u"), "
         u"TYPE_GUID = convert(uniqueidentifier, null), "
         u"CHARACTER_MAXIMUM_LENGTH = convert(bigint, case "
         u"when t.name = N'ntext' or t.name = N'xml' then 1073741823 "
         u"when t.name in (N'nchar', N'nvarchar') and c.max_length = -1 then 1073741823 "
         u"when t.name in (N'nchar', N'nvarchar') then c.max_length / 2 "
         u"when t.name in (N'text', N'image') or c.max_length = -1 then 2147483647 "
         u"when t.name in (N'char', N'varchar', N'binary', N'varbinary', N'timestamp') "
         u"then c.max_length end), "
         u"CHARACTER_OCTET_LENGTH = convert(bigint, case "
         u"when t.name = N'ntext' or t.name = N'xml' then 2147483646 "
         u"when t.name in (N'nchar', N'nvarchar') and c.max_length = -1 then 2147483646 "
         u"when t.name in (N'text', N'image') or c.max_length = -1 then 2147483647 "
         u"when t.name in (N'char', N'varchar', N'binary', N'varbinary', N'timestamp', "
         u"N'nchar', N'nvarchar') then c.max_length end), "
         u"NUMERIC_PRECISION = convert(int, case when t.name in (N'decimal', N'numeric') "
         u"then c.precision when t.name = N'int' then 10 when t.name = N'smallint' then 5 "
         u"when t.name = N'tinyint' then 3 when t.name = N'bigint' then 19 "
         u"when t.name = N'money' then 19 when t.name = N'smallmoney' then 10 "
         u"when t.name = N'float' then 15 when t.name = N'real' then 7 end), "
         u"NUMERIC_SCALE = convert(smallint, case when t.name in (N'decimal', N'numeric') "
         u"then c.scale end), "
         u"DATETIME_PRECISION = convert(bigint, case when t.name = N'datetime' then 3 "
         u"when t.name = N'smalldatetime' then 0 end), "
         u"CHARACTER_SET_CATALOG = convert(nvarchar(128), null), "
         u"CHARACTER_SET_SCHEMA = convert(nvarchar(128), null), "
         u"CHARACTER_SET_NAME = convert(nvarchar(128), null), "
         u"COLLATION_CATALOG = convert(nvarchar(128), case when t.name in (N'char', N'varchar', "
         u"N'text') then N'master' end), "
         u"COLLATION_SCHEMA = convert(nvarchar(128), case when t.name in (N'char', N'varchar', "
         u"N'text') then N'dbo' end), "
         u"COLLATION_NAME = convert(nvarchar(128), case when t.name in (N'char', N'varchar', "
         u"N'text') then c.collation_name end), "
         u"DOMAIN_CATALOG = convert(nvarchar(128), null), DOMAIN_SCHEMA = convert(nvarchar(128), "
         u"null), DOMAIN_NAME = convert(nvarchar(128), null), "
         u"DESCRIPTION = convert(nvarchar(1), null) "
         u"from sys.columns c join sys.objects o on o.object_id = c.object_id "
         u"join sys.types t on t.user_type_id = c.system_type_id "
         u"left join sys.default_constraints d on d.object_id = c.default_object_id "
         u"where o.type in ('U', 'S', 'V')",
         {{u"r.TABLE_CATALOG = ?", adtype::VarWChar},
          {u"r.TABLE_SCHEMA = ?", adtype::VarWChar},
          {u"r.TABLE_NAME = ?", adtype::VarWChar},
          {u"r.COLUMN_NAME = ?", adtype::VarWChar}},
         u"TABLE_CATALOG, TABLE_SCHEMA, TABLE_NAME, ORDINAL_POSITION"},
        {schema::CheckConstraints,
         u"select CONSTRAINT_CATALOG = db_name(), CONSTRAINT_SCHEMA = schema_name(k.schema_id), "
         u"CONSTRAINT_NAME = k.name, CHECK_CLAUSE = convert(nvarchar(4000), k.definition), "
         u"DESCRIPTION = convert(nvarchar(1), null) from sys.check_constraints k",
         {{u"r.CONSTRAINT_CATALOG = ?", adtype::VarWChar},
          {u"r.CONSTRAINT_SCHEMA = ?", adtype::VarWChar},
          {u"r.CONSTRAINT_NAME = ?", adtype::VarWChar}},
         u"CONSTRAINT_CATALOG, CONSTRAINT_SCHEMA, CONSTRAINT_NAME"},
        {schema::Indexes,
         u"select TABLE_CATALOG = db_name(), TABLE_SCHEMA = schema_name(o.schema_id), "
         u"TABLE_NAME = o.name, INDEX_CATALOG = db_name(), INDEX_SCHEMA = schema_name(o.schema_id), "
         u"INDEX_NAME = i.name, PRIMARY_KEY = i.is_primary_key, [UNIQUE] = i.is_unique, "
         u"[CLUSTERED] = convert(bit, case when i.type = 1 then 1 else 0 end), "
         u"TYPE = convert(smallint, 1), FILL_FACTOR = convert(int, case when i.fill_factor = 0 "
         u"then 100 else i.fill_factor end), INITIAL_SIZE = convert(int, null), "
         u"NULLS = convert(int, null), SORT_BOOKMARKS = convert(bit, 0), "
         u"AUTO_UPDATE = convert(bit, 1), NULL_COLLATION = convert(int, 4), "
         u"ORDINAL_POSITION = convert(bigint, ic.key_ordinal), COLUMN_NAME = c.name, "
         u"COLUMN_GUID = convert(uniqueidentifier, null), COLUMN_PROPID = convert(bigint, null), "
         u"COLLATION = convert(smallint, case when ic.is_descending_key = 1 then 2 else 1 end), "
         u"CARDINALITY = convert(numeric(20, 0), null), PAGES = convert(int, null), "
         u"FILTER_CONDITION = convert(nvarchar(1), null), "
         u"INTEGRATED = convert(bit, case when i.type = 1 then 1 else 0 end) "
         u"from sys.indexes i join sys.objects o on o.object_id = i.object_id "
         u"join sys.index_columns ic on ic.object_id = i.object_id and ic.index_id = i.index_id "
         u"join sys.columns c on c.object_id = ic.object_id and c.column_id = ic.column_id "
         u"where o.type in ('U', 'V') and i.type in (1, 2) and ic.key_ordinal > 0 "
         u"and i.is_hypothetical = 0",
         {{u"r.TABLE_CATALOG = ?", adtype::VarWChar},
          {u"r.TABLE_SCHEMA = ?", adtype::VarWChar},
          {u"r.INDEX_NAME = ?", adtype::VarWChar},
          {u"r.TYPE = ?", adtype::SmallInt},
          {u"r.TABLE_NAME = ?", adtype::VarWChar}},
         u"[UNIQUE], TYPE, INDEX_CATALOG, INDEX_SCHEMA, INDEX_NAME, ORDINAL_POSITION"},
        {schema::Procedures,
         u"select PROCEDURE_CATALOG = db_name(), PROCEDURE_SCHEMA = schema_name(o.schema_id), "
         u"PROCEDURE_NAME = convert(nvarchar(134), o.name + N';1'), "
         u"PROCEDURE_TYPE = convert(smallint, case when o.type in ('P', 'PC', 'X') then 2 "
         u"else 3 end), PROCEDURE_DEFINITION = convert(nvarchar(1), null), "
         u"DESCRIPTION = convert(nvarchar(1), null), DATE_CREATED = o.create_date, "
         u"DATE_MODIFIED = o.modify_date from sys.objects o "
         u"where o.type in ('P', 'PC', 'X', 'FN', 'IF', 'TF', 'FS', 'FT')",
         {{u"r.PROCEDURE_CATALOG = ?", adtype::VarWChar},
          {u"r.PROCEDURE_SCHEMA = ?", adtype::VarWChar},
          // A procedure is named with or without its group number.
          {u"(r.PROCEDURE_NAME = ? + N';1' or r.PROCEDURE_NAME = ?)", adtype::VarWChar},
          {u"r.PROCEDURE_TYPE = ?", adtype::SmallInt}},
         u"PROCEDURE_CATALOG, PROCEDURE_SCHEMA, PROCEDURE_NAME"},
        {schema::ForeignKeys,
         u"select PK_TABLE_CATALOG = db_name(), PK_TABLE_SCHEMA = schema_name(pt.schema_id), "
         u"PK_TABLE_NAME = pt.name, PK_COLUMN_NAME = pc.name, "
         u"PK_COLUMN_GUID = convert(uniqueidentifier, null), PK_COLUMN_PROPID = convert(bigint, "
         u"null), FK_TABLE_CATALOG = db_name(), FK_TABLE_SCHEMA = schema_name(ft.schema_id), "
         u"FK_TABLE_NAME = ft.name, FK_COLUMN_NAME = fc.name, "
         u"FK_COLUMN_GUID = convert(uniqueidentifier, null), FK_COLUMN_PROPID = convert(bigint, "
         u"null), ORDINAL = convert(bigint, k.constraint_column_id), "
         u"UPDATE_RULE = convert(nvarchar(11), case f.update_referential_action "
         u"when 1 then N'CASCADE' when 2 then N'SET NULL' when 3 then N'SET DEFAULT' "
         u"else N'NO ACTION' end), "
         u"DELETE_RULE = convert(nvarchar(11), case f.delete_referential_action "
         u"when 1 then N'CASCADE' when 2 then N'SET NULL' when 3 then N'SET DEFAULT' "
         u"else N'NO ACTION' end), "
         u"PK_NAME = i.name, FK_NAME = f.name, DEFERRABILITY = convert(smallint, 3) "
         u"from sys.foreign_keys f "
         u"join sys.foreign_key_columns k on k.constraint_object_id = f.object_id "
         u"join sys.objects pt on pt.object_id = f.referenced_object_id "
         u"join sys.objects ft on ft.object_id = f.parent_object_id "
         u"join sys.columns pc on pc.object_id = k.referenced_object_id "
         u"and pc.column_id = k.referenced_column_id "
         u"join sys.columns fc on fc.object_id = k.parent_object_id "
         u"and fc.column_id = k.parent_column_id "
         u"left join sys.indexes i on i.object_id = f.referenced_object_id "
         u"and i.index_id = f.key_index_id",
         {{u"r.PK_TABLE_CATALOG = ?", adtype::VarWChar},
          {u"r.PK_TABLE_SCHEMA = ?", adtype::VarWChar},
          {u"r.PK_TABLE_NAME = ?", adtype::VarWChar},
          {u"r.FK_TABLE_CATALOG = ?", adtype::VarWChar},
          {u"r.FK_TABLE_SCHEMA = ?", adtype::VarWChar},
          {u"r.FK_TABLE_NAME = ?", adtype::VarWChar}},
         u"FK_TABLE_CATALOG, FK_TABLE_SCHEMA, FK_TABLE_NAME, FK_NAME, ORDINAL"},
        {schema::PrimaryKeys,
         u"select TABLE_CATALOG = db_name(), TABLE_SCHEMA = schema_name(o.schema_id), "
         u"TABLE_NAME = o.name, COLUMN_NAME = c.name, COLUMN_GUID = convert(uniqueidentifier, "
         u"null), COLUMN_PROPID = convert(bigint, null), "
         u"ORDINAL = convert(bigint, ic.key_ordinal), PK_NAME = k.name "
         u"from sys.key_constraints k join sys.objects o on o.object_id = k.parent_object_id "
         u"join sys.index_columns ic on ic.object_id = k.parent_object_id "
         u"and ic.index_id = k.unique_index_id "
         u"join sys.columns c on c.object_id = ic.object_id and c.column_id = ic.column_id "
         u"where k.type = 'PK'",
         {{u"r.TABLE_CATALOG = ?", adtype::VarWChar},
          {u"r.TABLE_SCHEMA = ?", adtype::VarWChar},
          {u"r.TABLE_NAME = ?", adtype::VarWChar}},
         u"TABLE_CATALOG, TABLE_SCHEMA, TABLE_NAME, ORDINAL"},
    };
    return all;
}

#undef UPSIZER_OLEDB_TYPE
#undef UPSIZER_IS_LONG

bool restricts(const vb::Variant& v) {
    if (v.isEmpty() || v.isNull() || v.isMissing()) {
        return false;
    }
    const auto* text = v.get<QString>();
    return text == nullptr || !text->isEmpty();
}

} // namespace

SchemaQuery schemaQuery(int schemaId, const std::vector<vb::Variant>& restrictions) {
    for (const Rowset& rowset : rowsets()) {
        if (rowset.id != schemaId) {
            continue;
        }
        if (restrictions.size() > rowset.restrictions.size()) {
            throw Failure(kBadArguments,
                          u"OpenSchema %1: at most %2 restrictions, %3 given."_s.arg(
                              QString::number(schemaId),
                              QString::number(rowset.restrictions.size()),
                              QString::number(restrictions.size())));
        }
        SchemaQuery q;
        q.text = u"select * from ("_s + QString::fromUtf16(rowset.select) + u") as r"_s;
        QStringList conditions;
        for (std::size_t i = 0; i < restrictions.size(); ++i) {
            if (!restricts(restrictions[i])) {
                continue;
            }
            const QString condition = QString::fromUtf16(rowset.restrictions[i].condition);
            conditions << condition;
            for (qsizetype n = condition.count(u'?'); n > 0; --n) {
                q.parameters.push_back(ParameterValue{rowset.restrictions[i].adoType, 128, 0, 0,
                                                      restrictions[i]});
            }
        }
        if (!conditions.isEmpty()) {
            q.text += u" where "_s + conditions.join(u" and "_s);
        }
        q.text += u" order by "_s + QString::fromUtf16(rowset.orderBy);
        return q;
    }
    throw Failure(kNotSupported, u"OpenSchema %1: this schema rowset is not supported by the SQL "
                                 u"Server provider."_s.arg(QString::number(schemaId)));
}

QString productVersionQuery() {
    return u"select convert(nvarchar(128), serverproperty('ProductVersion'))"_s;
}

QString dbmsVersion(const QString& productVersion) {
    const QStringList parts = productVersion.trimmed().split(u'.');
    if (parts.size() < 3) {
        return {};
    }
    bool okMajor = false;
    bool okMinor = false;
    bool okBuild = false;
    const int major = parts[0].toInt(&okMajor);
    const int minor = parts[1].toInt(&okMinor);
    const int build = parts[2].toInt(&okBuild);
    if (!okMajor || !okMinor || !okBuild || major < 0 || minor < 0 || build < 0) {
        return {};
    }
    return QString::asprintf("%02d.%02d.%04d", major, minor, build);
}

} // namespace odbc
