#include "platform/ado/jet/JetProvider.h"

#include "platform/ado/SchemaRowsets.h"
#include "platform/ado/jet/JetErrors.h"
#include "platform/ado/jet/JetRowsets.h"
#include "platform/ado/jet/JetSql.h"
#include "platform/ado/jet/JetTypes.h"
#include "platform/jetfile/Database.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <map>
#include <mutex>
#include <utility>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace ado::jet {
namespace {

// The share modes granted on each file to the connections of this process.
class FileLocks {
public:
    struct Grant {
        QString key;
        bool exclusive = false;
        bool denyWrite = false;
        bool write = false;
    };

    static FileLocks& instance() {
        static FileLocks locks;
        return locks;
    }

    // Throws Jet's "already opened exclusively" when a held mode excludes the one asked for.
    Grant acquire(const QString& path, long mode) {
        Grant g;
        g.key = QFileInfo(path).canonicalFilePath();
        g.exclusive = (mode & adModeShareExclusive) == adModeShareExclusive ||
                      (mode & adModeShareDenyRead) != 0;
        g.denyWrite = (mode & adModeShareDenyWrite) != 0;
        // Jet opens read-write unless asked for read only.
        g.write = mode == adModeUnknown || (mode & adModeWrite) != 0;
        const std::lock_guard lock(m_mutex);
        auto& held = m_grants[g.key];
        for (const auto& other : held) {
            if (other.exclusive || g.exclusive || (other.denyWrite && g.write) ||
                (g.denyWrite && other.write)) {
                fileInUse(path);
            }
        }
        held.push_back(g);
        return g;
    }

    void release(const Grant& g) {
        const std::lock_guard lock(m_mutex);
        auto& held = m_grants[g.key];
        const auto it = std::find_if(held.begin(), held.end(), [&](const Grant& h) {
            return h.exclusive == g.exclusive && h.denyWrite == g.denyWrite && h.write == g.write;
        });
        if (it != held.end()) {
            held.erase(it);
        }
    }

private:
    std::mutex m_mutex;
    std::map<QString, std::vector<Grant>> m_grants;
};

// The share mode as other programs see it: an advisory lock on the file, exclusive for an
// exclusive open and shared otherwise, held while the connection is open. A program that holds
// the file exclusively makes the open fail as Jet does. (On Windows the system's own share modes
// of the open file do this.)
class ProcessShareLock {
public:
    ProcessShareLock() = default;
    ProcessShareLock(const QString& path, bool exclusive) {
#ifdef Q_OS_UNIX
        m_fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
        if (m_fd < 0) {
            return; // the reader reports a file it cannot open
        }
        if (::flock(m_fd, (exclusive ? LOCK_EX : LOCK_SH) | LOCK_NB) != 0) {
            release();
            fileInUse(path);
        }
#else
        Q_UNUSED(path);
        Q_UNUSED(exclusive);
#endif
    }
    ~ProcessShareLock() { release(); }
    ProcessShareLock(const ProcessShareLock&) = delete;
    ProcessShareLock& operator=(const ProcessShareLock&) = delete;
    ProcessShareLock(ProcessShareLock&& other) noexcept : m_fd(std::exchange(other.m_fd, -1)) {}
    ProcessShareLock& operator=(ProcessShareLock&& other) noexcept {
        if (this != &other) {
            release();
            m_fd = std::exchange(other.m_fd, -1);
        }
        return *this;
    }

