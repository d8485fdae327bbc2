#include "jobs/nxJob.h"

#include "frame/nxLog.h"
#include "frame/nxSys.h"

#include "tests/jobs/JobFixture.h"

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

class JobTest : public FrameTest {
protected:
    void SetUp() override {
        FrameTest::SetUp();
        nxApp::SetDoEvents([this] {
            ++pumps;
            if (onPump) {
                onPump();
            }
        });
        job.SetClock(clock.fn());
        job.UseForm(false);
        job.StatusCtrl(&status);
        job.SubStatusCtrl(&subStatus);
        job.ETACtrl(&eta);
        job.CountCtrl(&count);
        job.ProgressCtrl(&bar);
        job.OnStatus = [this](std::int32_t c) { statusEvents.push_back(c); };
    }

    // Runs `work` as the job's OnJob.
    bool run(std::function<void()> work, bool succeed = true) {
        job.OnJob = [work = std::move(work), succeed](bool& result, bool) {
            work();
            result = succeed;
        };
        return job.Start();
    }

    ManualClock clock;
    nxJob job;
    RecordingLabel status, subStatus, eta, count;
    RecordingBar bar;
    std::vector<std::int32_t> statusEvents;
    int pumps = 0;
    std::function<void()> onPump;
};

TEST_F(JobTest, PercentAndMaxCountSetEachOther) {
    EXPECT_TRUE(job.Percent());
    EXPECT_EQ(job.MaxCount(), 100);
    job.MaxCount(250);
    EXPECT_FALSE(job.Percent());
    EXPECT_EQ(job.MaxCount(), 250);
    job.Percent(true);
    EXPECT_EQ(job.MaxCount(), 100);
    job.MaxCount(0); // keeps the old scale, and still turns the percentage off
    EXPECT_FALSE(job.Percent());
    EXPECT_EQ(job.MaxCount(), 100);
    job.MaxCount(-5);
    EXPECT_EQ(job.MaxCount(), 100);
}

TEST_F(JobTest, StartShowsTitleAndWaitsForACount) {
    job.Title(u"Copia tabelle"_s);
    EXPECT_TRUE(run([&] {
        EXPECT_TRUE(job.IsRunning());
        EXPECT_EQ(status.caption(), u"Copia tabelle"_s);
        EXPECT_EQ(subStatus.caption(), u""_s);
        EXPECT_EQ(eta.caption(), u"Attendere..."_s);
        EXPECT_EQ(count.caption(), u""_s);
        EXPECT_EQ(bar.max, nxJob::kBarSteps);
        EXPECT_EQ(bar.value(), 0);
        EXPECT_FALSE(job.Start()); // not twice at once
    }));
    EXPECT_FALSE(job.IsRunning());
    EXPECT_TRUE(box->shown().empty());
    // A status text given to Start stands in place of the title.
    job.OnJob = [&](bool&, bool) { EXPECT_EQ(status.caption(), u"Inizio"_s); };
    EXPECT_TRUE(job.Start(u"Inizio"_s));
}

TEST_F(JobTest, CountAndBarFollowTheScaleAtMostTwiceASecond) {
    job.MaxCount(5000);
    job.CountUnit(u"record"_s);
    run([&] {
        statusEvents.clear();
        clock.now = 600;
        job.Status(1234, u"Copia..."_s);
        EXPECT_EQ(count.caption(), u"1.234 di 5.000 record"_s);
        EXPECT_EQ(bar.value(), 2468);
        clock.now = 700; // within half a second: nothing changes, no event
        job.Status(1300);
        EXPECT_EQ(count.caption(), u"1.234 di 5.000 record"_s);
        clock.now = 1101;
        job.Status(1300);
        EXPECT_EQ(count.caption(), u"1.300 di 5.000 record"_s);
        clock.now = 1200; // the end of the scale goes through at once
        job.Status(5000);
        EXPECT_EQ(count.caption(), u"5.000 di 5.000 record"_s);
        EXPECT_EQ(bar.value(), nxJob::kBarSteps);
        EXPECT_EQ(statusEvents, (std::vector<std::int32_t>{1234, 1300, 5000}));
        EXPECT_EQ(status.captions.back(), u"Copia..."_s);
    });
}

