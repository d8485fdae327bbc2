#include "platform/ado/recording/RecordingProvider.h"

#include "platform/ado/Error.h"
#include "platform/ado/SchemaRowsets.h"

using namespace Qt::StringLiterals;

namespace ado::recording {
namespace {

const QString kSource = u"Recording provider"_s;

// SQLOLEDB's form for SQL Server 2005 SP4; a script may set another.
const QString kDefaultVersion = u"09.00.5000"_s;

QString columnsText(const std::vector<CatalogColumn>& columns, bool withTypes) {
    QStringList parts;
    for (const auto& c : columns) {
        QString part = c.name;
        if (withTypes) {
            part += u' ' + QString::number(static_cast<int>(c.type)) + u' ' +
                    QString::number(c.definedSize);
        } else if (!c.relatedColumn.isEmpty()) {
            part += u'=' + c.relatedColumn;
        } else {
            part += c.sortOrder == SortOrderEnum::adSortDescending ? u" desc"_s : u" asc"_s;
        }
        parts << part;
    }
    return u'(' + parts.join(u", "_s) + u')';
}

QString changesText(const std::vector<ColumnInfo>& columns, const std::vector<FieldChange>& changes) {
    QStringList parts;
    for (const auto& c : changes) {
        parts << columns.at(static_cast<std::size_t>(c.column)).name + u'=' +
                     Journal::describe(c.value);
    }
    return parts.join(u", "_s);
}

class RecordingCatalog : public ProviderCatalog {
public:
    RecordingCatalog(std::shared_ptr<Script> script, std::shared_ptr<Journal> journal)
        : m_script(std::move(script)), m_journal(std::move(journal)) {}

    std::vector<CatalogTable> tables() override {
        std::vector<CatalogTable> result;
        for (const auto& t : m_script->catalog()) {
            result.push_back(t.table);
        }
        return result;
    }
    std::vector<CatalogColumn> columns(const QString& table) override { return find(table).columns; }
    std::vector<CatalogIndex> indexes(const QString& table) override { return find(table).indexes; }
    std::vector<CatalogKey> keys(const QString& table) override { return find(table).keys; }
    std::vector<PropertyValue> newColumnProperties() override {
        return {{u"Autoincrement"_s, false, true},
                {u"Default"_s, vb::Variant(), true},
                {u"Nullable"_s, true, true},
                {u"Seed"_s, vb::Variant(std::int32_t{1}), true},
                {u"Increment"_s, vb::Variant(std::int32_t{1}), true}};
    }

