#pragma once

#include "engine/PhaseContext.h"
#include "engine/RecordInsert.h"

#include "platform/ado/Command.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <memory>

class JobLabel;
class JobProgress;
class nxRs;
class nxRsJob;

namespace engine {

class TableRecreation;

// The records of one table moved to the server, one parameterised insert per record, through
// the run's record job. The constructor connects the job's three events to this object for the
// whole run; the job, the lent window controls and `names` must outlive it.
//
// The inserts run on a connection of their own, opened for each table from the destination's
// connection string: outside the run's system-table transaction, so a rollback there does not
// take them back. A record the server refuses ends its table (EVTError kind 3 "<number>:
// <description>"); what the inserts left null in bit columns is set to 0 after the table.
class TableCopy {
public:
    TableCopy(const PhaseContext& run, const TableRecreation& names, nxRsJob& job,
              JobProgress* progressCtrl = nullptr, JobLabel* countCtrl = nullptr);
    ~TableCopy();
    TableCopy(const TableCopy&) = delete;
    TableCopy& operator=(const TableCopy&) = delete;

    // A user archive or dictionary: counted silently, walked forward-only and read-only. True
    // at its normal end whatever the job answered (a failed record is told by event and the run
    // goes on); only a failure of this call itself gives back the job's state (EVTError kind 3
    // "(<table>) <number>: <description>").
    bool CopyTableData(const QString& Table);

    // A system table, inside the run's transaction: counted with messages, walked with the job's
    // own cursor. The job's answer: false when the table could not be opened, a record failed
    // or a stop came.
    bool CopySystemTable(const QString& Table);

    // The bit columns of the destination table, in the server's order.
    QStringList GetBooleanColumns(const QString& Table);

    // Stores the count and raises EVTTableImportStart(Count).
    void RaiseTableImportStart(const QString& Table, std::int32_t Count);
    void RaiseTableImportEnd(const QString& Table);

    // The count given by the last RaiseTableImportStart.
    std::int32_t RecordCount() const noexcept { return m_recordCount; }

private:
    bool copy(const QString& table, bool userTable);
    void onBeforeJob(nxRs& rs, bool& result);
    void onRecord(nxRs& rs, bool& result);
    void onAfterJob(nxRs& rs, bool& result);
    void raiseError(const QString& text);

    PhaseContext m_run;
    const TableRecreation& m_names;
    nxRsJob& m_job;
    JobProgress* m_progressCtrl;
    JobLabel* m_countCtrl;

    // The current table.
    std::unique_ptr<ado::Command> m_command;
    QString m_autoIncrementName;
    std::int32_t m_autoIncrementIndex = -1;
    QString m_identityName;
    std::int32_t m_identityIndex = -1;
    QStringList m_booleanColumns;
    std::int32_t m_recordCount = 0;
    // The insert text of each pattern of null fields met so far ('1' a field present, '0'
    // null), without parameters: a table has few patterns and many records.
    QHash<QByteArray, InsertStatement> m_insertTexts;
};

} // namespace engine