    void release() noexcept {
#ifdef Q_OS_UNIX
        if (m_fd >= 0) {
            ::close(m_fd); // closing the descriptor drops its lock
        }
#endif
        m_fd = -1;
    }

private:
    int m_fd = -1;
};

QString tableType(const jetfile::CatalogEntry& e) {
    switch (e.type) {
    case jetfile::CatalogEntry::kTable:
        if ((e.flags & jetfile::CatalogEntry::kSystemFlag) != 0) {
            return u"SYSTEM TABLE"_s;
        }
        if ((e.flags & jetfile::CatalogEntry::kAccessSystemFlag) != 0) {
            return u"ACCESS TABLE"_s;
        }
        return u"TABLE"_s;
    case jetfile::CatalogEntry::kQuery:
        return e.flags == 0 ? u"VIEW"_s : QString(); // only plain select queries are views
    case jetfile::CatalogEntry::kLink:
        return u"LINK"_s;
    case jetfile::CatalogEntry::kOdbcLink:
        return u"PASS-THROUGH"_s;
    default:
        return {};
    }
}

vb::Variant dateOrNull(const QDateTime& d) { return d.isValid() ? vb::Variant(d) : vb::Variant(vb::Null{}); }

bool lessName(const QString& a, const QString& b) { return a.compare(b, Qt::CaseInsensitive) < 0; }

QString ruleText(bool cascade, bool setNull) {
    if (setNull) {
        return u"SET NULL"_s;
    }
    return cascade ? u"CASCADE"_s : u"NO ACTION"_s;
}

// The indexes a table shows: the primary-key side of a relationship (".rB"...) shares the
// primary key's data and is Jet's bookkeeping, not an index of the table's design.
std::vector<const jetfile::Index*> visibleIndexes(const jetfile::TableDefinition& t) {
    std::vector<const jetfile::Index*> result;
    for (const auto& index : t.indexes) {
        if (index.reference && index.reference->onPrimaryTable) {
            continue;
        }
        result.push_back(&index);
    }
    std::stable_sort(result.begin(), result.end(),
                     [](const auto* a, const auto* b) { return lessName(a->name, b->name); });
    return result;
}

// The unique index a relationship refers to: the primary key when its columns are the
// referenced ones, else the unique index over exactly those columns.
const jetfile::Index* referencedKey(const jetfile::TableDefinition& t,
                                    const std::vector<QString>& columns) {
    const auto sameColumns = [&](const jetfile::Index& index) {
        if (index.columns.size() != columns.size()) {
            return false;
        }
        for (std::size_t i = 0; i < columns.size(); ++i) {
            if (index.columns[i].name.compare(columns[i], Qt::CaseInsensitive) != 0) {
                return false;
            }
        }
        return true;
    };
    const auto* pk = t.primaryKey();
    if (pk != nullptr && sameColumns(*pk)) {
        return pk;
    }
    for (const auto* index : visibleIndexes(t)) {
        if (index->isUnique() && sameColumns(*index)) {
            return index;
        }
    }
    return pk;
}

class JetCatalog : public ProviderCatalog {
public:
    explicit JetCatalog(const jetfile::Database& db) : m_db(db) {}

    std::vector<CatalogTable> tables() override {
        std::vector<CatalogTable> result;
        for (const auto& e : m_db.catalog()) {
            const QString type = tableType(e);
            if (type.isEmpty()) {
                continue;
            }
            result.push_back({e.name, type, e.created, e.updated, {}});
        }
        std::stable_sort(result.begin(), result.end(),
                         [](const auto& a, const auto& b) { return lessName(a.name, b.name); });
        return result;
    }

