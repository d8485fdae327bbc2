#include "console/ServerDirectory.h"

#include "platform/sqldmo/Application.h"
#include "platform/sqldmo/SQLServer2.h"

namespace {

class NetworkServers : public ServerBrowser {
public:
    sqldmo::NameList ListAvailableSQLServers() override {
        return m_application.ListAvailableSQLServers();
    }

private:
    sqldmo::Application m_application;
};

class NetworkInstances : public InstanceBrowser {
public:
    sqldmo::NameList ListInstalledInstances(const QString& server) override {
        return m_server.ListInstalledInstances(server);
    }

private:
    sqldmo::SQLServer2 m_server;
};

} // namespace

ServerDirectory networkServerDirectory() {
    return {[] { return std::make_unique<NetworkServers>(); },
            [] { return std::make_unique<NetworkInstances>(); }};
}
