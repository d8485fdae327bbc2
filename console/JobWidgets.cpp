#include "console/JobWidgets.h"

#include "console/WindowThread.h"

#include "jobs/nxJob.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

void WidgetJobLabel::SetCaption(const QString& text) {
    onThreadOf(m_label, [&] { m_label->setText(text); });
}

void WidgetJobLabel::Refresh() {
    onThreadOf(m_label, [&] { m_label->repaint(); });
}

bool WidgetJobLabel::OnForm() const {
    return onThreadOf(m_label, [&] { return m_label->window() != m_label.data(); });
}

int WidgetJobLabel::Width() const {
    return onThreadOf(m_label, [&] { return m_label->width(); });
}

int WidgetJobLabel::TextWidth(const QString& text) const {
    return onThreadOf(m_label, [&] { return m_label->fontMetrics().horizontalAdvance(text); });
}

void WidgetJobProgress::SetMax(int max) {
    onThreadOf(m_bar, [&] { m_bar->setMaximum(max); });
}

void WidgetJobProgress::SetValue(int value) {
    onThreadOf(m_bar, [&] { m_bar->setValue(value); });
}

void WidgetJobProgress::Refresh() {
    onThreadOf(m_bar, [&] { m_bar->repaint(); });
}

namespace {

// What a job holds of its window when the job may run on another thread: the window itself is
// made, used and deleted on the window thread.
class JobFormOnWindowThread : public JobForm {
public:
    explicit JobFormOnWindowThread(frmJob* form) : m_form(form) {}
    ~JobFormOnWindowThread() override {
        frmJob* form = m_form;
        onThreadOf(QCoreApplication::instance(), [form] { delete form; });
    }
    JobFormOnWindowThread(const JobFormOnWindowThread&) = delete;
    JobFormOnWindowThread& operator=(const JobFormOnWindowThread&) = delete;
    JobFormOnWindowThread(JobFormOnWindowThread&&) = delete;
    JobFormOnWindowThread& operator=(JobFormOnWindowThread&&) = delete;

    JobLabel* Label(int slot) override { return m_form->Label(slot); }
    JobProgress* Progress() override { return m_form->Progress(); }
    void SetCaption(const QString& caption) override { m_form->SetCaption(caption); }
    void ShowCancel(bool visible) override { m_form->ShowCancel(visible); }
    void ShowModal(nxJob& job) override { m_form->ShowModal(job); }

private:
    frmJob* m_form;
};

} // namespace

frmJob::frmJob() {
    setObjectName(u"frmJob"_s);
    setModal(true);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    auto* layout = new QVBoxLayout(this);
    const char* names[] = {"lblStatus", "lblSubStatus", "lblETA", "lblCount"};
    for (std::size_t slot = 0; slot < m_labels.size(); ++slot) {
        m_labels[slot] = new QLabel;
        m_labels[slot]->setObjectName(QString::fromLatin1(names[slot]));
        m_jobLabels[slot] = std::make_unique<WidgetJobLabel>(m_labels[slot]);
    }
    layout->addWidget(m_labels[0]);
    layout->addWidget(m_labels[1]);
    m_bar = new QProgressBar;
    m_bar->setObjectName(u"pgBar"_s);
    m_bar->setTextVisible(false);
    m_progress = std::make_unique<WidgetJobProgress>(m_bar);
    layout->addWidget(m_bar);
    auto* counts = new QHBoxLayout;
    counts->addWidget(m_labels[2]);
    counts->addStretch();
    counts->addWidget(m_labels[3]);
    layout->addLayout(counts);
    m_cancel = new QPushButton(u"&Annulla"_s);
    m_cancel->setObjectName(u"cmdCancel"_s);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_cancel);
    layout->addLayout(buttons);
    connect(m_cancel, &QPushButton::clicked, this, [this] { askStop(); });
    setMinimumWidth(420);
}

frmJob::~frmJob() = default;

std::unique_ptr<JobForm> frmJob::Create() {
    frmJob* form = onThreadOf(QCoreApplication::instance(), [] { return new frmJob; });
    return std::make_unique<JobFormOnWindowThread>(form);
}

JobLabel* frmJob::Label(int slot) {
    if (slot < 0 || slot >= static_cast<int>(m_jobLabels.size())) {
        return nullptr;
    }
    return m_jobLabels[static_cast<std::size_t>(slot)].get();
}

void frmJob::SetCaption(const QString& caption) {
    onThreadOf(this, [&] { setWindowTitle(caption); });
}

void frmJob::ShowCancel(bool visible) {
    onThreadOf(this, [&] { m_cancel->setVisible(visible); });
}

void frmJob::ShowModal(nxJob& job) {
    if (QThread::currentThread() == thread()) {
        m_job = &job;
        m_started = false;
        m_closing = false;
        exec();
        m_job = nullptr;
        return;
    }
    // The work stays on the thread that runs the job; the window only stands meanwhile.
    onThreadOf(this, [&] {
        m_job = &job;
        m_started = true;
        m_closing = false;
        open();
    });
    job.RaiseJob();
    onThreadOf(this, [&] { finish(); });
}

void frmJob::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (m_started || m_job == nullptr) {
        return;
    }
    // The first activation: let the window paint once, then run the work and close.
    m_started = true;
    QTimer::singleShot(0, this, [this] {
        QCoreApplication::processEvents();
        m_job->RaiseJob();
        finish();
    });
}

void frmJob::finish() {
    m_closing = true;
    m_job = nullptr;
    done(QDialog::Accepted);
}

void frmJob::askStop() {
    if (m_job != nullptr) {
        m_job->StopJob(true);
    }
}

void frmJob::reject() {
    // Escape does not close the window: only the end of the job does.
    if (m_closing) {
        QDialog::reject();
    }
}

void frmJob::closeEvent(QCloseEvent* event) {
    if (m_closing) {
        QDialog::closeEvent(event);
        return;
    }
    event->ignore();
    askStop();
}