    std::vector<CatalogColumn> columns(const QString& table) override {
        std::vector<CatalogColumn> result;
        const auto def = definition(table);
        for (const auto& c : def->columns) {
            CatalogColumn col;
            col.name = c.name;
            col.type = schemaType(c);
            if (c.type() == jetfile::ColumnType::Text) {
                col.type = DataTypeEnum::adVarWChar;
            } else if (c.type() == jetfile::ColumnType::Memo) {
                col.type = DataTypeEnum::adLongVarWChar;
            } else if (c.type() == jetfile::ColumnType::Ole) {
                col.type = DataTypeEnum::adLongVarBinary;
            } else if (c.type() == jetfile::ColumnType::Binary) {
                col.type = DataTypeEnum::adVarBinary;
            }
            col.definedSize = c.type() == jetfile::ColumnType::Text ? c.length / 2
                              : c.isLongValue()                     ? 0
                                                                    : definedSize(c);
            col.attributes = (isNullable(c) ? adColNullable : 0) |
                             (c.isFixedLength() ? adColFixed : 0);
            col.precision = c.precision;
            col.numericScale = c.scale;
            const vb::Variant defaultValue = c.properties.value(u"DefaultValue");
            const vb::Variant allowZero = c.properties.value(u"AllowZeroLength");
            col.properties = {
                {u"Autoincrement"_s, c.isAutoNumber() && c.type() == jetfile::ColumnType::Long, false},
                {u"Increment"_s, vb::Variant(std::int32_t{1}), false},
                {u"Seed"_s, vb::Variant(std::int32_t{def->lastAutoNumber + 1}), false},
                {u"Nullable"_s, !c.properties.value(u"Required").toBool().value_or(false), false},
                {u"Default"_s, defaultValue.isEmpty() ? vb::Variant() : defaultValue, false},
                {u"Jet OLEDB:Allow Zero Length"_s, allowZero.toBool().value_or(false), false},
                {u"Jet OLEDB:AutoGenerate"_s, c.isGuidAutoNumber(), false},
                {u"Jet OLEDB:Compressed UNICODE Strings"_s, c.isCompressedUnicode(), false},
                {u"Description"_s, c.properties.value(u"Description"), false}};
            result.push_back(std::move(col));
        }
        return result;
    }

    std::vector<CatalogIndex> indexes(const QString& table) override {
        std::vector<CatalogIndex> result;
        const auto def = definition(table);
        for (const auto* index : visibleIndexes(*def)) {
            CatalogIndex out;
            out.name = index->name;
            out.primaryKey = index->isPrimaryKey();
            out.unique = index->isUnique();
            out.indexNulls = index->isPrimaryKey() || index->isRequired()
                                 ? AllowNullsEnum::adIndexNullsDisallow
                             : index->ignoresNulls() ? AllowNullsEnum::adIndexNullsIgnore
                                                     : AllowNullsEnum::adIndexNullsAllow;
            for (const auto& c : index->columns) {
                CatalogColumn col;
                col.name = c.name;
                col.sortOrder = c.ascending ? SortOrderEnum::adSortAscending
                                            : SortOrderEnum::adSortDescending;
                out.columns.push_back(std::move(col));
            }
            result.push_back(std::move(out));
        }
        return result;
    }

    std::vector<CatalogKey> keys(const QString& table) override {
        std::vector<CatalogKey> result;
        const auto def = definition(table);
        if (const auto* pk = def->primaryKey()) {
            CatalogKey key;
            key.name = pk->name;
            key.type = KeyTypeEnum::adKeyPrimary;
            for (const auto& c : pk->columns) {
                CatalogColumn col;
                col.name = c.name;
                key.columns.push_back(std::move(col));
            }
            result.push_back(std::move(key));
        }
        for (const auto& r : m_db.relations()) {
            if (r.table.compare(def->name, Qt::CaseInsensitive) != 0) {
                continue;
            }
            CatalogKey key;
            key.name = r.name;
            key.type = KeyTypeEnum::adKeyForeign;
            key.relatedTable = r.referencedTable;
            key.updateRule = r.cascadesUpdates() ? RuleEnum::adRICascade : RuleEnum::adRINone;
            key.deleteRule = r.cascadesNull()     ? RuleEnum::adRISetNull
                             : r.cascadesDeletes() ? RuleEnum::adRICascade
                                                   : RuleEnum::adRINone;
            for (std::size_t i = 0; i < r.columns.size(); ++i) {
                CatalogColumn col;
                col.name = r.columns[i];
                col.relatedColumn = i < r.referencedColumns.size() ? r.referencedColumns[i] : QString();
                key.columns.push_back(std::move(col));
            }
            result.push_back(std::move(key));
        }
        return result;
    }

    std::vector<PropertyValue> newColumnProperties() override { return {}; }

