#include "recordset/RsTrap.h"
#include "recordset/nxRs.h"

#include "dbaccess/nxDb.h"

#include "frame/Edge.h"
#include "frame/nxApp.h"
#include "frame/nxMisc.h"

#include "platform/vb/Err.h"

#include <QDate>

using namespace Qt::StringLiterals;

namespace {

// Errors of a value that the provider cannot give (a type it cannot convert, a deleted row's
// cell): the read goes on with the value as it was.
constexpr std::uint32_t kCantConvertValue = 0x80040E04;
constexpr std::uint32_t kDeletedRow = 0x80040E1B;

bool leavesValueAsItWas(std::int32_t code) {
    const auto hresult = static_cast<std::uint32_t>(code);
    return hresult == kCantConvertValue || hresult == kDeletedRow;
}

// "yyyy-mm-dd", with a time behind it or not.
std::optional<QDateTime> ansiDate(QString text) {
    while (text.startsWith(u'\'')) {
        text.remove(0, 1);
    }
    while (text.endsWith(u'\'')) {
        text.chop(1);
    }
    const QDate day = QDate::fromString(text.left(10), u"yyyy-MM-dd"_s);
    if (!day.isValid() || (text.size() > 10 && text.at(10) != u' ' && text.at(10) != u'T')) {
        return std::nullopt;
    }
    QTime time(0, 0);
    if (text.size() > 10) {
        time = QTime::fromString(text.mid(11), u"HH:mm:ss"_s);
        if (!time.isValid()) {
            return std::nullopt;
        }
    }
    return vb::makeDate(day.year(), day.month(), day.day(), time.hour(), time.minute(),
                        time.second());
}

QString argumentText(const vb::Variant& field) {
    return field.toString();
}

} // namespace

bool nxRs::FldExist(const vb::Variant& Field, int* Index) const noexcept {
    if (!m_isOpened || !m_rs) {
        return false;
    }
    // Fields are mostly asked for by index, in the loop of a job: that road stays short.
    if (const std::int32_t* i = Field.get<std::int32_t>()) {
        if (*i < 0 || *i >= FldCount()) {
            return false;
        }
        if (Index != nullptr) {
            *Index = *i;
        }
        return true;
    }
    if (Field.isEmpty() || Field.isMissing()) {
        return false;
    }
    return IgnoreErrors(false, [&] {
        if (!Field.isString()) {
            if (!Field.isNumeric()) {
                return false;
            }
            const std::int32_t i = Field.toLong().value_or(-1);
            if (i < 0 || i >= FldCount()) {
                return false;
            }
            if (Index != nullptr) {
                *Index = i;
            }
            return true;
        }
        QString name = Field.get<QString>()->trimmed();
        name.remove(u'[');
        name.remove(u']');
        ado::Field* field = m_rs->Fields().find(name);
        if (field == nullptr && name.contains(u'.')) {
            field = m_rs->Fields().find(name.mid(name.lastIndexOf(u'.') + 1));
        }
        if (field == nullptr) {
            return false;
        }
        if (Index != nullptr) {
            *Index = field->index();
        }
        return true;
    });
}

int nxRs::FldIndex(const vb::Variant& Field) const noexcept {
    int i = -1;
    return FldExist(Field, &i) ? i : -1;
}

QString nxRs::FldName(const vb::Variant& Field) const noexcept {
    int i = -1;
    if (!FldExist(Field, &i)) {
        return {};
    }
    return IgnoreErrors(QString(), [&] { return m_rs->Fields(i).Name(); });
}

long nxRs::FldType(const vb::Variant& Field) const noexcept {
    int i = -1;
    if (!FldExist(Field, &i)) {
        return 0;
    }
    return IgnoreErrors(0L, [&] { return static_cast<long>(m_rs->Fields(i).Type()); });
}

long nxRs::FldSize(const vb::Variant& Field) const noexcept {
    int i = -1;
    if (!FldExist(Field, &i)) {
        return 0;
    }
    return IgnoreErrors(0L, [&] { return m_rs->Fields(i).DefinedSize(); });
}

long nxRs::FldAttr(const vb::Variant& Field) const noexcept {
    int i = -1;
    if (!FldExist(Field, &i)) {
        return 0;
    }
    return IgnoreErrors(0L, [&] { return m_rs->Fields(i).Attributes(); });
}

