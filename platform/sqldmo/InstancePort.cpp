#include "platform/sqldmo/InstancePort.h"

#include "platform/sqldmo/Error.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace sqldmo {

int resolveInstancePort(const QString& host, const QString& instance, int timeoutMs,
                        const BrowserOptions& options) {
    const Asker asker{QString::fromUtf16(kSourceBrowser),
                      u"SQL Server instance '%1\\%2': "_s.arg(host, instance)};
    const QByteArray request = ssrp::instanceRequest(instance);
    if (request.isEmpty()) {
        Raise(Hr::InvalidParameter, asker.source,
              asker.prefix +
                  u"the instance name cannot be asked for (1 to 32 bytes, without ';')."_s);
    }
    const ServerAnswer answer = askServer(host, request, ssrp::kMaxInstanceAnswer, options,
                                          QDeadlineTimer(std::max(timeoutMs, 1)), asker);
    const auto& sightings = answer.exchange.sightings;
    const auto found = std::find_if(sightings.begin(), sightings.end(), [&](const Sighting& s) {
        return s.record.instanceName.compare(instance, Qt::CaseInsensitive) == 0;
    });
    if (found == sightings.end()) {
        Raise(Hr::InstanceNotFound, asker.source,
              asker.prefix + u"the SQL Server Browser answered without this instance."_s);
    }
    if (found->record.tcpPort == 0) {
        Raise(Hr::NoTcpPort, asker.source,
              asker.prefix + u"the instance does not listen on TCP."_s);
    }
    return found->record.tcpPort;
}

int resolveInstancePort(const QString& host, const QString& instance, int timeoutMs,
                        quint16 browserPort) {
    BrowserOptions options;
    options.port = browserPort;
    return resolveInstancePort(host, instance, timeoutMs, options);
}

} // namespace sqldmo
