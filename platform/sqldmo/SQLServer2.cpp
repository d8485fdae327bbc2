#include "platform/sqldmo/SQLServer2.h"

#include "platform/sqldmo/Error.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace sqldmo {
namespace {

constexpr qsizetype kMaxHostName = 255;

bool isHostName(const QString& host) {
    if (host.size() > kMaxHostName) {
        return false;
    }
    return std::none_of(host.cbegin(), host.cend(), [](QChar c) { return c.unicode() < 0x20; });
}

} // namespace

NameList SQLServer2::ListInstalledInstances(const QString& server) const {
    const Asker asker{QString::fromUtf16(kSourceDmo), u"[SQL-DMO]ListInstalledInstances: "_s};
    const QString host = hostPart(server);
    if (!isHostName(host)) {
        Raise(Hr::InvalidParameter, asker.source,
              asker.prefix + u"'%1' is not a server name."_s.arg(server));
    }
    const ServerAnswer answer = askServer(host, ssrp::serverRequest(), ssrp::kMaxListAnswer,
                                          m_options, QDeadlineTimer(m_options.answerWaitMs), asker);
    const bool local = isThisMachine(answer.endpoint.address, m_options);
    QStringList instances;
    for (const Sighting& sighting : answer.exchange.sightings) {
        const ssrp::InstanceRecord& record = sighting.record;
        if (!record.isDefaultInstance()) {
            instances.append(record.serverName + u'\\' + record.instanceName);
        } else {
            instances.append(local ? u"(local)"_s : record.serverName);
        }
    }
    return NameList(instances);
}

} // namespace sqldmo
