#include "console/ImportRun.h"

#include "engine/DbImportEvents.h"

#include "jobs/JobControls.h"

#include "platform/win/WindowThreadMessageBox.h"

#include "tests/console/WindowFixture.h"

#include <QDeadlineTimer>
#include <QLabel>
#include <QProgressBar>
#include <QThread>

#include <atomic>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

// What a scripted run does and what it saw.
struct Plan {
    bool result = true;
    bool waitForStop = false;   // stands after its first table until asked to stop
    bool askAfterTable = false; // raises an error that asks a box
    std::atomic<bool> waiting{false};
    std::atomic<bool> stop{false};
    QStringList values; // the six values, in the order they were written
    QString source;
    QObject* owner = nullptr;
    QThread* thread = nullptr;
    int runs = 0;
};

bool waitFor(const std::function<bool()>& condition) {
    const QDeadlineTimer deadline(5000);
    while (!condition() && !deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    }
    return condition();
}

// A conversion that raises a few events from its worker thread, moves the lent record controls
// and, when told, waits for the stop button.
class ScriptedRun : public ImportRun {
public:
    ScriptedRun(DbImportEvents* events, Plan& plan) : m_events(events), m_plan(plan) {}

    void DbSrc(const QString& v) override { m_plan.values << u"DbSrc="_s + v; }
    void DbName(const QString& v) override { m_plan.values << u"DbName="_s + v; }
    void DbDesc(const QString& v) override { m_plan.values << u"DbDesc="_s + v; }
    void DbServerName(const QString& v) override { m_plan.values << u"DbServerName="_s + v; }
    void DbUsername(const QString& v) override { m_plan.values << u"DbUsername="_s + v; }
    void DbPassword(const QString& v) override { m_plan.values << u"DbPassword="_s + v; }
    void RecordControls(JobProgress* progress, JobLabel* count) override {
        m_progress = progress;
        m_count = count;
    }
    bool Run(const QString& source, QObject* ownerWindow) override {
        ++m_plan.runs;
        m_plan.source = source;
        m_plan.owner = ownerWindow;
        m_plan.thread = QThread::currentThread();
        m_events->EVTImportStart();
        m_events->EVTUserTableImportStart(2);
        m_events->EVTUserTableImporting(1, u"ARC_0001"_s, vb::Variant(u"Fatture"_s));
        m_events->EVTTableImportStart(3);
        m_progress->SetValue(2);
        m_count->SetCaption(u"2 / 3"_s);
        if (m_plan.askAfterTable) {
            m_events->EVTError(0, u"Nome database non valido."_s, false);
        }
        if (m_plan.waitForStop) {
            m_plan.waiting = true;
            const QDeadlineTimer deadline(5000);
            while (!m_plan.stop && !deadline.hasExpired()) {
                QThread::msleep(5);
            }
        }
        m_events->EVTTableImportEnd();
        m_events->EVTImportEnd();
        return m_plan.result;
    }
    void Stopped(bool value) override { m_plan.stop = value; }
    bool Stopped() const override { return m_plan.stop; }

private:
    DbImportEvents* m_events;
    Plan& m_plan;
    JobProgress* m_progress = nullptr;
    JobLabel* m_count = nullptr;
};

class RunTest : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        // Boxes asked on the run's thread are shown on the window's, as in the program.
        nxApp::SetMessageBox(std::make_shared<win::WindowThreadMessageBox>(box));
        window = std::make_unique<frmMain>(
            servers, std::make_unique<ScriptedFileDialog>(),
            [this](DbImportEvents* events) { return std::make_unique<ScriptedRun>(events, plan); });
        type("txtMDBPath", u"/dati/QZSystem.mdb"_s);
        typeServer(u"srv\\SQL"_s);
        type("txtDbName", u"Archivio"_s);
        type("txtDbDesc", u"Sede"_s);
        type("txtUsername", u"sa"_s);
        type("txtPassword", u"segreta"_s);
    }
    QStringList logLines() const {
        QStringList lines;
        for (int i = 0; i < list("lstLog")->count(); ++i) {
            lines << list("lstLog")->item(i)->text();
        }
        return lines;
    }
    bool runEnds() const {
        return waitFor([this] { return !window->Running(); });
    }

    Plan plan;
};

TEST_F(RunTest, ARunWorksOnItsOwnThreadAndFeedsTheWindow) {
    box->answer(win::id::kOk);
    click(buttonNamed("cmdImport"));
    ASSERT_TRUE(runEnds());
    EXPECT_EQ(plan.values, (QStringList{u"DbSrc=/dati/QZSystem.mdb"_s, u"DbName=Archivio"_s,
                                        u"DbDesc=Sede"_s, u"DbServerName=srv\\SQL"_s,
                                        u"DbUsername=sa"_s, u"DbPassword=segreta"_s}));
    EXPECT_EQ(plan.source, u"/dati/QZSystem.mdb"_s);
    EXPECT_EQ(plan.owner, window.get());
    EXPECT_NE(plan.thread, QThread::currentThread());
    EXPECT_EQ(window->SourcePath(), u"/dati/QZSystem.mdb"_s);
    EXPECT_EQ(logLines(), (QStringList{u"Inizio importazione archivio."_s,
                                       u"Sono presenti 2 archivi utente nel db di origine."_s,
                                       u"Importazione tabella utente ARC_0001 (Fatture)"_s,
                                       u"Termine importazione archivio."_s}));
    ASSERT_EQ(box->shown().size(), 1U);
    EXPECT_EQ(box->shown()[0].text, u"Importazione eseguita."_s);
    EXPECT_EQ(box->shown()[0].flags, 64); // style 0 is shown with the information icon
    // Idle again: the table bar and the status bar are cleared, the buttons back.
    EXPECT_EQ(control<QProgressBar>("pgBarTbl")->value(), 0);
    EXPECT_EQ(window->StatusText(), QString());
    EXPECT_TRUE(buttonNamed("cmdImport")->isEnabled());
    EXPECT_TRUE(buttonNamed("cmdExit")->isEnabled());
    EXPECT_FALSE(buttonNamed("cmdStop")->isEnabled());
}

