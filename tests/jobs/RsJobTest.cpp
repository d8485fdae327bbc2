#include "jobs/nxRsJob.h"

#include "tests/jobs/JobFixture.h"
#include "tests/recordset/RsFixture.h"

namespace {

class RsJobTest : public RsTest {
protected:
    void SetUp() override {
        RsTest::SetUp();
        job = std::make_unique<nxRsJob>();
        job->Db(db.get());
        job->Job().UseForm(false);
        job->Job().SetClock(clock.fn());
        job->OnRecord = [this](nxRs& r, bool&, bool) {
            visited.append(*r.FldGet(u"ID"_s).get<std::int32_t>());
            if (onRecord) {
                onRecord(r);
            }
        };
        job->OnBeforeJob = [this](nxRs&, bool&, bool) { events.append(u"before"_s); };
        job->OnAfterJob = [this](nxRs&, bool& result, bool) {
            events.append(result ? u"after ok"_s : u"after failed"_s);
        };
    }
    void TearDown() override {
        job.reset();
        RsTest::TearDown();
    }
    void scriptCount(const QString& base, std::int32_t n) {
        script().returns(
            u"SELECT COUNT(*) AS RecNum FROM ("_s + base + u") AS TempTab"_s,
            ado::recording::rows({{u"RecNum"_s, ado::DataTypeEnum::adInteger}}, {{n}}));
    }

