// nxRs against the real server of tests/support/RealServer.h. The suite makes a database of its
// own, works in it and drops it. Without UPSIZER_TEST_SERVER every test reports itself skipped.
//
// Where a PostgreSQL with T-SQL extensions answers in place of SQL Server, the texts of its
// errors are its own (a duplicate key reads "duplicate key value violates unique constraint"),
// and the test takes the text the server gave rather than SQL Server's wording.
#include "recordset/nxRs.h"

#include "dbaccess/nxDb.h"

#include "platform/ado/Connection.h"
#include "platform/ado/Error.h"
#include "platform/ado/Recordset.h"

#include "tests/frame/FrameFixture.h"
#include "tests/support/RealServer.h"

#include <iostream>

using namespace Qt::StringLiterals;

namespace {

class RsServerTest : public FrameTest {
protected:
    static void SetUpTestSuite() {
        if (!realserver::isNamed()) {
            return;
        }
        s_database = realserver::scratchName(u"rs"_s);
        try {
            realserver::recreateDatabase(s_database);
            ado::ConnectionPtr c = realserver::open(s_database);
            c->Execute(u"create table RSPROVA (ID int identity(1,1) not null primary key, "
                       u"CODICE nvarchar(20) not null, NOME nvarchar(50) null)"_s);
            c->Execute(u"create unique index IX_RSPROVA_CODICE on RSPROVA (CODICE)"_s);
            c->Execute(u"insert into RSPROVA (CODICE, NOME) values ('C1', 'Primo')"_s);
            c->Close();
        } catch (const ado::Error& e) {
            s_setupError = e.description();
        }
    }
    static void TearDownTestSuite() {
        if (s_database.isEmpty()) {
            return;
        }
        try {
            realserver::dropDatabase(s_database);
        } catch (const ado::Error& e) {
            std::cerr << "could not drop " << s_database.toStdString() << ": "
                      << e.description().toStdString() << '\n';
        }
    }
    void SetUp() override {
        REQUIRE_REAL_SERVER();
        ASSERT_TRUE(s_setupError.isEmpty()) << s_setupError.toStdString();
        FrameTest::SetUp();
        db = std::make_unique<nxDb>(); // after the library has started
        ASSERT_MEMBER_OK(db->DbOpen(s_database, 1, true, u"SQLOLEDB"_s, realserver::server(), 2,
                                    realserver::user(), realserver::password()));
        ASSERT_EQ(db->DbType(), 1);
        rs.Db(db.get());
    }
    void TearDown() override {
        rs.RsClose();
        if (db) {
            db->DbClose();
        }
        FrameTest::TearDown();
    }
    // What the server holds for a code, read on a connection of the test's own.
    static QString nameOf(const QString& code) {
        ado::ConnectionPtr c = realserver::open(s_database);
        ado::RecordsetPtr r =
            c->Execute(u"select NOME from RSPROVA where CODICE = '"_s + code + u'\'');
        const QString name = r->Eof() ? u"<none>"_s : r->Fields().Item(0L).Value().toString();
        c->Close();
        return name;
    }