TEST_F(JobTest, PercentCountAndACountAboveTheScale) {
    run([&] {
        clock.now = 600;
        job.Status(42);
        EXPECT_EQ(count.caption(), u"42 %"_s);
        EXPECT_EQ(bar.value(), 4200);
        clock.now = 1200;
        job.Status(0.4); // below 1: no text
        EXPECT_EQ(count.caption(), u""_s);
        job.MaxCount(100);
        clock.now = 1800;
        job.Status(150); // the real number, the bar at full
        EXPECT_EQ(count.caption(), u"150 di 100"_s);
        EXPECT_EQ(bar.value(), nxJob::kBarSteps);
    });
}

TEST_F(JobTest, ACyclingCountWrapsAndTurnsTheEstimateOff) {
    job.MaxCount(4);
    job.CountUnit(u"record"_s);
    run([&] {
        clock.now = 600;
        job.Status(5, u"x"_s, true);
        EXPECT_EQ(count.caption(), u"5 record"_s);
        EXPECT_EQ(bar.value(), 2500); // one step of four
        EXPECT_FALSE(job.ShowETA());
        EXPECT_FALSE(job.Percent());
        const QStringList before = eta.captions;
        clock.now = 9000;
        job.Status(2);
        EXPECT_EQ(eta.captions, before);
        EXPECT_EQ(count.caption(), u"2 di 4 record"_s);
    });
}

TEST_F(JobTest, TheEstimateIsAStraightLineRecomputedEveryTwoSeconds) {
    run([&] {
        clock.now = 1000;
        job.Status(10);
        EXPECT_EQ(eta.caption(), u"Calcolo tempo rimanente..."_s);
        const qsizetype drawn = eta.captions.size();
        clock.now = 5000;
        job.Status(20);
        EXPECT_EQ(eta.caption(), u"Calcolo tempo rimanente..."_s);
        EXPECT_EQ(eta.captions.size(), drawn); // not drawn again
        clock.now = 12000;
        job.Status(25); // 12 s for 25 of 100: 36 s left
        EXPECT_EQ(eta.caption(), u"circa 36 secondi al termine..."_s);
        clock.now = 14000; // not yet two seconds later
        job.Status(50);
        EXPECT_EQ(eta.caption(), u"circa 36 secondi al termine..."_s);
        clock.now = 14001;
        job.Status(50);
        EXPECT_EQ(eta.caption(), u"circa 14 secondi al termine..."_s);
        clock.now = 120000;
        job.Status(1);
        EXPECT_EQ(eta.caption(), u"circa 3:18 ore al termine..."_s);
        const qsizetype shown = eta.captions.size();
        clock.now = 130000;
        job.Status(0); // no count done: the text stays and is not redrawn
        EXPECT_EQ(eta.captions.size(), shown);
        job.Status(nxJob::kNoCountYet);
        EXPECT_EQ(eta.caption(), u"Attendere..."_s);
    });
}

TEST_F(JobTest, TheQueueRunsAtMostEvery250Milliseconds) {
    run([&] {
        pumps = 0;
        std::vector<std::int32_t> pumpedAt;
        onPump = [&] { pumpedAt.push_back(clock.now); };
        for (const std::int32_t t : {100, 250, 251, 400, 501, 502}) {
            clock.now = t;
            job.Status(nxJob::kPumpOnly);
        }
        EXPECT_EQ(pumpedAt, (std::vector<std::int32_t>{251, 502})); // more than 250 ms apart
        EXPECT_EQ(pumps, 2);
        const QStringList counts = count.captions;
        clock.now = 900;
        EXPECT_FALSE(job.Stopped()); // Stopped lets the queue run as well
        EXPECT_EQ(pumps, 3);
        EXPECT_EQ(count.captions, counts); // and updates nothing
    });
}

TEST_F(JobTest, SubStatusGoesOutOnlyWhenItChanges) {
    run([&] {
        const qsizetype before = subStatus.captions.size();
        job.SubStatus(u"Tabella ARCHIVIO"_s);
        job.SubStatus(u"Tabella ARCHIVIO"_s);
        EXPECT_EQ(subStatus.captions.size(), before + 1);
        EXPECT_EQ(subStatus.caption(), u"Tabella ARCHIVIO"_s);
    });
    // Idle, Status and SubStatus do nothing.
    const qsizetype shown = subStatus.captions.size();
    job.SubStatus(u"dopo"_s);
    job.Status(3, u"dopo"_s);
    EXPECT_EQ(subStatus.captions.size(), shown);
    EXPECT_NE(status.caption(), u"dopo"_s);
}

