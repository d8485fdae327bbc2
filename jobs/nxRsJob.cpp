#include "jobs/nxRsJob.h"

#include "recordset/nxRs.h"

#include "dbaccess/nxDb.h"

#include "frame/nxApp.h"

using namespace Qt::StringLiterals;

nxRsJob::nxRsJob() {
    m_job.Title(u"Elaborazione record"_s);
    m_job.Confirm(true);
    m_job.EndMessage(true);
    m_job.CountUnit(u"record"_s);
    m_job.OnJob = [this](bool& result, bool param) { work(result, param); };
    m_job.OnStatus = [this](std::int32_t count) {
        if (OnStatus) {
            OnStatus(count);
        }
    };
    RsClose();
}

nxRsJob::~nxRsJob() {
    m_job.OnJob = nullptr;
    RsClose();
}

bool nxRsJob::RsOpen(const QString& Source, bool Silent) {
    if (!nxApp::IsInit() || m_job.IsRunning()) {
        return false;
    }
    RsClose();
    if (m_db == nullptr || !m_db->IsOpened()) {
        return false;
    }
    QString sql =
        m_db->TdExist(Source) ? u"select * from "_s + m_db->NormalizeTbl(Source, true) : Source;
    if (!m_filter.isEmpty() && !sql.contains(u" where "_s, Qt::CaseInsensitive)) {
        sql += u" where ("_s + m_filter + u')';
    }
    if (!m_order.isEmpty() && !sql.contains(u" order by "_s, Qt::CaseInsensitive)) {
        sql += u" order by "_s + m_order;
    }
    auto opened = std::make_unique<nxRs>();
    opened->Db(m_db);
    if (!opened->RsOpen(sql, m_cursorType, m_lockType, Silent, m_cursorLocation)) {
        return false;
    }
    m_own = std::move(opened);
    m_rs = m_own.get();
    m_ready = m_rs->IsOpened();
    return m_ready;
}

bool nxRsJob::RsOpen(nxRs& Source, bool Silent) {
    static_cast<void>(Silent);
    if (!nxApp::IsInit() || m_job.IsRunning()) {
        return false;
    }
    RsClose();
    if (!Source.IsOpened()) {
        return false;
    }
    m_db = Source.Db();
    Source.MoveFirst(true);
    m_rs = &Source;
    m_ready = m_rs->IsOpened();
    return m_ready;
}

void nxRsJob::RsClose() {
    if (m_job.IsRunning()) {
        return; // the recordset can't go away under the walk
    }
    if (m_own) {
        m_own->RsClose();
        m_own.reset();
    }
    m_rs = nullptr;
    m_ready = false;
}

QString nxRsJob::nameTail(const QString& spec) const {
    if (!m_name.isEmpty() && spec.isEmpty()) {
        return u" di '"_s + m_name + u'\'';
    }
    return spec;
}

QString nxRsJob::StdConfirmText(const QString& Text, const QString& Spec) {
    const QString text =
        (Text.isEmpty() ? u"Confermi l'elaborazione dei record"_s : Text) + nameTail(Spec) + u'?';
    m_job.ConfirmText(text);
    return text;
}

QString nxRsJob::StdStatus(const QString& Text, const QString& Spec) {
    m_status = (Text.isEmpty() ? u"Elaborazione record"_s : Text) + nameTail(Spec) + u"..."_s;
    return m_status;
}

QString nxRsJob::StdEndMessageOk(const QString& Text) {
    const QString text = Text.isEmpty() ? u"Elaborazione completata con successo."_s : Text;
    m_job.EndMessageOk(text);
    return text;
}

QString nxRsJob::StdEndMessageErr(const QString& Text) {
    const QString text = Text.isEmpty() ? u"Elaborazione completata con errori."_s : Text;
    m_job.EndMessageErr(text);
    return text;
}

bool nxRsJob::Start(bool Param) {
    if (!m_ready || m_rs == nullptr || m_job.IsRunning()) {
        return false;
    }
    if (m_job.ConfirmText().isEmpty()) {
        StdConfirmText();
    }
    if (m_status.isEmpty()) {
        StdStatus();
    }
    if (m_job.EndMessageOk().isEmpty()) {
        StdEndMessageOk();
    }
    if (m_job.EndMessageErr().isEmpty()) {
        StdEndMessageErr();
    }
    // Read once: the count runs a query.
    m_job.MaxCount(m_rs->Count());
    return m_job.Start(QString(), Param);
}

void nxRsJob::work(bool& result, bool param) {
    nxRs& rs = *m_rs;
    if (OnBeforeJob) {
        OnBeforeJob(rs, result, param);
    }
    if (result && !m_skipRecords) {
        const bool forwardOnly =
            rs.rs() && rs.rs()->CursorType() == ado::CursorTypeEnum::adOpenForwardOnly;
        if (forwardOnly) {
            result = rs.Requery(param); // a forward-only cursor can't go back to its start
        } else {
            rs.MoveFirst(true);
        }
        m_endJob = false;
        while (result && !rs.Eof() && !m_endJob) {
            m_job.Status(rs.Position(), m_status, false);
            result = !m_job.Stopped();
            if (result && OnRecord) {
                OnRecord(rs, result, param);
            }
            if (result) {
                rs.MoveNext();
            } else {
                m_endJob = true;
            }
        }
    }
    if (OnAfterJob) {
        OnAfterJob(rs, result, param);
    }
}
