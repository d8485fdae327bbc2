#include "engine/DbImportPhases.h"

#include "engine/ConfigurationSwitch.h"

#include "frame/Edge.h"

#include "platform/vb/Err.h"

using namespace Qt::StringLiterals;

namespace engine {

namespace {

// An operation this build does not carry yet: it refuses, with the reason in the last-error
// record, and the run reports the failure as it reports any other.
template <class R> R notAvailable(QStringView label, R failed) {
    return Edge(label, true, failed, [&]() -> R {
        vb::Raise(vb::errors::kInvalidProcedureCall, u"DbImport"_s,
                  label.toString() + u": operazione non disponibile in questa versione."_s);
    });
}

} // namespace

// The phases are not part of this build yet; nothing to hold.
struct DbImportPhases::Parts {};

DbImportPhases::DbImportPhases(const DbImportRun& run)
    : m_run(run), m_context{run.src,  run.dest, run.srcConn, run.destConn, run.masterConn,
                            run.sb1, run.sb2,  run.events,  run.log},
      m_parts(std::make_unique<Parts>()) {}

DbImportPhases::~DbImportPhases() = default;

bool DbImportPhases::CreateSysIDsTable() {
    return notAvailable(u"DbImport.CreateSysIDsTable()", false);
}

void DbImportPhases::AttachJob(nxRsJob& /*job*/) {}

bool DbImportPhases::CopySystemTable(const QString& /*table*/) {
    return notAvailable(u"DbImport.CopyTableData()", false);
}

bool DbImportPhases::CopyTableData(const QString& /*table*/) {
    return notAvailable(u"DbImport.CopyTableData()", false);
}

QString DbImportPhases::GetCreateTableSql(const QString& /*table*/) {
    return notAvailable(u"DbImport.GetCreateTableSql()", QString());
}

bool DbImportPhases::CreateTableIndexes(QString& /*table*/) {
    return notAvailable(u"DbImport.CreateTableIndexes()", false);
}

void DbImportPhases::SaveConfiguration(const QString& dbSrc, const QString& serverName,
                                       const QString& databaseName, const QString& description,
                                       const QString& username, const QString& password) {
    ConfigurationSwitch(&m_run.log)
        .SaveConfiguration(dbSrc,
                           ServerSettings{serverName, databaseName, description, username, password});
}

bool DbImportPhases::RenameSource(const QString& dbSrc) {
    return ConfigurationSwitch(&m_run.log).RenameSource(dbSrc);
}

} // namespace engine