    void appendTable(const CatalogTable&, const std::vector<CatalogColumn>&,
                     const std::vector<CatalogIndex>&, const std::vector<CatalogKey>&) override {
        readOnly(u"adding a table"_s);
    }
    void deleteTable(const QString&) override { readOnly(u"deleting a table"_s); }
    void appendColumn(const QString&, const CatalogColumn&) override { readOnly(u"adding a column"_s); }
    void appendIndex(const QString&, const CatalogIndex&) override { readOnly(u"adding an index"_s); }
    void deleteIndex(const QString&, const QString&) override { readOnly(u"deleting an index"_s); }
    void appendKey(const QString&, const CatalogKey&) override { readOnly(u"adding a key"_s); }
    void deleteKey(const QString&, const QString&) override { readOnly(u"deleting a key"_s); }
    void setColumnProperty(const QString&, const QString&, const PropertyValue&) override {
        readOnly(u"changing a column property"_s);
    }

    std::shared_ptr<const jetfile::TableDefinition> definition(const QString& table) {
        try {
            return m_db.table(table);
        } catch (const jetfile::Error& e) {
            if (e.kind() == jetfile::Error::Kind::NotFound) {
                noSuchTable(table);
            }
            throw fromReader(e);
        }
    }

private:
    const jetfile::Database& m_db;
};

class JetSession : public ProviderSession {
public:
    JetSession(const OpenRequest& request, jetfile::Database db, FileLocks::Grant grant,
               ProcessShareLock processLock)
        : m_request(request), m_db(std::move(db)), m_grant(std::move(grant)),
          m_processLock(std::move(processLock)), m_catalog(m_db) {}
    ~JetSession() override { close(); }
    JetSession(const JetSession&) = delete;
    JetSession& operator=(const JetSession&) = delete;
    JetSession(JetSession&&) = delete;
    JetSession& operator=(JetSession&&) = delete;

    QString connectionString() const override { return m_request.connectionString.toString(); }

    std::vector<PropertyValue> properties() const override {
        return {{u"Provider Name"_s, u"MSJETOLEDB40.DLL"_s, false},
                {u"DBMS Name"_s, u"MS Jet"_s, false},
                {u"DBMS Version"_s, u"04.00.0000"_s, false},
                {u"Data Source"_s, m_db.path(), false},
                {u"Jet OLEDB:Engine Type"_s, vb::Variant(std::int32_t{5}), false}};
    }

    void setProperty(const PropertyValue& value) override {
        readOnly(u"setting the property \""_s + value.name + u'"');
    }

    CommandResult execute(const CommandRequest& request) override {
        const CursorTypeEnum cursor = effectiveCursor(request);
        CommandResult result;
        try {
            const QString text = request.text.trimmed();
            const bool isSelect = text.startsWith(u"select"_s, Qt::CaseInsensitive) &&
                                  (text.size() == 6 || !text[6].isLetterOrNumber());
            if (request.type == CommandTypeEnum::adCmdTable ||
                request.type == CommandTypeEnum::adCmdTableDirect ||
                (!isSelect && request.type != CommandTypeEnum::adCmdText && isTableName(text))) {
                const QString name = unbracket(text);
                (void)m_catalog.definition(name);
                result.rowset = std::make_unique<TableRowset>(m_db, name, cursor);
            } else if (isSelect) {
                result.rowset = runSelect(m_db, text, cursor);
            } else {
                syntaxError(request.text);
            }
        } catch (const jetfile::Error& e) {
            throw fromReader(e);
        }
        return result;
    }

    std::unique_ptr<ProviderRowset> openSchema(SchemaEnum schema,
                                               const std::vector<vb::Variant>& restrictions) override {
        checkRestrictions(schema, restrictions);
        try {
            switch (schema) {
            case SchemaEnum::adSchemaTables:
                return makeSchemaRowset(schema, tableRows(), restrictions);
            case SchemaEnum::adSchemaColumns:
                return makeSchemaRowset(schema, columnRows(restrictions), restrictions);
            case SchemaEnum::adSchemaIndexes:
                return makeSchemaRowset(schema, indexRows(restrictions), restrictions);
            case SchemaEnum::adSchemaPrimaryKeys:
                return makeSchemaRowset(schema, primaryKeyRows(restrictions), restrictions);
            case SchemaEnum::adSchemaForeignKeys:
                return makeSchemaRowset(schema, foreignKeyRows(), restrictions);
            default:
                raise(HResult::adErrFeatureNotAvailable, u"ADODB.Connection"_s);
            }
        } catch (const jetfile::Error& e) {
            throw fromReader(e);
        }
    }

