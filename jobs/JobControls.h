#pragma once

#include <QString>

#include <memory>

class nxJob;

// The controls a job shows its progress on, as the job uses them: the caller lends its own
// (a label on its window, a progress bar), or the job's own window supplies them. Nothing here
// knows of widgets; the window implements these over its own.

// A text control: status, sub-status, estimate or count.
class JobLabel {
public:
    virtual ~JobLabel() = default;
    virtual void SetCaption(const QString& text) = 0;
    virtual void Refresh() = 0;
    // Width of the control, and of a text in its form's font, in pixels. A control that stands
    // on no form answers false from OnForm, and its texts are never shortened.
    virtual bool OnForm() const = 0;
    virtual int Width() const = 0;
    virtual int TextWidth(const QString& text) const = 0;
};

// A progress bar.
class JobProgress {
public:
    virtual ~JobProgress() = default;
    virtual void SetMax(int max) = 0;
    virtual void SetValue(int value) = 0;
    virtual void Refresh() = 0;
};

// The job's own modal window: a progress bar, four labels (status, sub-status, estimate, count)
// and a Cancel button ("&Annulla").
//
// ShowModal shows it and, at its first activation, lets the message queue run once, calls
// job.RaiseJob() and closes itself: it returns when the work has ended. While it stands, its
// Cancel button and its close button call job.StopJob(true); closing it any other way than by
// the program is refused.
class JobForm {
public:
    virtual ~JobForm() = default;
    virtual JobLabel* Label(int slot) = 0; // 0..3
    virtual JobProgress* Progress() = 0;
    virtual void SetCaption(const QString& caption) = 0;
    virtual void ShowCancel(bool visible) = 0;
    virtual void ShowModal(nxJob& job) = 0;
};
