// nxDb, nxConn and nxTd on a real Jet 4 file written by Access (a copy of a read-only fixture),
// through the Jet provider itself rather than the recording one: the questions the definition
// code asks of an existing table, answered from the file.
#include "dbaccess/nxConn.h"
#include "dbaccess/nxDb.h"
#include "dbaccess/nxTd.h"

#include "frame/nxApp.h"

#include "platform/ado/Connection.h"
#include "platform/ado/Recordset.h"
#include "platform/vb/Err.h"
#include "platform/win/FileRegistry.h"
#include "platform/win/ScriptedMessageBox.h"

#include "tests/support/MemberOk.h"
#include "tests/support/Printers.h"
#include "tests/support/TestFiles.h"

#include <gtest/gtest.h>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

class JetFileTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(dir.isValid());
        nxApp::ResetForTesting();
        vb::Err().Clear();
        box->setFallback(1); // a box nobody expected is recorded, and the test fails on it
        nxApp::SetMessageBox(box);
        nxApp::SetRegistry(std::make_shared<win::FileRegistry>(dir.file(u"registry"_s)));
        ASSERT_TRUE(nxApp::AppInitialize(vb::Variant(), QString()));
        path = dir.copyFixture(u"testV2000.mdb"_s);
        ASSERT_FALSE(path.isEmpty());
        db.emplace(); // after the library has started, which nxDb notes when it is made
        ASSERT_MEMBER_OK(db->DbOpen(path, DbOpenShared, false, u"Microsoft.Jet.OLEDB.4.0"_s));
        ASSERT_EQ(db->DbType(), 0);
    }
    void TearDown() override {
        db.reset();
        nxApp::ResetForTesting();
        vb::Err().Clear();
    }

    TestDir dir;
    std::shared_ptr<win::ScriptedMessageBox> box = std::make_shared<win::ScriptedMessageBox>();
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
             ado::LockTypeEnum::adLockReadOnly, static_cast<long>(ado::CommandTypeEnum::adCmdTable));
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
    EXPECT_EQ(td.FldType(u"Nessuno"_s), 0);
    EXPECT_TRUE(td.TdClose()); // nothing gathered: nothing to run
    EXPECT_TRUE(box->shown().empty());
}

} // namespace
