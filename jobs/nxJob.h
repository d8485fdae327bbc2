#pragma once

#include "jobs/JobControls.h"
#include "jobs/nxTickCounter.h"

#include "platform/vb/Variant.h"

#include <QString>

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>

class nxLog;

// One long operation with a status text, a sub-status, an estimate of the time left, a count
// against a total and a progress bar, shown on the job's own window or on controls the caller
// lends. The owner does the work in OnJob and calls Status from inside it as often as it likes:
// Status redraws the count at most twice a second, the estimate every 2 seconds, and lets the
// message queue run at most every 250 ms. That pump is what keeps the window alive during the
// work, and the road by which a stop request arrives.
class nxJob {
public:
    // The slots of the texts.
    static constexpr int kStatusSlot = 0;
    static constexpr int kSubStatusSlot = 1;
    static constexpr int kETASlot = 2;
    static constexpr int kCountSlot = 3;
    // The bar always has this many steps, whatever the scale of the count.
    static constexpr int kBarSteps = 10000;
    // Status(kNoCountYet): no count is known yet; Status(kPumpOnly): only let the queue run.
    static constexpr std::int32_t kNoCountYet = -1;
    static constexpr std::int32_t kPumpOnly = -2;

    using FormFactory = std::function<std::unique_ptr<JobForm>()>;

    nxJob();
    nxJob(const nxJob&) = delete;
    nxJob& operator=(const nxJob&) = delete;
    ~nxJob();

    // The owner's work: `result` is true on entry and set false on failure; `param` is the one
    // given to Start.
    std::function<void(bool& result, bool param)> OnJob;
    // After each change of the shown count, with the count as the caller gave it.
    std::function<void(std::int32_t count)> OnStatus;

    bool UseForm() const noexcept { return m_useForm; }
    void UseForm(bool value) noexcept { m_useForm = value; }
    JobLabel* StatusCtrl() const noexcept { return m_lent[kStatusSlot]; }
    void StatusCtrl(JobLabel* control) noexcept { m_lent[kStatusSlot] = control; }
    JobLabel* SubStatusCtrl() const noexcept { return m_lent[kSubStatusSlot]; }
    void SubStatusCtrl(JobLabel* control) noexcept { m_lent[kSubStatusSlot] = control; }
    JobLabel* ETACtrl() const noexcept { return m_lent[kETASlot]; }
    void ETACtrl(JobLabel* control) noexcept { m_lent[kETASlot] = control; }
    JobLabel* CountCtrl() const noexcept { return m_lent[kCountSlot]; }
    void CountCtrl(JobLabel* control) noexcept { m_lent[kCountSlot] = control; }
    JobProgress* ProgressCtrl() const noexcept { return m_progress; }
    void ProgressCtrl(JobProgress* control) noexcept { m_progress = control; }
    const QString& Title() const noexcept { return m_title; }
    void Title(const QString& value) { m_title = value; }
    bool Annullable() const noexcept { return m_annullable; }
    void Annullable(bool value) noexcept { m_annullable = value; }
    bool Confirm() const noexcept { return m_confirm; }
    void Confirm(bool value) noexcept { m_confirm = value; }
    const QString& ConfirmText() const noexcept { return m_confirmText; }
    void ConfirmText(const QString& value) { m_confirmText = value; }
    bool EndMessage() const noexcept { return m_endMessage; }
    void EndMessage(bool value) noexcept { m_endMessage = value; }
    const QString& EndMessageOk() const noexcept { return m_endMessageOk; }
    void EndMessageOk(const QString& value) { m_endMessageOk = value; }
    const QString& EndMessageErr() const noexcept { return m_endMessageErr; }
    void EndMessageErr(const QString& value) { m_endMessageErr = value; }
    // True also sets MaxCount to 100.
    bool Percent() const noexcept { return m_percent; }
    void Percent(bool value) noexcept;
    // Turns Percent off, and takes the value only when it is above 0.
    std::int32_t MaxCount() const noexcept { return m_maxCount; }
    void MaxCount(std::int32_t value) noexcept;
    const QString& CountUnit() const noexcept { return m_countUnit; }
    void CountUnit(const QString& value) { m_countUnit = value; }
    bool ShowETA() const noexcept { return m_showETA; }
    void ShowETA(bool value) noexcept { m_showETA = value; }
    bool DebugTime() const noexcept { return m_debugTime; }
    void DebugTime(bool value) noexcept { m_debugTime = value; }
    bool UseLog() const noexcept { return m_useLog; }
    void UseLog(bool value) noexcept { m_useLog = value; }
    const QString& LogFile() const noexcept { return m_logFile; }
    void LogFile(const QString& value) { m_logFile = value; }
    const QString& LogPath() const noexcept { return m_logPath; }
    void LogPath(const QString& value) { m_logPath = value; }
    const QString& LogTitle() const noexcept { return m_logTitle; }
    void LogTitle(const QString& value) { m_logTitle = value; }
    bool LogEndView() const noexcept { return m_logEndView; }
    void LogEndView(bool value) noexcept { m_logEndView = value; }

