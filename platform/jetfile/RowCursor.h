#pragma once

#include "platform/jetfile/Schema.h"
#include "platform/vb/Variant.h"

#include <QStringView>

#include <cstdint>
#include <memory>

namespace jetfile {

namespace detail {
struct CursorState;
}

// A forward scan over a table's rows in Jet's own physical order: the table's pages in page
// order, the rows of each page in slot order, deleted rows skipped and overflowed rows read
// where their pointer stands. It holds at most three pages at a time (the data page, an overflow
// page and a long-value page), never the table. Values are decoded only for the columns asked
// for, and Memo and OLE data are read only when their value is asked for.
//
// A cursor is used by one thread at a time; several cursors may read one Database at once.
class RowCursor {
public:
    RowCursor(const RowCursor&) = delete;
    RowCursor& operator=(const RowCursor&) = delete;
    RowCursor(RowCursor&&) noexcept;
    RowCursor& operator=(RowCursor&&) noexcept;
    ~RowCursor();

    const TableDefinition& table() const noexcept;

    // Moves to the next row; false after the last one.
    bool next();
    // Back to before the first row.
    void rewind();
    // Back to the row whose slot is `row` on data page `page` (as page() and row() told), so
    // that a caller can keep a bookmark and return to it; next() then goes on from there.
    // False when no live row of this table is there any more; the cursor is then at the end.
    bool seek(std::uint32_t page, int row);

    // The current row's value of column `column` (a position in table().columns), as described
    // in detail/Values.h: Null when nothing is stored, "" for an empty text.
    vb::Variant value(int column) const;
    vb::Variant value(QStringView columnName) const;
    // value(column) written into `into`, reusing the text storage it holds: a reader that keeps
    // one variant per column decodes row after row without allocating for its texts.
    void readValue(int column, vb::Variant& into) const;
    bool isNull(int column) const;
    // The declared length of a Memo or OLE value in bytes, without reading it; 0 when null.
    std::uint32_t longValueLength(int column) const;

    // Where the current row's slot is: its data page and row number.
    std::uint32_t page() const noexcept;
    int row() const noexcept;

    // Made by Database::scan.
    explicit RowCursor(std::unique_ptr<detail::CursorState> state);

private:
    const Column& checkedColumn(int column) const;

    std::unique_ptr<detail::CursorState> m_state;
};

} // namespace jetfile
