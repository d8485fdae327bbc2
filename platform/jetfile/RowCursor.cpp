#include "platform/jetfile/RowCursor.h"

#include "platform/jetfile/Error.h"
#include "platform/jetfile/detail/CursorState.h"
#include "platform/jetfile/detail/Values.h"

#include <stdexcept>

using namespace Qt::Literals::StringLiterals;

namespace jetfile {

namespace detail {

namespace {
// Jet moves a grown row at most once; a few more hops allow for files written by other tools,
// and the limit stops a loop of pointers.
constexpr int kMaxOverflowHops = 8;
} // namespace

CursorState::CursorState(std::shared_ptr<const PageSource> src,
                         std::shared_ptr<const ParsedTable> parsed)
    : source(std::move(src)), table(std::move(parsed)),
      pages(source, table->storage.ownedPages.data(), table->definition.page), longValues(*source) {
}

void CursorState::rewind() {
    pages.rewind();
    dataPage.reset();
    slot = -1;
    finished = false;
    row = RowView();
}

bool CursorState::nextPage() {
    const std::uint32_t owner = table->definition.page;
    while (const auto number = pages.next()) {
        const std::uint8_t* bytes = source->page(*number, dataBuffer);
        // The map also lists the table's index and long-value pages: keep its data pages only.
        if (bytes[0] == kPageData && le32(bytes + 4) == owner) {
            dataPage.emplace(*source, bytes, *number);
            slot = -1;
            return true;
        }
    }
    return false;
}

RowView CursorState::followOverflow(RowSpan span) {
    const std::uint8_t* bytes = dataPage->bytes();
    std::uint32_t number = dataPage->number();
    for (int hop = 0; hop < kMaxOverflowHops; ++hop) {
        if (span.length() < 4) {
            source->damaged(u"an overflow pointer of %1 bytes"_s.arg(span.length()), number);
        }
        const RowPointer to = RowPointer::read(bytes + span.start);
        bytes = source->page(to.page, overflowBuffer);
        const DataPage target(*source, bytes, to.page);
        if (target.owner() != table->definition.page) {
            source->damaged(u"an overflow pointer leads to a page of another table"_s, to.page);
        }
        // The target slot is marked deleted so that a page scan skips it; read it all the same.
        span = target.row(to.row);
        number = to.page;
        if (!span.isOverflow()) {
            return RowView(*source, bytes, number, span);
        }
    }
    source->damaged(u"overflow pointers run more than %1 deep"_s.arg(kMaxOverflowHops), number);
}

bool CursorState::next() {
    if (finished) {
        return false;
    }
    for (;;) {
        if (!dataPage || slot + 1 >= dataPage->rowCount()) {
            if (!nextPage()) {
                finished = true;
                dataPage.reset();
                row = RowView();
                return false;
            }
            continue;
        }
        ++slot;
        if ((dataPage->slotFlags(slot) & kSlotDeleted) != 0) {
            continue;
        }
        readSlot();
        return true;
    }
}

void CursorState::readSlot() {
    const RowSpan span = dataPage->row(slot);
    row = span.isOverflow() ? followOverflow(span)
                            : RowView(*source, dataPage->bytes(), dataPage->number(), span);
}

bool CursorState::seek(std::uint32_t page, int wanted) {
    rewind();
    // The map lists pages in ascending order, so the walk stops at the page or just past it.
    while (nextPage()) {
        if (dataPage->number() < page) {
            continue;
        }
        if (dataPage->number() == page && wanted >= 0 && wanted < dataPage->rowCount() &&
            (dataPage->slotFlags(wanted) & kSlotDeleted) == 0) {
            slot = wanted;
            readSlot();
            return true;
        }
        break;
    }
    finished = true;
    dataPage.reset();
    row = RowView();
    return false;
}

} // namespace detail

RowCursor::RowCursor(std::unique_ptr<detail::CursorState> state) : m_state(std::move(state)) {}
RowCursor::RowCursor(RowCursor&&) noexcept = default;
RowCursor& RowCursor::operator=(RowCursor&&) noexcept = default;
RowCursor::~RowCursor() = default;

const TableDefinition& RowCursor::table() const noexcept {
    return m_state->table->definition;
}

bool RowCursor::next() {
    return m_state->next();
}

void RowCursor::rewind() {
    m_state->rewind();
}

bool RowCursor::seek(std::uint32_t page, int row) {
    return m_state->seek(page, row);
}

const Column& RowCursor::checkedColumn(int column) const {
    const auto& columns = m_state->table->definition.columns;
    if (column < 0 || static_cast<std::size_t>(column) >= columns.size()) {
        throw std::out_of_range("jetfile::RowCursor: no such column");
    }
    if (!m_state->row.isValid()) {
        throw std::logic_error("jetfile::RowCursor: not on a row");
    }
    return columns[static_cast<std::size_t>(column)];
}

vb::Variant RowCursor::value(int column) const {
    const Column& c = checkedColumn(column);
    return detail::decodeValue(*m_state->source, c, m_state->row, m_state->longValues);
}

void RowCursor::readValue(int column, vb::Variant& into) const {
    const Column& c = checkedColumn(column);
    detail::decodeValueInto(*m_state->source, c, m_state->row, m_state->longValues, into);
}

vb::Variant RowCursor::value(QStringView columnName) const {
    const int index = m_state->table->definition.columnIndex(columnName);
    if (index < 0) {
        throw Error(Error::Kind::NotFound, m_state->source->path(),
                    u"table '%1' has no column '%2'"_s.arg(m_state->table->definition.name,
                                                           columnName.toString()));
    }
    return value(index);
}

bool RowCursor::isNull(int column) const {
    const Column& c = checkedColumn(column);
    return c.type() != ColumnType::Boolean && m_state->row.isNull(c);
}

std::uint32_t RowCursor::longValueLength(int column) const {
    const Column& c = checkedColumn(column);
    if (!c.isLongValue() || m_state->row.isNull(c)) {
        return 0;
    }
    const std::uint8_t* d = nullptr;
    std::size_t n = 0;
    m_state->row.data(c, d, n);
    return m_state->longValues.length(d, n, m_state->row.page());
}

std::uint32_t RowCursor::page() const noexcept {
    return m_state->dataPage ? m_state->dataPage->number() : 0;
}

int RowCursor::row() const noexcept {
    return m_state->slot;
}

} // namespace jetfile
