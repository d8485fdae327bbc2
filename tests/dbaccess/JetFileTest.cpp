// nxDb, nxConn and nxTd on a real Jet 4 file written by Access (a copy of a read-only fixture),
// through the Jet provider itself rather than the recording one: the questions the definition
// code asks of an existing table, answered from the file.
#include "dbaccess/nxConn.h"
#include "dbaccess/nxDb.h"
#include "dbaccess/nxTd.h"

#include "platform/ado/Connection.h"
#include "platform/ado/Recordset.h"

#include "tests/support/AppFixture.h"
#include "tests/support/MemberOk.h"
#include "tests/support/Printers.h"
#include "tests/support/TestFiles.h"

#include <gtest/gtest.h>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

class JetFileTest : public apptest::AppTest {
protected:
    void SetUp() override {
        AppTest::SetUp();
        if (HasFatalFailure()) {
            return;
        }
        box->setFallback(1); // a box nobody expected is recorded, and the test fails on it
        path = dir.copyFixture(u"testV2000.mdb"_s);
        ASSERT_FALSE(path.isEmpty());
        db.emplace(); // after the library has started, which nxDb notes when it is made
        ASSERT_MEMBER_OK(db->DbOpen(path, DbOpenShared, false, apptest::kJetProvider));
        ASSERT_EQ(db->DbType(), 0);
    }
    void TearDown() override {
        db.reset();
        AppTest::TearDown();
    }

    QString path;
    std::optional<nxDb> db;
};

TEST_F(JetFileTest, TablesColumnsAndCountsComeFromTheFile) {
    EXPECT_TRUE(db->TdExist(u"Table1"_s));
    EXPECT_FALSE(db->TdExist(u"Nessuna"_s));
    EXPECT_TRUE(db->TblFieldExists(u"Table1"_s, u"A"_s));
    EXPECT_FALSE(db->TblFieldExists(u"Table1"_s, u"Nessuno"_s));

    // The count, against the rows a plain recordset walks on a connection of its own.
    auto cn = ado::Connection::create();
    cn->Open(u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source="_s + path);
    auto rs = std::make_shared<ado::Recordset>();
    rs->Open(u"Table1"_s, cn, ado::CursorTypeEnum::adOpenForwardOnly,
             ado::LockTypeEnum::adLockReadOnly,
             static_cast<long>(ado::CommandTypeEnum::adCmdTable));
    std::int32_t rows = 0;
    for (; !rs->Eof(); rs->MoveNext()) {
        ++rows;
    }
    rs->Close();
    cn->Close();
    ASSERT_GT(rows, 0);
    EXPECT_EQ(db->TdRecordCount(u"Table1"_s), rows);

    nxConn& conn = *db->ConnUtils();
    EXPECT_TRUE(conn.TableExists(u"Table1"_s));
    EXPECT_TRUE(conn.ColumnExists(u"Table1"_s, u"A"_s));
    long size = 0;
    conn.ColumnType(u"Table1"_s, u"A"_s, &size);
    EXPECT_EQ(size, 50);
    EXPECT_EQ(conn.ColumnType(u"Table1"_s, u"Nessuno"_s), 10); // adError: no such column
    EXPECT_TRUE(box->shown().empty());
}

// On Jet the column flags are read through the catalogue of the file, where "Nullable" is the
// opposite of Access's "Required": the yes/no column I, which Access never lets hold a null but
// made without Required, is nullable there like the text A. No column of the table counts by
// itself.
TEST_F(JetFileTest, ColumnFlagsComeFromTheFilesCatalogue) {
    nxConn& conn = *db->ConnUtils();
    EXPECT_TRUE(conn.CheckNullable(u"Table1"_s, u"A"_s, true));
    EXPECT_FALSE(conn.CheckNullable(u"Table1"_s, u"A"_s, false));
    EXPECT_TRUE(conn.CheckNullable(u"Table1"_s, u"I"_s, true));
    EXPECT_FALSE(conn.IsIdentityField(u"Table1"_s, u"E"_s));
    QString identity = u"unchanged"_s;
    EXPECT_FALSE(conn.HasIdentityField(u"Table1"_s, &identity));
    EXPECT_EQ(identity, u"unchanged"_s);
    // A column that is not there is no answer at all, and no message either.
    EXPECT_FALSE(conn.CheckNullable(u"Table1"_s, u"Nessuno"_s, true));
    EXPECT_FALSE(conn.CheckNullable(u"Table1"_s, u"Nessuno"_s, false));
    EXPECT_FALSE(conn.IsIdentityField(u"Table1"_s, u"Nessuno"_s));

    // Every column of the table users was made Required.
    const QString required = dir.copyFixture(u"fixedTextTestV2000.mdb"_s);
    ASSERT_FALSE(required.isEmpty());
    nxDb other;
    ASSERT_MEMBER_OK(other.DbOpen(required, DbOpenShared, false, apptest::kJetProvider));
    EXPECT_TRUE(other.ConnUtils()->CheckNullable(u"users"_s, u"c_user_login"_s, false));
    EXPECT_FALSE(other.ConnUtils()->CheckNullable(u"users"_s, u"c_user_login"_s, true));
    EXPECT_TRUE(other.ConnUtils()->CheckNullable(u"users"_s, u"i_user_id"_s, false));
    EXPECT_TRUE(box->shown().empty());
}

// nxTd on an existing table of a file: the table opens as not new, and the kinds of its columns
// are those of the values Access stored (text, whole numbers, dates).
TEST_F(JetFileTest, AnExistingTableOpensWithItsColumns) {
    nxTd td;
    td.Db(&*db);
    ASSERT_MEMBER_OK(td.TdOpen(u"Table1"_s));
    EXPECT_FALSE(td.IsNew());
    EXPECT_FALSE(td.Sql2005());
    EXPECT_TRUE(td.FldExist(u"A"_s));
    EXPECT_FALSE(td.FldExist(u"Nessuno"_s));
    EXPECT_EQ(td.FldKind(u"A"_s, u"n"_s, u"s"_s, u"b"_s, u"d"_s), u"s"_s);
    EXPECT_EQ(td.FldKind(u"E"_s, u"n"_s, u"s"_s, u"b"_s, u"d"_s), u"n"_s);
    EXPECT_EQ(td.FldKind(u"G"_s, u"n"_s, u"s"_s, u"b"_s, u"d"_s), u"d"_s);
    EXPECT_EQ(td.FldKind(u"I"_s, u"n"_s, u"s"_s, u"b"_s, u"d"_s), u"b"_s);
    EXPECT_EQ(td.FldType(u"Nessuno"_s), 0);
    EXPECT_TRUE(td.TdClose()); // nothing gathered: nothing to run
    EXPECT_TRUE(box->shown().empty());
}

} // namespace
