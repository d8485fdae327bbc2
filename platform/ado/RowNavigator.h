#pragma once

#include "platform/ado/Provider.h"

#include <functional>
#include <vector>

namespace ado {

// Walks a provider rowset as ADO walks a recordset: BOF and EOF, moves, bookmarks, absolute
// positions and the rows a filter lets through. A forward-only cursor keeps nothing and holds
// only the provider's current row. A scrollable cursor that has only moved forward in order keeps
// no more: a row's bookmark is its place in the sequence, and the ids of the first row, the last
// row fetched and the current one are all a later move or seek can need. The first move that
// needs any other row's id (back, to a bookmark or a position, a count under a filter, a change)
// reads the ids of the rows fetched so far once, by running the rowset again from its start, and
// from then on keeps the id of every row fetched (8 bytes a row).
class RowNavigator {
public:
    // `matches` tests the provider's current row against the filter; null lets every row through.
    void attach(ProviderRowset* rowset, bool scrollable);
    void detach();
    void setMatcher(std::function<bool()> matches);

    bool scrollable() const noexcept { return m_scrollable; }
    bool bof() const noexcept { return m_bof; }
    bool eof() const noexcept { return m_eof; }
    bool hasCurrent() const noexcept { return !m_bof && !m_eof; }
    // There is a current row and the provider stands on it, so its values can be read at once.
    bool providerOnCurrent() const noexcept {
        return hasCurrent() && (!m_scrollable || m_providerAt == m_pos);
    }
    // Whether the ids of the rows fetched so far are held (a scrollable cursor that has gone
    // anywhere but forward in order).
    bool holdsRowIds() const noexcept { return m_materialised; }

    // Each positions on the first matching row in its direction, or leaves BOF or EOF set. The
    // caller has checked that a move from BOF or EOF is allowed.
    void first();
    void next();
    void previous();
    void last();

    // Makes the provider's current row ours again; false when it has gone (deleted).
    bool positionProvider();
    RowId currentRowId();

    // Bookmarks are 1-based positions in the unfiltered sequence of rows, stable under filters.
    double bookmark() const;
    // False when the bookmark names no row of this rowset.
    bool gotoBookmark(double bookmark);

    // The 1-based position among matching rows, counted when not known.
    long absolutePosition();
    bool setAbsolutePosition(long position);
    // -1 on a forward-only cursor.
    long recordCount();

    // A row the provider has just inserted: it joins the sequence at its end and becomes current.
    void appendRow(RowId id);
    // The current row is about to be deleted: its place must stay in the sequence, so the ids
    // of the rows fetched so far are read while the row is still there.
    void currentRowDeleting() {
        if (m_scrollable) {
            materialise();
        }
    }
    // The current row has just been deleted: the provider no longer stands on it, so the next
    // move must seek (and skip it) rather than trust where the provider was.
    void currentRowDeleted() noexcept { m_providerAt = npos; }

private:
    static constexpr std::size_t npos = static_cast<std::size_t>(-1);
    RowId keyAt(std::size_t index);
    void materialise();
    void fetched(RowId id);
    bool resumeFetching();
    bool fetchUntil(std::size_t index);
    bool matchesAt(std::size_t index);
    std::size_t findForward(std::size_t from);
    std::size_t findBackward(std::size_t from);
    void setCurrent(std::size_t index, bool atEndIfNone);
    bool forwardToMatch();

    ProviderRowset* m_rowset = nullptr;
    bool m_scrollable = false;
    std::function<bool()> m_matches;
    // Index i of the sequence is the i-th row fetched. While m_materialised is false only the
    // ids below are known; after it, m_keys holds every fetched row's id.
    bool m_materialised = false;
    std::vector<RowId> m_keys;
    std::size_t m_fetched = 0;
    RowId m_firstId = 0;           // index 0
    RowId m_lastId = 0;            // index m_fetched - 1
    std::size_t m_heldAt = npos;   // the current row when it is neither of those
    RowId m_heldId = 0;
    bool m_complete = false;
    std::size_t m_pos = npos;        // index of the current row
    std::size_t m_providerAt = npos; // index the provider stands on
    bool m_bof = true;
    bool m_eof = true;
    long m_ordinal = 0; // position among matching rows; 0 when not known
    bool m_started = false;
};

} // namespace ado
