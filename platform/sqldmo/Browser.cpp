#include "platform/sqldmo/Browser.h"

#include "platform/sqldmo/Error.h"

#include <QEventLoop>
#include <QHostInfo>
#include <QNetworkDatagram>
#include <QNetworkInterface>
#include <QThread>
#include <QTimer>
#include <QUdpSocket>

#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;

namespace sqldmo {
namespace {

// However many answers a broadcast brings, this many instance records are kept.
constexpr size_t kMaxSightings = 4096;

bool sameAddress(const QHostAddress& a, const QHostAddress& b) {
    return a.isEqual(b, QHostAddress::TolerantConversion);
}

bool sendAll(QUdpSocket& socket, const ExchangeRequest& request, Exchange& result) {
    int sent = 0;
    for (const Endpoint& target : request.targets) {
        if (socket.writeDatagram(request.request, target.address, target.port) ==
            request.request.size()) {
            ++sent;
        } else if (result.networkFailure.isEmpty()) {
            result.networkFailure = u"cannot send to %1 (UDP %2): %3"_s.arg(
                target.address.toString(), QString::number(target.port), socket.errorString());
        }
    }
    if (sent > 0) {
        result.networkFailure.clear();
    }
    return sent > 0;
}

// Reads what has arrived; true when a unicast exchange has its answer.
bool readPending(QUdpSocket& socket, const ExchangeRequest& request, const QDeadlineTimer& deadline,
                 Exchange& result) {
    while (socket.hasPendingDatagrams() && !deadline.hasExpired()) {
        const QNetworkDatagram datagram = socket.receiveDatagram(ssrp::kMaxDatagram);
        if (!datagram.isValid()) {
            return false;
        }
        if (request.unicast) {
            const Endpoint& target = request.targets.constFirst();
            if (!sameAddress(datagram.senderAddress(), target.address) ||
                datagram.senderPort() != target.port) {
                continue; // a stray datagram, not the answer of the server asked
            }
        }
        std::optional<ssrp::Answer> answer = ssrp::parseResponse(datagram.data(), request.maxData);
        if (!answer) {
            continue;
        }
        ++result.answers;
        for (ssrp::InstanceRecord& record : answer->records) {
            if (result.sightings.size() >= kMaxSightings) {
                break;
            }
            result.sightings.push_back(Sighting{datagram.senderAddress(), std::move(record)});
        }
        if (request.unicast) {
            return true;
        }
    }
    return false;
}

std::optional<QHostAddress> preferIpv4(const QList<QHostAddress>& addresses) {
    for (const QHostAddress& address : addresses) {
        if (address.protocol() == QAbstractSocket::IPv4Protocol) {
            return address;
        }
    }
    if (addresses.isEmpty()) {
        return std::nullopt;
    }
    return addresses.constFirst();
}

// The resolver may take far longer than a discovery is allowed to wait, so the look-up runs
// asynchronously and is abandoned at the deadline.
std::optional<QHostAddress> lookUp(const QString& name, const QDeadlineTimer& deadline) {
    if (deadline.hasExpired()) {
        return std::nullopt;
    }
    QEventLoop loop;
    QObject receiver;
    std::optional<QHostInfo> info;
    const int id = QHostInfo::lookupHost(name, &receiver, [&](const QHostInfo& result) {
        info = result;
        loop.quit();
    });
    if (!info) {
        QTimer timer;
        timer.setSingleShot(true);
        QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
        timer.start(std::chrono::milliseconds(std::max<qint64>(deadline.remainingTime(), 0)));
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    }
    if (!info) {
        QHostInfo::abortHostLookup(id);
        return std::nullopt;
    }
    if (info->error() != QHostInfo::NoError) {
        return std::nullopt;
    }
    return preferIpv4(info->addresses());
}

} // namespace

Exchange exchange(const ExchangeRequest& request, QDeadlineTimer deadline) {
    Exchange result;
    if (request.targets.isEmpty()) {
        result.networkFailure = u"no address to send to"_s;
        return result;
    }
    const bool ipv6 =
        std::any_of(request.targets.begin(), request.targets.end(), [](const Endpoint& target) {
            return target.address.protocol() == QAbstractSocket::IPv6Protocol;
        });
    QUdpSocket socket;
    if (!socket.bind(ipv6 ? QHostAddress::Any : QHostAddress::AnyIPv4, 0)) {
        result.networkFailure = u"cannot open a datagram socket: %1"_s.arg(socket.errorString());
        return result;
    }
    if (!sendAll(socket, request, result)) {
        return result;
    }
    // A datagram may be lost on the way: a server asked alone is asked once more at half time.
    bool resent = !request.unicast;
    const QDeadlineTimer resendAt(std::max<qint64>(deadline.remainingTime() / 2, 1));
    while (!deadline.hasExpired()) {
        if (!resent && resendAt.hasExpired()) {
            sendAll(socket, request, result);
            resent = true;
        }
        const qint64 wait = resent ? deadline.remainingTime()
                                   : std::min(deadline.remainingTime(), resendAt.remainingTime());
        if (!socket.hasPendingDatagrams() &&
            !socket.waitForReadyRead(static_cast<int>(std::max<qint64>(wait, 0)))) {
            if (socket.error() != QAbstractSocket::SocketTimeoutError) {
                // An ICMP error reported on the socket: keep listening, without spinning.
                QThread::msleep(static_cast<unsigned long>(
                    std::clamp<qint64>(deadline.remainingTime(), 0, 10)));
            }
            continue;
        }
        if (readPending(socket, request, deadline, result)) {
            break;
        }
    }
    return result;
}

QString hostPart(const QString& server) {
    QString host = server.trimmed();
    for (const QString& prefix : {u"tcp:"_s, u"lpc:"_s}) {
        if (host.startsWith(prefix, Qt::CaseInsensitive)) {
            host = host.mid(prefix.size());
        }
    }
    const auto end =
        std::find_if(host.cbegin(), host.cend(), [](QChar c) { return c == u'\\' || c == u','; });
    return host.left(end - host.cbegin()).trimmed();
}

std::optional<Endpoint> resolveHost(const QString& host, const BrowserOptions& options,
                                    QDeadlineTimer deadline) {
    const QString name = host.trimmed();
    for (auto it = options.hosts.cbegin(); it != options.hosts.cend(); ++it) {
        if (it.key().compare(name, Qt::CaseInsensitive) == 0) {
            return it.value();
        }
    }
    if (name.isEmpty() || name == u"." || name.compare(u"(local)", Qt::CaseInsensitive) == 0) {
        return Endpoint{QHostAddress(QHostAddress::LocalHost), options.port};
    }
    QHostAddress literal;
    if (literal.setAddress(name)) {
        return Endpoint{literal, options.port};
    }
    if (std::optional<QHostAddress> address = lookUp(name, deadline)) {
        return Endpoint{*address, options.port};
    }
    return std::nullopt;
}

bool isThisMachine(const QHostAddress& address, const BrowserOptions& options) {
    const auto contains = [&](const QList<QHostAddress>& list) {
        return std::any_of(list.begin(), list.end(),
                           [&](const QHostAddress& a) { return sameAddress(a, address); });
    };
    if (options.localAddresses) {
        return contains(*options.localAddresses);
    }
    return address.isLoopback() || contains(QNetworkInterface::allAddresses());
}

QList<QHostAddress> localBroadcastAddresses() {
    QList<QHostAddress> targets;
    for (const QNetworkInterface& nic : QNetworkInterface::allInterfaces()) {
        const QNetworkInterface::InterfaceFlags flags = nic.flags();
        if (!flags.testFlag(QNetworkInterface::IsUp) ||
            !flags.testFlag(QNetworkInterface::IsRunning) ||
            !flags.testFlag(QNetworkInterface::CanBroadcast) ||
            flags.testFlag(QNetworkInterface::IsLoopBack)) {
            continue;
        }
        for (const QNetworkAddressEntry& entry : nic.addressEntries()) {
            const QHostAddress broadcast = entry.broadcast();
            if (entry.ip().protocol() == QAbstractSocket::IPv4Protocol && !broadcast.isNull() &&
                !targets.contains(broadcast)) {
                targets.append(broadcast);
            }
        }
    }
    if (targets.isEmpty()) {
        targets.append(QHostAddress(QHostAddress::Broadcast));
    }
    return targets;
}

ServerAnswer askServer(const QString& host, const QByteArray& request, qsizetype maxData,
                       const BrowserOptions& options, QDeadlineTimer deadline, const Asker& asker) {
    const std::optional<Endpoint> endpoint = resolveHost(host, options, deadline);
    if (!endpoint) {
        Raise(Hr::HostNotFound, asker.source,
              asker.prefix + u"the server name '%1' does not resolve to an address."_s.arg(host));
    }
    const qint64 waited = std::max<qint64>(deadline.remainingTime(), 0);
    ServerAnswer answer{*endpoint, exchange({request, {*endpoint}, maxData, true}, deadline)};
    if (!answer.exchange.networkFailure.isEmpty()) {
        Raise(Hr::NetworkFailure, asker.source,
              asker.prefix + answer.exchange.networkFailure + u'.');
    }
    if (answer.exchange.answers == 0) {
        Raise(Hr::NoAnswer, asker.source,
              asker.prefix +
                  u"the SQL Server Browser of '%1' (%2, UDP %3) did not answer within %4 ms."_s.arg(
                      host, endpoint->address.toString(), QString::number(endpoint->port),
                      QString::number(waited)));
    }
    return answer;
}

} // namespace sqldmo
