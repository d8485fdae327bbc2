#pragma once

#include "platform/ado/Provider.h"
#include "platform/ado/sqlserver/ServerRowset.h"
#include "platform/ado/sqlserver/odbc/DriverString.h"
#include "platform/ado/sqlserver/odbc/Execution.h"
#include "platform/ado/sqlserver/odbc/Handles.h"

#include <QString>

#include <memory>
#include <vector>

namespace ado::sqlserver {

class ServerCatalog;

// An open connection to SQL Server. Statements run as written, in autocommit unless a
// transaction is open; a forward-only result streams until the connection is needed again.
class Session final : public ProviderSession {
public:
    Session(QString providerName, ConnectionString given, odbc::LoginSettings settings,
            int connectTimeout, std::unique_ptr<odbc::Connection> connection,
            QString dbmsVersion);
    ~Session() override;

    QString connectionString() const override;
    std::vector<PropertyValue> properties() const override;
    void setProperty(const PropertyValue& value) override;

    CommandResult execute(const CommandRequest& request) override;
    std::unique_ptr<ProviderRowset> openSchema(SchemaEnum schema,
                                               const std::vector<vb::Variant>& restrictions) override;

    long beginTransaction() override;
    void commitTransaction() override;
    void rollbackTransaction() override;

    ProviderCatalog& catalog() override;
    void close() noexcept override;

    // A whole batch, read into memory, for the catalog's questions and DDL.
    odbc::BatchResult run(const QString& text, const std::vector<odbc::ParameterValue>& parameters = {});

private:
    odbc::Connection& connection();
    int commandTimeout(const CommandRequest& request) const;
    // The rows of a keyset or static recordset, kept on the client; writable when the lock type
    // asks for it and the select reads one table.
    std::unique_ptr<ProviderRowset> clientRowset(std::unique_ptr<odbc::Execution> run,
                                                 const CommandRequest& request, const QString& text);

    QString m_providerName;
    ConnectionString m_given;
    odbc::LoginSettings m_settings;
    int m_connectTimeout;
    QString m_dbmsVersion;
    bool m_multipleConnections = true;
    std::unique_ptr<odbc::Connection> m_connection;
    std::shared_ptr<ActiveStream> m_stream = std::make_shared<ActiveStream>();
    std::unique_ptr<ServerCatalog> m_catalog;
    // What a writable rowset holds to reach its session; cleared when the session goes.
    std::shared_ptr<Session*> m_self = std::make_shared<Session*>(this);
};

// The command text ODBC runs for an ADO command of the given type.
QString commandText(const CommandRequest& request);

} // namespace ado::sqlserver
