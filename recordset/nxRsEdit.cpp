#include "recordset/RsTrap.h"
#include "recordset/nxRs.h"

#include "dbaccess/nxDb.h"

#include "frame/Edge.h"
#include "frame/nxApp.h"
#include "frame/nxError.h"
#include "frame/nxMisc.h"
#include "frame/nxSys.h"

#include "platform/ado/Error.h"
#include "platform/vb/Err.h"

using namespace Qt::StringLiterals;

namespace {

using ado::HResult;

bool is(std::int32_t number, HResult code) {
    return static_cast<std::uint32_t>(number) == static_cast<std::uint32_t>(code);
}

// ADO's field attribute: the column accepts null.
constexpr long kFieldIsNullable = 0x20;

} // namespace

void nxRs::setEditMode(bool editing, bool isNew) {
    if (editing) {
        loadValues(); // an edit starts from the record as it stands
    }
    m_isEditing = editing;
    m_isNewRec = editing && isNew;
    if (OnChange) {
        OnChange(kChangeEditMode, *this);
    }
}

bool nxRs::Edit(bool Silent) noexcept {
    static_cast<void>(Silent);
    if (IsUpdatable() && !m_isEditing) {
        setEditMode(true, false);
    }
    return m_isEditing;
}

bool nxRs::AddNew(bool UpdateNow, bool Silent, const vb::Variant& Field,
                  const vb::Variant& Value) noexcept {
    if (!IsUpdatable() || m_isEditing ||
        !IgnoreErrors(false, [&] { return m_rs->Supports(ado::adAddNew); })) {
        return false;
    }
    return Edge(u"nxRs.AddNew", Silent, false, [&] {
        m_retry = false;
        m_retries = 0;
        m_rs->AddNew();
        setEditMode(true, true);
        if (!Field.isEmpty() && !Field.isMissing()) {
            if (!FldSet(Field, Value, Silent)) {
                CancelUpdate(false, true);
                return false;
            }
        }
        return UpdateNow ? Update(Silent) : true;
    });
}

void nxRs::CancelUpdate(bool Edit, bool Undo) noexcept {
    if (!m_isEditing || !m_rs) {
        return;
    }
    IgnoreErrors([&] {
        const ado::EditModeEnum mode = m_rs->EditMode();
        if (!m_isNewRec) {
            if (mode == ado::EditModeEnum::adEditInProgress) {
                m_rs->CancelUpdate();
            }
            setEditMode(false, false);
            FldRefresh();
            if (Edit) {
                setEditMode(true, false);
            }
        } else if (Undo) {
            if (mode == ado::EditModeEnum::adEditAdd) {
                m_rs->CancelBatch(ado::AffectEnum::adAffectAll);
            }
            setEditMode(false, false);
            goTo(m_lastGood);
        } else {
            FldRefresh(); // the new row stays in editing
        }
    });
}

bool nxRs::CheckPrimaryKey(bool AllowEmpty) noexcept {
    if (m_primaryIndex.isEmpty() || !IsValidRec()) {
        return true;
    }
    for (int i = 0; i < FldCount(); ++i) {
        if (!m_isKey[static_cast<std::size_t>(i)] || FldIsSys(i)) {
            continue;
        }
        if (!FldIsSet(i)) {
            return false;
        }
        const vb::Variant v = m_values[static_cast<std::size_t>(i)];
        if (m_db != nullptr && m_db->DbType() == 0 && v.isString() && v.get<QString>()->isEmpty() &&
            !AllowEmpty && !FldProp(i, u"Jet OLEDB:Allow Zero Length"_s).toBool().value_or(false)) {
            return false;
        }
    }
    return true;
}