    ManualClock clock;
    std::unique_ptr<nxRsJob> job;
    QList<std::int32_t> visited;
    QStringList events;
    std::function<void(nxRs&)> onRecord;
};

TEST_F(RsJobTest, EveryRecordIsVisitedOnceInOrderAfterConfirmation) {
    scriptCount(u"select * from ANAGRAFICA"_s, 3);
    job->Name(u"ANAGRAFICA"_s);
    ASSERT_MEMBER_OK(job->RsOpen(u"ANAGRAFICA"_s));
    EXPECT_TRUE(job->IsReady());
    box->answer({win::id::kYes, win::id::kOk});
    EXPECT_TRUE(job->Start());
    EXPECT_EQ(visited, (QList<std::int32_t>{1, 2, 3}));
    EXPECT_EQ(events, (QStringList{u"before"_s, u"after ok"_s}));
    EXPECT_EQ(job->Job().MaxCount(), 3);
    EXPECT_EQ(job->Status(), u"Elaborazione record di 'ANAGRAFICA'..."_s);
    ASSERT_EQ(box->shown().size(), 2u);
    EXPECT_EQ(box->shown()[0].text, u"Confermi l'elaborazione dei record di 'ANAGRAFICA'?"_s);
    EXPECT_EQ(box->shown()[1].text, u"Elaborazione completata con successo."_s);
    EXPECT_EQ(statements().front(), u"select * from ANAGRAFICA"_s);
}

TEST_F(RsJobTest, AForwardOnlyCursorIsOpenedAgainForTheWalk) {
    scriptCount(u"select * from ANAGRAFICA"_s, 3);
    job->CursorType(0); // forward-only and read-only, as the record copy opens user tables
    job->LockType(1);
    job->CursorLocation(2); // on the client the cursor would be static
    job->Job().Confirm(false);
    job->Job().EndMessage(false);
    ASSERT_MEMBER_OK(job->RsOpen(u"ANAGRAFICA"_s));
    EXPECT_TRUE(job->Start());
    EXPECT_EQ(visited, (QList<std::int32_t>{1, 2, 3}));
    EXPECT_EQ(statements().count(u"select * from ANAGRAFICA"_s), 2);
}

TEST_F(RsJobTest, FilterAndOrderAreAddedUnlessTheStatementHasItsOwn) {
    script().returns(u"select * from ANAGRAFICA where (ETA > 21) order by NOME"_s, table(2));
    job->Filter(u"ETA > 21"_s);
    job->Order(u"NOME"_s);
    ASSERT_MEMBER_OK(job->RsOpen(u"select * from ANAGRAFICA"_s));
    script().returns(u"select * from ANAGRAFICA WHERE ID = 2 order by NOME"_s, table(1));
    ASSERT_MEMBER_OK(job->RsOpen(u"select * from ANAGRAFICA WHERE ID = 2"_s));
    EXPECT_EQ(statements(),
              (QStringList{u"select * from ANAGRAFICA where (ETA > 21) order by NOME"_s,
                           u"select * from ANAGRAFICA WHERE ID = 2 order by NOME"_s}));
}

TEST_F(RsJobTest, AnEmptyRecordsetRaisesBeforeAndAfterOnly) {
    script().returns(u"select * from ANAGRAFICA where (ID = 0)"_s, table(0));
    scriptCount(u"select * from ANAGRAFICA"_s, 0);
    job->Filter(u"ID = 0"_s);
    job->Job().Confirm(false);
    job->Job().EndMessage(false);
    ASSERT_MEMBER_OK(job->RsOpen(u"ANAGRAFICA"_s));
    EXPECT_TRUE(job->Start());
    EXPECT_TRUE(visited.isEmpty());
    EXPECT_EQ(events, (QStringList{u"before"_s, u"after ok"_s}));
    EXPECT_EQ(job->Job().MaxCount(), 100); // a count of 0 is not taken
}

TEST_F(RsJobTest, AStopEndsTheWalkBeforeTheNextRecord) {
    scriptCount(u"select * from ANAGRAFICA"_s, 3);
    job->Job().Confirm(false);
    job->Job().EndMessage(false);
    ASSERT_MEMBER_OK(job->RsOpen(u"ANAGRAFICA"_s));
    onRecord = [this](nxRs&) {
        if (visited.size() == 2) {
            job->Job().StopJob(false);
        }
    };
    EXPECT_FALSE(job->Start()); // a stopped walk fails
    EXPECT_EQ(visited, (QList<std::int32_t>{1, 2}));
    EXPECT_EQ(events, (QStringList{u"before"_s, u"after failed"_s}));
    EXPECT_TRUE(job->Job().GotError());
}

TEST_F(RsJobTest, EndJobEndsTheWalkWithoutError) {
    scriptCount(u"select * from ANAGRAFICA"_s, 3);
    job->Job().Confirm(false);
    job->Job().EndMessage(false);
    ASSERT_MEMBER_OK(job->RsOpen(u"ANAGRAFICA"_s));
    job->EndJob(true); // left from an earlier run: reset at the start of the walk
    onRecord = [this](nxRs&) { job->EndJob(visited.size() == 1); };
    EXPECT_TRUE(job->Start());
    EXPECT_EQ(visited, (QList<std::int32_t>{1}));
    EXPECT_EQ(events, (QStringList{u"before"_s, u"after ok"_s}));
}

TEST_F(RsJobTest, SkipRecordsTouchesNoRecord) {
    scriptCount(u"select * from ANAGRAFICA"_s, 3);
    job->Job().Confirm(false);
    job->Job().EndMessage(false);
    job->SkipRecords(true);
    job->EndJob(true);
    ASSERT_MEMBER_OK(job->RsOpen(u"ANAGRAFICA"_s));
    EXPECT_TRUE(job->Start());
    EXPECT_TRUE(visited.isEmpty());
    EXPECT_TRUE(job->EndJob()); // not reset
}

TEST_F(RsJobTest, NotReadyOrRunningRefuses) {
    EXPECT_FALSE(job->Start());
    job->Db(nullptr);
    EXPECT_FALSE(job->RsOpen(u"ANAGRAFICA"_s));
    EXPECT_EQ(nxApp::LastError().Number(), 0);
    job->Db(db.get());
    scriptCount(u"select * from ANAGRAFICA"_s, 3);
    job->Job().Confirm(false);
    job->Job().EndMessage(false);
    ASSERT_MEMBER_OK(job->RsOpen(u"ANAGRAFICA"_s));
    onRecord = [this](nxRs&) {
        EXPECT_FALSE(job->RsOpen(u"ANAGRAFICA"_s)); // the recordset can't go away mid-walk
        job->RsClose();
        EXPECT_TRUE(job->IsReady());
        EXPECT_FALSE(job->Start());
    };
    EXPECT_TRUE(job->Start());
    EXPECT_EQ(visited.size(), 3);
    job->RsClose();
    EXPECT_FALSE(job->IsReady());
}

TEST_F(RsJobTest, ACallersRecordsetIsWalkedFromItsFirstRecordAndStaysOpen) {
    scriptCount(u"select * from ANAGRAFICA"_s, 3);
    ASSERT_MEMBER_OK(openTable());
    rs.MoveLast();
    job->Job().Confirm(false);
    job->Job().EndMessage(false);
    ASSERT_MEMBER_OK(job->RsOpen(rs));
    EXPECT_EQ(job->Db(), db.get());
    EXPECT_TRUE(job->Start());
    EXPECT_EQ(visited, (QList<std::int32_t>{1, 2, 3}));
    job->RsClose();
    EXPECT_TRUE(rs.IsOpened());
}

} // namespace
