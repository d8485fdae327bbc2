#include "platform/ado/sqlserver/ServerCatalog.h"

#include "platform/ado/sqlserver/AdoErrors.h"
#include "platform/ado/sqlserver/Session.h"
#include "platform/ado/sqlserver/odbc/Types.h"

#include <QStringList>

#include <map>

using namespace Qt::StringLiterals;

namespace ado::sqlserver {
namespace {

using odbc::adtype::LongVarWChar;

QString text(const vb::Variant& v) { return v.isNull() ? QString() : v.toString(); }
long number(const vb::Variant& v) { return v.toLong().value_or(0); }
bool flag(const vb::Variant& v) { return v.toBool().value_or(false); }

odbc::ParameterValue nameParameter(const QString& name) {
    return odbc::ParameterValue{odbc::adtype::VarWChar, 128, 0, 0, vb::Variant(name)};
}

// Rows of the first result set, by column name.
struct Rows {
    explicit Rows(const odbc::BatchResult& batch) {
        if (!batch.resultSets.empty()) {
            set = &batch.resultSets.front();
            for (std::size_t i = 0; i < set->columns.size(); ++i) {
                index[set->columns[i].description.name.toUpper()] = i;
            }
        }
    }
    std::size_t size() const { return set ? set->rows.size() : 0; }
    const vb::Variant& at(std::size_t row, const QString& column) const {
        return set->rows.at(row).at(index.at(column.toUpper()));
    }
    const odbc::ResultSet* set = nullptr;
    std::map<QString, std::size_t> index;
};

RuleEnum ruleOf(long action) {
    switch (action) {
    case 1: return RuleEnum::adRICascade;
    case 2: return RuleEnum::adRISetNull;
    case 3: return RuleEnum::adRISetDefault;
    default: return RuleEnum::adRINone;
    }
}

QString ruleText(RuleEnum rule) {
    switch (rule) {
    case RuleEnum::adRICascade: return u"CASCADE"_s;
    case RuleEnum::adRISetNull: return u"SET NULL"_s;
    case RuleEnum::adRISetDefault: return u"SET DEFAULT"_s;
    case RuleEnum::adRINone: break;
    }
    return u"NO ACTION"_s;
}

const PropertyValue* findProperty(const std::vector<PropertyValue>& properties,
                                  QStringView name) {
    for (const PropertyValue& p : properties) {
        if (p.name.compare(name, Qt::CaseInsensitive) == 0) {
            return &p;
        }
    }
    return nullptr;
}

QString columnList(const std::vector<CatalogColumn>& columns, bool withOrder, bool related) {
    QStringList parts;
    for (const CatalogColumn& c : columns) {
        QString part = ddl::quoted(related ? c.relatedColumn : c.name);
        if (withOrder) {
            part += c.sortOrder == SortOrderEnum::adSortDescending ? u" DESC"_s : u" ASC"_s;
        }
        parts << part;
    }
    return parts.join(u", "_s);
}

QString sized(const QString& type, long size, long fallback) {
    return u"%1(%2)"_s.arg(type, QString::number(size > 0 ? size : fallback));
}

QString typeName(const CatalogColumn& c) {
    switch (static_cast<int>(c.type)) {
    case 2:
    case 16: return u"smallint"_s;
    case 3: return u"int"_s;
    case 4: return u"real"_s;
    case 5: return u"float"_s;
    case 6: return u"money"_s;
    case 7:
    case 133:
    case 135: return u"datetime"_s;
    case 11: return u"bit"_s;
    case 17: return u"tinyint"_s;
    case 20: return u"bigint"_s;
    case 72: return u"uniqueidentifier"_s;
    case 14:
    case 131:
        return u"numeric(%1, %2)"_s.arg(QString::number(c.precision > 0 ? c.precision : 18),
                                        QString::number(c.numericScale));
    case 128: return sized(u"binary"_s, c.definedSize, 1);
    case 129: return sized(u"char"_s, c.definedSize, 1);
    case 130: return sized(u"nchar"_s, c.definedSize, 1);
    case 200: return sized(u"varchar"_s, c.definedSize, 255);
    case 201: return u"text"_s;
    case 202: return c.definedSize > 4000 ? u"ntext"_s : sized(u"nvarchar"_s, c.definedSize, 255);
    case LongVarWChar: return u"ntext"_s;
    case 204: return sized(u"varbinary"_s, c.definedSize, 255);
    case 205: return u"image"_s;
    default: break;
    }
    throw Error(HResult::DB_E_NOTSUPPORTED,
                u"Column '%1': ADO type %2 has no SQL Server type here."_s.arg(
                    c.name, QString::number(static_cast<int>(c.type))),
                QString::fromUtf16(kErrorSource));
}

} // namespace

namespace ddl {

QString quoted(const QString& name) {
    QString inner = name;
    inner.replace(u"]"_s, u"]]"_s);
    return u'[' + inner + u']';
}

QString columnDefinition(const CatalogColumn& c) {
    QString out = quoted(c.name) + u' ' + typeName(c);
    const PropertyValue* autoincrement = findProperty(c.properties, u"Autoincrement");
    if (autoincrement != nullptr && flag(autoincrement->value)) {
        const PropertyValue* seed = findProperty(c.properties, u"Seed");
        const PropertyValue* increment = findProperty(c.properties, u"Increment");
        out += u" IDENTITY (%1, %2)"_s.arg(QString::number(seed ? number(seed->value) : 1),
                                          QString::number(increment ? number(increment->value) : 1));
    }
    const PropertyValue* nullable = findProperty(c.properties, u"Nullable");
    const bool allowsNull =
        nullable ? flag(nullable->value) : (c.attributes & adColNullable) != 0;
    out += allowsNull ? u" NULL"_s : u" NOT NULL"_s;
    const PropertyValue* def = findProperty(c.properties, u"Default");
    if (def != nullptr && !def->value.isEmpty() && !def->value.isNull()) {
        out += u" DEFAULT "_s + def->value.toString();
    }
    return out;
}

QString createTable(const QString& table, const std::vector<CatalogColumn>& columns) {
    QStringList definitions;
    for (const CatalogColumn& c : columns) {
        definitions << columnDefinition(c);
    }
    return u"CREATE TABLE %1 (%2)"_s.arg(quoted(table), definitions.join(u", "_s));
}

QString addColumn(const QString& table, const CatalogColumn& column) {
    return u"ALTER TABLE %1 ADD %2"_s.arg(quoted(table), columnDefinition(column));
}

QString createIndex(const QString& table, const CatalogIndex& index) {
    const QString kind = index.clustered ? u"CLUSTERED"_s : u"NONCLUSTERED"_s;
    if (index.primaryKey) {
        return u"ALTER TABLE %1 ADD CONSTRAINT %2 PRIMARY KEY %3 (%4)"_s.arg(
            quoted(table), quoted(index.name), kind, columnList(index.columns, true, false));
    }
    return u"CREATE %1%2 INDEX %3 ON %4 (%5)"_s.arg(index.unique ? u"UNIQUE "_s : QString(), kind,
                                                    quoted(index.name), quoted(table),
                                                    columnList(index.columns, true, false));
}

QString dropIndex(const QString& table, const QString& index) {
    return u"DROP INDEX %1 ON %2"_s.arg(quoted(index), quoted(table));
}

QString addKey(const QString& table, const CatalogKey& key) {
    switch (key.type) {
    case KeyTypeEnum::adKeyPrimary:
    case KeyTypeEnum::adKeyUnique:
        return u"ALTER TABLE %1 ADD CONSTRAINT %2 %3 (%4)"_s.arg(
            quoted(table), quoted(key.name),
            key.type == KeyTypeEnum::adKeyPrimary ? u"PRIMARY KEY"_s : u"UNIQUE"_s,
            columnList(key.columns, false, false));
    case KeyTypeEnum::adKeyForeign: break;
    }
    return u"ALTER TABLE %1 ADD CONSTRAINT %2 FOREIGN KEY (%3) REFERENCES %4 (%5) "
           u"ON DELETE %6 ON UPDATE %7"_s.arg(quoted(table), quoted(key.name),
                                              columnList(key.columns, false, false),
                                              quoted(key.relatedTable),
                                              columnList(key.columns, false, true),
                                              ruleText(key.deleteRule), ruleText(key.updateRule));
}

QString dropConstraint(const QString& table, const QString& name) {
    return u"ALTER TABLE %1 DROP CONSTRAINT %2"_s.arg(quoted(table), quoted(name));
}

QString dropTable(const QString& table) { return u"DROP TABLE "_s + quoted(table); }

QString tablesQuery() {
    return u"select TABLE_NAME = o.name, TABLE_TYPE = case when o.type = 'V' then N'VIEW' "
           u"when o.type = 'S' or o.is_ms_shipped = 1 then N'SYSTEM TABLE' else N'TABLE' end, "
           u"DATE_CREATED = o.create_date, DATE_MODIFIED = o.modify_date from sys.objects o "
           u"where o.type in ('U', 'S', 'V') order by o.name"_s;
}

QString columnsQuery() {
    return u"select NAME = c.name, TYPE_NAME = t.name, MAX_LENGTH = convert(int, c.max_length), "
           u"PRECISION = convert(int, c.precision), SCALE = convert(int, c.scale), "
           u"IS_NULLABLE = c.is_nullable, IS_IDENTITY = c.is_identity, "
           u"SEED = convert(int, ic.seed_value), INCREMENT = convert(int, ic.increment_value), "
           u"DEFAULT_TEXT = d.definition from sys.columns c "
           u"join sys.types t on t.user_type_id = c.system_type_id "
           u"left join sys.identity_columns ic on ic.object_id = c.object_id "
           u"and ic.column_id = c.column_id "
           u"left join sys.default_constraints d on d.object_id = c.default_object_id "
           u"where c.object_id = object_id(quotename(?)) order by c.column_id"_s;
}

QString indexesQuery() {
    return u"select INDEX_NAME = i.name, PRIMARY_KEY = i.is_primary_key, IS_UNIQUE = i.is_unique, "
           u"IS_CLUSTERED = convert(bit, case when i.type = 1 then 1 else 0 end), "
           u"COLUMN_NAME = c.name, DESCENDING = ic.is_descending_key from sys.indexes i "
           u"join sys.index_columns ic on ic.object_id = i.object_id and ic.index_id = i.index_id "
           u"join sys.columns c on c.object_id = ic.object_id and c.column_id = ic.column_id "
           u"where i.object_id = object_id(quotename(?)) and i.type in (1, 2) "
           u"and ic.key_ordinal > 0 order by i.name, ic.key_ordinal"_s;
}

QString keysQuery() {
    return u"select KEY_NAME = k.name, KEY_TYPE = k.type, COLUMN_NAME = c.name "
           u"from sys.key_constraints k join sys.index_columns ic on ic.object_id = "
           u"k.parent_object_id and ic.index_id = k.unique_index_id join sys.columns c on "
           u"c.object_id = ic.object_id and c.column_id = ic.column_id "
           u"where k.parent_object_id = object_id(quotename(?)) order by k.name, ic.key_ordinal"_s;
}

QString foreignKeysQuery() {
    return u"select KEY_NAME = f.name, RELATED_TABLE = object_name(f.referenced_object_id), "
           u"DELETE_RULE = convert(int, f.delete_referential_action), "
           u"UPDATE_RULE = convert(int, f.update_referential_action), COLUMN_NAME = fc.name, "
           u"RELATED_COLUMN = pc.name from sys.foreign_keys f "
           u"join sys.foreign_key_columns k on k.constraint_object_id = f.object_id "
           u"join sys.columns fc on fc.object_id = k.parent_object_id "
           u"and fc.column_id = k.parent_column_id "
           u"join sys.columns pc on pc.object_id = k.referenced_object_id "
           u"and pc.column_id = k.referenced_column_id "
           u"where f.parent_object_id = object_id(quotename(?)) "
           u"order by f.name, k.constraint_column_id"_s;
}

} // namespace ddl

std::vector<CatalogTable> ServerCatalog::tables() {
    const odbc::BatchResult batch = m_session.run(ddl::tablesQuery());
    const Rows rows(batch);
    std::vector<CatalogTable> out;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        CatalogTable t;
        t.name = text(rows.at(i, u"TABLE_NAME"_s));
        t.type = text(rows.at(i, u"TABLE_TYPE"_s));
        t.dateCreated = rows.at(i, u"DATE_CREATED"_s).toDate().value_or(QDateTime());
        t.dateModified = rows.at(i, u"DATE_MODIFIED"_s).toDate().value_or(QDateTime());
        out.push_back(std::move(t));
    }
    return out;
}