    // The job's log, made on first use.
    nxLog& Log();
    bool LogOpen();
    bool IsRunning() const noexcept { return m_running; }
    // Lets the message queue run (Status(kPumpOnly)) and reports whether a stop was asked.
    bool Stopped();
    // Whether a stop was asked, without letting the queue run: safe from any thread, e.g. a
    // window that watches a job running on another one.
    bool StopRequested() const noexcept { return m_stopped.load(); }
    // Asks to stop; with `ask` the operator confirms first. Nothing when the job may not be
    // stopped or is stopped already.
    void StopJob(bool ask);
    bool GotError() const noexcept { return m_gotError; }
    // Raises OnJob; called by Start, or by the job's window at its first activation.
    void RaiseJob();
    // Runs the job: asks first with Confirm, shows the window or uses the lent controls, raises
    // OnJob, shows the end message. True when the job ran and OnJob reported no failure (a stop
    // in itself is none); false at once when the library is not started or a job is running.
    bool Start(const QString& statusText = {}, bool param = false);
    void SubStatus(const QString& text);
    // `count`: left out (Missing), kNoCountYet, kPumpOnly, or the count on the scale MaxCount.
    // `cycle` makes the count wrap round the scale and turns the estimate and the percentage
    // off for good.
    void Status(const vb::Variant& count = vb::Missing{}, const QString& text = {},
                bool cycle = false);

    // Where the job's window comes from when UseForm is on. Without one (a platform with no
    // modal window, or a program that gave none) the job runs as with UseForm off and no
    // controls lent.
    void SetFormFactory(FormFactory factory) { m_formFactory = std::move(factory); }
    // The window of every job that was given none of its own: the program installs it once at
    // start-up, before any job starts; an empty factory removes it.
    static void SetDefaultFormFactory(FormFactory factory);
    // The tick the job measures its time with, in place of the system's (tests).
    void SetClock(nxTickCounter::Clock clock);

private:
    void updateStatusText(const QString& text);
    void updateEstimate(std::int32_t count, std::int32_t tick);
    void setEstimate(QString text);
    void pumpIfDue(std::int32_t tick);
    void updateCount(double count, bool cycle, std::int32_t tick);
    void moveBar(double count);
    void showText(int slot, QString text);
    JobLabel* label(int slot) const;
    JobProgress* progress() const;
    void runModal();
    void endMessage();

    bool m_useForm = true;
    JobLabel* m_lent[4] = {};
    JobProgress* m_progress = nullptr;
    QString m_title;
    bool m_annullable = true;
    bool m_confirm = false;
    QString m_confirmText;
    bool m_endMessage = false;
    QString m_endMessageOk;
    QString m_endMessageErr;
    bool m_percent = true;
    std::int32_t m_maxCount = 100;
    QString m_countUnit;
    bool m_showETA = true;
    bool m_debugTime = false;
    bool m_useLog = false;
    QString m_logFile;
    QString m_logPath;
    QString m_logTitle;
    bool m_logEndView = false;

    std::unique_ptr<nxLog> m_log;
    bool m_running = false;
    std::atomic<bool> m_stopped = false; // set from the pump, or from the window's thread
    bool m_gotError = false;
    bool m_param = false;
    QString m_statusText;
    QString m_subStatusText;
    bool m_subStatusChanged = false;
    std::unique_ptr<JobForm> m_form;
    FormFactory m_formFactory;
    nxTickCounter::Clock m_clock;
    nxTickCounter m_counter;
    QString m_lastETA;
    std::int32_t m_lastETATick = 0;
    double m_lastCount = 0;
    std::int32_t m_lastCountTick = 0;
    std::int32_t m_lastPumpTick = 0;
};
