#include "platform/ado/jet/JetRowsets.h"

#include "platform/ado/Compare.h"
#include "platform/ado/jet/JetErrors.h"
#include "platform/ado/jet/JetTypes.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ado::jet {
namespace {

[[noreturn]] void refuseChange() { readOnly(u"changing rows"_s); }

RowId makeRowId(std::uint32_t page, int row) {
    return (static_cast<RowId>(page) << 32) | static_cast<std::uint32_t>(row);
}

} // namespace

TableRowset::TableRowset(const jetfile::Database& database, const QString& table,
                         CursorTypeEnum cursorType)
    : m_cursor(database.scan(table)), m_cursorType(cursorType) {
    for (const auto& column : m_cursor.table().columns) {
        m_columns.push_back(columnInfo(column));
    }
}

bool TableRowset::next() {
    try {
        m_onRow = m_cursor.next();
    } catch (const jetfile::Error& e) {
        m_onRow = false;
        throw fromReader(e);
    }
    return m_onRow;
}

void TableRowset::restart() {
    m_cursor.rewind();
    m_onRow = false;
}

RowId TableRowset::rowId() const { return makeRowId(m_cursor.page(), m_cursor.row()); }

bool TableRowset::seek(RowId id) {
    try {
        m_onRow = m_cursor.seek(static_cast<std::uint32_t>(id >> 32),
                                static_cast<int>(id & 0xFFFFFFFFu));
    } catch (const jetfile::Error& e) {
        m_onRow = false;
        throw fromReader(e);
    }
    return m_onRow;
}

void TableRowset::noCurrentValue() { raise(HResult::adErrNoCurrentRecord, u"ADODB.Field"_s); }

vb::Variant TableRowset::value(int column) {
    requireColumn(column);
    try {
        return m_cursor.value(column);
    } catch (const jetfile::Error& e) {
        throw fromReader(e);
    }
}

void TableRowset::readValue(int column, vb::Variant& into) {
    requireColumn(column);
    try {
        m_cursor.readValue(column, into);
    } catch (const jetfile::Error& e) {
        throw fromReader(e);
    }
}

RowId TableRowset::insertRow(const std::vector<FieldChange>&) { refuseChange(); }
void TableRowset::updateRow(RowId, const std::vector<FieldChange>&) { refuseChange(); }
void TableRowset::deleteRow(RowId) { refuseChange(); }

RowId RowsetAdapter::insertRow(const std::vector<FieldChange>&) { refuseChange(); }
void RowsetAdapter::updateRow(RowId, const std::vector<FieldChange>&) { refuseChange(); }
void RowsetAdapter::deleteRow(RowId) { refuseChange(); }

bool FilteredRowset::next() {
    while (m_inner->next()) {
        if (m_condition(*m_inner)) {
            return true;
        }
    }
    return false;
}

ProjectedRowset::ProjectedRowset(std::unique_ptr<ProviderRowset> inner,
                                 const std::vector<Output>& outputs)
    : RowsetAdapter(std::move(inner)) {
    const auto& source = m_inner->columns();
    for (const auto& output : outputs) {
        ColumnInfo info = source.at(static_cast<std::size_t>(output.column));
        if (!output.name.isEmpty()) {
            info.name = output.name;
        }
        m_columns.push_back(std::move(info));
        m_map.push_back(output.column);
    }
}

int ProjectedRowset::innerColumn(int column) const {
    if (column < 0 || column >= static_cast<int>(m_map.size())) {
        raise(HResult::adErrNoCurrentRecord, u"ADODB.Field"_s);
    }
    return m_map[static_cast<std::size_t>(column)];
}

vb::Variant ProjectedRowset::value(int column) { return m_inner->value(innerColumn(column)); }

void ProjectedRowset::readValue(int column, vb::Variant& into) {
    m_inner->readValue(innerColumn(column), into);
}

SortedRowset::SortedRowset(std::unique_ptr<ProviderRowset> inner, std::vector<Key> keys,
                           std::optional<long> top)
    : RowsetAdapter(std::move(inner)) {
    struct Entry {
        std::vector<vb::Variant> key;
        RowId id = 0;
    };
    std::vector<Entry> entries;
    while (m_inner->next()) {
        Entry e;
        for (const auto& k : keys) {
            e.key.push_back(m_inner->value(k.column));
        }
        e.id = m_inner->rowId();
        entries.push_back(std::move(e));
    }
    // Jet sorts Null before every value in ascending order.
    auto less = [&](const Entry& a, const Entry& b) {
        for (std::size_t i = 0; i < keys.size(); ++i) {
            const bool an = a.key[i].isNull();
            const bool bn = b.key[i].isNull();
            int order = 0;
            if (an || bn) {
                order = an == bn ? 0 : (an ? -1 : 1);
            } else {
                order = compareValues(a.key[i], b.key[i]).value_or(0);
            }
            if (order != 0) {
                return keys[i].descending ? order > 0 : order < 0;
            }
        }
        return false;
    };
    std::stable_sort(entries.begin(), entries.end(), less);
    if (top && *top >= 0 && static_cast<std::size_t>(*top) < entries.size()) {
        entries.resize(static_cast<std::size_t>(*top));
    }
    for (const auto& e : entries) {
        m_ids.push_back(e.id);
    }
}

bool SortedRowset::next() {
    std::size_t i = m_position == npos ? 0 : m_position + 1;
    for (; i < m_ids.size(); ++i) {
        if (m_inner->seek(m_ids[i])) {
            m_position = i;
            return true;
        }
    }
    m_position = m_ids.size();
    return false;
}

bool SortedRowset::seek(RowId id) {
    const auto it = std::find(m_ids.begin(), m_ids.end(), id);
    if (it == m_ids.end() || !m_inner->seek(id)) {
        return false;
    }
    m_position = static_cast<std::size_t>(it - m_ids.begin());
    return true;
}

} // namespace ado::jet
