#include "engine/DbImport.h"

#include "engine/DbImportPhases.h"
#include "engine/SourceVerification.h"
#include "engine/SqlNames.h"

#include "schema/qzSystem.h"

#include "jobs/nxRsJob.h"

#include "dbaccess/nxConn.h"
#include "dbaccess/nxDb.h"

#include "frame/Edge.h"
#include "frame/nxApp.h"
#include "frame/nxLog.h"
#include "frame/nxStringBuilder.h"
#include "frame/nxSys.h"
#include "frame/nxWaitCursor.h"

#include "platform/ado/Field.h"
#include "platform/ado/adox/Catalog.h"
#include "platform/vb/Err.h"

using namespace Qt::StringLiterals;

namespace {

const QString kJetProvider = u"Microsoft.Jet.OLEDB.4.0"_s;
const QString kServerProvider = u"SQLOLEDB"_s;
const QString kCrLf = u"\r\n"_s;

constexpr long kExclamation = 48;

} // namespace

// A member that answered false where the run expects a raised error: the failure it recorded
// becomes the run's, so that it lands in the one trap.
void DbImport::raiseLastError() {
    const vb::ErrRecord e = vb::Err();
    vb::Raise(e.Number != 0 ? e.Number : vb::errors::kInvalidProcedureCall, e.Source,
              e.Description);
}

DbImport::DbImport(DbImportEvents* events)
    : m_events(events), m_dbCreate(&qzSystem::DbCreate),
      m_sb1(std::make_unique<nxStringBuilder>()), m_sb2(std::make_unique<nxStringBuilder>()) {}

DbImport::~DbImport() {
    m_phases.reset();
    m_sb1->Reset();
    m_sb2->Reset();
}

void DbImport::Stopped(bool /*value*/) {
    // Before the record job exists nothing is running that could stop, and the flag keeps its
    // value: the checks and the creation of the database cannot be stopped.
    // The flag is read back without letting the message queue run: the window's thread may be
    // the caller while the run's own thread is inside the job.
    if (nxRsJob* job = m_job.load()) {
        job->Job().StopJob(true);
        m_stopped = job->Job().StopRequested();
    }
}

void DbImport::raiseError(DbImportErrorKind kind, const QString& text, bool askViewLog) {
    raise([&](DbImportEvents& e) { e.EVTError(static_cast<std::int32_t>(kind), text, askViewLog); });
}

bool DbImport::Run(const QString& /*Source*/, QObject* OwnerWindow, const QString& /*Provider*/,
                   const QString& /*Extra*/) noexcept {
    m_ok = false;
    m_transLevel = 0;
    Next next = Next::CloseDown;
    try {
        next = runSteps(OwnerWindow) ? Next::CloseDown : Next::Exit;
    } catch (...) {
        if (!trapFailure()) {
            m_wait.reset();
            return false;
        }
    }
    if (next == Next::Exit) {
        m_wait.reset();
        return false;
    }
    closeDown();
    return m_ok;
}

// The one trap of the run: whatever fails from the folder check on ends here, shows nothing and
// goes on to the close-down. The transaction level is never cleared at commit, so after the
// system tables the rollback asked for here meets a connection without a transaction: that
// second failure leaves the run without its close-down, as the caller's own.
bool DbImport::trapFailure() {
    m_ok = false;
    const vb::ErrRecord failure = frame::currentErrorRecord();
    (void)failure;
    if (m_dest && m_transLevel > 0) {
        try {
            if (!m_dest->cn()) {
                vb::Raise(vb::errors::kObjectRequired, u"DbImport"_s,
                          vb::ErrorText(vb::errors::kObjectRequired));
            }
            m_dest->cn()->RollbackTrans();
        } catch (...) {
            frame::trapCurrentException(u"DbImport.DbImport()", false);
            return false;
        }
    }
    return true;
}

// Steps 2 to 28; false for a plain exit (no close-down), true to go on to the close-down.
bool DbImport::runSteps(QObject* ownerWindow) {
    for (Next (DbImport::*step)() : {&DbImport::openMaster, &DbImport::openLogAndSource}) {
        const Next next = (this->*step)();
        if (next != Next::Continue) {
            return next == Next::CloseDown;
        }
    }
    if (Next next = verifySource(ownerWindow); next != Next::Continue) {
        return next == Next::CloseDown;
    }
    for (Next (DbImport::*step)() :
         {&DbImport::createDatabase, &DbImport::openDestination, &DbImport::listSystemTables,
          &DbImport::copySystemTables, &DbImport::importUserTables, &DbImport::importDictionaries,
          &DbImport::finishConfiguration}) {
        const Next next = (this->*step)();
        if (next != Next::Continue) {
            return next == Next::CloseDown;
        }
    }
    return true;
}

