#include "platform/ado/sqlserver/SqlServerProvider.h"

#include "platform/ado/sqlserver/AdoErrors.h"
#include "platform/ado/sqlserver/Providers.h"
#include "platform/ado/sqlserver/Session.h"
#include "platform/ado/sqlserver/odbc/Execution.h"
#include "platform/ado/sqlserver/odbc/Handles.h"
#include "platform/ado/sqlserver/odbc/SchemaQueries.h"

using namespace Qt::StringLiterals;

namespace ado::sqlserver {
namespace {

// ADO's ConnectionTimeout of 0 waits for ever; the browser look-up still needs a bound.
constexpr int kUnboundedLookupMs = 15000;

odbc::Keywords providerKeywords(const ConnectionString& cs) {
    odbc::Keywords out;
    for (const auto& item : cs.items()) {
        if (item.first.trimmed().compare(u"Provider", Qt::CaseInsensitive) != 0) {
            out.push_back(item);
        }
    }
    return out;
}

int portOf(const odbc::LoginSettings& s, const Transport& t, int timeoutSeconds) {
    if (s.server.port > 0) {
        return s.server.port;
    }
    if (s.server.instance.isEmpty()) {
        return odbc::kDefaultPort;
    }
    return t.resolvePort(s.server.host, s.server.instance,
                         timeoutSeconds > 0 ? timeoutSeconds * 1000 : kUnboundedLookupMs);
}

std::unique_ptr<odbc::Connection> connect(const odbc::LoginSettings& s, const Transport& t,
                                          int timeoutSeconds) {
    const int port = portOf(s, t, timeoutSeconds);
    auto connection = std::make_unique<odbc::Connection>(*t.api);
    try {
        connection->open(odbc::driverString(s, t.driver, port), timeoutSeconds);
    } catch (const odbc::Failure& f) {
        const bool noDriver18 = t.driver == odbc::Driver::Microsoft18 && !f.records().empty() &&
                                f.records().front().sqlState == u"IM002";
        if (!noDriver18) {
            throw;
        }
        // Windows machines with only the previous generation of Microsoft's driver.
        connection = std::make_unique<odbc::Connection>(*t.api);
        connection->open(odbc::driverString(s, odbc::Driver::Microsoft17, port), timeoutSeconds);
    }
    return connection;
}

Error withIntegratedHint(Error error, const odbc::LoginSettings& s, const Transport& t) {
    if (!s.integrated || t.driver != odbc::Driver::FreeTds) {
        return error;
    }
    Error hinted(error.hresult(),
                 error.description() +
                     u" (Windows authentication from this system goes through Kerberos: the "
                     u"user running the tool needs a ticket for the server's domain, e.g. from "
                     u"kinit; otherwise give a SQL Server login and password.)"_s,
                 error.source(), error.sqlState(), error.nativeError());
    for (const Error& related : error.related()) {
        hinted.addRelated(related);
    }
    return hinted;
}

QString serverVersion(odbc::Connection& connection) {
    const odbc::BatchResult r = odbc::runBatch(connection, odbc::productVersionQuery());
    if (r.resultSets.empty() || r.resultSets[0].rows.empty()) {
        return {};
    }
    return odbc::dbmsVersion(r.resultSets[0].rows[0].at(0).toString());
}

} // namespace

Transport systemTransport() {
    Transport t;
    t.api = &odbc::systemApi();
    t.resolvePort = [](const QString& host, const QString& instance, int timeoutMs) {
        return odbc::resolveInstancePort(host, instance, timeoutMs);
    };
#ifdef Q_OS_WIN
    t.driver = odbc::Driver::Microsoft18;
#else
    t.driver = odbc::Driver::FreeTds;
#endif
    return t;
}

SqlServerProvider::SqlServerProvider(QString reportedName, Transport transport)
    : m_name(std::move(reportedName)), m_transport(std::move(transport)) {}

std::unique_ptr<ProviderSession> SqlServerProvider::open(const OpenRequest& request) {
    odbc::LoginSettings settings =
        translated([&] { return odbc::readLoginSettings(providerKeywords(request.connectionString)); });
    if (!request.userId.isEmpty()) {
        settings.user = request.userId;
    }
    if (!request.password.isEmpty()) {
        settings.password = request.password;
    }
    const int timeout = settings.connectTimeout >= 0
                            ? settings.connectTimeout
                            : static_cast<int>(request.connectionTimeoutSeconds);
    try {
        std::unique_ptr<odbc::Connection> connection = connect(settings, m_transport, timeout);
        QString version = versionOf(settings, *connection);
        return std::make_unique<Session>(m_name, request.connectionString, std::move(settings),
                                         timeout, std::move(connection), std::move(version));
    } catch (const odbc::Failure& f) {
        throw withIntegratedHint(toAdoError(f), settings, m_transport);
    }
}

QString SqlServerProvider::versionOf(const odbc::LoginSettings& settings,
                                     odbc::Connection& connection) {
    const QString key = settings.dataSource.trimmed().toLower();
    {
        const std::lock_guard<std::mutex> hold(m_versionsLock);
        if (const auto known = m_versions.find(key); known != m_versions.end()) {
            return known->second;
        }
    }
    QString version = serverVersion(connection);
    if (!version.isEmpty()) {
        const std::lock_guard<std::mutex> hold(m_versionsLock);
        m_versions[key] = version;
    }
    return version;
}

void SqlServerProvider::createDatabase(const ConnectionString& connectionString) {
    odbc::LoginSettings settings =
        translated([&] { return odbc::readLoginSettings(providerKeywords(connectionString)); });
    if (settings.database.isEmpty()) {
        throw Error(HResult::DB_E_BADINITSTRING,
                    u"Catalog.Create: the connection string names no Initial Catalog."_s,
                    QString::fromUtf16(kErrorSource));
    }
    const QString database = settings.database;
    settings.database = u"master"_s;
    const int timeout =
        settings.connectTimeout >= 0 ? settings.connectTimeout : odbc::kDefaultConnectTimeout;
    translated([&] {
        std::unique_ptr<odbc::Connection> connection = connect(settings, m_transport, timeout);
        QString name = database;
        name.replace(u"]"_s, u"]]"_s);
        odbc::runBatch(*connection, u"create database ["_s + name + u']');
    });
}

std::vector<std::pair<QString, std::shared_ptr<Provider>>> providers() {
    std::vector<std::pair<QString, std::shared_ptr<Provider>>> out;
    const Transport t = systemTransport();
    // What Connection::Provider reads once open, for each name a string may give.
    out.emplace_back(u"SQLOLEDB"_s, std::make_shared<SqlServerProvider>(u"SQLOLEDB.1"_s, t));
    out.emplace_back(u"SQLOLEDB.1"_s, std::make_shared<SqlServerProvider>(u"SQLOLEDB.1"_s, t));
    out.emplace_back(u"SQLNCLI"_s, std::make_shared<SqlServerProvider>(u"SQLNCLI"_s, t));
    out.emplace_back(u"SQLNCLI10"_s, std::make_shared<SqlServerProvider>(u"SQLNCLI10.1"_s, t));
    return out;
}

} // namespace ado::sqlserver
