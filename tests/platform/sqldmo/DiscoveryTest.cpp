#include "platform/sqldmo/Application.h"
#include "platform/sqldmo/Error.h"
#include "platform/sqldmo/SQLServer2.h"

#include "tests/platform/sqldmo/FakeBrowser.h"
#include "tests/support/Printers.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using sqldmo::Hr;

namespace {

const QByteArray kListRequest("\x03", 1);

FakeBrowser::Script answerList(const QByteArray& data) {
    return [data](const QByteArray& request) {
        return request == kListRequest ? QList<QByteArray>{svrResp(data)} : QList<QByteArray>{};
    };
}

FakeBrowser::Script silent() {
    return [](const QByteArray&) { return QList<QByteArray>{}; };
}

// Runs a call that must fail, and returns its error.
template <class Call> sqldmo::Error failureOf(Call&& call) {
    try {
        call();
    } catch (const sqldmo::Error& e) {
        return e;
    }
    ADD_FAILURE() << "the call did not fail";
    return sqldmo::Error(Hr::ItemNotFound, {}, {});
}

TEST(ListAvailableSQLServers, ListsEachAnsweringServerOnceInOrderOfArrival) {
    FakeBrowser browser([](const QByteArray&) {
        return QList<QByteArray>{
            svrResp(instanceRecord("SRV2", "MSSQLSERVER", 1433)),
            QByteArray("\x05\xFF\xFF garbage", 12),
            svrResp(instanceRecord("SRV1", "MSSQLSERVER") + instanceRecord("SRV1", "SQLEXPRESS")),
            svrResp(instanceRecord("srv2", "MSSQLSERVER", 1433)), // the same server, again
            svrResp("ServerName;BROKEN;InstanceName;A;tcp;99999;;"),
        };
    });
    const sqldmo::Application application(loopbackOptions(browser));
    QElapsedTimer clock;
    clock.start();
    const sqldmo::NameList servers = application.ListAvailableSQLServers();
    // Answers keep coming until the window closes, so the whole window is waited for.
    EXPECT_GE(clock.elapsed(), 290);
    EXPECT_LT(clock.elapsed(), 2000);
    EXPECT_EQ(servers.names(), (QStringList{u"SRV2"_s, u"SRV1"_s}));
    EXPECT_EQ(browser.requests(), QList<QByteArray>{QByteArray("\x02", 1)});
}

TEST(ListAvailableSQLServers, ANetworkWithoutServersGivesAnEmptyList) {
    FakeBrowser browser(silent());
    const sqldmo::Application application(loopbackOptions(browser));
    EXPECT_EQ(application.ListAvailableSQLServers().Count(), 0);
    EXPECT_EQ(browser.requests().size(), 1);
}

TEST(ListAvailableSQLServers, ARequestThatCannotBeSentIsAnError) {
    FakeBrowser browser(silent());
    sqldmo::BrowserOptions options = loopbackOptions(browser);
    options.port = 0; // no datagram can go to port 0
    const sqldmo::Error error =
        failureOf([&] { sqldmo::Application(options).ListAvailableSQLServers(); });
    EXPECT_EQ(error.code(), Hr::NetworkFailure);
    EXPECT_TRUE(error.description().startsWith(
        u"[SQL-DMO]ListAvailableSQLServers: cannot send to 127.0.0.1 (UDP 0)"_s))
        << error.description().toStdString();
}

TEST(ListInstalledInstances, NamesTheDefaultInstanceOfThisMachineLocal) {
    FakeBrowser browser(answerList(instanceRecord("PC01", "MSSQLSERVER", 1433) +
                                   instanceRecord("PC01", "SQLEXPRESS", 50123)));
    const sqldmo::SQLServer2 server(loopbackOptions(browser));
    EXPECT_EQ(server.ListInstalledInstances(u"127.0.0.1"_s).names(),
              (QStringList{u"(local)"_s, u"PC01\\SQLEXPRESS"_s}));
    // An empty name, "." and "(local)" are this machine too.
    EXPECT_EQ(server.ListInstalledInstances(u"(LOCAL)"_s).Count(), 2);
    EXPECT_EQ(server.ListInstalledInstances(u"."_s).Count(), 2);
    EXPECT_EQ(server.ListInstalledInstances().Count(), 2);
    EXPECT_EQ(browser.requests(), QList<QByteArray>(4, kListRequest));
}

TEST(ListInstalledInstances, NamesTheInstancesOfAnotherServerAfterIt) {
    FakeBrowser browser(answerList(instanceRecord("SRV1", "MSSQLSERVER", 1433) +
                                   instanceRecord("SRV1", "CONTABILITA")));
    sqldmo::BrowserOptions options = loopbackOptions(browser);
    options.hosts.insert(u"srv1"_s, browser.endpoint());
    options.localAddresses = QList<QHostAddress>{};
    const sqldmo::SQLServer2 server(options);
    // The machine is what is asked, whatever instance or port the name carries.
    EXPECT_EQ(server.ListInstalledInstances(u" tcp:SRV1\\OTHER,1433 "_s).names(),
              (QStringList{u"SRV1"_s, u"SRV1\\CONTABILITA"_s}));
}

TEST(ListInstalledInstances, AServerWithoutInstancesGivesNothingWithoutFailing) {
    FakeBrowser browser(answerList({}));
    EXPECT_EQ(
        sqldmo::SQLServer2(loopbackOptions(browser)).ListInstalledInstances(u"127.0.0.1"_s).Count(),
        0);
}

TEST(ListInstalledInstances, ASilentServerFailsInBoundedTimeAfterAskingTwice) {
    FakeBrowser browser(silent());
    sqldmo::BrowserOptions options = loopbackOptions(browser);
    options.hosts.insert(u"SRV2"_s, browser.endpoint());
    QElapsedTimer clock;
    clock.start();
    const sqldmo::Error error =
        failureOf([&] { sqldmo::SQLServer2(options).ListInstalledInstances(u"SRV2"_s); });
    EXPECT_LT(clock.elapsed(), 1500);
    EXPECT_EQ(error.code(), Hr::NoAnswer);
    EXPECT_EQ(error.hresult(), static_cast<std::int32_t>(0x80045800));
    EXPECT_EQ(error.source(), u"Microsoft SQL-DMO"_s);
    EXPECT_EQ(
        error.description(),
        u"[SQL-DMO]ListInstalledInstances: the SQL Server Browser of 'SRV2' (127.0.0.1, UDP %1) did not answer within 300 ms."_s
            .arg(browser.port()));
    EXPECT_EQ(vb::Err().Number, error.hresult());
    EXPECT_EQ(browser.requests().size(), 2);
}

TEST(ListInstalledInstances, ALostRequestIsMadeGoodByTheSecond) {
    int seen = 0;
    FakeBrowser browser([&seen](const QByteArray&) {
        return ++seen == 1 ? QList<QByteArray>{}
                           : QList<QByteArray>{svrResp(instanceRecord("PC01", "SQLEXPRESS"))};
    });
    EXPECT_EQ(sqldmo::SQLServer2(loopbackOptions(browser)).ListInstalledInstances().names(),
              QStringList{u"PC01\\SQLEXPRESS"_s});
}

TEST(ListInstalledInstances, AnswersFromAnyoneButTheServerAskedAreIgnored) {
    FakeBrowser browser(answerList(instanceRecord("PC01", "SQLEXPRESS")), true);
    EXPECT_EQ(failureOf([&] {
                  sqldmo::SQLServer2(loopbackOptions(browser)).ListInstalledInstances();
              }).code(),
              Hr::NoAnswer);
}

TEST(ListInstalledInstances, RefusesANameThatIsNoServerName) {
    FakeBrowser browser(silent());
    const sqldmo::SQLServer2 server(loopbackOptions(browser));
    EXPECT_EQ(failureOf([&] { server.ListInstalledInstances(u"SRV\n1"_s); }).code(),
              Hr::InvalidParameter);
    EXPECT_EQ(failureOf([&] { server.ListInstalledInstances(QString(256, u'S')); }).code(),
              Hr::InvalidParameter);
    EXPECT_TRUE(browser.requests().isEmpty());
}

TEST(ListInstalledInstances, ResolvesNamesThroughTheSystemResolver) {
    // localhost comes from the hosts file: no name server is asked.
    FakeBrowser browser(answerList(instanceRecord("PC01", "SQLEXPRESS")));
    EXPECT_EQ(
        sqldmo::SQLServer2(loopbackOptions(browser)).ListInstalledInstances(u"localhost"_s).Count(),
        1);
}

// The window asks each listed server in turn into one variable; a server that fails leaves the
// list of the server before in it, which the window then adds again.
TEST(ListInstalledInstances, AFailingSecondServerLeavesTheFirstListInPlace) {
    FakeBrowser first(
        answerList(instanceRecord("SRV1", "MSSQLSERVER") + instanceRecord("SRV1", "ARCHIVIO")));
    FakeBrowser second(silent());
    sqldmo::BrowserOptions options = loopbackOptions(first);
    options.hosts.insert(u"SRV1"_s, first.endpoint());
    options.hosts.insert(u"SRV2"_s, second.endpoint());
    options.localAddresses = QList<QHostAddress>{};
    const sqldmo::SQLServer2 server(options);
    const sqldmo::NameList servers(QStringList{u"SRV1"_s, u"SRV2"_s});
    sqldmo::NameList instances;
    QStringList added;
    for (std::int32_t i = 1; i <= servers.Count(); ++i) {
        try {
            instances = server.ListInstalledInstances(servers.Item(i));
        } catch (const sqldmo::Error&) {
        }
        for (std::int32_t j = 1; j <= instances.Count(); ++j) {
            added.append(instances.Item(j));
        }
    }
    EXPECT_EQ(added, (QStringList{u"SRV1"_s, u"SRV1\\ARCHIVIO"_s, u"SRV1"_s, u"SRV1\\ARCHIVIO"_s}));
}

TEST(NameList, ItemIsOneBased) {
    const sqldmo::NameList list(QStringList{u"A"_s, u"B"_s});
    EXPECT_EQ(list.Item(1), u"A"_s);
    EXPECT_EQ(list.Item(2), u"B"_s);
    for (const std::int32_t outside : {0, 3, -1}) {
        const sqldmo::Error error = failureOf([&] { list.Item(outside); });
        EXPECT_EQ(error.code(), Hr::ItemNotFound);
        EXPECT_EQ(error.hresult(), -2147199744); // 0x80045500
    }
}

} // namespace
