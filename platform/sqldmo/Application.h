#pragma once

#include "platform/sqldmo/Browser.h"
#include "platform/sqldmo/NameList.h"

#include <utility>

namespace sqldmo {

// SQLDMO.Application: the servers that the network advertises.
class Application {
public:
    explicit Application(BrowserOptions options = {}) : m_options(std::move(options)) {}

    // Broadcasts CLNT_BCAST_EX to the local networks (or the options' targets) and collects
    // answers for broadcastWaitMs: one name per server, as the server names itself, in order of
    // arrival. A network with no server gives an empty list; throws Error (NetworkFailure) only
    // when the request could not be sent at all. Blocks the calling thread.
    NameList ListAvailableSQLServers() const;

    const BrowserOptions& options() const noexcept { return m_options; }

private:
    BrowserOptions m_options;
};

} // namespace sqldmo
