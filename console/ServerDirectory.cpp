#include "console/ServerDirectory.h"

#include "platform/sqldmo/Application.h"
#include "platform/sqldmo/SQLServer2.h"

namespace {

class NetworkServers : public ServerBrowser {
public:
    explicit NetworkServers(const sqldmo::BrowserOptions& options) : m_application(options) {}
    sqldmo::NameList ListAvailableSQLServers() override {
        return m_application.ListAvailableSQLServers();
    }

private:
    sqldmo::Application m_application;
};

class NetworkInstances : public InstanceBrowser {
public:
    explicit NetworkInstances(const sqldmo::BrowserOptions& options) : m_server(options) {}
    sqldmo::NameList ListInstalledInstances(const QString& server) override {
        return m_server.ListInstalledInstances(server);
    }

private:
    sqldmo::SQLServer2 m_server;
};

} // namespace

ServerDirectory networkServerDirectory(const sqldmo::BrowserOptions& options) {
    return {[options] { return std::make_unique<NetworkServers>(options); },
            [options] { return std::make_unique<NetworkInstances>(options); }};
}
