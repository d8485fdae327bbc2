#pragma once

#include "platform/sqldmo/BrowserMessage.h"

#include <QDeadlineTimer>
#include <QHash>
#include <QHostAddress>
#include <QList>
#include <QString>

#include <optional>
#include <vector>

namespace sqldmo {

// Where one SQL Server Browser listens.
struct Endpoint {
    QHostAddress address;
    quint16 port = ssrp::kBrowserPort;
};

// How discovery reaches the browsers. The defaults are the real network; tests put loopback
// endpoints in place.
struct BrowserOptions {
    quint16 port = ssrp::kBrowserPort; // where browsers listen
    int broadcastWaitMs = 2000;        // how long a broadcast collects answers
    int answerWaitMs = 1500;           // how long a question to one server waits
    // Where the broadcast goes; empty: the broadcast address of every local IPv4 network.
    QList<QHostAddress> broadcastTargets;
    // Server names found here (without regard to case) before the resolver is asked.
    QHash<QString, Endpoint> hosts;
    // The addresses that are this machine; unset: loopback and every local interface.
    std::optional<QList<QHostAddress>> localAddresses;
};

// One instance record and the address its answer came from.
struct Sighting {
    QHostAddress from;
    ssrp::InstanceRecord record;
};

// What an exchange brought back.
struct Exchange {
    std::vector<Sighting> sightings;
    int answers = 0;        // SVR_RESP datagrams read, well-formed or not in their records
    QString networkFailure; // set when the socket could not be opened or nothing could be sent
};

// One request and its answers, waiting at most until the deadline.
struct ExchangeRequest {
    QByteArray request;
    QList<Endpoint> targets;
    qsizetype maxData = ssrp::kMaxListAnswer;
    // Unicast: answers count only from the one target, the request goes again once when half
    // the time passed in silence, and the first well-formed answer ends the wait. Otherwise
    // every answer until the deadline is collected.
    bool unicast = false;
};

Exchange exchange(const ExchangeRequest& request, QDeadlineTimer deadline);

// The host of a server name as users write it ("host", "host\instance", "tcp:host,port",
// "(local)", "."): the part that names the machine.
QString hostPart(const QString& server);

// The browser endpoint of a host, from the options' table, an address literal or the resolver;
// "(local)", "." and an empty host are this machine. Nothing when the name does not resolve
// before the deadline.
std::optional<Endpoint> resolveHost(const QString& host, const BrowserOptions& options,
                                    QDeadlineTimer deadline);

// Whether an address is this machine's.
bool isThisMachine(const QHostAddress& address, const BrowserOptions& options);

// The broadcast addresses of the local IPv4 networks (the limited broadcast when there is none).
QList<QHostAddress> localBroadcastAddresses();

// Who asks, for the failures of askServer: the error source and the start of each description.
struct Asker {
    QString source;
    QString prefix;
};

// What one server answered, and where it was asked.
struct ServerAnswer {
    Endpoint endpoint;
    Exchange exchange;
};

// Sends a request to the browser of one host and waits for its answer until the deadline.
// Throws Error: HostNotFound, NetworkFailure, or NoAnswer when no SVR_RESP came in time.
ServerAnswer askServer(const QString& host, const QByteArray& request, qsizetype maxData,
                       const BrowserOptions& options, QDeadlineTimer deadline, const Asker& asker);

} // namespace sqldmo
