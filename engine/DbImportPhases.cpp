#include "engine/DbImportPhases.h"

#include "engine/ConfigurationSwitch.h"
#include "engine/IdentityObjects.h"
#include "engine/IndexRecreation.h"
#include "engine/TableCopy.h"
#include "engine/TableRecreation.h"

#include "dbaccess/nxConn.h"

namespace engine {

struct DbImportPhases::Parts {
    explicit Parts(const PhaseContext& context) : names(context), indexes(context, names) {}
    TableRecreation names;
    IndexRecreation indexes;
    std::unique_ptr<TableCopy> copy;
};

DbImportPhases::DbImportPhases(const DbImportRun& run)
    : m_run(run), m_context{run.src,  run.dest, run.srcConn, run.destConn, run.masterConn,
                            run.sb1, run.sb2,  run.events,  run.log},
      m_parts(std::make_unique<Parts>(m_context)) {}

DbImportPhases::~DbImportPhases() = default;

bool DbImportPhases::CreateSysIDsTable() { return IdentityObjects(m_run.dest).CreateSysIDsTable(); }

void DbImportPhases::AttachJob(nxRsJob& job) {
    m_parts->copy = std::make_unique<TableCopy>(m_context, m_parts->names, job, m_run.progress,
                                                m_run.count);
}

bool DbImportPhases::CopySystemTable(const QString& table) {
    return m_parts->copy->CopySystemTable(table);
}

bool DbImportPhases::CopyTableData(const QString& table) {
    return m_parts->copy->CopyTableData(table);
}

QString DbImportPhases::GetCreateTableSql(const QString& table) {
    return m_parts->names.GetCreateTableSql(table, m_run.srcConn.Connection());
}

bool DbImportPhases::CreateTableIndexes(QString& table) {
    return m_parts->indexes.CreateTableIndexes(table);
}

bool DbImportPhases::StoreDescription(const QString& description) {
    return engine::StoreDescription(m_run.dest, description);
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
