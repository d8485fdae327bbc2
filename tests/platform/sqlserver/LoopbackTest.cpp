// The real driver (unixODBC + FreeTDS) against loopback addresses where no SQL Server listens:
// every way of not reaching a server must end in an error within the connection time-out.

#include "platform/ado/sqlserver/odbc/DriverString.h"
#include "platform/ado/sqlserver/odbc/Handles.h"
#include "platform/ado/sqlserver/odbc/InstancePort.h"
#include "tests/support/Printers.h"

#include <QElapsedTimer>
#include <QTcpServer>
#include <QUdpSocket>

#include <gtest/gtest.h>

#include <atomic>
#include <mutex>
#include <thread>

using namespace Qt::StringLiterals;
using namespace odbc;

namespace {

constexpr auto kEFail = static_cast<std::int32_t>(0x80004005u);

// Connects through the real driver; returns the failure and how long it took.
std::pair<Failure, qint64> failToConnect(int port, int timeoutSeconds) {
    LoginSettings s = readLoginSettings({{u"Data Source"_s, u"127.0.0.1"_s},
                                         {u"User ID"_s, u"sa"_s},
                                         {u"Password"_s, u"x"_s}});
    QElapsedTimer clock;
    clock.start();
    try {
        Connection c(systemApi());
        c.open(driverString(s, Driver::FreeTds, port), timeoutSeconds);
    } catch (const Failure& f) {
        return {f, clock.elapsed()};
    }
    ADD_FAILURE() << "connected to 127.0.0.1:" << port;
    return {Failure(0, u"connected"_s), clock.elapsed()};
}

// A UDP "browser" on loopback that answers every request with the given datagram.
class BrowserStub {
public:
    explicit BrowserStub(QByteArray answer) : m_answer(std::move(answer)) {
        m_thread = std::thread([this] { serve(); });
        while (m_port == 0) {
            std::this_thread::yield();
        }
    }
    ~BrowserStub() {
        m_stop = true;
        m_thread.join();
    }
    std::uint16_t port() const { return m_port; }
    QByteArray request() {
        std::lock_guard lock(m_mutex);
        return m_request;
    }

private:
    void serve() {
        QUdpSocket socket;
        if (!socket.bind(QHostAddress::LocalHost, 0)) {
            m_port = 1;
            return;
        }
        m_port = socket.localPort();
        while (!m_stop) {
            if (!socket.waitForReadyRead(50)) {
                continue;
            }
            while (socket.hasPendingDatagrams()) {
                QByteArray in(socket.pendingDatagramSize(), Qt::Uninitialized);
                QHostAddress from;
                quint16 fromPort = 0;
                socket.readDatagram(in.data(), in.size(), &from, &fromPort);
                {
                    std::lock_guard lock(m_mutex);
                    m_request = in;
                }
                socket.writeDatagram(m_answer, from, fromPort);
            }
        }
    }
    QByteArray m_answer;
    std::mutex m_mutex;
    QByteArray m_request;
    std::atomic<std::uint16_t> m_port{0};
    std::atomic<bool> m_stop{false};
    std::thread m_thread;
};

QByteArray answer(const QByteArray& body) {
    QByteArray out(1, '\x05');
    out += char(body.size() & 0xFF);
    out += char(body.size() >> 8);
    return out + body;
}

} // namespace

TEST(Loopback, ClosedPortFailsAtOnceWithEveryRecord) {
    const auto [failure, ms] = failToConnect(1, 5);
    EXPECT_LT(ms, 5000);
    EXPECT_EQ(failure.hresult(), kEFail);
    EXPECT_EQ(failure.phase(), Phase::Connect);
    // FreeTDS gives the cause and then its own "Unable to connect to data source".
    ASSERT_GE(failure.records().size(), 2u) << failure.what();
    EXPECT_EQ(failure.records().front().sqlState.left(2), u"08"_s);
    EXPECT_EQ(failure.records().back().sqlState, u"08001"_s);
}

TEST(Loopback, SilentServerFailsWithinTheLoginTimeout) {
    QTcpServer silent; // accepts TCP and never answers the login
    ASSERT_TRUE(silent.listen(QHostAddress::LocalHost, 0));
    const auto [failure, ms] = failToConnect(silent.serverPort(), 2);
    EXPECT_GE(ms, 1500);
    EXPECT_LT(ms, 5000) << "the login time-out was not honoured";
    EXPECT_EQ(failure.hresult(), kEFail);
}

TEST(Loopback, InstanceLookupIsBoundedByItsTimeout) {
    QUdpSocket nobody; // a port on which no browser answers
    ASSERT_TRUE(nobody.bind(QHostAddress::LocalHost, 0));
    QElapsedTimer clock;
    clock.start();
    try {
        resolveInstancePort(u"127.0.0.1"_s, u"INST"_s, 800, nobody.localPort());
        FAIL() << "resolved";
    } catch (const Failure& f) {
        EXPECT_EQ(f.hresult(), kEFail);
        EXPECT_TRUE(f.description().contains(u"127.0.0.1\\INST"_s)) << f.what();
    }
    EXPECT_LT(clock.elapsed(), 2000);
    EXPECT_THROW(resolveInstancePort(u"127.0.0.1"_s, QString(40, u'x'), 800, 1434), Failure);
}

TEST(Loopback, InstanceLookupAsksTheBrowserForOneInstance) {
    BrowserStub browser(answer("ServerName;SRV;InstanceName;SQLEXPRESS;IsClustered;No;"
                               "Version;15.0.2000.5;tcp;49172;;"));
    EXPECT_EQ(resolveInstancePort(u"127.0.0.1"_s, u"sqlexpress"_s, 2000, browser.port()), 49172);
    // CLNT_UCAST_INST: 0x04, the instance name, a terminating zero.
    EXPECT_EQ(browser.request(), QByteArray("\x04sqlexpress", 11) + '\0');
}
