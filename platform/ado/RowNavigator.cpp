#include "platform/ado/RowNavigator.h"

#include "platform/ado/Error.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace ado {

void RowNavigator::attach(ProviderRowset* rowset, bool scrollable) {
    m_rowset = rowset;
    m_scrollable = scrollable;
    m_materialised = false;
    m_keys = std::vector<RowId>();
    m_fetched = 0;
    m_firstId = m_lastId = m_heldId = 0;
    m_heldAt = npos;
    m_complete = false;
    m_pos = npos;
    m_providerAt = npos;
    m_bof = m_eof = true;
    m_ordinal = 0;
    m_started = false;
}

void RowNavigator::detach() {
    attach(nullptr, false);
    m_matches = nullptr;
}

void RowNavigator::setMatcher(std::function<bool()> matches) { m_matches = std::move(matches); }

RowId RowNavigator::keyAt(std::size_t index) {
    if (!m_materialised && index < m_fetched) {
        if (index == m_fetched - 1) {
            return m_lastId;
        }
        if (index == 0) {
            return m_firstId;
        }
        if (index == m_heldAt) {
            return m_heldId;
        }
        materialise();
    }
    return m_keys.at(index);
}

// Reads the ids of the rows fetched so far by running the rowset again from its start: the
// provider gives the same rows in the same order (the Jet provider reads a file it does not
// change, the others hold their rows, and a row this recordset deletes is read here before it
// goes). Should the rowset give fewer rows than before, the missing places keep the last known
// id, so that they read as deleted rows rather than shift the bookmarks after them.
void RowNavigator::materialise() {
    if (m_materialised) {
        return;
    }
    m_materialised = true;
    m_keys.clear();
    m_providerAt = npos;
    if (m_fetched == 0) {
        return;
    }
    m_keys.reserve(m_fetched);
    m_rowset->restart();
    while (m_keys.size() < m_fetched && m_rowset->next()) {
        m_keys.push_back(m_rowset->rowId());
    }
    if (m_keys.size() == m_fetched && m_keys.back() == m_lastId) {
        m_providerAt = m_fetched - 1;
    }
    m_keys.resize(m_fetched, m_lastId);
    m_keys.back() = m_lastId;
    m_heldAt = npos;
}

// Appends the row the provider has just fetched to the sequence.
void RowNavigator::fetched(RowId id) {
    if (m_materialised) {
        m_keys.push_back(id);
    } else {
        if (m_fetched == 0) {
            m_firstId = id;
        } else if (m_pos == m_fetched - 1 && m_pos != 0) {
            m_heldAt = m_pos; // the current row stops being the last one fetched
            m_heldId = m_lastId;
        }
        m_lastId = id;
    }
    ++m_fetched;
    m_providerAt = m_fetched - 1;
}

// The provider's next() goes on from where it stands, so before fetching further it must stand
// on the last row fetched (a seek, a filter test or a value read may have moved it back).
bool RowNavigator::resumeFetching() {
    if (m_fetched == 0 || m_providerAt == m_fetched - 1) {
        return true;
    }
    m_providerAt = npos;
    if (!m_materialised) {
        if (m_rowset->seek(m_lastId)) {
            m_providerAt = m_fetched - 1;
            return true;
        }
        materialise();
        if (m_providerAt == m_fetched - 1) {
            return true;
        }
    }
    for (std::size_t i = m_fetched; i-- > 0;) {
        if (m_rowset->seek(m_keys[i])) {
            m_providerAt = i;
            return true; // rows deleted behind it are skipped by next()
        }
    }
    return false;
}

bool RowNavigator::fetchUntil(std::size_t index) {
    if (m_fetched <= index && !m_complete && !resumeFetching()) {
        // Every row fetched so far has gone: start over and skip the ones already known.
        m_rowset->restart();
        while (m_rowset->next()) {
            if (std::find(m_keys.begin(), m_keys.end(), m_rowset->rowId()) == m_keys.end()) {
                fetched(m_rowset->rowId());
                break;
            }
        }
    }
    while (m_fetched <= index && !m_complete) {
        if (m_rowset->next()) {
            fetched(m_rowset->rowId());
        } else {
            m_complete = true;
            m_providerAt = npos;
        }
    }
    return index < m_fetched;
}

bool RowNavigator::matchesAt(std::size_t index) {
    if (m_providerAt != index) {
        m_providerAt = npos;
        if (!m_rowset->seek(keyAt(index))) {
            return false; // deleted since it was fetched
        }
        m_providerAt = index;
    }
    return !m_matches || m_matches();
}

std::size_t RowNavigator::findForward(std::size_t from) {
    for (std::size_t i = from; fetchUntil(i); ++i) {
        if (matchesAt(i)) {
            return i;
        }
    }
    return npos;
}

std::size_t RowNavigator::findBackward(std::size_t from) {
    if (m_fetched == 0) {
        return npos;
    }
    for (std::size_t i = std::min(from, m_fetched - 1) + 1; i-- > 0;) {
        if (matchesAt(i)) {
            return i;
        }
    }
    return npos;
}

void RowNavigator::setCurrent(std::size_t index, bool atEndIfNone) {
    if (index != npos) {
        m_pos = index;
        m_bof = m_eof = false;
        return;
    }
    m_pos = npos;
    if (atEndIfNone) {
        m_eof = true;
    } else {
        m_bof = true;
    }
}

