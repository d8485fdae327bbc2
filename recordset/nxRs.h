#pragma once

#include "recordset/RsSource.h"

#include "platform/ado/Connection.h"
#include "platform/ado/Recordset.h"
#include "platform/ado/adox/Objects.h"
#include "platform/vb/Variant.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

class nxDb;

// A recordset on a connection of its own. It knows the table behind its statement, the table's
// primary key and identity column, keeps a copy of the current record's values, and moves and
// edits softly: a move that lands nowhere goes back where it was, an update that meets a
// concurrency conflict is tried again, a refused key or constraint becomes a clear message.
// Its statement stands in three pieces (base, where, order) so that a filter or an order can
// change without rewriting it.
//
// A field argument is a variant holding a field's name or its 0-based index. Members answer with
// results and never throw; the reason of a failure stands in nxApp::LastError().
class nxRs {
public:
    // The kinds of MoveTo, a bit each.
    static constexpr int kMoveFirst = 1;
    static constexpr int kMovePrevious = 2;
    static constexpr int kMoveNext = 4;
    static constexpr int kMoveLast = 8;
    static constexpr int kMoveValid = 16;
    static constexpr int kMoveCurrent = 32;
    // The kinds of the change event.
    static constexpr int kChangeFields = 1;
    static constexpr int kChangeEditMode = 2;
    static constexpr int kChangeMove = 3;
    // FldKind's answers.
    static constexpr int kKindNumber = 1;
    static constexpr int kKindText = 2;
    static constexpr int kKindBoolean = 3;
    static constexpr int kKindDate = 4;
    // A concurrency conflict is tried this many times, this far apart.
    static constexpr int kRetryLimit = 600;
    static constexpr std::int32_t kRetryWaitMs = 50;

    nxRs();
    nxRs(const nxRs&) = delete;
    nxRs& operator=(const nxRs&) = delete;
    ~nxRs();

    // Raised on a change of state: the kind (1 fields refreshed, 2 edit mode, 3 moved).
    std::function<void(int kind, nxRs& rs)> OnChange;
    // Raised when a field's copy changes: the value and the field's index.
    std::function<void(const vb::Variant& value, int field, nxRs& rs)> OnFieldChange;

    bool IsOpened() const noexcept { return m_isOpened; }
    nxDb* Db() const noexcept { return m_db; }
    void Db(nxDb* db) noexcept { m_db = db; }
    // While disconnected, Requery and SetWhere do nothing.
    void DisconnectRecordset() noexcept { m_disconnected = true; }
    void ConnectRecordset() noexcept { m_disconnected = false; }
    const ado::RecordsetPtr& rs() const noexcept { return m_rs; }
    const QString& Name() const noexcept { return m_parts.name; }
    const QString& DefIDField() const noexcept { return m_defIdField; }
    void DefIDField(const QString& name) { m_defIdField = name; }
    bool WriteOnUpdate() const noexcept { return m_writeOnUpdate; }
    // Changes only while not editing.
    void WriteOnUpdate(bool value) noexcept;

    // A property of the ADO recordset; errors are ignored.
    void PropertySet(const QString& name, const vb::Variant& value) noexcept;
    vb::Variant PropertyGet(const QString& name) const noexcept;

    bool RsAttach(const ado::RecordsetPtr& recordset) noexcept;
    bool RsOpen(const QString& Statement, long CursorType = 1, long LockType = 3,
                bool Silent = false, long CursorLocation = 2) noexcept;
    void RsClose() noexcept;
    bool Requery(bool Silent = false) noexcept;
    bool GotErrRetry() const noexcept { return m_isOpened && m_retry; }

    bool Bof() const noexcept;
    bool Eof() const noexcept; // EOF: the C library has a macro of that name
    bool IsEmpty() const noexcept { return Bof() && Eof(); }
    bool IsValidPos() const noexcept;
    bool IsValidRec() noexcept;
    bool IsUpdatable() const noexcept;
    bool IsEditing() const noexcept { return m_isEditing; }
    bool IsNewRec() const noexcept { return m_isNewRec; }
    bool SetBookmark(const vb::Variant& Value, bool Silent = false) noexcept;
    vb::Variant Bookmark() const noexcept;
    std::int32_t Position() noexcept;

