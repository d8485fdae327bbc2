#pragma once

#include <QString>

#include <utility>
#include <vector>

namespace odbc {

// An OLE DB connection string already split into keyword and value, in order.
using Keywords = std::vector<std::pair<QString, QString>>;

// Where the server listens: a host with a named instance, or a TCP port, or neither (1433).
struct ServerAddress {
    QString host;
    QString instance;
    int port = 0;
};

inline constexpr int kDefaultPort = 1433;
inline constexpr int kDefaultConnectTimeout = 15; // seconds, as ADO's ConnectionTimeout
inline constexpr int kDefaultCommandTimeout = 30;

// What SQL Server's OLE DB provider takes from its initialisation string.
struct LoginSettings {
    QString dataSource; // as given, reported back as the "Data Source" property
    ServerAddress server;
    QString database;
    QString user;
    QString password;
    bool integrated = false;
    bool persistSecurityInfo = false;
    int connectTimeout = -1; // -1: not in the string; the Connection's own value applies
    int commandTimeout = -1;
    bool encryptData = false;
    bool trustServerCertificate = false;
    bool pooling = true;
    QString application;
    QString workstation;
    QString language;
    int packetSize = 0;
};

// Reads the provider's keywords (without regard to case; the last of a repeated keyword wins).
// Throws Failure (0x80004005) for a keyword this provider does not know, since the driver would
// ignore it silently, and for values that cannot be honoured.
LoginSettings readLoginSettings(const Keywords& keywords);

// "host", "host\instance", "host,port", "tcp:host,port", "(local)", "." ...
ServerAddress parseDataSource(const QString& dataSource);

enum class Driver { FreeTds, Microsoft18, Microsoft17 };

// The driver's own connection string, without a DSN, to the given TCP port. Every value the
// user supplies is braced where it needs to be, and the string always ends with ';' (FreeTDS
// 1.3 keeps the closing brace of a last value otherwise).
QString driverString(const LoginSettings& settings, Driver driver, int port);

// The connection string with the password left out, as Connection.ConnectionString reads back
// unless Persist Security Info is true.
Keywords withoutPassword(const Keywords& keywords);

} // namespace odbc