    long beginTransaction() override { return ++m_level; }
    void commitTransaction() override { endTransaction(); }
    void rollbackTransaction() override { endTransaction(); }

    ProviderCatalog& catalog() override { return m_catalog; }

    void close() noexcept override {
        if (!m_closed) {
            m_closed = true;
            FileLocks::instance().release(m_grant);
            m_processLock.release();
        }
    }

private:
    CursorTypeEnum effectiveCursor(const CommandRequest& request) const {
        if (request.cursorLocation == CursorLocationEnum::adUseClient) {
            return CursorTypeEnum::adOpenStatic;
        }
        switch (request.cursorType) {
        case CursorTypeEnum::adOpenKeyset:
        case CursorTypeEnum::adOpenDynamic:
            return CursorTypeEnum::adOpenKeyset;
        case CursorTypeEnum::adOpenStatic:
            return CursorTypeEnum::adOpenStatic;
        default:
            return CursorTypeEnum::adOpenForwardOnly;
        }
    }

    static QString unbracket(const QString& name) {
        return name.startsWith(u'[') && name.endsWith(u']') ? name.mid(1, name.size() - 2) : name;
    }

    bool isTableName(const QString& text) const {
        return m_db.findObject(unbracket(text)) != nullptr;
    }

    void endTransaction() {
        if (m_level == 0) {
            throw Error(HResult::XACT_E_NOTRANSACTION,
                        u"You tried to commit or rollback a transaction without first beginning a transaction."_s,
                        kJetSource);
        }
        --m_level;
    }

    // A table named by a restriction, or every table.
    std::vector<QString> tablesFor(const vb::Variant& restriction) const {
        std::vector<QString> names;
        if (restriction.isString()) {
            if (const auto* e = m_db.findObject(restriction.toString()); e && e->isTable()) {
                names.push_back(e->name);
            }
            return names;
        }
        for (const auto& e : m_db.catalog()) {
            if (e.isTable()) {
                names.push_back(e.name);
            }
        }
        std::stable_sort(names.begin(), names.end(), lessName);
        return names;
    }

    static vb::Variant restriction(const std::vector<vb::Variant>& r, std::size_t i) {
        return i < r.size() ? r[i] : vb::Variant();
    }

    std::vector<Row> tableRows() const {
        struct Item {
            QString type;
            QString name;
            Row row;
        };
        std::vector<Item> items;
        for (const auto& e : m_db.catalog()) {
            const QString type = tableType(e);
            if (type.isEmpty()) {
                continue;
            }
            SchemaRow row(SchemaEnum::adSchemaTables);
            row.set(u"TABLE_NAME", e.name)
                .set(u"TABLE_TYPE", type)
                .set(u"DATE_CREATED", dateOrNull(e.created))
                .set(u"DATE_MODIFIED", dateOrNull(e.updated));
            items.push_back({type, e.name, row.take()});
        }
        // The rowset's order: by type, then by name.
        std::stable_sort(items.begin(), items.end(), [](const Item& a, const Item& b) {
            if (a.type != b.type) {
                return a.type < b.type;
            }
            return lessName(a.name, b.name);
        });
        std::vector<Row> rows;
        rows.reserve(items.size());
        for (auto& item : items) {
            rows.push_back(std::move(item.row));
        }
        return rows;
    }