    // The SQL of the pieces.
    QString SQL() const { return m_isOpened ? m_parts.base : QString(); }
    QString Where() const;
    void Where(const QString& text) { SetWhere(text, true); }
    bool SetWhere(const QString& Text, bool Silent = false) noexcept;
    QString OrderBy() const;
    void OrderBy(const QString& text) { SetOrderBy(text, true); }
    bool SetOrderBy(const QString& Text, bool Silent = false) noexcept;
    std::int32_t CountQuery(const QString& Extra = {}) noexcept;
    std::int32_t Count() noexcept { return CountQuery(QString()); }
    std::int32_t MaxQuery(const QString& Field, bool Min = false) noexcept;
    const QString& Index() const noexcept { return m_index; }
    void Index(const QString& name) { SetIndex(name, true); }
    bool SetIndex(const QString& Name, bool Silent = false) noexcept;
    QString IndexPrimary() const { return m_primaryIndex; }
    QStringList GetIndexFields(const QString& IndexName) const noexcept;
    // The names of the table's indexes, in the catalogue's order.
    QStringList GetIndexesName() const noexcept;
    // The fields of the primary key, in the recordset's order.
    QStringList PrimaryFields() const;

    std::int32_t FldCount() const noexcept { return static_cast<std::int32_t>(m_values.size()); }
    bool FldExist(const vb::Variant& Field, int* Index = nullptr) const noexcept;
    int FldIndex(const vb::Variant& Field) const noexcept;
    QString FldName(const vb::Variant& Field) const noexcept;
    long FldType(const vb::Variant& Field) const noexcept;
    long FldSize(const vb::Variant& Field) const noexcept;
    long FldAttr(const vb::Variant& Field) const noexcept;
    vb::Variant FldProp(const vb::Variant& Field, const QString& Name) const noexcept;
    int FldKind(const vb::Variant& Field) const noexcept;
    bool FldIsPrimary(const vb::Variant& Field) const noexcept;
    bool FldIsSys(const vb::Variant& Field) const noexcept;
    bool FldIsAutoIncrement(const vb::Variant& Field) const noexcept;
    bool FldIsNull(const vb::Variant& Field) noexcept;
    bool FldIsEmpty(const vb::Variant& Field) noexcept;
    bool FldIsSet(const vb::Variant& Field) noexcept;
    bool FldRecValue(const vb::Variant& Field, vb::Variant& Value, bool Silent = false) noexcept;
    void FldRefresh() noexcept;
    bool FldModified(const vb::Variant& Field) noexcept;
    vb::Variant FldGet(const vb::Variant& Field, const vb::Variant& Default = {}) noexcept;
    bool FldSet(const vb::Variant& Field, const vb::Variant& Value, bool Silent = false) noexcept;

    bool AddNew(bool UpdateNow = false, bool Silent = false, const vb::Variant& Field = {},
                const vb::Variant& Value = {}) noexcept;
    bool Edit(bool Silent = false) noexcept;
    bool Update(bool Silent = false, bool CancelOnError = true, bool Undo = true,
                bool Edit = false) noexcept;
    void CancelUpdate(bool Edit = false, bool Undo = true) noexcept;
    bool CheckPrimaryKey(bool AllowEmpty = false) noexcept;
    // Deletes the current record, then stands on a valid one.
    bool Delete(bool Silent = false) noexcept;

    bool MoveTo(int Kind, bool KeepCurrent = false, bool Silent = false) noexcept;
    bool MoveFirst(bool Silent = false) noexcept { return MoveTo(kMoveFirst, false, Silent); }
    bool MovePrevious(bool KeepCurrent = false, bool Silent = false) noexcept {
        return MoveTo(kMovePrevious, KeepCurrent, Silent);
    }
    bool MoveNext(bool KeepCurrent = false, bool Silent = false) noexcept {
        return MoveTo(kMoveNext, KeepCurrent, Silent);
    }
    bool MoveLast(bool Silent = false) noexcept { return MoveTo(kMoveLast, false, Silent); }
    bool MoveValid(bool Silent = false) noexcept { return MoveTo(kMoveValid, false, Silent); }
    bool MoveCurrent(bool Silent = false) noexcept { return MoveTo(kMoveCurrent, false, Silent); }

