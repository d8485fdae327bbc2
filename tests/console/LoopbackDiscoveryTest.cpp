#include "tests/console/WindowFixture.h"
#include "tests/platform/sqldmo/FakeBrowser.h"

using namespace Qt::StringLiterals;

namespace {

const QByteArray kBroadcast("\x02", 1);
const QByteArray kInstances("\x03", 1);

// The window's search over the real browser protocol, against browsers on 127.0.0.1: one answers
// the broadcast for two servers and lists the first one's instances, the other keeps quiet.
class LoopbackDiscoveryTest : public WindowTest {
protected:
    void SetUp() override {
        sqldmo::BrowserOptions options = loopbackOptions(first);
        options.hosts.insert(u"SRV1"_s, first.endpoint());
        options.hosts.insert(u"SRV2"_s, silent.endpoint());
        servers = networkServerDirectory(options);
        WindowTest::SetUp();
    }
    QStringList choices() const {
        QStringList items;
        for (int i = 0; i < serverBox()->count(); ++i) {
            items.append(serverBox()->itemText(i));
        }
        return items;
    }

    FakeBrowser first{[](const QByteArray& request) {
        if (request == kBroadcast) {
            return QList<QByteArray>{svrResp(instanceRecord("SRV1", "MSSQLSERVER", 1433) +
                                             instanceRecord("SRV2", "MSSQLSERVER", 1433))};
        }
        if (request == kInstances) {
            return QList<QByteArray>{svrResp(instanceRecord("SRV1", "MSSQLSERVER", 1433) +
                                             instanceRecord("SRV1", "ARCHIVIO", 50123))};
        }
        return QList<QByteArray>{};
    }};
    FakeBrowser silent{[](const QByteArray&) { return QList<QByteArray>{}; }};
};

TEST_F(LoopbackDiscoveryTest, TheSilentSecondServerRepeatsTheFirstOnesInstances) {
    typeServer(u"scritto a mano"_s);
    click(buttonNamed("cmdSqlSrv"));
    // SRV1 answers from this machine, so its default instance is the local one.
    EXPECT_EQ(choices(), (QStringList{u"localhost"_s, u"SRV1\\ARCHIVIO"_s, u"localhost"_s,
                                      u"SRV1\\ARCHIVIO"_s}));
    EXPECT_EQ(first.requests(), (QList<QByteArray>{kBroadcast, kInstances}));
    EXPECT_FALSE(silent.requests().isEmpty()); // it was asked, and did not answer
    EXPECT_TRUE(box->shown().empty());
    EXPECT_EQ(window->StatusText(), QString());
    EXPECT_TRUE(buttonNamed("cmdSqlSrv")->isEnabled());
}

} // namespace
