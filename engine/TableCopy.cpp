#include "engine/TableCopy.h"

#include "engine/DbImportEvents.h"
#include "engine/RecordInsert.h"
#include "engine/TableRecreation.h"

#include "dbaccess/nxConn.h"
#include "dbaccess/nxDb.h"
#include "frame/nxStringBuilder.h"
#include "jobs/nxRsJob.h"
#include "frame/Edge.h"
#include "recordset/nxRs.h"

#include "platform/ado/Connection.h"
#include "platform/ado/Enums.h"
#include "platform/ado/Field.h"
#include "platform/ado/Recordset.h"
#include "platform/ado/adox/Catalog.h"
#include "platform/ado/adox/Objects.h"
#include "platform/vb/Err.h"

using namespace Qt::StringLiterals;

namespace engine {

namespace {

constexpr long kForwardOnly = 0;
constexpr long kReadOnly = 1;
constexpr long kBoolean = 11;

QString errorText(const vb::ErrRecord& e) {
    return QString::number(e.Number) + u": "_s + e.Description;
}

} // namespace

TableCopy::TableCopy(const PhaseContext& run, const TableRecreation& names, nxRsJob& job,
                     JobProgress* progressCtrl, JobLabel* countCtrl)
    : m_run(run), m_names(names), m_job(job), m_progressCtrl(progressCtrl),
      m_countCtrl(countCtrl) {
    m_job.OnBeforeJob = [this](nxRs& rs, bool& result, bool) { onBeforeJob(rs, result); };
    m_job.OnRecord = [this](nxRs& rs, bool& result, bool) { onRecord(rs, result); };
    m_job.OnAfterJob = [this](nxRs& rs, bool& result, bool) { onAfterJob(rs, result); };
}

TableCopy::~TableCopy() {
    m_job.OnBeforeJob = nullptr;
    m_job.OnRecord = nullptr;
    m_job.OnAfterJob = nullptr;
}

bool TableCopy::CopyTableData(const QString& Table) { return copy(Table, true); }

bool TableCopy::CopySystemTable(const QString& Table) { return copy(Table, false); }

bool TableCopy::copy(const QString& table, bool userTable) {
    bool answer = false;
    try {
        m_booleanColumns = GetBooleanColumns(table);
        // A user table is counted silently: a table the count cannot read still gets its copy.
        RaiseTableImportStart(table, m_run.src.TdRecordCount(table, userTable));
        m_job.Db(&m_run.src);
        if (userTable) {
            m_job.CursorType(kForwardOnly);
            m_job.LockType(kReadOnly);
        }
        m_job.RsOpen(table);
        answer = m_job.IsReady();
        if (answer) {
            nxJob& job = m_job.Job();
            job.UseForm(false);
            job.Percent(false);
            job.ProgressCtrl(m_progressCtrl);
            job.CountCtrl(m_countCtrl);
            job.Confirm(false);
            job.EndMessage(false);
            answer = m_job.Start(false);
        }
        m_job.RsClose();
        RaiseTableImportEnd(table);
        // A record that failed is told by its own event; the run goes on with the next table.
        return userTable ? true : answer;
    } catch (...) {
        frame::LoadAmbientError();
    }
    const vb::ErrRecord failure = vb::Err();
    m_job.RsClose();
    raiseError(u"("_s + table + u") "_s + errorText(failure));
    return answer;
}

QStringList TableCopy::GetBooleanColumns(const QString& Table) {
    QStringList columns;
    const ado::ConnectionPtr clone = m_run.destConn.CloneConnection();
    if (!clone) {
        return columns;
    }
    ado::RecordsetPtr rs = clone->OpenSchema(ado::SchemaEnum::adSchemaColumns,
                                             {vb::Variant(), vb::Variant(), vb::Variant(Table)});
    while (!rs->Eof()) {
        if (rs->Fields(u"DATA_TYPE").Value().toLong().value_or(0) == kBoolean) {
            columns << rs->Fields(u"COLUMN_NAME").Value().toString();
        }
        rs->MoveNext();
    }
    rs->Close();
    m_run.destConn.CloseConnection(clone);
    return columns;
}

void TableCopy::RaiseTableImportStart(const QString& Table, std::int32_t Count) {
    Q_UNUSED(Table);
    m_recordCount = Count;
    if (m_run.events != nullptr) {
        m_run.events->EVTTableImportStart(Count);
    }
}

void TableCopy::RaiseTableImportEnd(const QString& Table) {
    Q_UNUSED(Table);
    if (m_run.events != nullptr) {
        m_run.events->EVTTableImportEnd();
    }
}

void TableCopy::onBeforeJob(nxRs& rs, bool& result) {
    Q_UNUSED(result);
    // The inserts get a connection of their own, outside the run's transaction.
    const ado::ConnectionPtr destination = m_run.destConn.Connection();
    if (!destination) {
        vb::Raise(vb::errors::kObjectRequired, u"DbImport"_s,
                  vb::ErrorText(vb::errors::kObjectRequired));
    }
    m_command = std::make_unique<ado::Command>();
    m_command->setActiveConnection(destination->ConnectionString());
    m_command->setCommandType(ado::CommandTypeEnum::adCmdText);

    m_autoIncrementName.clear();
    m_autoIncrementIndex = -1;
    m_identityName.clear();
    m_identityIndex = -1;
    m_insertTexts.clear();

    const ado::adox::CatalogPtr& catalog = m_run.src.Db();
    if (catalog) {
        ado::adox::Columns& columns = catalog->Tables().Item(rs.Name()).Columns();
        for (long i = 0; i < columns.Count(); ++i) {
            ado::adox::Column& column = columns.Item(i);
            const ado::Property* autoIncrement = column.Properties().find(u"Autoincrement");
            if (autoIncrement != nullptr && autoIncrement->Value().toBool().value_or(false)) {
                m_autoIncrementName = column.Name();
                m_autoIncrementIndex = rs.FldIndex(vb::Variant(m_autoIncrementName));
                break;
            }
        }
    }
    const std::shared_ptr<nxConn>& destMeta = m_run.dest.ConnUtils();
    QString identity;
    if (destMeta && destMeta->HasIdentityField(rs.Name(), &identity)) {
        m_identityName = identity;
        m_identityIndex = rs.FldIndex(vb::Variant(identity));
    }
}

void TableCopy::onRecord(nxRs& rs, bool& result) {
    try {
        if (!m_command) {
            vb::Raise(vb::errors::kObjectRequired, u"DbImport"_s,
                      vb::ErrorText(vb::errors::kObjectRequired));
        }
        ado::Parameters& parameters = m_command->Parameters();
        while (parameters.Count() > 0) {
            parameters.Delete(parameters.Count() - 1);
        }
        // Null fields are left out, so their columns take the server's default.
        ado::Fields& fields = rs.rs()->Fields();
        const long count = fields.Count();
        QList<RecordField> present;
        present.reserve(count);
        QByteArray pattern(count, '0');
        for (long i = 0; i < count; ++i) {
            vb::Variant value = rs.FldGet(vb::Variant(static_cast<std::int32_t>(i)), vb::Null{});
            if (value.isNull()) {
                continue;
            }
            pattern[static_cast<qsizetype>(i)] = '1';
            ado::Field& f = fields.Item(i);
            present.append({f.Name(), i, static_cast<long>(f.Type()), f.DefinedSize(),
                            std::move(value)});
        }
        auto text = m_insertTexts.constFind(pattern);
        if (text == m_insertTexts.constEnd()) {
            text = m_insertTexts.insert(
                pattern, ComposeInsertText(rs.Name(), present,
                                           {m_autoIncrementIndex, m_identityIndex},
                                           m_names.ServerKeywords()));
        }
        for (InsertParameter& p : InsertParameters(std::move(present))) {
            ado::ParameterPtr parameter = m_command->CreateParameter(
                p.name, static_cast<ado::DataTypeEnum>(p.adoType),
                ado::ParameterDirectionEnum::adParamInput, p.size);
            if (p.value) {
                parameter->setValue(std::move(*p.value));
            }
            parameters.Append(parameter);
        }
        nxStringBuilder& sb = m_run.sb1;
        sb.Reset();
        sb.Append(text->text);
        m_command->setCommandText(sb.ToString());
        m_command->Execute(nullptr, nullptr, ado::adExecuteNoRecords);
    } catch (...) {
        frame::LoadAmbientError();
        // The first refused record ends its table.
        result = false;
        raiseError(errorText(vb::Err()));
    }
}

void TableCopy::onAfterJob(nxRs& rs, bool& result) {
    Q_UNUSED(result);
    for (const QString& column : m_booleanColumns) {
        m_run.dest.Execute(
            BooleanFixStatement(rs.Name(), column, m_names.ServerKeywords()), false,
            ado::adExecuteNoRecords);
    }
    m_command.reset();
}

void TableCopy::raiseError(const QString& text) {
    if (m_run.events != nullptr) {
        m_run.events->EVTError(static_cast<std::int32_t>(DbImportErrorKind::RecordCopyFailed), text,
                               false);
    }
}

} // namespace engine