TEST_F(JobTest, AStopAskedInThePumpEndsTheWorkWithoutEndMessage) {
    job.EndMessage(true);
    box->answer({win::id::kNo, win::id::kYes});
    onPump = [&] { job.StopJob(true); };
    int records = 0;
    const bool result = run([&] {
        for (std::int32_t t = 300;; t += 300) {
            clock.now = t;
            if (job.Stopped()) {
                break;
            }
            ++records;
        }
    });
    EXPECT_TRUE(result);   // a stop in itself is no failure
    EXPECT_EQ(records, 1); // the first answer was No
    ASSERT_EQ(box->shown().size(), 2u);
    EXPECT_EQ(box->shown()[0].text, u"Annullare l'operazione?"_s);
    EXPECT_EQ(box->shown()[0].flags, 292);
    EXPECT_EQ(box->pending(), 0u); // and no end box
}

TEST_F(JobTest, AJobThatMayNotBeStoppedIgnoresStopJob) {
    job.Annullable(false);
    run([&] {
        job.StopJob(true);
        job.StopJob(false);
        EXPECT_FALSE(job.Stopped());
    });
    EXPECT_TRUE(box->shown().empty());
}

TEST_F(JobTest, ConfirmationComesFirst) {
    job.Confirm(true);
    box->answer(win::id::kNo);
    bool ran = false;
    EXPECT_FALSE(run([&] { ran = true; }));
    EXPECT_FALSE(ran);
    EXPECT_EQ(box->last().text, u"Confermi l'operazione?"_s);
    EXPECT_EQ(box->last().flags, 36);
    job.ConfirmText(u"Copiare?"_s);
    box->answer(win::id::kYes);
    EXPECT_TRUE(run([&] { ran = true; }));
    EXPECT_TRUE(ran);
    EXPECT_EQ(box->last().text, u"Copiare?"_s);
}

TEST_F(JobTest, EndMessagesTellSuccessAndFailure) {
    job.EndMessage(true);
    box->answer({win::id::kOk, win::id::kOk, win::id::kOk});
    EXPECT_TRUE(run([] {}));
    EXPECT_EQ(box->last().text, u"Operazione completata con successo."_s);
    EXPECT_EQ(box->last().flags, 64);
    EXPECT_FALSE(run([] { nxApp::LastError().Description(u"Tabella bloccata"_s); }, false));
    EXPECT_TRUE(job.GotError());
    EXPECT_EQ(box->last().text, u"Operazione completata con errori.\r\n(Tabella bloccata)"_s);
    EXPECT_EQ(box->last().flags, 48);
    job.EndMessageOk(u"Fatto."_s);
    EXPECT_TRUE(run([] {}));
    EXPECT_FALSE(job.GotError());
    EXPECT_EQ(box->last().text, u"Fatto."_s);
}

TEST_F(JobTest, NothingStartsBeforeTheLibrary) {
    nxApp::ResetForTesting();
    nxJob idle;
    bool ran = false;
    idle.UseForm(false);
    idle.OnJob = [&](bool&, bool) { ran = true; };
    EXPECT_FALSE(idle.Start());
    EXPECT_FALSE(ran);
}

TEST_F(JobTest, AnExceptionFromTheWorkLeavesTheJobIdle) {
    job.OnJob = [](bool&, bool) { throw std::runtime_error("owner"); };
    EXPECT_THROW(job.Start(), std::runtime_error);
    EXPECT_FALSE(job.IsRunning());
    job.OnJob = [](bool&, bool param) { EXPECT_TRUE(param); };
    EXPECT_TRUE(job.Start(QString(), true));
}

// The job's own window: labels on a form that shorten their texts, a Cancel button.
class FakeForm : public JobForm {
public:
    explicit FakeForm(FakeForm** self) { *self = this; }
    JobLabel* Label(int slot) override { return &labels[slot]; }
    JobProgress* Progress() override { return &bar; }
    void SetCaption(const QString& c) override { caption = c; }
    void ShowCancel(bool v) override { cancel = v; }
    void ShowModal(nxJob& job) override {
        modal = true;
        job.RaiseJob();
    }
    RecordingLabel labels[4] = {RecordingLabel(true, 108), RecordingLabel(true, 108),
                                RecordingLabel(true, 108), RecordingLabel(true, 108)};
    RecordingBar bar;
    QString caption;
    bool cancel = false;
    bool modal = false;
};