// Steps 2 to 4: the folder of the source, the master connection, the name of the database.
DbImport::Next DbImport::openMaster() {
    nxSys& sys = nxApp::Sys();
    m_folder = sys.GetDir(m_dbSrc);
    if (!sys.DirExist(m_folder)) {
        nxApp::MsgBox(u"Cartella '"_s + m_folder + u"' non trovata. Verificare il percorso inserito."_s,
                      kExclamation);
        return Next::Exit;
    }

    QString connect = u"Provider=SQLOLEDB;Data Source="_s + m_dbServerName;
    if (!m_dbUsername.isEmpty()) {
        // With a login no catalog is named.
        connect += u";User ID="_s + m_dbUsername + u";Password="_s + m_dbPassword;
    } else {
        connect += u";Initial Catalog=master;Trusted_Connection=yes"_s;
    }
    m_master = ado::Connection::create();
    m_master->setConnectionString(connect);
    m_master->setCursorLocation(ado::CursorLocationEnum::adUseServer);
    m_master->Open();
    m_masterConn = std::make_shared<nxConn>();
    m_masterConn->Connection(m_master);

    // An existing database is refused only when the destination handle already holds an open
    // database with tables; a new run has no destination yet, so the probe answers no and the
    // existing database is created over as a new one.
    if (m_masterConn->DatabaseExists(m_dbName) && DestinationHasTables()) {
        raiseError(DbImportErrorKind::DatabaseNameRefused,
                   u"Un database '"_s + m_dbName + u"' non vuoto esiste già nel server SQL specificato."_s +
                       kCrLf + u"Indicare un diverso nome per il database da creare."_s);
        m_dest.reset();
        m_masterConn.reset();
        m_destConn.reset();
        return Next::Exit;
    }
    m_create = true;
    return Next::Continue;
}

bool DbImport::DestinationHasTables() noexcept {
    return IgnoreErrors(false, [&] {
        if (!m_dest || !m_dest->ConnUtils()) {
            vb::Raise(vb::errors::kObjectRequired, u"DbImport"_s,
                      vb::ErrorText(vb::errors::kObjectRequired));
        }
        ado::ConnectionPtr clone = m_dest->ConnUtils()->CloneConnection();
        ado::RecordsetPtr tables = clone->OpenSchema(
            ado::SchemaEnum::adSchemaTables, {vb::Variant(), vb::Variant(), vb::Variant(), u"TABLE"_s});
        const bool any = !(tables->Bof() && tables->Eof());
        tables->Close();
        m_dest->ConnUtils()->CloseConnection(clone);
        return any;
    });
}

// Steps 5 to 8: the wait cursor, the conversion log, the source and its metadata object.
DbImport::Next DbImport::openLogAndSource() {
    m_wait = std::make_unique<nxWaitCursor>();
    m_wait->Show(true);

    m_logPath = m_folder + u"ConversionLog.txt"_s;
    m_log = std::make_unique<nxLog>();
    m_log->LogSet(m_logPath, {}, false);
    m_log->LogOpen({}, nullptr, false);

    m_src = std::make_unique<nxDb>();
    if (!m_src->DbOpen(m_dbSrc, 9, false, kJetProvider, {}, 2, {}, {}, 0)) {
        const QString text =
            u"File '"_s + m_dbSrc + u"' non trovato. Verificare il percorso inserito."_s;
        raiseError(DbImportErrorKind::VerificationFailed, text);
        m_log->LogWrite(text);
        m_log->LogClose();
        return Next::Exit;
    }
    m_srcConn = std::make_shared<nxConn>();
    m_srcConn->Connection(m_src->ConnUtils()->CloneConnection());
    return Next::Continue;
}

bool DbImport::AnalyzeDatabase(bool& IdxOk) {
    std::shared_ptr<nxConn> master = m_masterConn;
    engine::SourceVerification check(
        m_srcConn->Connection(), m_src->Db(), *m_log, [master](const QString& name) {
            return master && (master->IsDbKeyword(name) || master->IsDbLiteral(name));
        });
    return check.AnalyzeDatabase(IdxOk);
}

