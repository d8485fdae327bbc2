#include "platform/ado/sqlserver/odbc/Execution.h"
#include "platform/ado/sqlserver/odbc/Types.h"
#include "tests/platform/sqlserver/RecordingOdbc.h"
#include "tests/support/Printers.h"

#include <gtest/gtest.h>

#include <sqlucode.h>

using namespace Qt::StringLiterals;
using namespace odbc;
using R = RecordingOdbc;

namespace {

ColumnDescription col(const char16_t* name, SQLSMALLINT type, SQLULEN size = 0,
                      SQLSMALLINT digits = 0) {
    return ColumnDescription{QString::fromUtf16(name), type, size, digits, SQL_NULLABLE};
}

class ExecutionTest : public ::testing::Test {
protected:
    void TearDown() override { EXPECT_EQ(api.openHandles(), 0) << "a handle was not freed"; }
    QStringList calls(const QString& prefix) const {
        QStringList out;
        for (const QString& line : api.log) {
            if (line.startsWith(prefix)) {
                out << line;
            }
        }
        return out;
    }
    R api;
};

} // namespace

TEST_F(ExecutionTest, ConnectsWithoutDsnAndDisconnects) {
    {
        Connection c(api);
        c.open(u"DRIVER={FreeTDS};Server=h;Port=1433;"_s, 5);
        EXPECT_TRUE(c.isOpen());
    }
    EXPECT_EQ(api.log, QStringList({u"SQLSetEnvAttr 200=3"_s, u"SQLSetConnectAttr 103=5"_s,
                                    u"SQLDriverConnect DRIVER={FreeTDS};Server=h;Port=1433;"_s,
                                    u"SQLDisconnect"_s}));
}

TEST_F(ExecutionTest, RefusedConnectionCarriesEveryRecord) {
    api.connectResult = SQL_ERROR;
    api.connectDiagnostics = {
        R::diag(u"08S01"_s, 20009, u"[FreeTDS][SQL Server]Unable to connect: Adaptive Server is unavailable or does not exist"_s),
        R::diag(u"08001"_s, 0, u"[FreeTDS][SQL Server]Unable to connect to data source"_s)};
    Connection c(api);
    try {
        c.open(u"x"_s, 5);
        FAIL() << "connected";
    } catch (const Failure& f) {
        EXPECT_EQ(f.hresult(), static_cast<std::int32_t>(0x80004005u));
        EXPECT_EQ(f.nativeError(), 20009);
        EXPECT_EQ(f.records().size(), 2u);
        EXPECT_EQ(f.phase(), Phase::Connect);
    }
    EXPECT_FALSE(c.isOpen());
    EXPECT_TRUE(calls(u"SQLDisconnect"_s).isEmpty());
}

TEST_F(ExecutionTest, TransactionsSwitchAutocommitAndNeverCommitByAccident) {
    {
        Connection c(api);
        c.open(u"x"_s, 0);
        c.beginTransaction();
        c.endTransaction(true);
        EXPECT_FALSE(c.inTransaction());
        c.beginTransaction();
    }
    EXPECT_EQ(api.log.mid(2), QStringList({u"SQLSetConnectAttr 102=0"_s, u"SQLEndTran commit"_s,
                                           u"SQLSetConnectAttr 102=1"_s,
                                           u"SQLSetConnectAttr 102=0"_s,
                                           u"SQLEndTran rollback"_s, u"SQLDisconnect"_s}));
}

TEST_F(ExecutionTest, AnErrorInTheSecondStatementIsKeptAndTheLastStillRuns) {
    Connection c(api);
    c.open(u"x"_s, 0);
    api.batches.push_back(
        {R::count(1),
         [] {
             R::Result r = R::error(u"23000"_s, 2627, u"[FreeTDS][SQL Server]Violation of PRIMARY KEY constraint 'PK_T'."_s);
             r.diagnostics.push_back(R::diag(u"01000"_s, 3621, u"[FreeTDS][SQL Server]The statement has been terminated."_s));
             return r;
         }(),
         R::count(0)});
    try {
        runBatch(c, u"set identity_insert T on;insert into T values (1);set identity_insert T off"_s);
        FAIL() << "the duplicate was not reported";
    } catch (const Failure& f) {
        EXPECT_EQ(f.hresult(), static_cast<std::int32_t>(0x80040E2F));
        EXPECT_EQ(f.nativeError(), 2627);
        EXPECT_EQ(f.description(), u"Violation of PRIMARY KEY constraint 'PK_T'."_s);
        ASSERT_EQ(f.records().size(), 2u);
        EXPECT_EQ(f.records()[1].nativeError, 3621);
    }
    // Every result was asked for, up to the driver's "no more".
    EXPECT_EQ(calls(u"SQLMoreResults"_s).size(), 3);
}

TEST_F(ExecutionTest, StatementsWithoutResultsAndInformationalMessages) {
    Connection c(api);
    c.open(u"x"_s, 0);
    // DDL answers SQL_NO_DATA under ODBC 3: a success.
    EXPECT_NO_THROW(runBatch(c, u"create database X"_s));
    R::Result info = R::count(3);
    info.rc = SQL_SUCCESS_WITH_INFO;
    info.diagnostics = {R::diag(u"01000"_s, 5701, u"[FreeTDS][SQL Server]Changed database context to 'X'."_s)};
    api.batches.push_back({info, R::count(2)});
    const BatchResult r = runBatch(c, u"use X; update T set A = 1; delete from T"_s);
    EXPECT_EQ(r.rowCounts, (std::vector<SQLLEN>{3, 2}));
    ASSERT_EQ(r.messages.size(), 1u);
    EXPECT_EQ(r.messages[0].nativeError, 5701);
}

