#pragma once

#include "platform/jetfile/detail/PageSource.h"

#include <cstdint>

namespace jetfile::detail {

// Where one row of a data page lies: [start, end) and the flag bits of its slot.
struct RowSpan {
    std::uint16_t start = 0;
    std::uint16_t end = 0;
    std::uint16_t flags = 0;

    bool isDeleted() const noexcept { return (flags & kSlotDeleted) != 0; }
    bool isOverflow() const noexcept { return (flags & kSlotOverflow) != 0; }
    std::uint16_t length() const noexcept { return static_cast<std::uint16_t>(end - start); }
};

// A data page (page type 1): a header, a table of row slots, rows stored from the end backwards.
// Every accessor checks its offsets against the page and the slot table.
class DataPage {
public:
    // Checks the page type and the slot count.
    DataPage(const PageSource& source, const std::uint8_t* bytes, std::uint32_t number);

    const std::uint8_t* bytes() const noexcept { return m_bytes; }
    std::uint32_t number() const noexcept { return m_number; }
    int rowCount() const noexcept { return m_rowCount; }
    // The table definition page the rows belong to (or "LVAL" for long-value pages).
    std::uint32_t owner() const noexcept { return le32(m_bytes + 4); }
    // The flag bits of slot `row` (0 <= row < rowCount()), without checking its offsets: a
    // deleted slot is never read, so its offsets need not make sense.
    std::uint16_t slotFlags(int row) const noexcept;
    // Slot `row`; throws Damaged when it is not on the page or points outside it.
    RowSpan row(int row) const;

private:
    const PageSource& m_source;
    const std::uint8_t* m_bytes;
    std::uint32_t m_number;
    int m_rowCount = 0;
};

// A pointer to a row stored in four bytes: the row number, then the page number in three bytes.
struct RowPointer {
    std::uint32_t page = 0;
    int row = 0;

    static RowPointer read(const std::uint8_t* p) noexcept { return {le24(p + 1), p[0]}; }
};

} // namespace jetfile::detail
