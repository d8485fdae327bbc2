#include "platform/ado/adox/Catalog.h"

#include "platform/ado/ProviderRegistry.h"

using namespace Qt::StringLiterals;

namespace ado::adox {

Catalog::Catalog() = default;

void Catalog::setActiveConnection(const ConnectionPtr& connection) {
    if (connection && connection->State() != adStateOpen) {
        raise(HResult::adErrInvalidConnection, u"ADOX.Catalog"_s);
    }
    m_connection = connection;
    bindTables();
}

void Catalog::setActiveConnection(const QString& connectionString) {
    auto connection = Connection::create();
    connection->Open(connectionString);
    setActiveConnection(connection);
}

ProviderCatalog& Catalog::provider() const {
    if (!m_connection || m_connection->State() != adStateOpen) {
        raise(HResult::adErrInvalidConnection, u"ADOX.Catalog"_s);
    }
    return m_connection->session().catalog();
}

void Catalog::bindTables() {
    if (!m_connection) {
        m_tables.setLoader([] { return std::vector<TablePtr>(); });
        m_tables.setHooks(nullptr, nullptr);
        return;
    }
    const std::weak_ptr<Catalog> weak = weak_from_this();
    m_tables.setLoader([this, weak] {
        std::vector<TablePtr> result;
        for (const auto& t : call([](ProviderCatalog& p) { return p.tables(); })) {
            auto table = std::make_shared<Table>(t);
            table->bind(weak.lock());
            result.push_back(std::move(table));
        }
        return result;
    });
    m_tables.setHooks(
        [this, weak](Table& table) {
            std::vector<CatalogColumn> columns;
            for (const auto& c : table.Columns()) {
                columns.push_back(c->describe());
            }
            std::vector<CatalogIndex> indexes;
            for (const auto& i : table.Indexes()) {
                indexes.push_back(i->describe());
            }
            std::vector<CatalogKey> keys;
            for (const auto& k : table.Keys()) {
                keys.push_back(k->describe());
            }
            call([&](ProviderCatalog& p) { p.appendTable(table.describe(), columns, indexes, keys); });
            table.bind(weak.lock());
        },
        [this](Table& table) { call([&](ProviderCatalog& p) { p.deleteTable(table.Name()); }); });
}

adox::Tables& Catalog::Tables() {
    provider(); // a catalog without a connection has no tables to show
    return m_tables;
}

ConnectionPtr Catalog::Create(const QString& connectionString) {
    const auto parsed = ConnectionString::parse(connectionString);
    const QString name = parsed.find(u"Provider").value_or(u"MSDASQL"_s);
    ProviderRegistry::instance().get(name)->createDatabase(parsed);
    auto connection = Connection::create();
    connection->Open(connectionString);
    setActiveConnection(connection);
    return connection;
}

} // namespace ado::adox
