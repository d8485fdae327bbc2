// nxRsJob over a table of an Access-written file through the Jet provider, opened as the record
// copy opens its tables (forward-only, read-only): the walk meets every record once in the
// file's order, and a stop asked from the message pump ends it before the next record.
#include "jobs/nxRsJob.h"

#include "recordset/nxRs.h"

#include "dbaccess/nxDb.h"

#include "tests/jobs/JobFixture.h"

using namespace Qt::StringLiterals;

namespace {

class RsJobJetTest : public FrameTest {
protected:
    void SetUp() override {
        FrameTest::SetUp();
        const QString path = dir.copyFixture(u"overflowTestV2000.mdb"_s);
        ASSERT_FALSE(path.isEmpty());
        db = std::make_unique<nxDb>(); // after the library has started
        ASSERT_MEMBER_OK(db->DbOpen(path, 1, true, u"Microsoft.Jet.OLEDB.4.0"_s));
        job = std::make_unique<nxRsJob>();
        job->Db(db.get());
        job->CursorType(0);
        job->LockType(1);
        job->Job().UseForm(false);
        job->Job().Confirm(false);
        job->Job().EndMessage(false);
        job->Job().SetClock(clock.fn());
        // The rows of Table1 hold "rowN..." in one of their two columns.
        job->OnRecord = [this](nxRs& rs, bool&, bool) {
            const vb::Variant a = rs.FldGet(0, vb::Null{});
            visited.append((a.isNull() ? rs.FldGet(1).toString() : a.toString()).left(4));
            clock.now += 300; // each record takes longer than the pump's interval
        };
    }
    void TearDown() override {
        job.reset();
        nxApp::SetDoEvents({});
        if (db) {
            db->DbClose();
        }
        FrameTest::TearDown();
    }

    std::unique_ptr<nxDb> db;
    ManualClock clock;
    std::unique_ptr<nxRsJob> job;
    QStringList visited;
};

TEST_F(RsJobJetTest, EveryRecordOnceInTheFilesOrder) {
    ASSERT_MEMBER_OK(job->RsOpen(u"Table1"_s, true));
    EXPECT_EQ(job->rs()->SQL(), u"select * from Table1"_s); // a table name became a statement
    EXPECT_TRUE(job->Start());
    EXPECT_EQ(visited, (QStringList{u"row1"_s, u"row2"_s, u"row3"_s, u"row4"_s, u"row5"_s,
                                    u"row6"_s, u"row7"_s}));
    EXPECT_EQ(job->Job().MaxCount(), 7);
    // A second run walks again from the start: the forward-only cursor is opened again.
    visited.clear();
    EXPECT_TRUE(job->Start());
    EXPECT_EQ(visited.size(), 7);
    EXPECT_EQ(visited.front(), u"row1"_s);
}

TEST_F(RsJobJetTest, AStopFromThePumpEndsTheWalkBeforeTheNextRecord) {
    ASSERT_MEMBER_OK(job->RsOpen(u"Table1"_s, true));
    int pumpsAfterStop = 0;
    qsizetype visitedAtStop = -1;
    nxApp::SetDoEvents([&] {
        if (visitedAtStop >= 0) {
            ++pumpsAfterStop;
        } else if (visited.size() == 3) {
            visitedAtStop = visited.size();
            job->Job().StopJob(false); // the operator's Cancel, as the pump delivers it
        }
    });
    bool afterResult = true;
    job->OnAfterJob = [&](nxRs&, bool& result, bool) { afterResult = result; };
    EXPECT_FALSE(job->Start()); // a stopped walk fails
    EXPECT_EQ(visitedAtStop, 3);
    EXPECT_EQ(visited, (QStringList{u"row1"_s, u"row2"_s, u"row3"_s}));
    EXPECT_FALSE(afterResult);
    EXPECT_TRUE(job->Job().GotError());
}

} // namespace
