#pragma once

#include "platform/sqldmo/Browser.h"
#include "platform/sqldmo/NameList.h"

#include <QString>

#include <functional>
#include <memory>

// The two objects that the server search binds by name when the button is pressed: the one that
// lists the servers the network advertises, and the one that lists a server's instances. Either
// may be missing on a machine (its factory then gives nothing), and either may throw.
class ServerBrowser {
public:
    virtual ~ServerBrowser() = default;
    virtual sqldmo::NameList ListAvailableSQLServers() = 0;
};

class InstanceBrowser {
public:
    virtual ~InstanceBrowser() = default;
    virtual sqldmo::NameList ListInstalledInstances(const QString& server) = 0;
};

struct ServerDirectory {
    std::function<std::unique_ptr<ServerBrowser>()> application;
    std::function<std::unique_ptr<InstanceBrowser>()> server;
};

// The network's own: SQL Server Browser answers on the local networks (or where `options` say).
ServerDirectory networkServerDirectory(const sqldmo::BrowserOptions& options = {});