TEST_F(ExecutionTest, FieldsAreTypedAsAdoTypesAndValuesAreExact) {
    Connection c(api);
    c.open(u"x"_s, 0);
    // Longer than one read buffer: several SQLGetData calls per value.
    const QString longText = QString(10000, u'à') + u"€"_s;
    const QByteArray blob(20000, '\x7f');
    api.batches.push_back({R::rows(
        {col(u"I", SQL_INTEGER, 10), col(u"S", SQL_WVARCHAR, 50), col(u"M", SQL_DECIMAL, 19, 4),
         col(u"D", SQL_TYPE_TIMESTAMP, 23, 3), col(u"B", SQL_BIT, 1), col(u"G", SQL_GUID, 36),
         col(u"N", SQL_WLONGVARCHAR, 1073741823), col(u"X", SQL_WVARCHAR, 0),
         col(u"E", SQL_DECIMAL, 18, 2), col(u"L", SQL_BIGINT, 19), col(u"V", SQL_VARBINARY, 0),
         col(u"T", SQL_TINYINT, 3), col(u"C", SQL_WCHAR, 10)},
        {u"int"_s, u"nvarchar"_s, u"money"_s, u"datetime"_s, u"bit"_s, u"uniqueidentifier"_s,
         u"ntext"_s, u"nvarchar"_s, u"decimal"_s, u"bigint"_s, u"varbinary"_s, u"tinyint"_s,
         u"nchar"_s},
        {{vb::Variant(std::int32_t(-7)), vb::Variant(u"Città"_s), vb::Variant(vb::Currency{-1234567}),
          vb::Variant(vb::makeDate(1753, 1, 1, 23, 59, 58, 997)), vb::Variant(true),
          vb::Variant(u"{6F9619FF-8B86-D011-B42D-00C04FC964FF}"_s), vb::Variant(longText),
          vb::Variant(u""_s), vb::Variant(*vb::Decimal::parse(u"-12.50")),
          vb::Variant(*vb::Decimal::parse(u"-9223372036854775807")), vb::Variant(blob),
          vb::Variant(std::uint8_t(255)), vb::Variant(u"ab        "_s)},
         std::vector<vb::Variant>(13, vb::Variant(vb::Null{}))})});
    const BatchResult r = runBatch(c, u"select * from T"_s);
    ASSERT_EQ(r.resultSets.size(), 1u);
    const ResultSet& set = r.resultSets[0];
    std::vector<int> types;
    for (const Column& column : set.columns) {
        types.push_back(column.adoType);
    }
    EXPECT_EQ(types, (std::vector<int>{3, 202, 6, 135, 11, 72, 203, 203, 131, 20, 205, 17, 130}));
    ASSERT_EQ(set.rows.size(), 2u);
    const auto& row = set.rows[0];
    EXPECT_EQ(row[0], vb::Variant(std::int32_t(-7)));
    EXPECT_EQ(row[1], vb::Variant(u"Città"_s));
    EXPECT_EQ(row[2], vb::Variant(vb::Currency{-1234567}));
    EXPECT_EQ(row[3], vb::Variant(vb::makeDate(1753, 1, 1, 23, 59, 58, 997)));
    EXPECT_EQ(row[4], vb::Variant(true));
    EXPECT_EQ(row[5], vb::Variant(u"{6F9619FF-8B86-D011-B42D-00C04FC964FF}"_s));
    EXPECT_TRUE(row[6] == vb::Variant(longText)) << row[6].toString().size();
    EXPECT_EQ(row[7], vb::Variant(u""_s)); // empty text is not NULL
    EXPECT_EQ(row[8], vb::Variant(*vb::Decimal::parse(u"-12.50")));
    EXPECT_EQ(row[9], vb::Variant(*vb::Decimal::parse(u"-9223372036854775807")));
    EXPECT_TRUE(row[10] == vb::Variant(blob)) << (row[10].get<QByteArray>() ? row[10].get<QByteArray>()->size() : -1);
    EXPECT_EQ(row[11], vb::Variant(std::uint8_t(255)));
    EXPECT_EQ(row[12], vb::Variant(u"ab        "_s));
    for (const vb::Variant& v : set.rows[1]) {
        EXPECT_TRUE(v.isNull());
    }
}

TEST_F(ExecutionTest, AnExecutionLeftEarlyStillDrainsTheBatch) {
    Connection c(api);
    c.open(u"x"_s, 0);
    api.batches.push_back({R::rows({col(u"A", SQL_INTEGER)}, {u"int"_s},
                                   {{vb::Variant(std::int32_t(1))}, {vb::Variant(std::int32_t(2))}}),
                           R::count(1), R::count(1)});
    {
        Execution run(c, u"select A from T; update T set A = 0; set identity_insert T off"_s);
        Row row;
        ASSERT_TRUE(run.fetch(&row));
        EXPECT_EQ(row.at(0), vb::Variant(std::int32_t(1)));
    }
    EXPECT_EQ(calls(u"SQLMoreResults"_s).size(), 3);
    EXPECT_TRUE(calls(u"SQLFreeStmt"_s).isEmpty()) << "a close would cancel the batch";
}
