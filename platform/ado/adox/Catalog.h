#pragma once

#include "platform/ado/Connection.h"
#include "platform/ado/adox/Objects.h"

#include <QString>

#include <memory>

namespace ado::adox {

// ADOX's Catalog over a connection's provider catalog. Tables and their parts are read when a
// caller first reaches them.
class Catalog : public std::enable_shared_from_this<Catalog> {
public:
    Catalog();
    static CatalogPtr create() { return std::make_shared<Catalog>(); }

    ConnectionPtr ActiveConnection() const { return m_connection; }
    // Null releases the connection.
    void setActiveConnection(const ConnectionPtr& connection);
    void setActiveConnection(const QString& connectionString);
    adox::Tables& Tables();
    // Creates the database that the string describes and opens a connection on it.
    ConnectionPtr Create(const QString& connectionString);

    // For the objects of the catalog: the provider side, and a call that lists a provider
    // failure in the connection's Errors.
    ProviderCatalog& provider() const;
    template <class F> auto call(F&& f) const -> decltype(f(std::declval<ProviderCatalog&>())) {
        ProviderCatalog& catalog = provider();
        try {
            return f(catalog);
        } catch (const Error& e) {
            m_connection->providerFailed(e);
        }
    }

private:
    void bindTables();

    ConnectionPtr m_connection;
    adox::Tables m_tables{QStringLiteral("ADOX.Tables")};
};

} // namespace ado::adox
