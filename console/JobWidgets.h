#pragma once

#include "jobs/JobControls.h"

#include <QDialog>
#include <QPointer>

#include <array>
#include <memory>

class QLabel;
class QProgressBar;
class QPushButton;
class nxJob;

// A label of a window lent to a job. The job may run on a worker thread: every call reaches the
// label on its own thread and returns when done there.
class WidgetJobLabel : public JobLabel {
public:
    explicit WidgetJobLabel(QLabel* label) : m_label(label) {}
    void SetCaption(const QString& text) override;
    void Refresh() override;
    bool OnForm() const override;
    int Width() const override;
    int TextWidth(const QString& text) const override;

private:
    QPointer<QLabel> m_label;
};

// A progress bar lent to a job, under the same rule as WidgetJobLabel. A value outside the bar's
// range is refused by the bar, which keeps the one it had.
class WidgetJobProgress : public JobProgress {
public:
    explicit WidgetJobProgress(QProgressBar* bar) : m_bar(bar) {}
    void SetMax(int max) override;
    void SetValue(int value) override;
    void Refresh() override;

private:
    QPointer<QProgressBar> m_bar;
};

// The job's own window: four texts (status, sub-status, estimate, count) over a progress bar, and
// a Cancel button. Shown from the window thread it is modal and runs the job at its first
// activation; shown from a worker thread it stands modal on the window thread while the job runs
// on the worker. Its Cancel button and its close button ask the job to stop; nothing else closes
// it but the end of the job.
class frmJob : public QDialog, public JobForm {
public:
    frmJob();
    ~frmJob() override;
    frmJob(const frmJob&) = delete;
    frmJob& operator=(const frmJob&) = delete;
    frmJob(frmJob&&) = delete;
    frmJob& operator=(frmJob&&) = delete;

    JobLabel* Label(int slot) override;
    JobProgress* Progress() override { return m_progress.get(); }
    void SetCaption(const QString& caption) override;
    void ShowCancel(bool visible) override;
    void ShowModal(nxJob& job) override;

    // The job's window for nxJob::SetFormFactory: made on the window thread whichever thread
    // asks, and deleted there when the job lets it go.
    static std::unique_ptr<JobForm> Create();
    // Whether the job is running under this window now.
    bool Running() const noexcept { return m_job != nullptr; }

    void reject() override;

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void askStop();
    void finish();

    std::array<QLabel*, 4> m_labels{};
    QProgressBar* m_bar = nullptr;
    QPushButton* m_cancel = nullptr;
    std::array<std::unique_ptr<WidgetJobLabel>, 4> m_jobLabels;
    std::unique_ptr<WidgetJobProgress> m_progress;
    nxJob* m_job = nullptr;
    bool m_started = false;
    bool m_closing = false;
};