vb::Variant nxRs::FldProp(const vb::Variant& Field, const QString& Name) const noexcept {
    int i = -1;
    if (!FldExist(Field, &i)) {
        return {};
    }
    return IgnoreErrors(vb::Variant(), [&] {
        ado::Field& field = m_rs->Fields(i);
        if (const ado::Property* p = field.Properties().find(Name)) {
            return p->Value();
        }
        if (m_table) {
            if (const auto column = m_table->Columns().find(field.Name())) {
                if (const ado::Property* p = column->Properties().find(Name)) {
                    return p->Value();
                }
            }
        }
        return vb::Variant();
    });
}

int nxRs::FldKind(const vb::Variant& Field) const noexcept {
    if (m_db == nullptr) {
        return 0;
    }
    const long type = FldType(Field);
    return m_db->DataTypeKind(type, u"1"_s, u"2"_s, u"3"_s, u"4"_s).toInt();
}

bool nxRs::FldIsPrimary(const vb::Variant& Field) const noexcept {
    int i = -1;
    return FldExist(Field, &i) && m_isKey[static_cast<std::size_t>(i)];
}

// The system's own columns begin with "SYS_" (SYS_RECORD, SYS_SERIALE...).
bool nxRs::FldIsSys(const vb::Variant& Field) const noexcept {
    return FldName(Field).startsWith(u"SYS_"_s, Qt::CaseInsensitive);
}

bool nxRs::FldIsAutoIncrement(const vb::Variant& Field) const noexcept {
    int i = -1;
    return FldExist(Field, &i) && i == m_idField;
}

bool nxRs::FldIsNull(const vb::Variant& Field) noexcept {
    return FldGet(Field, vb::Null{}).isNull();
}

bool nxRs::FldIsEmpty(const vb::Variant& Field) noexcept {
    const vb::Variant v = FldGet(Field, vb::Null{});
    return v.isNull() || v.isEmpty() || (v.isString() && v.get<QString>()->isEmpty());
}

bool nxRs::FldIsSet(const vb::Variant& Field) noexcept {
    const vb::Variant v = FldGet(Field, vb::Null{});
    return !v.isNull() && !v.isEmpty();
}

bool nxRs::readField(int index, vb::Variant& value) {
    try {
        fetchValue(index, value);
        return true;
    } catch (const ado::Error& e) {
        return leavesValueAsItWas(e.hresult());
    } catch (...) {
        return false;
    }
}

bool nxRs::FldRecValue(const vb::Variant& Field, vb::Variant& Value, bool Silent) noexcept {
    int i = -1;
    return FldExist(Field, &i) && recValue(i, Field, Value, Silent);
}

// Called from a handler: the exception under way says why the read failed.
bool nxRs::readFailed(const vb::Variant& field, const vb::Variant& value, bool silent) {
    frame::LoadAmbientError();
    if (leavesValueAsItWas(vb::Err().Number)) {
        vb::Err().Clear();
        return true;
    }
    const QString valueText = value.isMissing() ? u"<mancante>"_s
                              : value.isEmpty() ? u"<vuoto>"_s
                                                : value.toString();
    nxApp::ErrorBox(u"nxRs.FldRecValue("_s + argumentText(field) + u", "_s + valueText + u", "_s +
                        vb::Variant(silent).toString() + u')',
                    silent, false);
    return false;
}

void nxRs::loadValues() {
    if (m_stale && m_isOpened && m_rs) {
        m_stale = false;
        for (int i = 0; i < FldCount(); ++i) {
            vb::Variant v;
            if (readField(i, v)) {
                m_values[static_cast<std::size_t>(i)] = std::move(v);
            }
        }
    }
}

void nxRs::FldRefresh() noexcept {
    if (!m_isOpened || !m_rs) {
        return;
    }
    m_stale = false;
    for (int i = 0; i < FldCount(); ++i) {
        vb::Variant v;
        if (readField(i, v)) {
            m_values[static_cast<std::size_t>(i)] = std::move(v);
        }
    }
    if (OnChange) {
        OnChange(kChangeFields, *this);
    }
}

bool nxRs::FldModified(const vb::Variant& Field) noexcept {
    int i = -1;
    if (!FldExist(Field, &i)) {
        return false;
    }
    loadValues();
    vb::Variant fresh;
    if (!FldRecValue(i, fresh, true)) {
        return true; // a field that can't be read counts as changed
    }
    return nxApp::Misc().VariantIsDiff(m_values[static_cast<std::size_t>(i)], fresh);
}

