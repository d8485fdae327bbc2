#include "tests/platform/sqldmo/FakeBrowser.h"

#include <QNetworkDatagram>
#include <QThread>
#include <QUdpSocket>

FakeBrowser::FakeBrowser(Script script, bool replyFromAnotherPort)
    : m_script(std::move(script)), m_replyFromAnotherPort(replyFromAnotherPort),
      m_thread([this] { run(); }) {
    while (!m_ready) {
        QThread::msleep(1);
    }
}

FakeBrowser::~FakeBrowser() {
    m_stop = true;
    m_thread.join();
}

sqldmo::Endpoint FakeBrowser::endpoint() const {
    return {QHostAddress(QHostAddress::LocalHost), m_port};
}

QList<QByteArray> FakeBrowser::requests() const {
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_requests;
}

void FakeBrowser::run() {
    QUdpSocket socket;
    QUdpSocket other;
    socket.bind(QHostAddress::LocalHost, 0);
    other.bind(QHostAddress::LocalHost, 0);
    m_port = socket.localPort();
    m_ready = true;
    while (!m_stop) {
        if (!socket.waitForReadyRead(10)) {
            continue;
        }
        while (socket.hasPendingDatagrams()) {
            const QNetworkDatagram request = socket.receiveDatagram();
            {
                const std::lock_guard<std::mutex> lock(m_mutex);
                m_requests.append(request.data());
            }
            QUdpSocket& from = m_replyFromAnotherPort ? other : socket;
            for (const QByteArray& reply : m_script(request.data())) {
                from.writeDatagram(reply, request.senderAddress(), request.senderPort());
            }
        }
    }
}

QByteArray svrResp(const QByteArray& data, int declaredSize) {
    const int size = declaredSize < 0 ? static_cast<int>(data.size()) : declaredSize;
    QByteArray datagram(1, '\x05');
    datagram.append(static_cast<char>(size & 0xFF));
    datagram.append(static_cast<char>((size >> 8) & 0xFF));
    return datagram + data;
}

QByteArray instanceRecord(const QByteArray& server, const QByteArray& instance, int tcpPort) {
    QByteArray record = "ServerName;" + server + ";InstanceName;" + instance +
                        ";IsClustered;No;Version;15.0.2000.5";
    if (tcpPort != 0) {
        record += ";tcp;" + QByteArray::number(tcpPort);
    }
    return record + ";;";
}

sqldmo::BrowserOptions loopbackOptions(const FakeBrowser& browser) {
    sqldmo::BrowserOptions options;
    options.port = browser.port();
    options.broadcastWaitMs = 300;
    options.answerWaitMs = 300;
    options.broadcastTargets = {QHostAddress(QHostAddress::LocalHost)};
    return options;
}