    std::vector<Row> columnRows(const std::vector<vb::Variant>& restrictions) {
        std::vector<Row> rows;
        for (const auto& table : tablesFor(restriction(restrictions, 2))) {
            const auto def = m_catalog.definition(table);
            std::vector<const jetfile::Column*> columns;
            for (const auto& c : def->columns) {
                columns.push_back(&c);
            }
            // Jet lists a table's columns by name, not by position.
            std::stable_sort(columns.begin(), columns.end(),
                             [](const auto* a, const auto* b) { return lessName(a->name, b->name); });
            for (const auto* c : columns) {
                const vb::Variant defaultValue = c->properties.value(u"DefaultValue");
                SchemaRow row(SchemaEnum::adSchemaColumns);
                row.set(u"TABLE_NAME", def->name)
                    .set(u"COLUMN_NAME", c->name)
                    .set(u"ORDINAL_POSITION", std::int32_t{c->number + 1})
                    .set(u"COLUMN_HASDEFAULT", !defaultValue.isEmpty())
                    .set(u"COLUMN_DEFAULT", defaultValue.isEmpty() ? vb::Variant(vb::Null{}) : defaultValue)
                    .set(u"COLUMN_FLAGS", std::int32_t(columnFlags(*c)))
                    .set(u"IS_NULLABLE", isNullable(*c))
                    .set(u"DATA_TYPE", std::int32_t(static_cast<int>(schemaType(*c))));
                const auto type = c->type();
                if (type == jetfile::ColumnType::Text || c->isLongValue() ||
                    type == jetfile::ColumnType::Binary) {
                    const std::int32_t chars = type == jetfile::ColumnType::Text ? c->length / 2
                                               : type == jetfile::ColumnType::Binary ? c->length
                                                                                     : 0;
                    const std::int32_t octets =
                        type == jetfile::ColumnType::Text ? c->length : chars;
                    row.set(u"CHARACTER_MAXIMUM_LENGTH", chars).set(u"CHARACTER_OCTET_LENGTH", octets);
                }
                if (type == jetfile::ColumnType::Numeric) {
                    row.set(u"NUMERIC_PRECISION", std::int32_t{c->precision})
                        .set(u"NUMERIC_SCALE", std::int32_t{c->scale});
                }
                const vb::Variant description = c->properties.value(u"Description");
                if (!description.isEmpty()) {
                    row.set(u"DESCRIPTION", description);
                }
                rows.push_back(row.take());
            }
        }
        return rows;
    }

    std::vector<Row> indexRows(const std::vector<vb::Variant>& restrictions) {
        std::vector<Row> rows;
        for (const auto& table : tablesFor(restriction(restrictions, 4))) {
            const auto def = m_catalog.definition(table);
            for (const auto* index : visibleIndexes(*def)) {
                const std::int32_t nulls = index->isPrimaryKey() || index->isRequired() ? 1
                                           : index->ignoresNulls()                     ? 2
                                                                                       : 0;
                for (std::size_t i = 0; i < index->columns.size(); ++i) {
                    const auto& c = index->columns[i];
                    SchemaRow row(SchemaEnum::adSchemaIndexes);
                    row.set(u"TABLE_NAME", def->name)
                        .set(u"INDEX_NAME", index->name)
                        .set(u"PRIMARY_KEY", index->isPrimaryKey())
                        .set(u"UNIQUE", index->isUnique())
                        .set(u"CLUSTERED", false)
                        .set(u"TYPE", std::int32_t{1})
                        .set(u"FILL_FACTOR", std::int32_t{100})
                        .set(u"NULLS", nulls)
                        .set(u"SORT_BOOKMARKS", false)
                        .set(u"AUTO_UPDATE", true)
                        .set(u"NULL_COLLATION", std::int32_t{4})
                        .set(u"ORDINAL_POSITION", static_cast<std::int32_t>(i + 1))
                        .set(u"COLUMN_NAME", c.name)
                        .set(u"COLLATION", std::int32_t{c.ascending ? 1 : 2})
                        .set(u"CARDINALITY", static_cast<double>(index->entryCount))
                        .set(u"INTEGRATED", index->isPrimaryKey());
                    rows.push_back(row.take());
                }
            }
        }
        return rows;
    }