// Steps 9 and 10: what the server would refuse stops the run here, with the log to read; keys
// that may be too long leave the choice to the operator.
DbImport::Next DbImport::verifySource(QObject* ownerWindow) {
    raiseError(DbImportErrorKind::Status, u"Inizio verifica database sorgente..."_s);
    bool idxOk = true;
    m_ok = AnalyzeDatabase(idxOk);
    if (!m_ok) {
        raiseError(DbImportErrorKind::VerificationFailed,
                   u"Per maggiori dettagli verificare il log contenuto in "_s + m_logPath +
                       u" e correggere i problemi ivi elencati."_s,
                   true);
        m_log->LogClose();
        m_src->DbClose();
        return Next::Exit;
    }
    if (!idxOk) {
        const QString text =
            u"Rilevati possibili problemi negli indici delle tabelle."_s + kCrLf + kCrLf +
            u"Si consiglia di visualizzare il log contenuto in "_s + m_logPath +
            u" e scegliere se proseguire oppure interrompere e correggere i problemi ivi elencati."_s;
        nxLog* log = m_log.get();
        const long answer = nxApp::MsgBoxExHelp(ownerWindow, text, 16385,
                                                u"&Continua|&Annulla|&Vedi log"_s,
                                                [log] { log->LogView(); });
        if (answer != 1) {
            m_log->LogClose();
            m_src->DbClose();
            return Next::Exit;
        }
    }
    raiseError(DbImportErrorKind::Status, u"Verifica database sorgente completata."_s);
    return Next::Continue;
}

// Steps 11 and 12: the server database with every system table of the suite.
DbImport::Next DbImport::createDatabase() {
    if (m_create) {
        raiseError(DbImportErrorKind::Status,
                   u"Creazione database '"_s + m_dbName + u"' su "_s + m_dbServerName + u"."_s);
        if (!m_dbCreate(m_dbName, 10, true, kServerProvider, m_dbServerName, 5, m_dbUsername,
                        m_dbPassword)) {
            raiseError(DbImportErrorKind::CreationFailed,
                       u"Errore di creazione database "_s + m_dbName);
            m_log->LogClose();
            m_src->DbClose();
            return Next::Exit;
        }
    } else {
        // Every run creates its database (Create is set on both roads of the name check), so
        // this completion of an existing one is never taken; it stays for the day it is.
        raiseError(DbImportErrorKind::Status, u"Creazione tabelle di sistema nel database '"_s +
                                                  m_dbName + u"' su \\\\"_s + m_dbServerName +
                                                  u"."_s);
        if (!m_dbCreate(m_dbName, 8, true, kServerProvider, m_dbServerName, 5, m_dbUsername,
                        m_dbPassword)) {
            raiseError(DbImportErrorKind::CreationFailed, u"Errore di creazione tabelle di sistema."_s);
            m_log->LogClose();
            m_src->DbClose();
            return Next::Exit;
        }
    }
    raiseError(DbImportErrorKind::Status, u"Creazione database completata."_s);
    return Next::Continue;
}

// Steps 13 to 15: the destination, the identity objects, the record job.
DbImport::Next DbImport::openDestination() {
    m_dest = std::make_unique<nxDb>();
    m_dest->DbOpen(m_dbName, 8, false, kServerProvider, m_dbServerName, 2, m_dbUsername,
                   m_dbPassword, 0);
    if (!m_dest->cn() || !m_dest->ConnUtils()) {
        raiseLastError();
    }
    m_dest->cn()->setCommandTimeout(60);
    m_destConn = std::make_shared<nxConn>();
    m_destConn->Connection(m_dest->ConnUtils()->CloneConnection());

    m_phases = std::make_unique<engine::DbImportPhases>(
        engine::DbImportRun{*m_src, *m_dest, *m_srcConn, *m_destConn, *m_masterConn, *m_sb1,
                            *m_sb2, m_events, *m_log, m_progressCtrl, m_countCtrl});
    if (!m_phases->CreateSysIDsTable()) {
        raiseError(DbImportErrorKind::CreationFailed, u"Errore di creazione stored procedure."_s);
        m_log->LogClose();
        m_src->DbClose();
        m_dest->DbClose();
        return Next::Exit;
    }

    raise([](DbImportEvents& e) { e.EVTImportStart(); });
    m_cExp = std::make_unique<nxRsJob>();
    m_job = m_cExp.get();
    m_phases->AttachJob(*m_cExp);
    return Next::Continue;
}

