#include "platform/sqldmo/InstancePort.h"

#include "platform/sqldmo/Error.h"

#include "tests/platform/sqldmo/FakeBrowser.h"
#include "tests/support/Printers.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using sqldmo::Hr;

namespace {

FakeBrowser::Script answer(const QList<QByteArray>& datagrams) {
    return [datagrams](const QByteArray&) { return datagrams; };
}

Hr failureCode(const QString& instance, const FakeBrowser& browser, int timeoutMs = 300) {
    try {
        sqldmo::resolveInstancePort(u"127.0.0.1"_s, instance, timeoutMs, browser.port());
    } catch (const sqldmo::Error& e) {
        EXPECT_EQ(e.source(), u"SQL Server Browser"_s);
        EXPECT_TRUE(
            e.description().startsWith(u"SQL Server instance '127.0.0.1\\%1': "_s.arg(instance)))
            << e.description().toStdString();
        return e.code();
    }
    ADD_FAILURE() << "the look-up did not fail";
    return Hr::ItemNotFound;
}

TEST(ResolveInstancePort, GivesThePortOfTheInstanceAskedFor) {
    FakeBrowser browser(answer({svrResp(instanceRecord("SRV1", "ALTRA", 1500) +
                                        instanceRecord("SRV1", "SQLEXPRESS", 50123))}));
    EXPECT_EQ(sqldmo::resolveInstancePort(u"127.0.0.1"_s, u"sqlexpress"_s, 1000, browser.port()),
              50123);
    EXPECT_EQ(browser.requests(), QList<QByteArray>{QByteArray("\x04sqlexpress\0", 12)});
}

TEST(ResolveInstancePort, SaysWhyThereIsNoPort) {
    FakeBrowser noTcp(answer({svrResp(instanceRecord("SRV1", "SQLEXPRESS"))}));
    EXPECT_EQ(failureCode(u"SQLEXPRESS"_s, noTcp), Hr::NoTcpPort);
    FakeBrowser other(answer({svrResp(instanceRecord("SRV1", "ALTRA", 1500))}));
    EXPECT_EQ(failureCode(u"SQLEXPRESS"_s, other), Hr::InstanceNotFound);
    FakeBrowser tooLongName(answer({}));
    EXPECT_EQ(failureCode(QString(33, u'I'), tooLongName), Hr::InvalidParameter);
    EXPECT_TRUE(tooLongName.requests().isEmpty());
}

TEST(ResolveInstancePort, ASilentBrowserFailsWithinTheTimeOut) {
    FakeBrowser browser(answer({}));
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(failureCode(u"SQLEXPRESS"_s, browser, 200), Hr::NoAnswer);
    EXPECT_GE(clock.elapsed(), 190);
    EXPECT_LT(clock.elapsed(), 1000);
}

TEST(ResolveInstancePort, AnOversizedAnswerIsIgnored) {
    // An answer about one instance is at most 1,024 bytes; this one is not believed.
    const QByteArray padded = instanceRecord("SRV1", "SQLEXPRESS", 1433) + QByteArray(1100, ';');
    FakeBrowser browser(answer({svrResp(padded)}));
    EXPECT_EQ(failureCode(u"SQLEXPRESS"_s, browser), Hr::NoAnswer);
}

TEST(ResolveInstancePort, FindsTheAnswerBehindAFloodOfGarbage) {
    QList<QByteArray> datagrams(200, QByteArray("\x05\x10\x00ServerName;", 14));
    datagrams.append(QByteArray(5000, '\x05'));
    datagrams.append(svrResp(instanceRecord("SRV1", "SQLEXPRESS", 1434 + 1)));
    FakeBrowser browser(answer(datagrams));
    EXPECT_EQ(sqldmo::resolveInstancePort(u"127.0.0.1"_s, u"SQLEXPRESS"_s, 2000, browser.port()),
              1435);
}

} // namespace
