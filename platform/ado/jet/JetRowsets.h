#pragma once

#include "platform/ado/Provider.h"
#include "platform/jetfile/Database.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace ado::jet {

// A table's rows straight from the file, in Jet's physical order. It streams: one row at a time
// through a jetfile::RowCursor, values decoded when asked. Row ids are the rows' page and slot,
// so seeks work on every cursor type; the cursor type reported is the one given.
class TableRowset : public ProviderRowset {
public:
    TableRowset(const jetfile::Database& database, const QString& table, CursorTypeEnum cursorType);

    const std::vector<ColumnInfo>& columns() const override { return m_columns; }
    CursorTypeEnum cursorType() const override { return m_cursorType; }
    bool next() override;
    void restart() override;
    bool canSeek() const override { return true; }
    RowId rowId() const override;
    bool seek(RowId id) override;
    vb::Variant value(int column) override;
    void readValue(int column, vb::Variant& into) override;
    std::vector<PropertyValue> properties() const override { return {}; }
    bool canUpdate() const override { return false; }
    RowId insertRow(const std::vector<FieldChange>& values) override;
    void updateRow(RowId id, const std::vector<FieldChange>& values) override;
    void deleteRow(RowId id) override;

private:
    // Every value of a walk passes here: the test stays inline.
    void requireColumn(int column) const {
        if (!m_onRow || column < 0 || column >= static_cast<int>(m_columns.size())) {
            noCurrentValue();
        }
    }
    [[noreturn]] static void noCurrentValue();

    jetfile::RowCursor m_cursor;
    std::vector<ColumnInfo> m_columns;
    CursorTypeEnum m_cursorType;
    bool m_onRow = false;
};

// A rowset that passes every call to another; the pieces below change one thing each.
class RowsetAdapter : public ProviderRowset {
public:
    explicit RowsetAdapter(std::unique_ptr<ProviderRowset> inner) : m_inner(std::move(inner)) {}

    const std::vector<ColumnInfo>& columns() const override { return m_inner->columns(); }
    CursorTypeEnum cursorType() const override { return m_inner->cursorType(); }
    bool next() override { return m_inner->next(); }
    void restart() override { m_inner->restart(); }
    bool canSeek() const override { return m_inner->canSeek(); }
    RowId rowId() const override { return m_inner->rowId(); }
    bool seek(RowId id) override { return m_inner->seek(id); }
    vb::Variant value(int column) override { return m_inner->value(column); }
    void readValue(int column, vb::Variant& into) override { m_inner->readValue(column, into); }
    std::vector<PropertyValue> properties() const override { return m_inner->properties(); }
    bool canUpdate() const override { return false; }
    RowId insertRow(const std::vector<FieldChange>& values) override;
    void updateRow(RowId id, const std::vector<FieldChange>& values) override;
    void deleteRow(RowId id) override;

protected:
    std::unique_ptr<ProviderRowset> m_inner;
};

// The rows for which a condition holds; the condition reads values through the rowset.
class FilteredRowset : public RowsetAdapter {
public:
    using Condition = std::function<bool(ProviderRowset&)>;
    FilteredRowset(std::unique_ptr<ProviderRowset> inner, Condition condition)
        : RowsetAdapter(std::move(inner)), m_condition(std::move(condition)) {}
    bool next() override;

private:
    Condition m_condition;
};

// Some columns of another rowset, in a new order and under new names.
class ProjectedRowset : public RowsetAdapter {
public:
    struct Output {
        int column = 0;
        QString name;
    };
    ProjectedRowset(std::unique_ptr<ProviderRowset> inner, const std::vector<Output>& outputs);
    const std::vector<ColumnInfo>& columns() const override { return m_columns; }
    vb::Variant value(int column) override;
    void readValue(int column, vb::Variant& into) override;

private:
    int innerColumn(int column) const;

    std::vector<int> m_map;
    std::vector<ColumnInfo> m_columns;
};

// Another rowset's rows in the order of some of its columns, at most `top` of them. It keeps each
// row's id and key values, not the rows.
class SortedRowset : public RowsetAdapter {
public:
    struct Key {
        int column = 0;
        bool descending = false;
    };
    SortedRowset(std::unique_ptr<ProviderRowset> inner, std::vector<Key> keys,
                 std::optional<long> top);
    bool next() override;
    void restart() override { m_position = npos; }
    bool canSeek() const override { return true; }
    RowId rowId() const override { return m_position < m_ids.size() ? m_ids[m_position] : 0; }
    bool seek(RowId id) override;

private:
    static constexpr std::size_t npos = static_cast<std::size_t>(-1);
    std::vector<RowId> m_ids;
    std::size_t m_position = npos;
};

} // namespace ado::jet