    static inline QString s_database;
    static inline QString s_setupError;
    std::unique_ptr<nxDb> db;
    nxRs rs;
};

TEST_F(RsServerTest, ReadsTheRowAndAMovePastTheEndStaysThere) {
    ASSERT_MEMBER_OK(rs.RsOpen(u"select * from RSPROVA where CODICE = 'C1'"_s, 1, 3, true, 2));
    EXPECT_EQ(rs.Name(), u"RSPROVA"_s);
    EXPECT_EQ(rs.FldKind(u"CODICE"_s), nxRs::kKindText);
    EXPECT_EQ(rs.FldKind(u"ID"_s), nxRs::kKindNumber);
    EXPECT_EQ(rs.Count(), 1); // its own query on the server
    ASSERT_TRUE(rs.IsValidRec());
    EXPECT_EQ(rs.FldGet(u"CODICE"_s), vb::Variant(u"C1"_s));
    EXPECT_FALSE(rs.FldIsNull(u"NOME"_s));

    EXPECT_FALSE(rs.MoveNext(false, true)); // the only row: the next move goes past the end
    EXPECT_TRUE(rs.Eof());
    EXPECT_FALSE(rs.IsValidPos());
    EXPECT_EQ(rs.FldGet(u"NOME"_s, u"-"_s), vb::Variant(u"-"_s));
    EXPECT_FALSE(rs.MoveNext(false, true));
    EXPECT_TRUE(rs.Eof());
    EXPECT_TRUE(rs.MoveFirst(true));
    EXPECT_EQ(rs.FldGet(u"CODICE"_s), vb::Variant(u"C1"_s));
    EXPECT_TRUE(box->shown().empty());
}

TEST_F(RsServerTest, EditingAReadOnlyRecordsetIsRefusedCleanly) {
    ASSERT_MEMBER_OK(rs.RsOpen(u"select * from RSPROVA"_s, 1, 1, true, 2));
    EXPECT_FALSE(rs.IsUpdatable());
    EXPECT_FALSE(rs.Edit());
    EXPECT_FALSE(rs.AddNew(true, true, u"CODICE"_s, u"X"_s));
    EXPECT_FALSE(rs.FldSet(u"NOME"_s, u"x"_s, true));
    EXPECT_EQ(nxApp::LastError().Description(), u"Record non in editing"_s);
    EXPECT_TRUE(rs.IsValidRec());
    EXPECT_EQ(nameOf(u"X"_s), u"<none>"_s);
}

TEST_F(RsServerTest, AddNewAndUpdateWriteARowAndADuplicateKeyGivesTheServersMessage) {
    ASSERT_MEMBER_OK(rs.RsOpen(u"select * from RSPROVA"_s, 1, 3, true, 2));
    ASSERT_TRUE(rs.IsUpdatable());
    ASSERT_MEMBER_OK(rs.AddNew(false, true, u"CODICE"_s, u"N1"_s));
    ASSERT_TRUE(rs.FldSet(u"NOME"_s, u"Nuovo"_s, true));
    ASSERT_MEMBER_OK(rs.Update(true));
    EXPECT_FALSE(rs.IsEditing());
    EXPECT_EQ(nameOf(u"N1"_s), u"Nuovo"_s);

    ASSERT_MEMBER_OK(rs.AddNew(false, true, u"CODICE"_s, u"C1"_s));
    EXPECT_FALSE(rs.Update(true));
    const nxError& e = nxApp::LastError();
    EXPECT_EQ(e.Source(), u"nxRs.Update()"_s);
    EXPECT_EQ(e.Number(), 23000) << e.Description().toStdString();
    EXPECT_TRUE(e.Description().contains(u"duplicate"_s, Qt::CaseInsensitive) ||
                e.Description().contains(u"IX_RSPROVA_CODICE"_s, Qt::CaseInsensitive))
        << e.Description().toStdString();
    EXPECT_FALSE(rs.IsEditing()); // the new row is given up
    EXPECT_TRUE(box->shown().empty());
    EXPECT_EQ(nameOf(u"C1"_s), u"Primo"_s);
}

TEST_F(RsServerTest, EditAndUpdateChangeTheRow) {
    ASSERT_MEMBER_OK(rs.RsOpen(u"select * from RSPROVA where CODICE = 'C1'"_s, 1, 3, true, 2));
    ASSERT_TRUE(rs.IsUpdatable());
    ASSERT_TRUE(rs.Edit());
    ASSERT_TRUE(rs.FldSet(u"NOME"_s, u"Cambiato"_s));
    ASSERT_MEMBER_OK(rs.Update(true));
    EXPECT_EQ(nameOf(u"C1"_s), u"Cambiato"_s);
    EXPECT_EQ(rs.FldGet(u"NOME"_s), vb::Variant(u"Cambiato"_s));
}

// Another connection changed the row between the read and the update: the server touches no
// row, which the provider reports as a concurrency violation. That is not tried again: the
// failure is reported at once and the row keeps the other connection's value.
TEST_F(RsServerTest, ARowChangedByAnotherConnectionFailsTheUpdateWithoutARetry) {
    {
        ado::ConnectionPtr c = realserver::open(s_database);
        c->Execute(u"insert into RSPROVA (CODICE, NOME) values ('K1', 'Prima')"_s);
        c->Close();
    }
    ASSERT_MEMBER_OK(rs.RsOpen(u"select * from RSPROVA where CODICE = 'K1'"_s, 1, 3, true, 2));
    ASSERT_TRUE(rs.IsUpdatable());
    int ticks = 0;
    rs.SetClock([&] { return ++ticks * 50; });
    ASSERT_TRUE(rs.Edit());
    ASSERT_TRUE(rs.FldSet(u"NOME"_s, u"Nostra"_s));
    {
        ado::ConnectionPtr c = realserver::open(s_database);
        c->Execute(u"update RSPROVA set NOME = 'Altrui' where CODICE = 'K1'"_s);
        c->Close();
    }
    EXPECT_FALSE(rs.Update(true));
    EXPECT_EQ(nxApp::LastError().Source(), u"nxRs.Update()"_s);
    EXPECT_FALSE(rs.GotErrRetry());
    EXPECT_EQ(ticks, 0); // no wait before a second try
    EXPECT_FALSE(rs.IsEditing());
    EXPECT_EQ(nameOf(u"K1"_s), u"Altrui"_s);
    EXPECT_TRUE(box->shown().empty());
}

} // namespace
