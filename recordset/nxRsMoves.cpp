#include "recordset/RsTrap.h"
#include "recordset/nxRs.h"

#include "frame/Edge.h"
#include "frame/nxApp.h"

#include "platform/vb/Err.h"

using namespace Qt::StringLiterals;

bool nxRs::Bof() const noexcept {
    if (!m_isOpened || !m_rs) {
        return true;
    }
    return IgnoreErrors(true, [&] { return m_rs->Bof(); });
}

bool nxRs::Eof() const noexcept {
    if (!m_isOpened || !m_rs) {
        return true;
    }
    return IgnoreErrors(true, [&] { return m_rs->Eof(); });
}

bool nxRs::IsValidPos() const noexcept {
    return m_isOpened && m_rs && IgnoreErrors(false, [&] { return !m_rs->Bof() && !m_rs->Eof(); });
}

bool nxRs::askPosition() noexcept {
    const bool valid = IsValidPos();
    m_posHere = valid && m_keepReads;
    return valid;
}

// A row deleted under the cursor can no longer be read: its first field tells. A recordset that
// keeps its reads keeps that value as the copy of the field, and the answer until it moves.
bool nxRs::IsValidRec() noexcept {
    if (m_validHere) {
        return true;
    }
    if (!positionIsValid()) {
        return false;
    }
    if (m_isNewRec) {
        return true;
    }
    if (FldCount() == 0) {
        return false;
    }
    if (!m_keepReads) {
        vb::Variant first;
        return recValue(0, std::int32_t{0}, first, true);
    }
    if (m_read[0] == 0) {
        if (!recValue(0, std::int32_t{0}, m_values[0], true)) {
            return false;
        }
        m_read[0] = 1;
    }
    m_validHere = true;
    return true;
}

bool nxRs::IsUpdatable() const noexcept {
    if (!m_isOpened || !m_rs) {
        return false;
    }
    return IgnoreErrors(false, [&] { return m_rs->Supports(ado::adUpdate); });
}

vb::Variant nxRs::Bookmark() const noexcept {
    if (!m_isOpened || !m_rs) {
        return {};
    }
    return IgnoreErrors(vb::Variant(), [&] {
        return m_rs->Supports(ado::adBookmark) ? m_rs->Bookmark() : vb::Variant();
    });
}

bool nxRs::SetBookmark(const vb::Variant& Value, bool Silent) noexcept {
    if (IsEmpty() || Value.isEmpty() || !m_rs->Supports(ado::adBookmark)) {
        return false;
    }
    return Edge(u"nxRs.SetBookmark()", Silent, false, [&] {
        m_rs->setBookmark(Value);
        if (IsValidPos() &&
            m_rs->CompareBookmarks(m_rs->Bookmark(), Value) == ado::CompareEnum::adCompareEqual) {
            m_lastGood = Value;
            return true;
        }
        return false;
    });
}

// A job asks for the position at every record: a cursor without positions answers at once,
// without reading the record to see whether it is valid.
std::int32_t nxRs::Position() noexcept {
    if (!m_hasPosition || !IsValidRec()) {
        return 0;
    }
    return IgnoreErrors(0, [&] {
        const long position = m_rs->AbsolutePosition();
        return position < 0 ? 0 : static_cast<std::int32_t>(position);
    });
}

void nxRs::goTo(const vb::Variant& bookmark) noexcept {
    if (!bookmark.isEmpty()) {
        IgnoreErrors([&] { m_rs->setBookmark(bookmark); });
    }
}

bool nxRs::MoveTo(int Kind, bool KeepCurrent, bool Silent) noexcept {
    // A position known to be valid is in no empty recordset: the cursor need not be asked.
    if (!m_posHere && IsEmpty()) {
        return false;
    }
    if (m_isEditing) {
        Update(Silent, true, true, false); // a pending edit is saved before every move
    }
    const vb::Variant back = KeepCurrent ? Bookmark() : m_lastGood;
    if (tryMove(Kind, Silent)) {
        return true;
    }
    // Stepping off either end is where a walk ends: the cursor stays at BOF or EOF. Any other
    // move that lands nowhere goes back where it was.
    const bool offTheEnd = (Kind == kMoveNext && Eof()) || (Kind == kMovePrevious && Bof());
    if (!offTheEnd) {
        goTo(back);
    }
    return false;
}

bool nxRs::tryMove(int kind, bool silent) {
    try {
        switch (kind) {
        case kMoveFirst:
            m_rs->MoveFirst();
            break;
        case kMovePrevious:
            if (!m_rs->Bof()) {
                m_rs->MovePrevious();
            }
            break;
        case kMoveNext:
            if (!m_rs->Eof()) {
                m_rs->MoveNext();
            }
            break;
        case kMoveLast:
            m_rs->MoveLast();
            break;
        case kMoveValid:
            if (!IsValidRec()) {
                if (!m_rs->Bof()) {
                    m_rs->MovePrevious();
                }
                if (!IsValidRec()) {
                    m_rs->MoveFirst();
                }
            }
            break;
        case kMoveCurrent:
            m_rs->Move(0); // fetches the row again
            break;
        default:
            break;
        }
        return IsValidRec();
    } catch (...) {
        frame::LoadAmbientError();
        vb::Err().Description = u"Impossibile spostarsi al record desiderato."_s;
        nxApp::ErrorBox(u"nxRs.TryMove()"_s, silent, false);
        return false;
    }
}

void nxRs::onMoveComplete(ado::EventReasonEnum reason) {
    forgetReads();
    // The row an edit stood on was deleted: the edit has nothing left to write.
    if (reason == ado::EventReasonEnum::adRsnDelete && m_isEditing) {
        CancelUpdate(false, true);
    }
    if (positionIsValid()) {
        const bool adding =
            IgnoreErrors(false, [&] { return m_rs->EditMode() == ado::EditModeEnum::adEditAdd; });
        if (!adding) {
            m_lastGood = m_hasBookmarks
                              ? IgnoreErrors(vb::Variant(), [&] { return m_rs->Bookmark(); })
                              : vb::Variant();
        }
        // The copy is read when something needs it (an edit, a comparison): outside an edit
        // FldGet reads the field itself, so a walk reads each value once.
        m_stale = true;
        if (OnChange) {
            OnChange(kChangeFields, *this);
        }
    }
    if (OnChange) {
        OnChange(kChangeMove, *this);
    }
}
