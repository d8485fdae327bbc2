#pragma once

#include "platform/sqldmo/Browser.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <atomic>
#include <functional>
#include <mutex>
#include <thread>

// A SQL Server Browser on 127.0.0.1 (an ephemeral port), on a thread of its own: each request is
// recorded and answered with the datagrams its script returns (none: it keeps quiet).
class FakeBrowser {
public:
    using Script = std::function<QList<QByteArray>(const QByteArray& request)>;

    explicit FakeBrowser(Script script, bool replyFromAnotherPort = false);
    ~FakeBrowser();
    FakeBrowser(const FakeBrowser&) = delete;
    FakeBrowser& operator=(const FakeBrowser&) = delete;
    FakeBrowser(FakeBrowser&&) = delete;
    FakeBrowser& operator=(FakeBrowser&&) = delete;

    quint16 port() const { return m_port; }
    sqldmo::Endpoint endpoint() const;
    QList<QByteArray> requests() const;

private:
    void run();

    Script m_script;
    bool m_replyFromAnotherPort;
    std::atomic<bool> m_stop{false};
    std::atomic<bool> m_ready{false};
    quint16 m_port = 0;
    mutable std::mutex m_mutex;
    QList<QByteArray> m_requests;
    std::thread m_thread;
};

// SVR_RESP around RESP_DATA, with RESP_SIZE as given or the true size.
QByteArray svrResp(const QByteArray& data, int declaredSize = -1);
// One instance record, as a browser writes it; tcpPort 0 leaves the TCP entry out.
QByteArray instanceRecord(const QByteArray& server, const QByteArray& instance, int tcpPort = 0);
// Options that reach only the fake browsers: loopback broadcast, short waits.
sqldmo::BrowserOptions loopbackOptions(const FakeBrowser& browser);