std::vector<CatalogColumn> ServerCatalog::columns(const QString& table) {
    const odbc::BatchResult batch = m_session.run(ddl::columnsQuery(), {nameParameter(table)});
    const Rows rows(batch);
    std::vector<CatalogColumn> out;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const QString type = text(rows.at(i, u"TYPE_NAME"_s));
        const long maxLength = number(rows.at(i, u"MAX_LENGTH"_s));
        CatalogColumn c;
        c.name = text(rows.at(i, u"NAME"_s));
        c.type = static_cast<DataTypeEnum>(odbc::catalogType(type, maxLength));
        c.definedSize = odbc::catalogSize(type, maxLength);
        c.precision = static_cast<std::uint8_t>(number(rows.at(i, u"PRECISION"_s)));
        c.numericScale = static_cast<std::uint8_t>(number(rows.at(i, u"SCALE"_s)));
        const bool nullable = flag(rows.at(i, u"IS_NULLABLE"_s));
        const bool identity = flag(rows.at(i, u"IS_IDENTITY"_s));
        c.attributes = (nullable ? adColNullable : 0) |
                       (odbc::isFixedType(type) ? adColFixed : 0);
        const vb::Variant& def = rows.at(i, u"DEFAULT_TEXT"_s);
        c.properties = {
            {u"Autoincrement"_s, vb::Variant(identity), true},
            {u"Nullable"_s, vb::Variant(nullable), true},
            {u"Default"_s, def.isNull() ? vb::Variant() : vb::Variant(text(def)), true},
            {u"Seed"_s, vb::Variant(std::int32_t(identity ? number(rows.at(i, u"SEED"_s)) : 1)),
             true},
            {u"Increment"_s,
             vb::Variant(std::int32_t(identity ? number(rows.at(i, u"INCREMENT"_s)) : 1)), true},
            {u"Fixed Length"_s, vb::Variant(odbc::isFixedType(type)), true},
        };
        out.push_back(std::move(c));
    }
    return out;
}