// Step 16: the system tables are those the destination holds now; a table named with a leading
// digit is an archive, so the destination is not the new database it should be.
DbImport::Next DbImport::listSystemTables() {
    m_sysTables = QStringList{QString()};
    ado::adox::Tables& tables = m_dest->Db()->Tables();
    for (long i = 0; i < tables.Count(); ++i) {
        ado::adox::Table& table = tables.Item(i);
        if (table.Type().toUpper() != u"TABLE"_s) {
            continue;
        }
        if (engine::StartsWithDigit(table.Name())) {
            nxApp::MsgBox(
                u"ATTENZIONE!!! Il database destinazione probabilmente contiene archivi utente."_s +
                    kCrLf + u"Verificare il database destinazione indicato, "_s +
                    u"indicare un altro database destinazione e/o un altro server e ripetere l'importazione."_s,
                kExclamation);
            return Next::CloseDown;
        }
        // Slot 0 stands from the start; the list grows only when its last slot is filled.
        if (!m_sysTables.last().isEmpty()) {
            m_sysTables.append(QString());
        }
        m_sysTables.last() = table.Name();
    }
    SortTablesByDependency(m_sysTables, m_dest->Db()->Tables());
    return Next::Continue;
}

void DbImport::SortTablesByDependency(QStringList& tables, ado::adox::Tables& catalog) {
    qsizetype i = 0;
    while (i < tables.size()) {
        bool swapped = false;
        ado::adox::Keys& keys = catalog.Item(tables.at(i)).Keys();
        for (long k = 0; k < keys.Count() && !swapped; ++k) {
            ado::adox::Key& key = keys.Item(k);
            if (key.Type() != ado::KeyTypeEnum::adKeyForeign) {
                continue;
            }
            for (qsizetype j = i + 1; j < tables.size(); ++j) {
                if (tables.at(j).compare(key.RelatedTable(), Qt::CaseInsensitive) == 0) {
                    tables.swapItemsAt(i, j);
                    swapped = true;
                    break;
                }
            }
        }
        if (!swapped) {
            ++i;
        }
    }
}

// Steps 18 to 20: the system tables, all or none, in one transaction of the destination.
DbImport::Next DbImport::copySystemTables() {
    ado::Connection& cn = *m_dest->cn();
    m_transLevel = static_cast<std::int32_t>(cn.BeginTrans());
    const auto last = static_cast<std::int16_t>(m_sysTables.size() - 1);
    raise([&](DbImportEvents& e) { e.EVTSysTableImportStart(last); });
    for (qsizetype i = 0; i < m_sysTables.size(); ++i) {
        const QString& name = m_sysTables.at(i);
        if (!m_srcConn->TableExists(name)) {
            continue;
        }
        raise([&](DbImportEvents& e) {
            e.EVTSysTableImporting(static_cast<std::int16_t>(i), name);
        });
        m_ok = m_phases->CopySystemTable(name);
        if (Stopped()) {
            nxApp::MsgBox(u"Importazione interrotta."_s, kExclamation);
            cn.RollbackTrans();
            return Next::CloseDown;
        }
        if (!m_ok) {
            nxApp::MsgBox(u"Errore trasferendo la tabella "_s + name + u"."_s, kExclamation);
            cn.RollbackTrans();
            return Next::CloseDown;
        }
        nxApp::DoEvents();
    }
    cn.CommitTrans();
    return Next::Continue;
}

void DbImport::closeList() noexcept {
    if (m_list) {
        IgnoreErrors([&] {
            if (m_list->State() != ado::adStateClosed) {
                m_list->Close();
            }
        });
        m_list.reset();
    }
}

// Steps 29 to 32: everything the run opened is closed in every run that got this far; the
// source is renamed only after a complete run that nobody stopped.
void DbImport::closeDown() {
    closeList();
    m_wait.reset();
    raise([](DbImportEvents& e) { e.EVTImportEnd(); });
    if (m_src) {
        IgnoreErrors([&] {
            if (m_src->ConnUtils() && m_srcConn) {
                m_src->ConnUtils()->CloseConnection(m_srcConn->Connection());
            }
            m_src->DbClose();
        });
        // The destination is closed under the same test of the source; a run trapped before
        // the destination was made has none to close.
        if (m_dest) {
            IgnoreErrors([&] {
                if (m_dest->ConnUtils() && m_destConn) {
                    m_dest->ConnUtils()->CloseConnection(m_destConn->Connection());
                }
                m_dest->DbClose();
            });
        }
    }
    if (m_ok && !Stopped() && m_phases) {
        m_phases->RenameSource(m_dbSrc);
    }
    if (m_log) {
        m_log->LogClose(u"Fine procedura di conversione."_s);
    }
}
