#include "platform/ado/MemoryRowset.h"

#include "platform/ado/Error.h"

using namespace Qt::StringLiterals;

namespace ado {

MemoryRowset::MemoryRowset(std::vector<ColumnInfo> columns, std::vector<Row> rows,
                           CursorTypeEnum cursorType, std::vector<PropertyValue> properties)
    : m_columns(std::move(columns)), m_rows(std::move(rows)), m_deleted(m_rows.size(), false),
      m_cursorType(cursorType), m_properties(std::move(properties)) {
    for (auto& row : m_rows) {
        row.resize(m_columns.size(), vb::Null{});
    }
}

bool MemoryRowset::next() {
    std::size_t i = m_current == npos ? 0 : m_current + 1;
    while (i < m_rows.size() && m_deleted[i]) {
        ++i;
    }
    m_current = i;
    if (i >= m_rows.size()) {
        m_current = m_rows.size();
        return false;
    }
    return true;
}

bool MemoryRowset::seek(RowId id) {
    if (id == 0 || id > m_rows.size() || m_deleted[id - 1]) {
        return false;
    }
    m_current = id - 1;
    return true;
}

vb::Variant MemoryRowset::value(int column) {
    if (m_current == npos || m_current >= m_rows.size() || column < 0 ||
        static_cast<std::size_t>(column) >= m_columns.size()) {
        raise(HResult::adErrNoCurrentRecord, u"ADODB.Field"_s);
    }
    return m_rows[m_current][static_cast<std::size_t>(column)];
}

void MemoryRowset::refuseChanges() const {
    if (!m_onChange) {
        throw Error(HResult::adErrFeatureNotAvailable,
                    u"Current Recordset does not support updating. This may be a limitation of the provider, or of the selected locktype."_s,
                    u"ADODB.Recordset"_s);
    }
}

std::size_t MemoryRowset::indexOf(RowId id) const {
    if (id == 0 || id > m_rows.size() || m_deleted[id - 1]) {
        raise(HResult::adErrNoCurrentRecord, u"ADODB.Recordset"_s);
    }
    return id - 1;
}

RowId MemoryRowset::insertRow(const std::vector<FieldChange>& values) {
    refuseChanges();
    Row row(m_columns.size(), vb::Null{});
    std::vector<FieldChange> applied = values;
    m_onChange(ChangeKind::Insert, row, applied);
    for (const auto& change : applied) {
        row.at(static_cast<std::size_t>(change.column)) = change.value;
    }
    m_rows.push_back(std::move(row));
    m_deleted.push_back(false);
    return m_rows.size();
}

void MemoryRowset::updateRow(RowId id, const std::vector<FieldChange>& values) {
    refuseChanges();
    Row& row = m_rows[indexOf(id)];
    std::vector<FieldChange> applied = values;
    m_onChange(ChangeKind::Update, row, applied);
    for (const auto& change : applied) {
        row.at(static_cast<std::size_t>(change.column)) = change.value;
    }
}

void MemoryRowset::deleteRow(RowId id) {
    refuseChanges();
    const std::size_t i = indexOf(id);
    std::vector<FieldChange> none;
    m_onChange(ChangeKind::Delete, m_rows[i], none);
    m_deleted[i] = true;
}

} // namespace ado