TEST_F(JobTest, TheFormRunsTheWorkAndShortensLongTexts) {
    FakeForm* form = nullptr;
    job.UseForm(true);
    job.Annullable(false);
    job.Title(u"Copia"_s);
    job.SetFormFactory([&form] { return std::make_unique<FakeForm>(&form); });
    pointer->set(win::pointer::kHourglass);
    pointer->history.clear();
    EXPECT_TRUE(run([&] {
        ASSERT_NE(form, nullptr);
        EXPECT_TRUE(form->modal);
        EXPECT_EQ(form->caption, u"Copia"_s);
        EXPECT_FALSE(form->cancel);
        EXPECT_EQ(pointer->get(), win::pointer::kDefault);
        // 100 pixels hold 10 characters: four go, three dots come, until it fits.
        job.Status(vb::Missing{}, u"Copia della tabella ARCHIVIO"_s);
        EXPECT_EQ(form->labels[0].caption(), u"Copia d..."_s);
        EXPECT_EQ(form->bar.max, nxJob::kBarSteps);
        EXPECT_TRUE(status.captions.isEmpty()); // lent controls are not used
    }));
    EXPECT_EQ(pointer->get(), win::pointer::kHourglass);
}

TEST_F(JobTest, DebugTimeTimesTheWorkInTheTickLog) {
    nxApp::Sys().AppPath(dir.path());
    nxApp::TickLog().LogSet(dir.file(u"t.log"_s));
    ASSERT_TRUE(nxApp::TickLog().LogOpen());
    job.DebugTime(true);
    job.Title(u"Copia"_s);
    run([&] { clock.now = 1500; });
    nxApp::TickLog().LogClose();
    EXPECT_TRUE(readAll(dir.file(u"t.log"_s)).contains("00|nxJob.OnJob()|Copia\r\n"));
}

TEST_F(JobTest, TheJobLogOpensForTheRunAndClosesAfter) {
    job.UseLog(true);
    job.LogFile(dir.file(u"job.log"_s));
    job.Title(u"Copia"_s);
    run([&] {
        EXPECT_TRUE(job.Log().IsOpen());
        job.Log().LogWrite(u"riga"_s);
    });
    EXPECT_FALSE(job.Log().IsOpen());
    const QByteArray text = readAll(dir.file(u"job.log"_s));
    EXPECT_TRUE(text.contains(" - Copia\r\n"));
    EXPECT_TRUE(text.contains(" - riga\r\n"));
}

} // namespace

TEST_F(JobTest, StopRequestedAnswersWithoutLettingTheQueueRun) {
    run([&] {
        clock.now = 1000; // well past the next pump
        const int before = pumps;
        EXPECT_FALSE(job.StopRequested());
        job.StopJob(false);
        EXPECT_TRUE(job.StopRequested());
        EXPECT_EQ(pumps, before);
        EXPECT_TRUE(job.Stopped()); // the pumping answer agrees, and does pump
        EXPECT_EQ(pumps, before + 1);
    });
    EXPECT_TRUE(job.StopRequested()); // still readable after the run
    run([&] { EXPECT_FALSE(job.StopRequested()); }); // a new run starts unstopped
}

TEST_F(JobTest, TheDefaultWindowServesJobsThatHaveNoneOfTheirOwn) {
    struct Restore {
        ~Restore() { nxJob::SetDefaultFormFactory(nullptr); }
    } restore;
    FakeForm* shared = nullptr;
    int made = 0;
    nxJob::SetDefaultFormFactory([&] {
        ++made;
        return std::make_unique<FakeForm>(&shared);
    });
    job.UseForm(true);
    job.Title(u"Copia"_s);
    EXPECT_TRUE(run([&] {
        ASSERT_NE(shared, nullptr);
        EXPECT_TRUE(shared->modal);
        EXPECT_EQ(shared->caption, u"Copia"_s);
    }));
    EXPECT_EQ(made, 1);

    // A job's own factory comes before the default one.
    FakeForm* own = nullptr;
    job.SetFormFactory([&own] { return std::make_unique<FakeForm>(&own); });
    EXPECT_TRUE(run([&] { EXPECT_NE(own, nullptr); }));
    EXPECT_EQ(made, 1);

    // With UseForm off the lent controls serve, whatever the default.
    job.UseForm(false);
    EXPECT_TRUE(run([&] { job.Status(vb::Missing{}, u"senza finestra"_s); }));
    EXPECT_EQ(made, 1);
    EXPECT_EQ(status.caption(), u"senza finestra"_s);

    // Removed: a job with no window at all runs its work all the same.
    nxJob::SetDefaultFormFactory(nullptr);
    nxJob plain;
    plain.UseForm(true);
    bool ran = false;
    plain.OnJob = [&](bool&, bool) { ran = true; };
    EXPECT_TRUE(plain.Start());
    EXPECT_TRUE(ran);
    EXPECT_EQ(made, 1);
}
