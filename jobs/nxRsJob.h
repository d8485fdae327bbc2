#pragma once

#include "jobs/nxJob.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <memory>

class nxDb;
class nxRs;

// A job over the records of one recordset: it opens the source (a table, a statement, or a
// recordset the caller holds), sets the job's scale to the record count, walks the records in
// order and raises one event before, one for each record and one after. The walk ends at the
// last record, at a stop, when OnRecord reports a failure, or when the owner sets EndJob.
class nxRsJob {
public:
    nxRsJob();
    nxRsJob(const nxRsJob&) = delete;
    nxRsJob& operator=(const nxRsJob&) = delete;
    ~nxRsJob();

    // `result` is true on entry; a false one ends the walk and makes the job fail. `param` is
    // the one given to Start.
    using Event = std::function<void(nxRs& rs, bool& result, bool param)>;
    Event OnBeforeJob;
    Event OnRecord;
    // Always raised, also after OnBeforeJob said no or a stop came, so the owner cleans up in
    // one place.
    Event OnAfterJob;
    std::function<void(std::int32_t count)> OnStatus;

    nxJob& Job() noexcept { return m_job; }
    nxDb* Db() const noexcept { return m_db; }
    void Db(nxDb* db) noexcept { m_db = db; }
    const QString& Filter() const noexcept { return m_filter; }
    void Filter(const QString& value) { m_filter = value; }
    const QString& Order() const noexcept { return m_order; }
    void Order(const QString& value) { m_order = value; }
    long CursorType() const noexcept { return m_cursorType; }
    void CursorType(long value) noexcept { m_cursorType = value; }
    long LockType() const noexcept { return m_lockType; }
    void LockType(long value) noexcept { m_lockType = value; }
    long CursorLocation() const noexcept { return m_cursorLocation; }
    void CursorLocation(long value) noexcept { m_cursorLocation = value; }
    const QString& Name() const noexcept { return m_name; }
    void Name(const QString& value) { m_name = value; }
    // The status text shown for each record.
    const QString& Status() const noexcept { return m_status; }
    void Status(const QString& value) { m_status = value; }
    bool SkipRecords() const noexcept { return m_skipRecords; }
    void SkipRecords(bool value) noexcept { m_skipRecords = value; }
    bool EndJob() const noexcept { return m_endJob; }
    void EndJob(bool value) noexcept { m_endJob = value; }

    bool IsReady() const noexcept { return m_ready; }
    nxRs* rs() const noexcept { return m_rs; }

    // A table name or a statement, opened here on Db and closed here. A statement that already
    // has " where " or " order by " keeps its own and ignores Filter or Order.
    bool RsOpen(const QString& Source, bool Silent = false);
    // An open recordset of the caller's, which stays the caller's to close.
    bool RsOpen(nxRs& Source, bool Silent = false);
    void RsClose();

    QString StdConfirmText(const QString& Text = {}, const QString& Spec = {});
    QString StdStatus(const QString& Text = {}, const QString& Spec = {});
    QString StdEndMessageOk(const QString& Text = {});
    QString StdEndMessageErr(const QString& Text = {});

    // False at once when not ready or running; otherwise the job's result. A stop makes it
    // false, as does an OnRecord or OnBeforeJob that reports a failure.
    bool Start(bool Param = false);

private:
    void work(bool& result, bool param);
    QString nameTail(const QString& spec) const;

    nxJob m_job;
    nxDb* m_db = nullptr;
    QString m_filter;
    QString m_order;
    long m_cursorType = 1;     // keyset
    long m_lockType = 3;       // optimistic
    long m_cursorLocation = 3; // client
    QString m_name;
    QString m_status;
    bool m_skipRecords = false;
    bool m_endJob = false;
    bool m_ready = false;
    nxRs* m_rs = nullptr;
    std::unique_ptr<nxRs> m_own; // the recordset opened here
};
