#include "platform/sqldmo/BrowserMessage.h"

#include "tests/platform/sqldmo/FakeBrowser.h"
#include "tests/support/Printers.h"

#include <gtest/gtest.h>

#include <random>

using namespace Qt::StringLiterals;
using sqldmo::ssrp::parseResponse;

namespace {

std::optional<sqldmo::ssrp::Answer> parse(const QByteArray& data) {
    return parseResponse(svrResp(data), sqldmo::ssrp::kMaxListAnswer);
}

TEST(BrowserMessage, RequestsAreTheProtocolBytes) {
    EXPECT_EQ(sqldmo::ssrp::broadcastRequest(), QByteArray("\x02", 1));
    EXPECT_EQ(sqldmo::ssrp::serverRequest(), QByteArray("\x03", 1));
    EXPECT_EQ(sqldmo::ssrp::instanceRequest(u"SQLEXPRESS"_s), QByteArray("\x04SQLEXPRESS\0", 12));
    EXPECT_EQ(sqldmo::ssrp::instanceRequest(QString(32, u'I')).size(), 34);
    // Too long for the format, empty, or with the field separator: not sendable.
    EXPECT_TRUE(sqldmo::ssrp::instanceRequest(QString(33, u'I')).isEmpty());
    EXPECT_TRUE(sqldmo::ssrp::instanceRequest(QString()).isEmpty());
    EXPECT_TRUE(sqldmo::ssrp::instanceRequest(u"A;B"_s).isEmpty());
    EXPECT_EQ(sqldmo::ssrp::instanceRequest(u"ISTANZA\u00C0"_s),
              QByteArray("\x04ISTANZA\xC0\0", 10));
}

TEST(BrowserMessage, ReadsEveryRecordAndItsTransports) {
    const auto answer =
        parse("ServerName;SRV1;InstanceName;MSSQLSERVER;IsClustered;Yes;Version;9.00.5000.00;"
              "np;\\\\SRV1\\pipe\\sql\\query;tcp;1433;via;SRV1,0:1433;rpc;SRV1;spx;MSSQLSERVER;"
              "adsp;SQL;bv;item;group;org;;"
              "ServerName;SRV1;InstanceName;SQLEXPRESS;IsClustered;No;Version;15.0.2000.5;;");
    ASSERT_TRUE(answer);
    ASSERT_EQ(answer->records.size(), 2u);
    EXPECT_EQ(answer->skipped, 0);
    const auto& first = answer->records[0];
    EXPECT_EQ(first.serverName, u"SRV1"_s);
    EXPECT_TRUE(first.isDefaultInstance());
    EXPECT_TRUE(first.clustered);
    EXPECT_EQ(first.version, u"9.00.5000.00"_s);
    EXPECT_EQ(first.pipeName, u"\\\\SRV1\\pipe\\sql\\query"_s);
    EXPECT_EQ(first.tcpPort, 1433);
    const auto& second = answer->records[1];
    EXPECT_EQ(second.instanceName, u"SQLEXPRESS"_s);
    EXPECT_FALSE(second.isDefaultInstance());
    EXPECT_FALSE(second.clustered);
    EXPECT_EQ(second.tcpPort, 0);
}

TEST(BrowserMessage, DropsMalformedRecordsAndKeepsTheirNeighbours) {
    const QByteArray bad[] = {
        "InstanceName;A;Version;1.0;;",                              // no server
        "ServerName;S;InstanceName;;Version;1.0;;",                  // empty instance
        "ServerName;S;InstanceName;A;ServerName;T;InstanceName;B;;", // two run together
        "ServerName;S;InstanceName;A;tcp;14x3;;",                    // not a port
        "ServerName;S;InstanceName;A;tcp;0;;",                       // not a port
        "ServerName;S;InstanceName;A;tcp;70000;;",                   // not a port
        "ServerName;S;InstanceName;A;Version;11.0.2100.60.123456;;", // version over 16
        "ServerName;" + QByteArray(256, 'S') + ";InstanceName;A;;",  // server over 255
        "ServerName;S\x01;InstanceName;A;;",                         // control character
    };
    for (const QByteArray& record : bad) {
        const auto answer =
            parse(instanceRecord("GOOD1", "A", 1) + record + instanceRecord("GOOD2", "B", 2));
        ASSERT_TRUE(answer) << record.constData();
        ASSERT_EQ(answer->records.size(), 2u) << record.constData();
        EXPECT_EQ(answer->records[1].serverName, u"GOOD2"_s) << record.constData();
        EXPECT_EQ(answer->skipped, 1) << record.constData();
    }
}

TEST(BrowserMessage, ARecordCutShortIsNotBelieved) {
    // A datagram cut inside the port must not turn 1433 into 14.
    for (const QByteArray& data : {QByteArray("ServerName;S;InstanceName;A;tcp;14"),
                                   QByteArray("ServerName;S;InstanceName;A;tcp;1433;"),
                                   QByteArray("ServerName;S;InstanceName;A;tcp")}) {
        const auto answer = parse(data);
        ASSERT_TRUE(answer);
        EXPECT_TRUE(answer->records.empty()) << data.constData();
        EXPECT_EQ(answer->skipped, 1) << data.constData();
    }
}

TEST(BrowserMessage, FramingIsChecked) {
    const QByteArray data = instanceRecord("SRV1", "A", 1433);
    EXPECT_FALSE(parseResponse(QByteArray("\x05\x01", 2), 1024));
    EXPECT_FALSE(parseResponse(QByteArray(1, '\x04') + svrResp(data).mid(1), 1024));
    // RESP_SIZE beyond the datagram: a lie, the datagram is not read at all.
    EXPECT_FALSE(parseResponse(svrResp(data, static_cast<int>(data.size()) + 1), 1024));
    // Bytes after RESP_SIZE are not part of the answer.
    const auto trailing = parseResponse(svrResp(data) + "ServerName;X;InstanceName;Y;;", 1024);
    ASSERT_TRUE(trailing);
    EXPECT_EQ(trailing->records.size(), 1u);
    // An answer about one instance has at most 1,024 bytes.
    const QByteArray big = data + QByteArray(1024 - data.size(), ';');
    EXPECT_TRUE(parseResponse(svrResp(big), sqldmo::ssrp::kMaxInstanceAnswer));
    EXPECT_FALSE(parseResponse(svrResp(big + ';'), sqldmo::ssrp::kMaxInstanceAnswer));
}

TEST(BrowserMessage, NamesInUtf8OrInTheServersCodePage) {
    const auto utf8 = parse(instanceRecord("SERVIZI\xC3\x80", "A"));
    const auto ansi = parse(instanceRecord("SERVIZI\xC0", "A"));
    ASSERT_TRUE(utf8 && ansi);
    ASSERT_EQ(utf8->records.size(), 1u);
    ASSERT_EQ(ansi->records.size(), 1u);
    EXPECT_EQ(utf8->records[0].serverName, u"SERVIZI\u00C0"_s);
    EXPECT_EQ(ansi->records[0].serverName, u"SERVIZI\u00C0"_s);
}

TEST(BrowserMessage, RandomBytesNeverGiveANamelessRecord) {
    std::mt19937 random(20240611);
    static constexpr char kAlphabet[] = "ServerNamInstc;;;01234\x00\x05\xFF";
    const QByteArray alphabet(kAlphabet, sizeof kAlphabet - 1);
    for (int round = 0; round < 2000; ++round) {
        QByteArray data;
        const int length = static_cast<int>(random() % 300);
        for (int i = 0; i < length; ++i) {
            data.append(alphabet.at(static_cast<qsizetype>(random() % alphabet.size())));
        }
        if (round % 2 == 0) {
            data.prepend(instanceRecord("S", "I", 1).left(static_cast<qsizetype>(random() % 60)));
        }
        const auto answer = parse(data);
        ASSERT_TRUE(answer);
        for (const auto& record : answer->records) {
            EXPECT_FALSE(record.serverName.isEmpty());
            EXPECT_FALSE(record.instanceName.isEmpty());
            EXPECT_LE(record.tcpPort, 65535);
        }
    }
}

} // namespace
