#include "platform/ado/sqlserver/ServerRowset.h"

#include "platform/ado/sqlserver/AdoErrors.h"
#include "platform/ado/sqlserver/odbc/Types.h"

using namespace Qt::StringLiterals;

namespace ado::sqlserver {

std::vector<ColumnInfo> columnInfos(const std::vector<odbc::Column>& columns) {
    std::vector<ColumnInfo> out;
    out.reserve(columns.size());
    for (const odbc::Column& c : columns) {
        ColumnInfo info;
        info.name = c.description.name;
        info.type = static_cast<DataTypeEnum>(c.adoType);
        info.definedSize = c.definedSize;
        const bool isLong = c.adoType == odbc::adtype::LongVarWChar ||
                            c.adoType == odbc::adtype::LongVarChar ||
                            c.adoType == odbc::adtype::LongVarBinary;
        const bool variable = isLong || c.adoType == odbc::adtype::VarWChar ||
                              c.adoType == odbc::adtype::VarChar ||
                              c.adoType == odbc::adtype::VarBinary;
        info.attributes = (isLong ? adFldLong | adFldMayDefer : 0) | (variable ? 0 : adFldFixed) |
                          (c.description.nullable == SQL_NO_NULLS
                               ? 0
                               : adFldIsNullable | adFldMayBeNull) |
                          adFldUnknownUpdatable;
        const bool numeric = c.adoType == odbc::adtype::Numeric;
        info.precision = numeric ? static_cast<std::uint8_t>(c.description.size) : 255;
        info.numericScale = numeric ? static_cast<std::uint8_t>(c.description.decimalDigits) : 255;
        // What the layers above read to find a table's identity column.
        info.properties.push_back({u"ISAUTOINCREMENT"_s, vb::Variant(c.description.autoUnique), false});
        out.push_back(std::move(info));
    }
    return out;
}

std::unique_ptr<ProviderRowset> bufferedRowset(odbc::Execution& run, CursorTypeEnum cursorType) {
    std::vector<Row> rows;
    odbc::Row row;
    while (run.fetch(&row)) {
        rows.push_back(row);
    }
    auto rowset = std::make_unique<MemoryRowset>(columnInfos(run.columns()), std::move(rows),
                                                 cursorType == CursorTypeEnum::adOpenKeyset
                                                     ? CursorTypeEnum::adOpenKeyset
                                                     : CursorTypeEnum::adOpenStatic);
    run.finish();
    return rowset;
}

void ActiveStream::release() noexcept {
    if (rowset != nullptr) {
        rowset->detach();
        rowset = nullptr;
    }
}

StreamingRowset::StreamingRowset(std::unique_ptr<odbc::Execution> run,
                                 std::shared_ptr<ActiveStream> link)
    : m_run(std::move(run)), m_link(std::move(link)), m_columns(columnInfos(m_run->columns())) {
    m_link->release();
    m_link->rowset = this;
}

StreamingRowset::~StreamingRowset() {
    if (m_link->rowset == this) {
        m_link->rowset = nullptr;
    }
    // The execution drains what is left of the batch as it ends.
}

void StreamingRowset::detach() noexcept {
    if (!m_run) {
        return;
    }
    try {
        odbc::Row row;
        while (m_run->fetch(&row)) {
            m_buffered.push_back(row);
        }
        m_run->finish();
    } catch (...) {
        // A later statement's failure has nobody to go to once another command runs.
    }
    m_run.reset();
    if (m_link->rowset == this) {
        m_link->rowset = nullptr;
    }
}

void StreamingRowset::finishStatement() {
    std::unique_ptr<odbc::Execution> run = std::move(m_run);
    if (m_link->rowset == this) {
        m_link->rowset = nullptr;
    }
    translated([&] { run->finish(); });
}

bool StreamingRowset::next() {
    m_hasRow = false;
    if (m_run) {
        const bool fetched = translated([&] { return m_run->fetch(&m_current); });
        if (!fetched) {
            finishStatement();
            return false;
        }
    } else if (!m_buffered.empty()) {
        m_current = std::move(m_buffered.front());
        m_buffered.pop_front();
    } else {
        return false;
    }
    m_hasRow = true;
    ++m_rowNumber;
    return true;
}

void StreamingRowset::restart() {
    throw Error(HResult::DB_E_CANTFETCHBACKWARDS,
                u"The rowset does not support fetching backward."_s,
                QString::fromUtf16(kErrorSource));
}

bool StreamingRowset::seek(RowId) { return false; }

vb::Variant StreamingRowset::value(int column) {
    if (!m_hasRow || column < 0 || static_cast<std::size_t>(column) >= m_current.size()) {
        raise(HResult::adErrNoCurrentRecord, QString::fromUtf16(kErrorSource));
    }
    return m_current[static_cast<std::size_t>(column)];
}

RowId StreamingRowset::insertRow(const std::vector<FieldChange>&) {
    raise(HResult::adErrFeatureNotAvailable, QString::fromUtf16(kErrorSource));
}

void StreamingRowset::updateRow(RowId, const std::vector<FieldChange>&) {
    raise(HResult::adErrFeatureNotAvailable, QString::fromUtf16(kErrorSource));
}

void StreamingRowset::deleteRow(RowId) {
    raise(HResult::adErrFeatureNotAvailable, QString::fromUtf16(kErrorSource));
}

} // namespace ado::sqlserver