std::vector<CatalogIndex> ServerCatalog::indexes(const QString& table) {
    const odbc::BatchResult batch = m_session.run(ddl::indexesQuery(), {nameParameter(table)});
    const Rows rows(batch);
    std::vector<CatalogIndex> out;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const QString name = text(rows.at(i, u"INDEX_NAME"_s));
        if (out.empty() || out.back().name != name) {
            CatalogIndex index;
            index.name = name;
            index.primaryKey = flag(rows.at(i, u"PRIMARY_KEY"_s));
            index.unique = flag(rows.at(i, u"IS_UNIQUE"_s));
            index.clustered = flag(rows.at(i, u"IS_CLUSTERED"_s));
            out.push_back(std::move(index));
        }
        CatalogColumn c;
        c.name = text(rows.at(i, u"COLUMN_NAME"_s));
        c.sortOrder = flag(rows.at(i, u"DESCENDING"_s)) ? SortOrderEnum::adSortDescending
                                                        : SortOrderEnum::adSortAscending;
        out.back().columns.push_back(std::move(c));
    }
    return out;
}

std::vector<CatalogKey> ServerCatalog::keys(const QString& table) {
    std::vector<CatalogKey> out;
    const odbc::BatchResult unique = m_session.run(ddl::keysQuery(), {nameParameter(table)});
    const Rows u(unique);
    for (std::size_t i = 0; i < u.size(); ++i) {
        const QString name = text(u.at(i, u"KEY_NAME"_s));
        if (out.empty() || out.back().name != name) {
            CatalogKey key;
            key.name = name;
            key.type = text(u.at(i, u"KEY_TYPE"_s)).trimmed() == u"PK"_s ? KeyTypeEnum::adKeyPrimary
                                                                        : KeyTypeEnum::adKeyUnique;
            out.push_back(std::move(key));
        }
        CatalogColumn c;
        c.name = text(u.at(i, u"COLUMN_NAME"_s));
        out.back().columns.push_back(std::move(c));
    }
    const odbc::BatchResult foreign = m_session.run(ddl::foreignKeysQuery(), {nameParameter(table)});
    const Rows f(foreign);
    for (std::size_t i = 0; i < f.size(); ++i) {
        const QString name = text(f.at(i, u"KEY_NAME"_s));
        if (out.empty() || out.back().name != name || out.back().type != KeyTypeEnum::adKeyForeign) {
            CatalogKey key;
            key.name = name;
            key.type = KeyTypeEnum::adKeyForeign;
            key.relatedTable = text(f.at(i, u"RELATED_TABLE"_s));
            key.deleteRule = ruleOf(number(f.at(i, u"DELETE_RULE"_s)));
            key.updateRule = ruleOf(number(f.at(i, u"UPDATE_RULE"_s)));
            out.push_back(std::move(key));
        }
        CatalogColumn c;
        c.name = text(f.at(i, u"COLUMN_NAME"_s));
        c.relatedColumn = text(f.at(i, u"RELATED_COLUMN"_s));
        out.back().columns.push_back(std::move(c));
    }
    return out;
}

