#include "console/JobWidgets.h"
#include "console/WindowServices.h"

#include "jobs/nxJob.h"

#include "platform/win/WindowThreadMessageBox.h"

#include "tests/frame/FrameFixture.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QThread>

#include <atomic>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

frmJob* standingJobForm() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == u"frmJob"_s && widget->isVisible()) {
            return static_cast<frmJob*>(widget);
        }
    }
    return nullptr;
}

class JobFormTest : public FrameTest {
protected:
    void SetUp() override {
        FrameTest::SetUp();
        job.SetFormFactory(&frmJob::Create);
        job.Title(u"Copia archivi"_s);
    }
    nxJob job;
};

// The window program's start-up gives every job that has no window of its own the job window;
// without it such a job runs with none.
using WindowServicesTest = FrameTest;

TEST_F(WindowServicesTest, AJobWithoutAWindowOfItsOwnGetsTheProgramsOne) {
    const auto standsDuringItsWork = [] {
        nxJob job;
        bool stood = false;
        job.OnJob = [&](bool& result, bool) {
            stood = standingJobForm() != nullptr;
            result = true;
        };
        EXPECT_TRUE(job.Start(u"Lettura"_s));
        return stood;
    };
    EXPECT_FALSE(standsDuringItsWork());
    InstallWindowServices();
    const bool withServices = standsDuringItsWork();
    nxJob::SetDefaultFormFactory({});
    EXPECT_TRUE(withServices);
    EXPECT_EQ(standingJobForm(), nullptr);
}

TEST_F(JobFormTest, TheWindowStandsWhileTheWorkRunsAndClosesAfterIt) {
    QString captionDuring;
    QString statusDuring;
    bool cancelShown = false;
    job.OnJob = [&](bool& result, bool) {
        frmJob* form = standingJobForm();
        ASSERT_NE(form, nullptr);
        EXPECT_TRUE(form->isModal());
        captionDuring = form->windowTitle();
        statusDuring = form->findChild<QLabel*>(u"lblStatus"_s)->text();
        cancelShown = form->findChild<QPushButton*>(u"cmdCancel"_s)->isVisibleTo(form);
        result = true;
    };
    EXPECT_TRUE(job.Start(u"Lettura"_s));
    EXPECT_EQ(captionDuring, u"Copia archivi"_s);
    EXPECT_EQ(statusDuring, u"Lettura"_s);
    EXPECT_TRUE(cancelShown);
    EXPECT_EQ(standingJobForm(), nullptr);
}

TEST_F(JobFormTest, CancelAsksTheJobToStopAndEscapeDoesNotCloseIt) {
    box->answer(win::id::kYes);
    bool stoppedAfterCancel = false;
    bool standingAfterEscape = false;
    job.OnJob = [&](bool&, bool) {
        frmJob* form = standingJobForm();
        ASSERT_NE(form, nullptr);
        QTest::keyClick(form, Qt::Key_Escape);
        standingAfterEscape = form->isVisible();
        QPushButton* cancel = form->findChild<QPushButton*>(u"cmdCancel"_s);
        EXPECT_EQ(cancel->text(), u"&Annulla"_s);
        QTest::mouseClick(cancel, Qt::LeftButton);
        stoppedAfterCancel = job.Stopped();
    };
    job.Start();
    EXPECT_TRUE(standingAfterEscape);
    EXPECT_TRUE(stoppedAfterCancel);
    ASSERT_EQ(box->shown().size(), 1U);
    EXPECT_EQ(box->shown()[0].text, u"Annullare l'operazione?"_s);
}

TEST_F(JobFormTest, AJobOnAWorkerKeepsItsWorkThereAndItsWindowOnTheWindowThread) {
    nxApp::SetMessageBox(std::make_shared<win::WindowThreadMessageBox>(box));
    QThread* workedOn = nullptr;
    std::atomic<bool> sawForm{false};
    std::atomic<bool> done{false};
    job.OnJob = [&](bool&, bool) {
        workedOn = QThread::currentThread();
        job.Status(vb::Variant(std::int32_t{40}), u"Metà"_s); // reaches the labels from here
        QMetaObject::invokeMethod(
            qApp, [&] { sawForm = standingJobForm() != nullptr; }, Qt::BlockingQueuedConnection);
    };
    std::thread worker([&] {
        job.Start();
        done = true;
    });
    const QDeadlineTimer deadline(5000);
    while (!done && !deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    }
    worker.join();
    ASSERT_TRUE(done);
    EXPECT_NE(workedOn, QThread::currentThread());
    EXPECT_TRUE(sawForm);
    EXPECT_EQ(standingJobForm(), nullptr);
}

TEST(WidgetJobControls, LentControlsShowWhatTheJobSets) {
    QWidget window;
    auto* label = new QLabel(&window);
    auto* bar = new QProgressBar(&window);
    WidgetJobLabel count(label);
    WidgetJobProgress progress(bar);
    count.SetCaption(u"5 / 10"_s);
    progress.SetMax(10);
    progress.SetValue(5);
    EXPECT_EQ(label->text(), u"5 / 10"_s);
    EXPECT_EQ(bar->maximum(), 10);
    EXPECT_EQ(bar->value(), 5);
    progress.SetValue(11); // beyond the bar: refused, the bar keeps its value
    EXPECT_EQ(bar->value(), 5);
    EXPECT_TRUE(count.OnForm());
    EXPECT_EQ(count.TextWidth(u"abc"_s), label->fontMetrics().horizontalAdvance(u"abc"_s));
    QLabel alone;
    EXPECT_FALSE(WidgetJobLabel(&alone).OnForm());
}

} // namespace