    void appendTable(const CatalogTable& table, const std::vector<CatalogColumn>& columns,
                     const std::vector<CatalogIndex>& indexes,
                     const std::vector<CatalogKey>& keys) override {
        log(u"append table "_s + table.name + u' ' + columnsText(columns, true));
        CatalogTable stored = table;
        stored.type = u"TABLE"_s;
        m_script->catalogTable(stored, columns, indexes, keys);
    }
    void deleteTable(const QString& table) override {
        log(u"delete table "_s + table);
        find(table);
        std::erase_if(m_script->catalog(), [&](const Script::Table& t) {
            return t.table.name.compare(table, Qt::CaseInsensitive) == 0;
        });
    }
    void appendColumn(const QString& table, const CatalogColumn& column) override {
        log(u"append column "_s + table + u'.' + column.name + u' ' +
            QString::number(static_cast<int>(column.type)) + u' ' +
            QString::number(column.definedSize));
        find(table).columns.push_back(column);
    }
    void appendIndex(const QString& table, const CatalogIndex& index) override {
        QString flags;
        if (index.primaryKey) {
            flags += u" primary"_s;
        }
        if (index.unique) {
            flags += u" unique"_s;
        }
        log(u"append index "_s + table + u'.' + index.name + flags + u' ' +
            columnsText(index.columns, false));
        find(table).indexes.push_back(index);
    }
    void deleteIndex(const QString& table, const QString& index) override {
        log(u"delete index "_s + table + u'.' + index);
        std::erase_if(find(table).indexes, [&](const CatalogIndex& i) {
            return i.name.compare(index, Qt::CaseInsensitive) == 0;
        });
    }
    void appendKey(const QString& table, const CatalogKey& key) override {
        log(u"append key "_s + table + u'.' + key.name + u" type "_s +
            QString::number(static_cast<int>(key.type)) + u" references "_s + key.relatedTable +
            u' ' + columnsText(key.columns, false) + u" delete "_s +
            QString::number(static_cast<int>(key.deleteRule)) + u" update "_s +
            QString::number(static_cast<int>(key.updateRule)));
        find(table).keys.push_back(key);
    }
    void deleteKey(const QString& table, const QString& key) override {
        log(u"delete key "_s + table + u'.' + key);
        std::erase_if(find(table).keys, [&](const CatalogKey& k) {
            return k.name.compare(key, Qt::CaseInsensitive) == 0;
        });
    }
    void setColumnProperty(const QString& table, const QString& column,
                           const PropertyValue& value) override {
        log(u"set "_s + table + u'.' + column + u' ' + value.name + u" = "_s +
            Journal::describe(value.value));
    }

private:
    Script::Table& find(const QString& table) {
        for (auto& t : m_script->catalog()) {
            if (t.table.name.compare(table, Qt::CaseInsensitive) == 0) {
                return t;
            }
        }
        throw Error(HResult::DB_E_BADTABLEID, u"Invalid object name '"_s + table + u"'."_s,
                    kSource, u"42S02"_s, 208);
    }
    void log(const QString& text) { m_journal->add({Journal::Kind::Catalog, text, {}, {}, 0}); }

    std::shared_ptr<Script> m_script;
    std::shared_ptr<Journal> m_journal;
};

class RecordingSession : public ProviderSession {
public:
    RecordingSession(const OpenRequest& request, QString providerName,
                     std::shared_ptr<Script> script, std::shared_ptr<Journal> journal)
        : m_request(request), m_providerName(std::move(providerName)), m_script(std::move(script)),
          m_journal(std::move(journal)), m_catalog(m_script, m_journal) {}

    QString connectionString() const override { return m_request.connectionText; }

    std::vector<PropertyValue> properties() const override {
        const auto& cs = m_request.connectionString;
        std::vector<PropertyValue> result{
            {u"Provider Name"_s, m_providerName, false},
            {u"DBMS Version"_s, kDefaultVersion, false},
            {u"Data Source"_s, cs.value(u"Data Source"), false},
            {u"Initial Catalog"_s, cs.value(u"Initial Catalog"), false},
            {u"User ID"_s, m_request.userId.isEmpty() ? cs.value(u"User ID") : m_request.userId,
             false},
            {u"Password"_s,
             m_request.password.isEmpty() ? cs.value(u"Password") : m_request.password, false},
            {u"Multiple connections"_s, true, true}};
        for (const auto& p : m_script->properties()) {
            bool replaced = false;
            for (auto& r : result) {
                if (r.name.compare(p.name, Qt::CaseInsensitive) == 0) {
                    r.value = p.value;
                    replaced = true;
                }
            }
            if (!replaced) {
                result.push_back(p);
            }
        }
        return result;
    }

    void setProperty(const PropertyValue& value) override {
        m_journal->add({Journal::Kind::SetProperty,
                        value.name + u" = "_s + Journal::describe(value.value), {}, {}, 0});
    }

    CommandResult execute(const CommandRequest& request) override {
        m_journal->add({Journal::Kind::Execute, request.text, request.parameters, {}, 0});
        auto answer = m_script->answer(request.text);
        if (!answer) {
            if (m_script->isStrict()) {
                throw Error(HResult::DB_E_ERRORSINCOMMAND,
                            u"The recording provider has no answer for: "_s + request.text,
                            kSource);
            }
            return {};
        }
        if (answer->error) {
            throw *answer->error;
        }
        CommandResult result;
        result.recordsAffected = answer->recordsAffected;
        if (answer->rowset) {
            result.rowset = makeRowset(*answer->rowset, request);
        }
        return result;
    }

