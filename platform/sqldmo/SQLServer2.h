#pragma once

#include "platform/sqldmo/Browser.h"
#include "platform/sqldmo/NameList.h"

#include <utility>

namespace sqldmo {

// SQLDMO.SQLServer2, as far as it is used without a connection: the instances of one server.
class SQLServer2 {
public:
    explicit SQLServer2(BrowserOptions options = {}) : m_options(std::move(options)) {}

    // Asks the browser of server (CLNT_UCAST_EX; an instance part or port in the name is
    // ignored, an empty name is this machine) and waits at most answerWaitMs. The default
    // instance is "(local)" when the server is this machine and the server's own name
    // otherwise; a named instance is "SERVER\INSTANCE". Throws Error when the name does not
    // resolve or the server does not answer, so that the caller can tell "nothing" from
    // "failed". Blocks the calling thread.
    NameList ListInstalledInstances(const QString& server = {}) const;

    const BrowserOptions& options() const noexcept { return m_options; }

private:
    BrowserOptions m_options;
};

} // namespace sqldmo