std::vector<PropertyValue> ServerCatalog::newColumnProperties() {
    return {{u"Autoincrement"_s, vb::Variant(false), true}, {u"Nullable"_s, vb::Variant(true), true},
            {u"Default"_s, vb::Variant(), true},            {u"Seed"_s, vb::Variant(std::int32_t(1)), true},
            {u"Increment"_s, vb::Variant(std::int32_t(1)), true},
            {u"Fixed Length"_s, vb::Variant(false), true}};
}

void ServerCatalog::appendTable(const CatalogTable& table,
                                const std::vector<CatalogColumn>& columns,
                                const std::vector<CatalogIndex>& indexes,
                                const std::vector<CatalogKey>& keys) {
    m_session.run(ddl::createTable(table.name, columns));
    for (const CatalogIndex& index : indexes) {
        appendIndex(table.name, index);
    }
    for (const CatalogKey& key : keys) {
        appendKey(table.name, key);
    }
}

void ServerCatalog::deleteTable(const QString& table) { m_session.run(ddl::dropTable(table)); }

void ServerCatalog::appendColumn(const QString& table, const CatalogColumn& column) {
    m_session.run(ddl::addColumn(table, column));
}

void ServerCatalog::appendIndex(const QString& table, const CatalogIndex& index) {
    m_session.run(ddl::createIndex(table, index));
}

void ServerCatalog::deleteIndex(const QString& table, const QString& index) {
    for (const CatalogIndex& existing : indexes(table)) {
        // The index of a primary key goes with its constraint.
        if (existing.name.compare(index, Qt::CaseInsensitive) == 0 && existing.primaryKey) {
            m_session.run(ddl::dropConstraint(table, existing.name));
            return;
        }
    }
    m_session.run(ddl::dropIndex(table, index));
}

void ServerCatalog::appendKey(const QString& table, const CatalogKey& key) {
    m_session.run(ddl::addKey(table, key));
}

void ServerCatalog::deleteKey(const QString& table, const QString& key) {
    m_session.run(ddl::dropConstraint(table, key));
}

void ServerCatalog::setColumnProperty(const QString& table, const QString& column,
                                      const PropertyValue& value) {
    throw Error(HResult::DB_E_NOTSUPPORTED,
                u"Column '%1.%2': the property '%3' cannot be changed on an existing column."_s.arg(
                    table, column, value.name),
                QString::fromUtf16(kErrorSource));
}

} // namespace ado::sqlserver