    // The tick the retry waits on, in place of the system's (tests).
    void SetClock(std::function<std::int32_t()> clock) { m_clock = std::move(clock); }

private:
    bool attach(const ado::RecordsetPtr& recordset);
    void noteCursor();
    void readFields();
    void readKey();
    void onMoveComplete(ado::EventReasonEnum reason);
    void onFieldChangeComplete(const std::vector<int>& fields);
    bool tryMove(int kind, bool silent);
    void goTo(const vb::Variant& bookmark) noexcept;
    void setEditMode(bool editing, bool isNew);
    void storeField(int index, const vb::Variant& value);
    bool useUnderlying() const;
    void loadValues();
    void forgetReads() noexcept;
    // IsValidPos, asked of the cursor once per position when the recordset keeps its reads.
    bool positionIsValid() noexcept { return m_posHere || askPosition(); }
    bool askPosition() noexcept;
    void fetchValue(int index, vb::Variant& value) const;
    bool readField(int index, vb::Variant& value);
    bool recValue(int index, const vb::Variant& field, vb::Variant& value, bool silent);
    bool readFailed(const vb::Variant& field, const vb::Variant& value, bool silent);
    bool convertForField(int index, vb::Variant& value, bool silent);
    bool updateFailed(bool silent, bool cancelOnError, bool& undo, bool& edit, bool& retry);
    QString passOverErrors(const QStringList& states);
    bool retryStep(int& modified);
    void wait(std::int32_t ms) const;
    bool runPrivateQuery(const QString& sql, const QString& column, std::int32_t& result);
    bool fail(const QString& label, const QString& text, bool silent);

    nxDb* m_db = nullptr;
    ado::ConnectionPtr m_cn;
    ado::RecordsetPtr m_rs;
    bool m_isOpened = false;
    rs::SourceParts m_parts;
    bool m_disconnected = false;
    std::shared_ptr<ado::adox::Table> m_table;
    QString m_primaryIndex;
    QString m_index;
    std::vector<vb::Variant> m_values;
    bool m_stale = false;           // the copy still holds the record before the last move
    bool m_underlyingOnJet = false; // a Jet keyset cursor that may write: see useUnderlying
    bool m_hasPosition = false;     // the cursor knows its records' positions
    bool m_hasBookmarks = false;    // and has bookmarks to come back to
    // A read-only recordset cannot change the row it stands on: what was read there holds until
    // the next move, as ADO's own row buffer does. A walk reads each value once, and asks for
    // the record's validity (a read of its first field) and its position at every record.
    bool m_keepReads = false;
    std::vector<unsigned char> m_read; // per field: the copy holds the value read here
    bool m_posHere = false;            // IsValidPos said yes since the last move
    bool m_validHere = false;          // IsValidRec said yes since the last move
    std::vector<bool> m_isKey;
    int m_idField = -1;
    bool m_idSetByHand = false;
    bool m_writeOnUpdate = false;
    bool m_isEditing = false;
    bool m_isNewRec = false;
    vb::Variant m_lastGood;
    QString m_defIdField = QStringLiteral("SYS_RECORD");
    bool m_retry = false;
    int m_retries = 0;
    std::function<std::int32_t()> m_clock;
};

// A walk reads every field of every record through the three below: they stay inline.

// On Jet, a keyset cursor that may write keeps a cached copy: the row's own value is read
// instead, except on a new row.
inline bool nxRs::useUnderlying() const {
    return m_underlyingOnJet && m_rs->EditMode() != ado::EditModeEnum::adEditAdd;
}

// Into `value`, whose text storage is reused: FldGet reads straight into the copy of the record.
inline void nxRs::fetchValue(int index, vb::Variant& value) const {
    if (useUnderlying()) {
        value = m_rs->underlyingValue(index);
    } else {
        m_rs->readFieldValue(index, value);
    }
}

inline bool nxRs::recValue(int index, const vb::Variant& field, vb::Variant& value, bool silent) {
    try {
        fetchValue(index, value);
        return true;
    } catch (...) {
        return readFailed(field, value, silent);
    }
}
