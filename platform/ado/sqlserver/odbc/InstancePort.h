#pragma once

#include <QString>

#include <cstdint>
#include <functional>

namespace odbc {

inline constexpr std::uint16_t kBrowserPort = 1434;

// Asks the SQL Server Browser of host (UDP) for the TCP port of a named instance, waiting at
// most timeoutMs in all. The driver's own look-up ignores the login time-out (sixteen one-second
// tries), so the provider asks itself and then connects by port. Throws Failure (0x80004005)
// when no answer comes in time, when the instance is not there, or when it has no TCP port.
int resolveInstancePort(const QString& host, const QString& instance, int timeoutMs,
                        std::uint16_t browserPort = kBrowserPort);

// The look-up the provider uses; tests put their own in place.
using PortResolver = std::function<int(const QString& host, const QString& instance,
                                       int timeoutMs)>;

// The TCP port of "tcp;<port>" in a browser answer for the instance, or 0 when the answer does
// not describe that instance with a TCP port. The answer is parsed defensively: it comes from
// the network.
int tcpPortFromAnswer(const QByteArray& datagram, const QString& instance);

} // namespace odbc
