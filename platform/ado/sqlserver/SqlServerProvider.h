#pragma once

#include "platform/ado/Provider.h"
#include "platform/ado/sqlserver/odbc/DriverString.h"
#include "platform/ado/sqlserver/odbc/InstancePort.h"

#include <QString>

#include <map>
#include <mutex>

namespace odbc {
class Api;
class Connection;
}

namespace ado::sqlserver {

// How the provider reaches the server: the ODBC layer, the instance look-up and the driver.
// Tests replace the first two.
struct Transport {
    odbc::Api* api = nullptr;
    odbc::PortResolver resolvePort;
    odbc::Driver driver = odbc::Driver::FreeTds;
};

// The driver of this platform, the driver manager and the browser look-up of this machine.
Transport systemTransport();

class SqlServerProvider final : public Provider {
public:
    // `reportedName` is what Connection::Provider reads once open ("SQLOLEDB.1", "SQLNCLI"...).
    SqlServerProvider(QString reportedName, Transport transport);

    QString name() const override { return m_name; }
    std::unique_ptr<ProviderSession> open(const OpenRequest& request) override;
    // Catalog::Create on the server: "create database" on the server's master database.
    void createDatabase(const ConnectionString& connectionString) override;

private:
    // The server's version in the provider's form, asked at the first open of each data source
    // and remembered: the tool opens a connection for nearly every catalog question.
    QString versionOf(const odbc::LoginSettings& settings, odbc::Connection& connection);

    QString m_name;
    Transport m_transport;
    std::mutex m_versionsLock;
    std::map<QString, QString> m_versions; // by data source, lower-cased
};

} // namespace ado::sqlserver
