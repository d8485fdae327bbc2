#include "engine/IndexRecreation.h"

#include "engine/DbImportEvents.h"
#include "engine/IndexStatements.h"
#include "engine/SqlNames.h"
#include "engine/TableRecreation.h"

#include "dbaccess/nxConn.h"
#include "dbaccess/nxDb.h"
#include "frame/nxApp.h"
#include "frame/nxError.h"
#include "frame/Edge.h"

#include "platform/ado/Connection.h"
#include "platform/ado/Enums.h"
#include "platform/ado/Field.h"
#include "platform/ado/Recordset.h"
#include "platform/vb/Err.h"

using namespace Qt::StringLiterals;

namespace engine {

namespace {

vb::Variant field(ado::Recordset& rs, const char16_t* name) {
    return rs.Fields(QStringView(name)).Value();
}

bool flag(ado::Recordset& rs, const char16_t* name) {
    const vb::Variant v = field(rs, name);
    return !v.isNull() && v.toBool().value_or(false);
}

// Refused statements reach the run as this, so that its text names the server's reason.
struct Refused {
    vb::ErrRecord error;
};

} // namespace

IndexRecreation::IndexRecreation(const PhaseContext& run, const TableRecreation& names) noexcept
    : m_run(run), m_names(names) {}

QString IndexRecreation::StripBrackets(const QString& Name) { return engine::StripBrackets(Name); }

QString IndexRecreation::GetIndexName(const QString& IndexName, const QString& Table,
                                      const vb::Variant& PrimaryName) const {
    const NameDelimiters delimiters{m_run.dest.FldStartDel(), m_run.dest.FldEndDel(),
                                    m_run.dest.DbType()};
    return engine::GetIndexName(IndexName, Table, PrimaryName.isNull() ? QString()
                                                                        : PrimaryName.toString(),
                                delimiters);
}

bool IndexRecreation::CreateTableIndexes(QString& Table) {
    vb::ErrRecord failure;
    try {
        const ado::ConnectionPtr source = m_run.srcConn.Connection();
        if (!source) {
            vb::Raise(vb::errors::kObjectRequired, u"DbImport"_s,
                      vb::ErrorText(vb::errors::kObjectRequired));
        }
        ado::RecordsetPtr rs = source->OpenSchema(
            ado::SchemaEnum::adSchemaIndexes,
            {vb::Variant(), vb::Variant(), vb::Variant(), vb::Variant(), vb::Variant(Table)});
        if (rs->Bof() && rs->Eof()) {
            return true;
        }
        // The rows of one index are adjacent, its columns in key order: read them as the
        // rowset gives them.
        QList<IndexRow> rows;
        while (!rs->Eof()) {
            IndexRow row;
            row.indexName = field(*rs, u"INDEX_NAME").toString();
            row.primaryKey = flag(*rs, u"PRIMARY_KEY");
            row.unique = flag(*rs, u"UNIQUE");
            row.columnName = field(*rs, u"COLUMN_NAME").toString();
            row.collation = field(*rs, u"COLLATION").toLong().value_or(0);
            rows << row;
            rs->MoveNext();
        }
        rs->Close();
        const NameDelimiters delimiters{m_run.dest.FldStartDel(), m_run.dest.FldEndDel(),
                                        m_run.dest.DbType()};
        // Each statement runs before the next is looked at: the indexes made before a refused
        // one stay.
        for (const QString& statement :
             IndexStatements(Table, rows, delimiters, m_names.ServerKeywords())) {
            if (!m_run.dest.Execute(statement, false, ado::adExecuteNoRecords)) {
                const nxError& e = nxApp::LastError();
                throw Refused{vb::ErrRecord{e.Number(), e.Source(), e.Description(), {}, 0}};
            }
        }
        return true;
    } catch (const Refused& refused) {
        failure = refused.error;
    } catch (...) {
        frame::LoadAmbientError();
        failure = vb::Err();
    }
    if (m_run.events != nullptr) {
        m_run.events->EVTError(static_cast<std::int32_t>(DbImportErrorKind::IndexCreationFailed),
                               u"("_s + Table + u") "_s + QString::number(failure.Number) +
                                   u": "_s + failure.Description,
                               false);
    }
    return false;
}

} // namespace engine
