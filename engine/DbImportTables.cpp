#include "engine/DbImport.h"

#include "engine/DbImportPhases.h"

#include "dbaccess/nxConn.h"
#include "dbaccess/nxDb.h"

#include "frame/nxApp.h"

#include "platform/ado/Field.h"
#include "platform/vb/Err.h"

// The archives and dictionaries of a conversion, each created, indexed and filled, and the
// description of the new database.

using namespace Qt::StringLiterals;

namespace {

constexpr long kExclamation = 48;
constexpr long kQuestionYesNo = 36;
constexpr long kYes = 6;
// Options of a command that returns no records.
constexpr long kNoRecords = 128;

// The first field of the list's current row.
vb::Variant firstValue(ado::Recordset& rs) { return rs.Fields(0).Value(); }

// The count of a list table of the destination, on the list recordset.
long listCount(ado::RecordsetPtr& list, const ado::ConnectionPtr& cn, const QString& table) {
    list = std::make_shared<ado::Recordset>();
    list->setCursorLocation(ado::CursorLocationEnum::adUseServer);
    list->Open(u"select count(*) from "_s + table, cn, ado::CursorTypeEnum::adOpenForwardOnly);
    return firstValue(*list).toLong().value_or(0);
}

} // namespace

// Steps 21 to 23: each archive DB_ELENCO lists, created, indexed, then filled.
DbImport::Next DbImport::importUserTables() {
    const long count = listCount(m_list, m_dest->cn(), u"DB_ELENCO"_s);
    if (count < 1) {
        return Next::Continue;
    }
    raise([&](DbImportEvents& e) {
        e.EVTUserTableImportStart(static_cast<std::int16_t>(count));
    });
    m_list->Close();
    m_list->Open(u"select SYS_SERIALE, ARCHIVIO from DB_ELENCO order by SYS_SERIALE"_s,
                 m_dest->cn(), ado::CursorTypeEnum::adOpenForwardOnly,
                 ado::LockTypeEnum::adLockReadOnly);
    std::int16_t index = 0;
    while (!m_list->Eof() && m_ok) {
        if (Stopped()) {
            if (stopAsked()) {
                return Next::CloseDown;
            }
        }
        m_lastTable = firstValue(*m_list).toString();
        m_lastDescription = m_list->Fields(1).Value();
        const QString table = m_lastTable;
        const vb::Variant description = m_lastDescription;
        raise([&](DbImportEvents& e) { e.EVTUserTableImporting(index, table, description); });
        nxApp::DoEvents();
        if (!m_srcConn->TableExists(table)) {
            raise([&](DbImportEvents& e) { e.EVTUserTableNotExisting(table, description); });
        } else {
            raise([&](DbImportEvents& e) { e.EVTUserTableCreating(table, description); });
            if (m_destConn->TableExists(table)) {
                nxApp::MsgBox(u"Errore: la tabella "_s + table +
                                  u" esiste già nel db destinazione."_s,
                              kExclamation);
                return Next::CloseDown;
            }
            createUserTable(table);
            raise([&](DbImportEvents& e) { e.EVTUserTableIndexCreating(table, description); });
            QString indexed = table;
            const bool indexesOk = m_phases->CreateTableIndexes(indexed);
            m_ok = m_ok && indexesOk;
            raise([&](DbImportEvents& e) { e.EVTUserTableDataCopy(table, description); });
            m_ok = m_phases->CopyTableData(table);
        }
        m_list->MoveNext();
        ++index;
    }
    closeList();
    if (!m_ok) {
        nxApp::MsgBox(u"Errore trasferendo l'archivio '"_s + m_lastDescription.toString() +
                          u"' ("_s + m_lastTable + u")."_s,
                      kExclamation);
        return Next::CloseDown;
    }
    return Next::Continue;
}

// The stop question of the archives: Yes ends the run, No clears the flag and goes on.
bool DbImport::stopAsked() {
    if (nxApp::MsgBox(u"Vuoi interrompere l'operazione di esportazione del database?"_s,
                      kQuestionYesNo) == kYes) {
        return true;
    }
    m_stopped = false;
    return false;
}

bool DbImport::createUserTable(const QString& table) {
    return m_dest->Execute(m_phases->GetCreateTableSql(table), false, kNoRecords);
}

// Steps 24 to 27: the dictionaries come from the source's own tables; the count of
// DB_DIZIONARIO only opens the phase. A stop ends the loop without a question, and the run goes
// on to point the suite at the server.
DbImport::Next DbImport::importDictionaries() {
    const long count = listCount(m_list, m_dest->cn(), u"DB_DIZIONARIO"_s);
    if (count >= 1) {
        raise([&](DbImportEvents& e) {
            e.EVTDictionayImportStart(static_cast<std::int16_t>(count));
        });
        m_list->Close();
        m_list = m_srcConn->Connection()->OpenSchema(
            ado::SchemaEnum::adSchemaTables, {vb::Variant(), vb::Variant(), vb::Variant(), u"TABLE"_s});
        m_list->setFilter(u"TABLE_NAME like 'DIZ_%'"_s);
        std::int16_t index = 0;
        if (!(m_list->Bof() && m_list->Eof())) {
            while (!m_list->Eof() && m_ok && !Stopped()) {
                m_lastTable = m_list->Fields(u"TABLE_NAME").Value().toString();
                const QString table = m_lastTable;
                raise([&](DbImportEvents& e) { e.EVTDictionaryImporting(index, table); });
                nxApp::DoEvents();
                if (!m_srcConn->TableExists(table)) {
                    raise([&](DbImportEvents& e) { e.EVTDictionaryNotExisting(table); });
                } else {
                    raise([&](DbImportEvents& e) { e.EVTDictionaryCreating(table, 1); });
                    if (m_destConn->TableExists(table)) {
                        nxApp::MsgBox(u"Errore: il dizionario "_s + table +
                                          u" esiste già nel db destinazione."_s,
                                      kExclamation);
                        return Next::CloseDown;
                    }
                    createUserTable(table);
                    raise([&](DbImportEvents& e) { e.EVTDictionaryCreating(table, 2); });
                    m_ok = m_phases->CopyTableData(table);
                    raise([&](DbImportEvents& e) { e.EVTDictionaryCreating(table, 3); });
                    QString indexed = table;
                    m_ok = m_phases->CreateTableIndexes(indexed);
                }
                m_list->MoveNext();
                ++index;
            }
        }
        closeList();
    }
    if (!m_ok) {
        nxApp::MsgBox(u"Errore trasferendo il dizionario "_s + m_lastTable + u"."_s, kExclamation);
        return Next::CloseDown;
    }
    return Next::Continue;
}

// Step 28: the description of the new database (one copied from the source stays), then
// config.ini. An apostrophe in the description makes the update fail into the trap.
DbImport::Next DbImport::finishConfiguration() {
    if (!m_phases->StoreDescription(m_dbDesc)) {
        raiseLastError();
    }
    m_phases->SaveConfiguration(m_dbSrc, m_dbServerName, m_dbName, m_dbDesc, m_dbUsername,
                                m_dbPassword);
    m_ok = true;
    return Next::Continue;
}
