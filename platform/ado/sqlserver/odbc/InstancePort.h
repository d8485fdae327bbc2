#pragma once

#include <QString>

#include <cstdint>
#include <functional>

namespace odbc {

inline constexpr std::uint16_t kBrowserPort = 1434;

// The TCP port of a named instance, asked of the SQL Server Browser of host through
// platform/sqldmo, waiting at most timeoutMs in all. The driver's own look-up ignores the login
// time-out (sixteen one-second tries), so the provider asks itself and then connects by port.
// Throws Failure (0x80004005) naming host\instance and the browser's reason when no answer comes
// in time, when the instance is not there, or when it has no TCP port.
int resolveInstancePort(const QString& host, const QString& instance, int timeoutMs,
                        std::uint16_t browserPort = kBrowserPort);

// The look-up the provider uses; tests put their own in place.
using PortResolver = std::function<int(const QString& host, const QString& instance,
                                       int timeoutMs)>;

} // namespace odbc
