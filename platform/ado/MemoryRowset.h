#pragma once

#include "platform/ado/Provider.h"

#include <functional>
#include <vector>

namespace ado {

using Row = std::vector<vb::Variant>;

// A rowset over rows held in memory: schema rowsets, single-row answers and scripted rowsets.
// Seeks always work. Changes are refused unless a change handler is given, which sees each
// change before it is applied (and may refuse it by throwing, or add values the database gave
// the row, such as an identity, to the changes applied).
class MemoryRowset : public ProviderRowset {
public:
    enum class ChangeKind { Insert, Update, Delete };
    using ChangeHandler =
        std::function<void(ChangeKind kind, const Row& before, std::vector<FieldChange>& changes)>;

    MemoryRowset(std::vector<ColumnInfo> columns, std::vector<Row> rows,
                 CursorTypeEnum cursorType = CursorTypeEnum::adOpenStatic,
                 std::vector<PropertyValue> properties = {});

    void setChangeHandler(ChangeHandler handler) { m_onChange = std::move(handler); }

    const std::vector<ColumnInfo>& columns() const override { return m_columns; }
    CursorTypeEnum cursorType() const override { return m_cursorType; }
    bool next() override;
    void restart() override { m_current = npos; }
    bool canSeek() const override { return m_cursorType != CursorTypeEnum::adOpenForwardOnly; }
    RowId rowId() const override { return m_current + 1; }
    bool seek(RowId id) override;
    vb::Variant value(int column) override;
    std::vector<PropertyValue> properties() const override { return m_properties; }

    bool canUpdate() const override { return static_cast<bool>(m_onChange); }
    RowId insertRow(const std::vector<FieldChange>& values) override;
    void updateRow(RowId id, const std::vector<FieldChange>& values) override;
    void deleteRow(RowId id) override;

private:
    static constexpr std::size_t npos = static_cast<std::size_t>(-1);
    void refuseChanges() const;
    std::size_t indexOf(RowId id) const;

    std::vector<ColumnInfo> m_columns;
    std::vector<Row> m_rows;
    std::vector<bool> m_deleted;
    CursorTypeEnum m_cursorType;
    std::vector<PropertyValue> m_properties;
    std::size_t m_current = npos;
    ChangeHandler m_onChange;
};

} // namespace ado
