#pragma once

#include <QString>

#include <functional>
#include <memory>

class DbImportEvents;
class JobLabel;
class JobProgress;
class QObject;

// One conversion as the window drives it: six values written in order, the record controls
// lent, Run on a worker thread, and the stop flag from the window's thread. The window's run is
// the engine's DbImport (DbImportRun.h); tests put a scripted one in its place.
class ImportRun {
public:
    virtual ~ImportRun() = default;

    virtual void DbSrc(const QString& value) = 0;
    virtual void DbName(const QString& value) = 0;
    virtual void DbDesc(const QString& value) = 0;
    virtual void DbServerName(const QString& value) = 0;
    virtual void DbUsername(const QString& value) = 0;
    virtual void DbPassword(const QString& value) = 0;
    virtual void RecordControls(JobProgress* progress, JobLabel* count) = 0;

    // Called on the worker thread; returns when the run has ended. True when it ended without
    // a fatal failure.
    virtual bool Run(const QString& source, QObject* ownerWindow) = 0;
    // Both safe from the window's thread while Run goes on.
    virtual void Stopped(bool value) = 0;
    virtual bool Stopped() const = 0;
};

// Makes the run for one press of the import button, raising its events on `events`.
using ImportRunFactory = std::function<std::unique_ptr<ImportRun>(DbImportEvents* events)>;