    std::unique_ptr<ProviderRowset> openSchema(SchemaEnum schema,
                                               const std::vector<vb::Variant>& restrictions) override {
        m_journal->add({Journal::Kind::Schema, {}, {}, restrictions, static_cast<int>(schema)});
        return makeSchemaRowset(schema, m_script->schemaRows(schema), restrictions);
    }

    long beginTransaction() override {
        m_journal->add({Journal::Kind::BeginTrans, {}, {}, {}, 0});
        return ++m_level;
    }
    void commitTransaction() override {
        m_journal->add({Journal::Kind::CommitTrans, {}, {}, {}, 0});
        endTransaction();
    }
    void rollbackTransaction() override {
        m_journal->add({Journal::Kind::RollbackTrans, {}, {}, {}, 0});
        endTransaction();
    }

    ProviderCatalog& catalog() override { return m_catalog; }
    void close() noexcept override {
        try {
            m_journal->add({Journal::Kind::Close, {}, {}, {}, 0});
        } catch (...) {
            // recording is best effort while closing
        }
    }

private:
    void endTransaction() {
        if (m_level == 0) {
            throw Error(HResult::XACT_E_NOTRANSACTION, u"No transaction is active."_s, kSource);
        }
        --m_level;
    }

    std::unique_ptr<ProviderRowset> makeRowset(const ScriptedRows& rows,
                                               const CommandRequest& request) {
        const CursorTypeEnum type = request.cursorType == CursorTypeEnum::adOpenDynamic
                                        ? CursorTypeEnum::adOpenKeyset
                                        : request.cursorType;
        auto rowset = std::make_unique<MemoryRowset>(rows.columns, rows.rows, type);
        if (request.lockType != LockTypeEnum::adLockReadOnly) {
            const QString source = request.text;
            const auto columns = rows.columns;
            auto journal = m_journal;
            rowset->setChangeHandler([journal, source, columns](MemoryRowset::ChangeKind kind,
                                                                const Row& before,
                                                                const std::vector<FieldChange>& changes) {
                QString text;
                if (kind == MemoryRowset::ChangeKind::Insert) {
                    text = u"insert "_s;
                } else if (kind == MemoryRowset::ChangeKind::Update) {
                    text = u"update "_s;
                } else {
                    text = u"delete "_s;
                }
                text += source + u": "_s + changesText(columns, changes);
                if (kind == MemoryRowset::ChangeKind::Delete && !before.empty()) {
                    text += Journal::describe(before.front());
                }
                journal->add({Journal::Kind::RowChange, text, {}, {}, 0});
            });
        }
        return rowset;
    }

    OpenRequest m_request;
    QString m_providerName;
    std::shared_ptr<Script> m_script;
    std::shared_ptr<Journal> m_journal;
    RecordingCatalog m_catalog;
    long m_level = 0;
};

} // namespace

RecordingProvider::RecordingProvider(QString name)
    : m_name(std::move(name)), m_script(std::make_shared<Script>()),
      m_journal(std::make_shared<Journal>()) {}

std::unique_ptr<ProviderSession> RecordingProvider::open(const OpenRequest& request) {
    QString line = request.connectionText;
    if (!request.userId.isEmpty()) {
        line += u" [user "_s + request.userId + u']';
    }
    m_journal->add({Journal::Kind::Open, line, {}, {}, 0});
    if (auto failure = m_script->takeOpenFailure()) {
        throw *failure;
    }
    return std::make_unique<RecordingSession>(request, m_name, m_script, m_journal);
}

void RecordingProvider::createDatabase(const ConnectionString& connectionString) {
    m_journal->add({Journal::Kind::CreateDatabase, connectionString.toString(), {}, {}, 0});
}

} // namespace ado::recording
