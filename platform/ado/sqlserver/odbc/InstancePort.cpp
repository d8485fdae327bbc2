#include "platform/ado/sqlserver/odbc/InstancePort.h"

#include "platform/ado/sqlserver/odbc/Diagnostics.h"
#include "platform/ado/sqlserver/odbc/HResults.h"

#include <QDeadlineTimer>
#include <QHostAddress>
#include <QHostInfo>
#include <QUdpSocket>

using namespace Qt::StringLiterals;

namespace odbc {
namespace {

constexpr char kUnicastInstance = 0x04; // CLNT_UCAST_INST
constexpr char kServerResponse = 0x05;  // SVR_RESP
constexpr qsizetype kMaxInstanceName = 32;

[[noreturn]] void fail(const QString& host, const QString& instance, const QString& reason) {
    throw Failure(hr::E_FAIL_,
                  u"SQL Server instance '%1\\%2': %3"_s.arg(host, instance, reason));
}

QHostAddress addressOf(const QString& host) {
    QHostAddress address;
    if (address.setAddress(host)) {
        return address;
    }
    const QHostInfo info = QHostInfo::fromName(host);
    for (const QHostAddress& a : info.addresses()) {
        if (a.protocol() == QAbstractSocket::IPv4Protocol) {
            return a;
        }
    }
    return info.addresses().isEmpty() ? QHostAddress() : info.addresses().constFirst();
}

} // namespace

int tcpPortFromAnswer(const QByteArray& datagram, const QString& instance) {
    if (datagram.size() < 3 || datagram.at(0) != kServerResponse) {
        return 0;
    }
    const auto declared = static_cast<qsizetype>(static_cast<unsigned char>(datagram.at(1)) |
                                                 (static_cast<unsigned char>(datagram.at(2)) << 8));
    const QByteArray body = datagram.mid(3, std::min(declared, datagram.size() - 3));
    // One answer may list several instances, each ended by ";;".
    const QList<QByteArray> parts = body.split(';');
    QString current;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString key = QString::fromLatin1(parts.at(i)).trimmed();
        const QString value = QString::fromLatin1(parts.at(i + 1)).trimmed();
        if (key.isEmpty()) {
            // The empty field between two records: realign on the next key.
            --i;
            continue;
        }
        if (key.compare(u"InstanceName", Qt::CaseInsensitive) == 0) {
            current = value;
        } else if (key.compare(u"tcp", Qt::CaseInsensitive) == 0 &&
                   current.compare(instance, Qt::CaseInsensitive) == 0) {
            bool ok = false;
            const int port = value.toInt(&ok);
            return ok && port > 0 && port <= 65535 ? port : 0;
        }
    }
    return 0;
}

int resolveInstancePort(const QString& host, const QString& instance, int timeoutMs,
                        std::uint16_t browserPort) {
    const QByteArray name = instance.toLatin1();
    if (name.isEmpty() || name.size() > kMaxInstanceName) {
        fail(host, instance, u"not a valid instance name."_s);
    }
    const QDeadlineTimer deadline(std::max(timeoutMs, 1));
    const QHostAddress address = addressOf(host);
    if (address.isNull()) {
        fail(host, instance, u"the server name cannot be resolved."_s);
    }
    QUdpSocket socket;
    QByteArray request(1, kUnicastInstance);
    request += name;
    request += '\0';
    if (socket.writeDatagram(request, address, browserPort) != request.size()) {
        fail(host, instance, u"the SQL Server Browser cannot be reached (%1)."_s.arg(
                                 socket.errorString()));
    }
    while (!deadline.hasExpired()) {
        if (!socket.waitForReadyRead(static_cast<int>(deadline.remainingTime()))) {
            const auto error = socket.error();
            if (error != QAbstractSocket::SocketTimeoutError &&
                error != QAbstractSocket::UnknownSocketError) {
                fail(host, instance, u"the SQL Server Browser does not answer (%1)."_s.arg(
                                         socket.errorString()));
            }
            continue;
        }
        while (socket.hasPendingDatagrams()) {
            QByteArray answer(static_cast<qsizetype>(std::min<qint64>(
                                  std::max<qint64>(socket.pendingDatagramSize(), 0), 65535)),
                              Qt::Uninitialized);
            QHostAddress from;
            socket.readDatagram(answer.data(), answer.size(), &from);
            if (!from.isEqual(address, QHostAddress::TolerantConversion)) {
                continue;
            }
            if (answer.size() >= 1 && answer.at(0) == kServerResponse) {
                const int port = tcpPortFromAnswer(answer, instance);
                if (port == 0) {
                    fail(host, instance, u"the server has no such instance listening on TCP."_s);
                }
                return port;
            }
        }
    }
    fail(host, instance, u"the SQL Server Browser did not answer within %1 ms."_s.arg(timeoutMs));
}

} // namespace odbc