vb::Variant nxRs::FldGet(const vb::Variant& Field, const vb::Variant& Default) noexcept {
    int i = -1;
    // A walk asks by index at every field of every record: that road skips FldExist.
    if (const std::int32_t* index = Field.get<std::int32_t>();
        index != nullptr && m_isOpened && m_rs && *index >= 0 && *index < FldCount()) {
        i = *index;
    } else if (!FldExist(Field, &i)) {
        return Default;
    }
    if (!positionIsValid()) {
        return Default;
    }
    const auto at = static_cast<std::size_t>(i);
    vb::Variant& copy = m_values[at];
    // Read straight into the copy, reusing its text storage. A value the provider cannot convert
    // leaves it as it was; one a damaged Jet file cannot give leaves it Empty.
    if (!m_isEditing && m_read[at] == 0 && recValue(i, Field, copy, false) && m_keepReads) {
        m_read[at] = 1;
    }
    return copy.isNull() ? Default : copy;
}

bool nxRs::convertForField(int index, vb::Variant& value, bool silent) {
    const QString label = u"nxRs.FldSet"_s;
    const QString refused = u"Valore per il campo '"_s + FldName(index) + u"' non valido"_s;
    switch (FldKind(index)) {
    case kKindNumber:
        if (value.isNull()) {
            return rs::Refuse(label, refused, silent);
        }
        if (!value.isNumeric()) {
            value = std::int32_t{0};
        }
        return true;
    case kKindText:
        if (value.isNull()) {
            if (m_isKey[static_cast<std::size_t>(index)]) {
                value = QString();
            }
            return true;
        } else {
            const long size = FldSize(index);
            const QString text = value.toString();
            if (size > 0 && text.size() > size) {
                value = text.left(size); // cut, not refused
            }
        }
        return true;
    case kKindBoolean:
        if (!value.isNumeric() && !value.isNull()) {
            value = false;
        }
        return true;
    case kKindDate:
        if (value.isNull() || value.isDate()) {
            return true;
        }
        if (value.isString()) {
            if (const auto date = ansiDate(*value.get<QString>())) {
                // The server reads the text itself; Jet wants a real date.
                if (m_db->DbType() != 1) {
                    value = *date;
                }
                return true;
            }
        }
        value = std::int32_t{1};
        return true;
    default:
        return rs::Refuse(label, refused, silent);
    }
}

bool nxRs::FldSet(const vb::Variant& Field, const vb::Variant& Value, bool Silent) noexcept {
    const QString label = u"nxRs.FldSet"_s;
    int i = -1;
    if (!FldExist(Field, &i)) {
        return rs::Refuse(label, u"Campo '"_s + argumentText(Field) + u"' inesistente"_s, Silent);
    }
    if (!m_isEditing) {
        return rs::Refuse(label, u"Record non in editing"_s, Silent);
    }
    vb::Variant value = Value;
    if (!convertForField(i, value, Silent)) {
        return false;
    }
    if (!m_isNewRec && i == m_idField) {
        return rs::Refuse(label, u"Impossibile modificare il campo contatore"_s, Silent);
    }
    vb::Variant& copy = m_values[static_cast<std::size_t>(i)];
    if (!nxApp::Misc().VariantIsDiff(copy, value)) {
        return true;
    }
    if (m_writeOnUpdate && !m_isNewRec) {
        copy = value;
        if (OnFieldChange) {
            OnFieldChange(value, i, *this);
        }
    } else {
        // ADO's field-change event takes the copy.
        try {
            m_rs->Fields(i).setValue(value);
        } catch (...) {
            frame::LoadAmbientError();
            nxApp::ErrorBox(label, Silent, false);
            return false;
        }
    }
    if (i == m_idField) {
        m_idSetByHand = true;
    }
    return true;
}

void nxRs::onFieldChangeComplete(const std::vector<int>& fields) {
    for (const int i : fields) {
        if (i < 0 || i >= FldCount()) {
            continue;
        }
        const vb::Variant value =
            IgnoreErrors(vb::Variant(), [&] { return m_rs->Fields(i).Value(); });
        vb::Variant& copy = m_values[static_cast<std::size_t>(i)];
        if (nxApp::Misc().VariantIsDiff(value, copy)) {
            copy = value;
            if (OnFieldChange) {
                OnFieldChange(value, i, *this);
            }
        }
    }
}
