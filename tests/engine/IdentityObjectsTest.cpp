#include "engine/IdentityObjects.h"

#include "PhaseFixture.h"

#include "platform/ado/Error.h"

namespace phasetest {
namespace {

class IdentityObjectsTest : public PhaseTest {
protected:
    // The journal without the lines of opening and closing connections.
    QStringList work() const {
        QStringList out;
        for (const QString& line : server->journal().lines()) {
            if (!line.startsWith(u"open: "_s) && line != u"close"_s) {
                out << line.left(line.indexOf(u"\r\n"_s) < 0 ? line.size()
                                                              : line.indexOf(u"\r\n"_s));
            }
        }
        return out;
    }
};

TEST_F(IdentityObjectsTest, SixScriptsInOneTransactionOnTheCatalogViewsOfVersion9) {
    openDest(u"09.00.5000"_s);
    engine::IdentityObjects phase(run->dest);
    ASSERT_MEMBER_OK(phase.CreateSysIDsTable());
    // First line of each script: the drop tests read sys.objects by object_id.
    EXPECT_EQ(work(),
              (QStringList{
                  u"begin"_s,
                  u"execute: if (exists (select * from sys.objects where object_id = OBJECT_ID(N'SYS_IDS') and type in ( N'U' )))"_s,
                  u"execute: create table SYS_IDS (TABELLA varchar(255) default '' not null, RECNUM int default 0 not null, constraint PK_SYS_RECS primary key clustered (TABELLA, RECNUM))"_s,
                  u"execute: if (exists (select * from sys.objects where object_id = OBJECT_ID(N'GetIdentity') and type in ( N'P', N'PC' )))"_s,
                  u"execute: create procedure dbo.GetIdentity"_s,
                  u"execute: if (exists (select * from sys.objects where object_id = OBJECT_ID(N'GetMaxIdentity') and type in ( N'P', N'PC' )))"_s,
                  u"execute: create procedure dbo.GetMaxIdentity"_s,
                  u"commit"_s,
              }));
    EXPECT_TRUE(box->shown().empty());
}

TEST_F(IdentityObjectsTest, AServerOfVersion8GetsSysobjects) {
    openDest(u"08.00.2039"_s);
    engine::IdentityObjects phase(run->dest);
    ASSERT_MEMBER_OK(phase.CreateSysIDsTable());
    const QStringList lines = work();
    ASSERT_EQ(lines.size(), 8);
    EXPECT_EQ(lines.at(1),
              u"execute: if (exists (select * from sysobjects where id = OBJECT_ID(N'SYS_IDS') and type in ( N'U' )))"_s);
    EXPECT_FALSE(lines.join(u'\n').contains(u"sys.objects"_s));
}

TEST_F(IdentityObjectsTest, ARefusedScriptRollsBackAndTellsTheFailureInABox) {
    openDest();
    server->script().onPrefix(
        u"create procedure dbo.GetIdentity"_s,
        ado::recording::Answer::failing(ado::Error(ado::HResult::DB_E_ERRORSINCOMMAND,
                                                   u"CREATE PROCEDURE permission denied"_s,
                                                   u"Microsoft OLE DB Provider for SQL Server"_s)));
    box->answer(1);
    engine::IdentityObjects phase(run->dest);
    EXPECT_FALSE(phase.CreateSysIDsTable());
    const QStringList lines = work();
    ASSERT_EQ(lines.size(), 6);
    EXPECT_EQ(lines.at(4), u"execute: create procedure dbo.GetIdentity"_s);
    EXPECT_EQ(lines.at(5), u"rollback"_s); // nothing after the refused script, no commit
    ASSERT_EQ(box->shown().size(), 1u);
    EXPECT_TRUE(box->last().text.startsWith(u"CREATE PROCEDURE permission denied\r\n\r\n"_s))
        << box->last().text.toStdString();
    EXPECT_TRUE(box->last().text.contains(u"DbImport.CreateSysIDsTable()"_s));
    EXPECT_EQ(nxApp::LastError().Source(), u"DbImport.CreateSysIDsTable()"_s);
}

TEST_F(IdentityObjectsTest, AClosedDestinationIsRefusedWithoutTouchingTheServer) {
    box->answer(1);
    engine::IdentityObjects phase(run->dest);
    EXPECT_FALSE(phase.CreateSysIDsTable());
    EXPECT_TRUE(server->journal().lines().isEmpty());
    EXPECT_EQ(box->shown().size(), 1u);
}

} // namespace
} // namespace phasetest
