#pragma once

#include "engine/DbImportEvents.h"

#include <QString>

#include <atomic>

// One conversion of a Jet system database to SQL Server, from first check to last rename. The
// window makes a fresh object for each press of its import button, writes the six values, and
// receives the run's events through `events`.
//
// The run itself (the member DbImport) is added with the record job and the database handles it
// stands on; until then the object holds its inputs and its stop flag only.
class DbImport {
public:
    explicit DbImport(DbImportEvents* events = nullptr) : m_events(events) {}

    // Write-only properties.
    void DbSrc(const QString& value) { m_dbSrc = value; }
    void DbName(const QString& value) { m_dbName = value; }
    void DbDesc(const QString& value) { m_dbDesc = value; }
    void DbServerName(const QString& value) { m_dbServerName = value; }
    // Empty means integrated security.
    void DbUsername(const QString& value) { m_dbUsername = value; }
    void DbPassword(const QString& value) { m_dbPassword = value; }

    // The stop flag. Setting it does not look at the value: it asks the record job to stop and
    // takes the job's answer. Before the job exists (the checks and the creation of the
    // database) a stop request has no effect, so the flag stays clear. Safe to call from the
    // window's thread while the run goes on in another.
    bool Stopped() const noexcept { return m_stopped.load(); }
    void Stopped(bool value);

private:
    DbImportEvents* m_events;
    QString m_dbSrc;
    QString m_dbName;
    QString m_dbDesc;
    QString m_dbServerName;
    QString m_dbUsername;
    QString m_dbPassword;
    std::atomic<bool> m_stopped{false};
};