    std::vector<Row> primaryKeyRows(const std::vector<vb::Variant>& restrictions) {
        std::vector<Row> rows;
        for (const auto& table : tablesFor(restriction(restrictions, 2))) {
            const auto def = m_catalog.definition(table);
            const auto* pk = def->primaryKey();
            if (pk == nullptr) {
                continue;
            }
            for (std::size_t i = 0; i < pk->columns.size(); ++i) {
                SchemaRow row(SchemaEnum::adSchemaPrimaryKeys);
                row.set(u"TABLE_NAME", def->name)
                    .set(u"COLUMN_NAME", pk->columns[i].name)
                    .set(u"ORDINAL", static_cast<std::int32_t>(i + 1))
                    .set(u"PK_NAME", pk->name);
                rows.push_back(row.take());
            }
        }
        return rows;
    }

    std::vector<Row> foreignKeyRows() {
        auto relations = m_db.relations();
        std::stable_sort(relations.begin(), relations.end(), [](const auto& a, const auto& b) {
            if (a.table.compare(b.table, Qt::CaseInsensitive) != 0) {
                return lessName(a.table, b.table);
            }
            return lessName(a.name, b.name);
        });
        std::vector<Row> rows;
        for (const auto& r : relations) {
            vb::Variant pkName = vb::Null{};
            if (const auto* e = m_db.findObject(r.referencedTable); e && e->isTable()) {
                if (const auto* key = referencedKey(*m_catalog.definition(r.referencedTable),
                                                    r.referencedColumns)) {
                    pkName = key->name;
                }
            }
            for (std::size_t i = 0; i < r.columns.size() && i < r.referencedColumns.size(); ++i) {
                SchemaRow row(SchemaEnum::adSchemaForeignKeys);
                row.set(u"PK_TABLE_NAME", r.referencedTable)
                    .set(u"PK_COLUMN_NAME", r.referencedColumns[i])
                    .set(u"FK_TABLE_NAME", r.table)
                    .set(u"FK_COLUMN_NAME", r.columns[i])
                    .set(u"ORDINAL", static_cast<std::int32_t>(i + 1))
                    .set(u"UPDATE_RULE", ruleText(r.cascadesUpdates(), false))
                    .set(u"DELETE_RULE", ruleText(r.cascadesDeletes(), r.cascadesNull()))
                    .set(u"PK_NAME", pkName)
                    .set(u"FK_NAME", r.name)
                    .set(u"DEFERRABILITY", std::int32_t{3});
                rows.push_back(row.take());
            }
        }
        return rows;
    }

    OpenRequest m_request;
    jetfile::Database m_db;
    FileLocks::Grant m_grant;
    ProcessShareLock m_processLock;
    JetCatalog m_catalog;
    long m_level = 0;
    bool m_closed = false;
};

} // namespace

std::unique_ptr<ProviderSession> JetProvider::open(const OpenRequest& request) {
    const QString path = request.connectionString.value(u"Data Source").trimmed();
    if (path.isEmpty() || !QFileInfo(path).isFile()) {
        fileNotFound(path);
    }
    const FileLocks::Grant grant = FileLocks::instance().acquire(path, request.mode);
    try {
        ProcessShareLock processLock(path, grant.exclusive);
        std::optional<jetfile::Database> db;
        try {
            db = jetfile::Database::open(path);
        } catch (const jetfile::Error& e) {
            unreadable(path, e);
        }
        // Jet compares the database password exactly; a file without one takes any.
        const QString stored = db->header().password;
        if (!stored.isEmpty() &&
            request.connectionString.value(u"Jet OLEDB:Database Password") != stored) {
            badPassword();
        }
        return std::make_unique<JetSession>(request, std::move(*db), grant, std::move(processLock));
    } catch (...) {
        FileLocks::instance().release(grant);
        throw;
    }
}

void JetProvider::createDatabase(const ConnectionString& /*connectionString*/) {
    readOnly(u"creating a database"_s);
}

} // namespace ado::jet