// Forward-only: advances the provider to the next row that matches.
bool RowNavigator::forwardToMatch() {
    while (m_rowset->next()) {
        if (!m_matches || m_matches()) {
            return true;
        }
    }
    return false;
}

void RowNavigator::first() {
    if (!m_scrollable) {
        if (m_started) {
            m_rowset->restart(); // the provider runs the command again
        }
        m_started = true;
        const bool found = forwardToMatch();
        m_bof = m_eof = !found;
        m_ordinal = found ? 1 : 0;
        return;
    }
    const std::size_t i = findForward(0);
    m_pos = i;
    m_bof = m_eof = i == npos;
    m_ordinal = i == npos ? 0 : 1;
}

void RowNavigator::next() {
    const long ordinal = m_ordinal;
    const bool fromStart = m_bof;
    if (!m_scrollable) {
        m_started = true;
        const bool found = forwardToMatch();
        m_bof = false;
        m_eof = !found;
        m_ordinal = !found ? 0 : (fromStart ? 1 : (ordinal > 0 ? ordinal + 1 : 0));
        return;
    }
    const std::size_t i = findForward(fromStart ? 0 : m_pos + 1);
    m_bof = false;
    setCurrent(i, true);
    m_ordinal = i == npos ? 0 : (fromStart ? 1 : (ordinal > 0 ? ordinal + 1 : 0));
}

void RowNavigator::previous() {
    if (!m_scrollable) {
        raise(HResult::DB_E_CANTFETCHBACKWARDS, u"Microsoft OLE DB Provider"_s);
    }
    const long ordinal = m_ordinal;
    std::size_t i = npos;
    if (m_eof) {
        fetchUntil(npos - 1); // all rows, to find the last
        i = findBackward(m_fetched - 1);
    } else if (m_pos > 0) {
        i = findBackward(m_pos - 1);
    }
    m_eof = false;
    setCurrent(i, false);
    m_ordinal = (i != npos && ordinal > 1) ? ordinal - 1 : 0;
}

void RowNavigator::last() {
    if (!m_scrollable) {
        raise(HResult::DB_E_CANTFETCHBACKWARDS, u"Microsoft OLE DB Provider"_s);
    }
    fetchUntil(npos - 1);
    const std::size_t i = findBackward(m_fetched - 1);
    m_bof = m_eof = i == npos;
    if (i != npos) {
        m_pos = i;
    }
    m_ordinal = 0;
}

bool RowNavigator::positionProvider() {
    if (!hasCurrent()) {
        return false;
    }
    if (!m_scrollable) {
        return true;
    }
    if (m_providerAt == m_pos) {
        return true;
    }
    const RowId id = keyAt(m_pos);
    m_providerAt = npos;
    if (!m_rowset->seek(id)) {
        return false;
    }
    m_providerAt = m_pos;
    return true;
}

RowId RowNavigator::currentRowId() {
    if (!m_scrollable) {
        return m_rowset->rowId();
    }
    return keyAt(m_pos);
}

double RowNavigator::bookmark() const { return static_cast<double>(m_pos + 1); }

bool RowNavigator::gotoBookmark(double bookmark) {
    if (!(bookmark >= 1) || bookmark != std::floor(bookmark)) {
        return false;
    }
    const auto index = static_cast<std::size_t>(bookmark) - 1;
    if (!fetchUntil(index)) {
        return false;
    }
    m_pos = index;
    m_bof = m_eof = false;
    m_ordinal = 0;
    return positionProvider();
}

long RowNavigator::absolutePosition() {
    if (!m_scrollable) {
        return adPosUnknown;
    }
    if (m_bof) {
        return adPosBOF;
    }
    if (m_eof) {
        return adPosEOF;
    }
    if (m_ordinal == 0) {
        long count = 0;
        for (std::size_t i = 0; i <= m_pos; ++i) {
            if (matchesAt(i)) {
                ++count;
            }
        }
        m_ordinal = count;
        positionProvider();
    }
    return m_ordinal;
}

bool RowNavigator::setAbsolutePosition(long position) {
    if (!m_scrollable || position < 1) {
        return false;
    }
    long count = 0;
    for (std::size_t i = 0; fetchUntil(i); ++i) {
        if (matchesAt(i) && ++count == position) {
            m_pos = i;
            m_bof = m_eof = false;
            m_ordinal = position;
            return true;
        }
    }
    return false;
}

long RowNavigator::recordCount() {
    if (!m_scrollable) {
        return -1;
    }
    fetchUntil(npos - 1);
    if (!m_matches) {
        return static_cast<long>(m_fetched);
    }
    long count = 0;
    for (std::size_t i = 0; i < m_fetched; ++i) {
        if (matchesAt(i)) {
            ++count;
        }
    }
    positionProvider();
    return count;
}

void RowNavigator::appendRow(RowId id) {
    materialise();
    fetchUntil(npos - 1);
    // A provider that adds the new row to its own sequence has just been read to it.
    const auto known = std::find(m_keys.begin(), m_keys.end(), id);
    if (known == m_keys.end()) {
        m_keys.push_back(id);
        ++m_fetched;
        m_pos = m_keys.size() - 1;
    } else {
        m_pos = static_cast<std::size_t>(known - m_keys.begin());
    }
    m_providerAt = npos;
    m_bof = m_eof = false;
    m_ordinal = 0;
}

} // namespace ado
