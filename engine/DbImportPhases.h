#pragma once

#include "engine/PhaseContext.h"

#include <QString>

#include <memory>

class DbImportEvents;
class JobLabel;
class JobProgress;
class nxConn;
class nxDb;
class nxLog;
class nxRsJob;
class nxStringBuilder;

// The operations DbImport runs for each table and at the end of a conversion, behind one narrow
// door: the driver calls these and knows nothing else of how a table is recreated, indexed and
// copied, how the identity objects are made or how the suite is pointed at the server.
namespace engine {

// What the run lends its operations. Every reference outlives the phases object.
struct DbImportRun {
    nxDb& src;
    nxDb& dest;
    nxConn& srcConn;
    nxConn& destConn;
    nxConn& masterConn;
    nxStringBuilder& sb1;
    nxStringBuilder& sb2;
    DbImportEvents* events; // may be null
    nxLog& log;
    JobProgress* progress; // the window's record bar, may be null
    JobLabel* count;       // the window's record counter, may be null
};

class DbImportPhases {
public:
    explicit DbImportPhases(const DbImportRun& run);
    ~DbImportPhases();
    DbImportPhases(const DbImportPhases&) = delete;
    DbImportPhases& operator=(const DbImportPhases&) = delete;

    // SYS_IDS and the two identity procedures on the destination.
    bool CreateSysIDsTable();
    // The record job of the run, once it exists: its sinks are connected here.
    void AttachJob(nxRsJob& job);
    // A system table's records, inside the driver's transaction: the job's own result.
    bool CopySystemTable(const QString& table);
    // An archive's or dictionary's records: true at its normal end, whatever the job answered.
    bool CopyTableData(const QString& table);
    // The "create table" text of an archive or dictionary, from the source's schema.
    QString GetCreateTableSql(const QString& table);
    // The primary key and indexes of an archive or dictionary on the destination.
    bool CreateTableIndexes(QString& table);
    // The description of the new database, when the source left it empty; false when the
    // server refused the update.
    bool StoreDescription(const QString& description);
    // config.ini beside the source: the seven keys of the new database.
    void SaveConfiguration(const QString& dbSrc, const QString& serverName,
                           const QString& databaseName, const QString& description,
                           const QString& username, const QString& password);
    // The source becomes "<name>.old"; false, after a box, when it cannot be renamed.
    bool RenameSource(const QString& dbSrc);

private:
    struct Parts;
    DbImportRun m_run;
    PhaseContext m_context;
    std::unique_ptr<Parts> m_parts;
};

} // namespace engine