// Goes through the connection's errors: an entry with one of `states` (as text or as number) is
// the failure to report, a duplicate key, with its state as the number; the texts of the other
// entries the server numbered follow it, a line each. Returns that text, empty when there was
// none.
QString nxRs::passOverErrors(const QStringList& states) {
    if (!m_cn) {
        return {};
    }
    vb::ErrRecord& err = vb::Err();
    QString found;
    QStringList others;
    for (const ado::Error& e : m_cn->Errors()) {
        const QString state = e.sqlState().trimmed();
        bool match = states.contains(state);
        for (const QString& s : states) {
            match = match || (state.toInt() != 0 && state.toInt() == s.toInt());
        }
        if (match && found.isEmpty()) {
            err.Number = state.toInt();
            found = e.description();
        } else if (e.nativeError() != 0) {
            others.append(e.description());
        }
    }
    if (!found.isEmpty() || !others.isEmpty()) {
        QStringList all;
        if (!found.isEmpty()) {
            all.append(found);
        }
        all.append(others);
        err.Description = all.join(u"\r\n"_s);
    }
    m_cn->Errors().Clear();
    return found.isEmpty() && others.isEmpty() ? QString() : err.Description;
}

void nxRs::wait(std::int32_t ms) const {
    // A closed loop on the tick, with no message pump: nothing else runs while a row is locked.
    auto now = [this] { return m_clock ? m_clock() : nxApp::Sys().TickCount(); };
    const std::int32_t start = now();
    while (static_cast<std::int64_t>(now()) - start < ms) {
    }
}

bool nxRs::retryStep(int& modified) {
    modified = 0;
    if (m_isNewRec || m_idField < 0) {
        return false;
    }
    std::vector<vb::Variant> pending = m_values;
    if (!m_writeOnUpdate) {
        for (int i = 0; i < FldCount(); ++i) {
            pending[static_cast<std::size_t>(i)] =
                IgnoreErrors(vb::Variant(), [&] { return m_rs->Fields(i).Value(); });
        }
    }
    const vb::Variant id = pending[static_cast<std::size_t>(m_idField)];
    CancelUpdate(true, true); // reads the row as it now stands
    if (++m_retries > kRetryLimit) {
        return false;
    }
    wait(kRetryWaitMs);
    if (!IgnoreErrors(false,
                      [&] {
                          m_rs->Move(0);
                          return true;
                      }) ||
        !IsValidRec()) {
        return false;
    }
    FldRefresh();
    if (nxApp::Misc().VariantIsDiff(m_values[static_cast<std::size_t>(m_idField)], id)) {
        return false; // the row has gone
    }
    for (int i = 0; i < FldCount(); ++i) {
        const vb::Variant& value = pending[static_cast<std::size_t>(i)];
        if (i == m_idField ||
            !nxApp::Misc().VariantIsDiff(m_values[static_cast<std::size_t>(i)], value)) {
            continue;
        }
        ++modified;
        if (!m_writeOnUpdate) {
            m_rs->Fields(i).setValue(value);
        }
        m_values[static_cast<std::size_t>(i)] = value;
    }
    m_retry = true;
    return true;
}