TEST_F(RunTest, TheWindowAnswersDuringARunAndStopEndsItQuietly) {
    plan.waitForStop = true;
    click(buttonNamed("cmdImport"));
    ASSERT_TRUE(waitFor([this] { return plan.waiting.load(); }));
    // Running: the record controls lent to the run show its progress, the status bar the table.
    EXPECT_TRUE(window->Running());
    EXPECT_EQ(control<QProgressBar>("pgBarRec")->value(), 2);
    EXPECT_EQ(control<QLabel>("lblRec")->text(), u"2 / 3"_s);
    EXPECT_EQ(window->StatusText(), u"Importazione tabella utente 'Fatture'"_s);
    EXPECT_FALSE(buttonNamed("cmdImport")->isEnabled());
    EXPECT_FALSE(buttonNamed("cmdExit")->isEnabled());
    // The path and the login stay open, and the window takes typing meanwhile.
    type("txtPassword", u"2"_s);
    EXPECT_EQ(edit("txtPassword")->text(), u"segreta2"_s);

    click(buttonNamed("cmdStop"));
    ASSERT_TRUE(runEnds());
    EXPECT_TRUE(plan.stop);
    // A stopped run that still returned true ends without a message.
    EXPECT_TRUE(box->shown().empty());
    EXPECT_EQ(logLines().last(), u"Termine importazione archivio."_s);
    EXPECT_EQ(control<QLabel>("lblRec")->text(), QString());
}

TEST_F(RunTest, AFailedRunSaysSoEvenWhenStopped) {
    plan.waitForStop = true;
    plan.result = false;
    box->answer(win::id::kOk);
    click(buttonNamed("cmdImport"));
    ASSERT_TRUE(waitFor([this] { return plan.waiting.load(); }));
    click(buttonNamed("cmdStop"));
    ASSERT_TRUE(runEnds());
    ASSERT_EQ(box->shown().size(), 1U);
    EXPECT_EQ(box->shown()[0].text, u"Importazione fallita."_s);
}

TEST_F(RunTest, AQuestionFromTheRunIsAnsweredOnTheWindowBeforeTheRunGoesOn) {
    plan.askAfterTable = true;
    box->answer({win::id::kOk, win::id::kOk});
    click(buttonNamed("cmdImport"));
    ASSERT_TRUE(runEnds());
    ASSERT_EQ(box->shown().size(), 2U);
    EXPECT_EQ(box->shown()[0].text, u"Nome database non valido."_s);
    EXPECT_EQ(box->shown()[0].flags, 48);
    EXPECT_EQ(box->shown()[1].text, u"Importazione eseguita."_s);
    const QStringList lines = logLines();
    EXPECT_EQ(lines.indexOf(u"Nome database non valido."_s) + 1,
              lines.indexOf(u"Termine importazione archivio."_s));
}

TEST_F(RunTest, ASecondRunAppendsAndTakesThePathAsItStands) {
    box->answer({win::id::kOk, win::id::kOk});
    click(buttonNamed("cmdImport"));
    ASSERT_TRUE(runEnds());
    edit("txtMDBPath")->clear();
    // Enabled after a run whatever the fields hold: the next run starts with an empty source.
    window->EnableControls(true);
    ASSERT_TRUE(buttonNamed("cmdImport")->isEnabled());
    click(buttonNamed("cmdImport"));
    ASSERT_TRUE(runEnds());
    EXPECT_EQ(plan.runs, 2);
    EXPECT_EQ(plan.source, QString());
    EXPECT_EQ(logLines().size(), 8);
}

TEST_F(RunTest, WithoutAConversionEngineTheRunFailsAtOnce) {
    window = std::make_unique<frmMain>(servers, std::make_unique<ScriptedFileDialog>());
    type("txtMDBPath", u"/dati/QZSystem.mdb"_s);
    typeServer(u"srv"_s);
    type("txtDbName", u"A"_s);
    box->answer(win::id::kOk);
    click(buttonNamed("cmdImport"));
    EXPECT_FALSE(window->Running());
    ASSERT_EQ(box->shown().size(), 1U);
    EXPECT_EQ(box->shown()[0].text, u"Importazione fallita."_s);
    EXPECT_TRUE(buttonNamed("cmdImport")->isEnabled());
}

} // namespace
