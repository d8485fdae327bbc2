#pragma once

#include "platform/sqldmo/Browser.h"

#include <QString>

namespace sqldmo {

// The TCP port of a named instance, asked of the browser of host (CLNT_UCAST_INST), waiting at
// most timeoutMs in all, name resolution included. A connection to "host\instance" then goes to
// that port. Throws Error: InvalidParameter (an instance name that cannot be sent),
// HostNotFound, NetworkFailure, NoAnswer (no browser, or one that keeps quiet about an unknown
// instance), InstanceNotFound (the answer lists other instances only), NoTcpPort.
int resolveInstancePort(const QString& host, const QString& instance, int timeoutMs,
                        const BrowserOptions& options = {});

// The same, with the browser on another port than 1434.
int resolveInstancePort(const QString& host, const QString& instance, int timeoutMs,
                        quint16 browserPort);

} // namespace sqldmo
