#include "platform/ado/sqlserver/odbc/Diagnostics.h"
#include "tests/platform/sqlserver/RecordingOdbc.h"
#include "tests/support/Printers.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace odbc;

namespace {

constexpr auto hr(std::uint32_t v) { return static_cast<std::int32_t>(v); }

} // namespace

TEST(Diagnostics, HResultByServerNumberThenStateThenPhase) {
    struct Case {
        const char16_t* state;
        SQLINTEGER native;
        Phase phase;
        std::uint32_t expected;
    };
    const Case cases[] = {
        {u"42000", 1785, Phase::Command, 0x80040E14}, // cascade the server refuses
        {u"42000", 102, Phase::Command, 0x80040E14},  // syntax
        {u"23000", 2627, Phase::Command, 0x80040E2F}, // duplicate key
        {u"23000", 2601, Phase::Command, 0x80040E2F},
        {u"23000", 547, Phase::Command, 0x80040E2F},
        {u"23000", 515, Phase::Command, 0x80040E2F},
        {u"42S02", 208, Phase::Command, 0x80040E37},
        {u"22001", 8152, Phase::Command, 0x80040E57},
        {u"22018", 245, Phase::Command, 0x80040E07},
        {u"HYT00", 0, Phase::Command, 0x80040E31},
        {u"28000", 18456, Phase::Connect, 0x80004005}, // login failed
        {u"42000", 4060, Phase::Connect, 0x80004005},  // database of the login missing
        {u"08S01", 20009, Phase::Connect, 0x80004005}, // unreachable
        {u"08001", 0, Phase::Connect, 0x80004005},
        {u"IM002", 0, Phase::Connect, 0x80004005}, // driver missing
        {u"23000", 0, Phase::Command, 0x80040E2F}, // unknown number, state class decides
        {u"42000", 50000, Phase::Command, 0x80040E14}, // raiserror
        {u"42000", 50000, Phase::Connect, 0x80004005},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(hresultFor(DiagRecord{QString::fromUtf16(c.state), c.native, {}}, c.phase),
                  hr(c.expected))
            << c.native;
    }
}

TEST(Diagnostics, ServerTextLosesOnlyTheDriverPrefix) {
    EXPECT_EQ(serverText(u"[FreeTDS][SQL Server]Login failed for user 'sa'."_s),
              u"Login failed for user 'sa'."_s);
    EXPECT_EQ(serverText(u"[Microsoft][ODBC Driver 18 for SQL Server][SQL Server]Invalid object "
                         u"name 'X'."_s),
              u"Invalid object name 'X'."_s);
    // Client-side messages keep the prefix that names the speaker.
    EXPECT_EQ(serverText(u"[FreeTDS][SQL Server]"_s), QString());
    EXPECT_EQ(serverText(u"[unixODBC][Driver Manager]Can't open lib 'X' : file not found"_s),
              u"[unixODBC][Driver Manager]Can't open lib 'X' : file not found"_s);
    EXPECT_EQ(serverText(u"Text that mentions [SQL Server] later"_s),
              u"Text that mentions [SQL Server] later"_s);
    EXPECT_EQ(serverText(u"[FreeTDS]x [SQL Server]y"_s), u"[FreeTDS]x [SQL Server]y"_s);
}

TEST(Diagnostics, FailureKeepsEveryRecordAndNamesTheFirstError) {
    // Duplicate key: 2627 then "The statement has been terminated." (01000).
    const Failure f({DiagRecord{u"01000"_s, 5701, u"[FreeTDS][SQL Server]Changed context"_s},
                     DiagRecord{u"23000"_s, 2627, u"[FreeTDS][SQL Server]Violation of PRIMARY KEY"_s},
                     DiagRecord{u"01000"_s, 3621, u"[FreeTDS][SQL Server]The statement has been terminated."_s}},
                    Phase::Command);
    EXPECT_EQ(f.records().size(), 3u);
    EXPECT_EQ(f.hresult(), hr(0x80040E2F));
    EXPECT_EQ(f.nativeError(), 2627);
    EXPECT_EQ(f.sqlState(), u"23000"_s);
    EXPECT_EQ(f.description(), u"Violation of PRIMARY KEY"_s);
    EXPECT_STREQ(f.what(), "Violation of PRIMARY KEY");
    // A failed call without any record still fails with a text.
    const Failure silent({}, Phase::Command);
    EXPECT_EQ(silent.hresult(), hr(0x80040E14));
    EXPECT_FALSE(silent.description().isEmpty());
}

TEST(Diagnostics, ReadsEveryRecordUntilNoData) {
    RecordingOdbc api;
    SQLHANDLE env = SQL_NULL_HANDLE;
    SQLHANDLE dbc = SQL_NULL_HANDLE;
    api.allocHandle(SQL_HANDLE_ENV, SQL_NULL_HANDLE, &env);
    api.allocHandle(SQL_HANDLE_DBC, env, &dbc);
    std::vector<DiagRecord> many;
    for (int i = 0; i < 40; ++i) {
        many.push_back(DiagRecord{u"01000"_s, i, u"message %1"_s.arg(i)});
    }
    api.connectDiagnostics = many;
    api.driverConnect(dbc, u"x"_s);
    EXPECT_EQ(readDiagnostics(api, SQL_HANDLE_DBC, dbc), many);
    EXPECT_TRUE(readDiagnostics(api, SQL_HANDLE_DBC, SQL_NULL_HANDLE).empty());
    api.freeHandle(SQL_HANDLE_DBC, dbc);
    api.freeHandle(SQL_HANDLE_ENV, env);
}
