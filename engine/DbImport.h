#pragma once

#include "engine/DbImportEvents.h"

#include "platform/ado/Connection.h"
#include "platform/ado/Recordset.h"
#include "platform/ado/adox/Catalog.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <utility>

class JobLabel;
class JobProgress;
class nxConn;
class nxDb;
class nxLog;
class nxRsJob;
class nxStringBuilder;
class nxWaitCursor;

namespace engine {
class DbImportPhases;
}

// One conversion of a Jet system database to SQL Server, from first check to last rename. The
// window makes a fresh object for each press of its import button, writes the six values, calls
// Run, and receives the run's events through `events` as plain calls on Run's thread.
//
// The run verifies the source (ConversionLog.txt beside it tells what to repair), creates the
// server database with the suite's system tables, installs the identity objects, copies the
// system tables inside one transaction (parents before children), recreates and copies every
// archive listed in DB_ELENCO and every DIZ_ dictionary, points config.ini at the server and
// renames the source. A failed run leaves what it made on the server and the source untouched.
class DbImport {
public:
    // The server database, as the system creates it: qzSystem::DbCreate's arguments.
    using DatabaseCreator =
        std::function<bool(const QString& Name, long Flags, bool Silent, const QString& Provider,
                           const QString& Server, long EngineType, const QString& User,
                           const QString& Password)>;

    explicit DbImport(DbImportEvents* events = nullptr);
    ~DbImport();
    DbImport(const DbImport&) = delete;
    DbImport& operator=(const DbImport&) = delete;

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

    // The window's record bar and counter, lent to the record job; either may stay null.
    void RecordControls(JobProgress* progress, JobLabel* count) noexcept {
        m_progressCtrl = progress;
        m_countCtrl = count;
    }

    // The system's method DbImport (a member cannot carry its class's name). Only OwnerWindow
    // is read: the owner of the question boxes. The path comes from DbSrc and the provider is
    // fixed. True when the conversion ran to its end. Returns when the run has ended.
    bool Run(const QString& Source, QObject* OwnerWindow, const QString& Provider = {},
             const QString& Extra = {}) noexcept;

    // Puts each table after the tables its foreign keys refer to, names compared without regard
    // to case: a table that refers to one further on swaps places with it and its position is
    // looked at again. A cycle of references never settles; the suite's schema has none.
    static void SortTablesByDependency(QStringList& tables, ado::adox::Tables& catalog);

    // Where the server database comes from; by default qzSystem::DbCreate. Tests put their own.
    void SetDatabaseCreator(DatabaseCreator creator) { m_dbCreate = std::move(creator); }

private:
    // Where the run goes after a step.
    enum class Next { Continue, CloseDown, Exit };

    bool runSteps(QObject* ownerWindow);
    Next openMaster();
    Next openLogAndSource();
    Next verifySource(QObject* ownerWindow);
    Next createDatabase();
    Next openDestination();
    Next listSystemTables();
    Next copySystemTables();
    Next importUserTables();
    Next importDictionaries();
    Next finishConfiguration();
    void closeDown();
    bool trapFailure();

    bool DestinationHasTables() noexcept;
    bool AnalyzeDatabase(bool& IdxOk);
    QString userTableStep(const QString& table, const vb::Variant& description);
    bool createUserTable(const QString& table);
    bool stopAsked();
    void closeList() noexcept;
    // A member that answered false where the run expects a raised error: its recorded failure
    // becomes the run's, so that it lands in the one trap.
    [[noreturn]] static void raiseLastError();
    void raiseError(DbImportErrorKind kind, const QString& text, bool askViewLog = false);
    // Raises one event, when someone listens.
    template <class F> void raise(F&& event) {
        if (m_events != nullptr) {
            std::forward<F>(event)(*m_events);
        }
    }

    DbImportEvents* m_events;
    QString m_dbSrc;
    QString m_dbName;
    QString m_dbDesc;
    QString m_dbServerName;
    QString m_dbUsername;
    QString m_dbPassword;
    std::atomic<bool> m_stopped{false};
    JobProgress* m_progressCtrl = nullptr;
    JobLabel* m_countCtrl = nullptr;
    DatabaseCreator m_dbCreate;

    // The run's state.
    bool m_ok = false;
    bool m_create = false;
    std::int32_t m_transLevel = 0;
    QString m_folder;
    QString m_logPath;
    QStringList m_sysTables;
    QString m_lastTable;
    vb::Variant m_lastDescription;
    ado::ConnectionPtr m_master;
    std::shared_ptr<nxConn> m_masterConn;
    std::shared_ptr<nxConn> m_srcConn;
    std::shared_ptr<nxConn> m_destConn;
    std::unique_ptr<nxDb> m_src;
    std::unique_ptr<nxDb> m_dest;
    ado::RecordsetPtr m_list;
    std::unique_ptr<nxStringBuilder> m_sb1;
    std::unique_ptr<nxStringBuilder> m_sb2;
    std::unique_ptr<nxWaitCursor> m_wait;
    std::unique_ptr<nxLog> m_log;
    std::unique_ptr<nxRsJob> m_cExp;
    // The job as the window's thread sees it: null until step 15.
    std::atomic<nxRsJob*> m_job{nullptr};
    std::unique_ptr<engine::DbImportPhases> m_phases;
};