// The trap of Update: turns the provider's failure into the system's message, and says whether
// the update should be tried again.
bool nxRs::updateFailed(bool silent, bool cancelOnError, bool& undo, bool& edit, bool& retry) {
    static_cast<void>(silent);
    vb::ErrRecord& err = vb::Err();
    bool statusTest = true;
    if (is(err.Number, HResult::DB_E_INTEGRITYVIOLATION)) {
        if (cancelOnError) {
            undo = true;
        }
    } else if (is(err.Number, static_cast<HResult>(0x80040E20)) ||
               is(err.Number, HResult::DB_E_ERRORSOCCURRED) ||
               is(err.Number, static_cast<HResult>(0x80040E23)) ||
               is(err.Number, HResult::DB_E_CONCURRENCYVIOLATION)) {
        passOverErrors({u"23000"_s, u"3022"_s});
        edit = false;
    } else if (is(err.Number, HResult::E_UNSPECIFIED)) {
        if (m_db != nullptr && m_db->DbType() == 1) {
            passOverErrors({u"3022"_s});
        }
    } else {
        statusTest = false;
    }
    if (!statusTest) {
        return false;
    }
    edit = !cancelOnError;
    if (!IsValidPos()) {
        undo = true;
        return false;
    }
    const long status = IgnoreErrors(0L, [&] { return m_rs->Status(); });
    // Only a record the provider could no longer find as it was (0x10) is tried again, after a
    // wait, with the row as it now stands. A refusal of the optimistic check
    // (adRecConcurrencyViolation, 0x800) is no reason to try again: it falls to the last case
    // with the other statuses, the edit is undone and the failure reported.
    if (status == ado::adRecInvalid) {
        retry = true;
        undo = true;
    } else if (status == ado::adRecCanceled) {
        err.Description = u"Errore nel salvataggio del record."_s;
    } else if (status == ado::adRecIntegrityViolation) {
        QString text;
        if (!CheckPrimaryKey()) {
            text = u"Compilare tutti i campi della chiave."_s;
        }
        const QString server = passOverErrors({u"23000"_s});
        if (!server.isEmpty()) {
            text = text.isEmpty() ? server : text + u"\r\n"_s + server;
        }
        QStringList missing;
        for (int i = 0; i < FldCount(); ++i) {
            const long attributes = IgnoreErrors(0L, [&] { return m_rs->Fields(i).Attributes(); });
            if (i != m_idField && (attributes & kFieldIsNullable) == 0 &&
                m_values[static_cast<std::size_t>(i)].isNull()) {
                missing.append(FldName(i));
            }
        }
        if (!missing.isEmpty()) {
            text += (text.isEmpty() ? QString() : u"\r\n"_s) +
                    u"Assegnare un valore ai seguenti campi: "_s + missing.join(u", "_s);
        }
        err.Description =
            text.isEmpty()
                ? u"Errore nel salvataggio del record, violazione di vincoli sui valori del record."_s
                : text;
    } else {
        undo = true;
    }
    return retry;
}

bool nxRs::Update(bool Silent, bool CancelOnError, bool Undo, bool Edit) noexcept {
    if (!m_isEditing) {
        return true;
    }
    if (!IsValidRec()) {
        CancelUpdate(false, true);
        return rs::Refuse(u"nxRs.Update()"_s, u"Record non valido."_s, Silent);
    }
    m_retry = false;
    m_retries = 0;
    for (;;) {
        QStringList names;
        std::vector<vb::Variant> values;
        for (int i = 0; i < FldCount(); ++i) {
            if (FldModified(i)) {
                names.append(FldName(i));
                values.push_back(m_values[static_cast<std::size_t>(i)]);
            }
        }
        try {
            if (!m_isNewRec && !names.isEmpty() && m_writeOnUpdate) {
                m_rs->Update(names, values);
            } else {
                m_rs->Update();
            }
            setEditMode(false, false);
            goTo(Bookmark());
            return true;
        } catch (...) {
            frame::LoadAmbientError();
        }
        bool undo = Undo;
        bool edit = Edit;
        bool retry = false;
        if (updateFailed(Silent, CancelOnError, undo, edit, retry)) {
            int modified = 0;
            const vb::ErrRecord failure = vb::Err();
            if (retryStep(modified)) {
                vb::Err() = failure;
                nxApp::FillError();
                continue;
            }
            vb::Err() = failure;
        }
        const vb::ErrRecord failure = vb::Err();
        if (undo || !edit) {
            CancelUpdate(edit, undo);
        } // else the edit stays open with what was typed, for the caller to correct
        vb::Err() = failure;
        nxApp::ErrorBox(u"nxRs.Update()"_s, Silent, false);
        return false;
    }
}

bool nxRs::Delete(bool Silent) noexcept {
    if (!IsUpdatable() || !IsValidPos()) {
        return false;
    }
    CancelUpdate(false, true);
    return Edge(u"nxRs.Delete()", Silent, false, [&] {
        m_rs->Delete(ado::AffectEnum::adAffectCurrent);
        MoveValid(Silent);
        return true;
    });
}
