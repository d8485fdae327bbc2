#pragma once

#include "platform/jetfile/Schema.h"
#include "platform/jetfile/detail/DataPage.h"

#include <cstddef>
#include <cstdint>

namespace jetfile::detail {

// One stored row: the column count, the fixed-length area, the variable-length data and, at the
// end, the variable offset table and the null mask (one bit per column, set when the column has
// a value; for Yes/No columns the bit is the value). Offsets are checked when a column is read.
class RowView {
public:
    RowView() = default;
    RowView(const PageSource& source, const std::uint8_t* page, std::uint32_t pageNumber,
            RowSpan span);

    bool isValid() const noexcept { return m_row != nullptr; }
    // No value stored: the null bit is clear, or the column came after the row was written.
    bool isNull(const Column& column) const noexcept;
    // A Yes/No column: its null bit.
    bool flag(const Column& column) const noexcept { return !isNull(column); }
    // The stored bytes of a non-null, non-Yes/No column.
    void data(const Column& column, const std::uint8_t*& bytes, std::size_t& length) const;

    std::uint32_t page() const noexcept { return m_page; }

private:
    void variableData(const Column& column, const std::uint8_t*& bytes, std::size_t& length) const;
    [[noreturn]] void damaged(const Column& column, const QString& reason) const;

    const PageSource* m_source = nullptr;
    const std::uint8_t* m_row = nullptr;
    std::uint32_t m_page = 0;
    std::size_t m_length = 0;
    int m_columnCount = 0;
    std::size_t m_nullMask = 0; // offset of the null mask in the row
};

} // namespace jetfile::detail
