#include "platform/sqldmo/Application.h"

#include "platform/sqldmo/Error.h"

using namespace Qt::StringLiterals;

namespace sqldmo {

NameList Application::ListAvailableSQLServers() const {
    const QList<QHostAddress> addresses = m_options.broadcastTargets.isEmpty()
                                              ? localBroadcastAddresses()
                                              : m_options.broadcastTargets;
    ExchangeRequest request{ssrp::broadcastRequest(), {}, ssrp::kMaxListAnswer, false};
    for (const QHostAddress& address : addresses) {
        request.targets.append(Endpoint{address, m_options.port});
    }
    const Exchange result = exchange(request, QDeadlineTimer(m_options.broadcastWaitMs));
    if (!result.networkFailure.isEmpty()) {
        Raise(Hr::NetworkFailure, QString::fromUtf16(kSourceDmo),
              u"[SQL-DMO]ListAvailableSQLServers: "_s + result.networkFailure + u'.');
    }
    // A server with several instances answers with a record for each, and may answer on more
    // than one network: it is listed once.
    QStringList servers;
    for (const Sighting& sighting : result.sightings) {
        if (!servers.contains(sighting.record.serverName, Qt::CaseInsensitive)) {
            servers.append(sighting.record.serverName);
        }
    }
    return NameList(servers);
}

} // namespace sqldmo
