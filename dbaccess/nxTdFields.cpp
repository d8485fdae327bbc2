#include "dbaccess/ErrorText.h"
#include "dbaccess/nxConn.h"
#include "dbaccess/nxDb.h"
#include "dbaccess/nxTd.h"

#include "frame/Edge.h"
#include "frame/nxApp.h"
#include "frame/nxMisc.h"

using namespace Qt::StringLiterals;

// Columns: FldAdd makes a column exist or match its definition, on either back end. On the
// server it emulates what Jet does by itself: defaults become named constraints (DEFVAL_), and a
// required column arrives nullable, is filled, and only then is closed to nulls.

namespace {

const QString kTwoDoubleQuotes = u"\"\""_s;

bool isLongOrText(long type) {
    return type == 130 || type == 202 || type == 203;
}

// Sets a property of a new ADOX column; one the provider does not list is added, so that a
// column built for a statement keeps what was decided for it.
void setProperty(ado::adox::Column& column, const QString& name, const vb::Variant& value) {
    if (ado::Property* p = column.Properties().find(name)) {
        p->setValue(value);
    } else {
        column.Properties().put({name, value});
    }
}

bool propertyIs(ado::adox::Column& column, const QString& name, bool value) {
    const ado::Property* p = column.Properties().find(name);
    return p && p->Value().toBool() == value;
}

QString dropOnePair(const QString& text, QChar quote) {
    if (text.size() >= 2 && text.front() == quote && text.back() == quote) {
        return text.mid(1, text.size() - 2);
    }
    return text;
}

[[noreturn]] void conversionFailed() {
    vb::Raise(vb::errors::kTypeMismatch, {}, vb::ErrorText(vb::errors::kTypeMismatch));
}

template <class T> vb::Variant converted(std::optional<T> value) {
    if (!value) {
        conversionFailed();
    }
    return vb::Variant(*value);
}

} // namespace

bool nxTd::FldExist(const QString& Name) noexcept {
    if (!m_isOpened) {
        return false;
    }
    return m_db->ConnUtils()->ColumnExists(m_td->Name(), Name);
}

long nxTd::FldType(const QString& Name) noexcept {
    if (!FldExist(Name)) {
        return 0;
    }
    long size = 0;
    return m_db->ConnUtils()->ColumnType(m_td->Name(), Name, &size);
}

QString nxTd::FldKind(const QString& Name, const QString& NumberVal, const QString& StringVal,
                      const QString& BooleanVal, const QString& DateVal) noexcept {
    if (!m_isOpened) {
        return u"0"_s;
    }
    return m_db->DataTypeKind(FldType(Name), NumberVal, StringVal, BooleanVal, DateVal);
}

vb::Variant nxTd::NormalizeDefault(const QString& Default, long Type, bool Required) const {
    const bool server = isServer();
    if (Default.isEmpty() || Default == kTwoDoubleQuotes) {
        if (Required && Type == 11) {
            return vb::Variant(std::int16_t{0});
        }
        if (Required && isLongOrText(Type)) {
            return server ? u"''"_s : kTwoDoubleQuotes;
        }
        return {};
    }
    const vb::Variant text(Default);
    switch (Type) {
    case 130:
    case 202:
    case 203: {
        const QString bare = nxApp::Misc().LeadRemove(Default, u"''"_s);
        return server ? u'\'' + bare + u'\'' : u'"' + bare + u'"';
    }
    case 11: {
        const QString upper = Default.toUpper();
        if (upper == u"VERO"_s || upper == u"TRUE"_s) {
            return vb::Variant(std::int16_t{-1});
        }
        if (upper == u"FALSO"_s || upper == u"FALSE"_s) {
            return vb::Variant(std::int16_t{0});
        }
        if (text.isNumeric()) {
            return converted(text.toInteger());
        }
        return converted(text.toBool());
    }
    case 2:
        return converted(text.toInteger());
    case 3:
        return converted(text.toLong());
    case 5:
        return converted(text.toDouble());
    case 6:
        return converted(text.toCurrency());
    case 17: {
        const auto n = text.toLong();
        if (!n || *n < 0 || *n > 255) {
            conversionFailed();
        }
        return vb::Variant(static_cast<std::uint8_t>(*n));
    }
    case 7:
    case 135: {
        if (const auto date = text.toDate()) {
            return vb::Variant(*date);
        }
        // Jet's date() is a date without time, its time() a time on 30 December 1899; the
        // bracketed forms are how the server reports its own defaults back.
        const QString lower = Default.toLower();
        if (lower == u"date()"_s || lower == u"getdate()"_s) {
            return server ? u"convert(varchar(8), getdate(), 112)"_s : u"date()"_s;
        }
        if (lower == u"time()"_s) {
            return server ? u"'18991230 '+convert(char(8), getdate(), 108)"_s : Default;
        }
        if (lower == u"convert(varchar(8),getdate(),112)"_s ||
            lower == u"convert([varchar](8),getdate(),(112))"_s) {
            return server ? Default : u"date()"_s;
        }
        if (lower == u"'18991230 ' + convert(char(8),getdate(),108)"_s ||
            lower == u"'18991230 '+convert([char](8),getdate(),(108))"_s) {
            return server ? Default : u"time()"_s;
        }
        return Default;
    }
    default:
        return Default;
    }
}

QString nxTd::defaultConstraintName(const QString& column) const {
    return m_db->NormalizeFld(u"DEFVAL_"_s + StripName(m_td->Name(), true) + column);
}

// A table rebuilt under a working name (_NEW) takes over the default constraint of the table
// that it replaces, which sits on the _OLD or the _BACKUP table.
QString nxTd::previousConstraint(const QString& column, QString* table) const {
    const QString stripped = StripName(m_td->Name(), false);
    if (!stripped.endsWith(u"_NEW"_s)) {
        return {};
    }
    const QString base = stripped.left(stripped.size() - 4);
    for (const QString& suffix : {u"_OLD"_s, u"_BACKUP"_s}) {
        const QString name = m_db->ConnUtils()->GetConstraintName(base + suffix, column);
        if (!name.isEmpty()) {
            *table = base + suffix;
            return name;
        }
    }
    return {};
}

bool nxTd::FldAdd(const QString& Name, long Type, long Size, long Attrs, const QString& Default,
                  bool Silent) noexcept {
    if (!m_isOpened) {
        return false;
    }
    return Edge(u"nxTd.FldAdd()", Silent, false, [&] {
        TdColumn* record = nullptr;
        if (m_sql2005) {
            m_columns.push_back({Name, static_cast<std::int32_t>(Type == 7 ? 135 : Type),
                                 static_cast<std::int32_t>(Size), false, false});
            record = &m_columns.back();
        }
        const bool exists = m_db->ConnUtils()->ColumnExists(m_td->Name(), Name);
        if (!exists && m_db->DbType() == 0 && (Attrs & FldAutoIncrement) != 0) {
            // Jet has one auto-increment column: one already there is this one, renamed.
            for (const auto& column : m_td->Columns()) {
                if (propertyIs(*column, u"Autoincrement"_s, true)) {
                    column->setName(Name);
                    return true;
                }
            }
        }
        if (!exists) {
            addNewColumn(Name, Type, Size, Attrs, Default, record);
            return true;
        }
        return alterColumn(Name, Type, Size, Attrs, Default);
    });
}

void nxTd::addNewColumn(const QString& name, long type, long size, long attrs, QString def,
                        TdColumn* record) {
    const bool server = isServer();
    const bool required = (attrs & FldRequired) != 0;
    const QString q = server ? m_db->NormalizeFld(name) : name;
    const QString t = QuoteTblName(m_td->Name());
    auto setRecord = [&](auto member, bool value) {
        if (record) {
            record->*member = value;
        }
    };

    auto column = std::make_shared<ado::adox::Column>(q);
    const long columnType = (type == 7 || type == 135) ? (server ? 135 : 7) : type;
    column->setType(static_cast<ado::DataTypeEnum>(columnType));
    column->setParentCatalog(m_td->ParentCatalog());
    if (size > 0 && (type != 203 || server)) {
        column->setDefinedSize(size);
    }
    bool nullUpdate = false;
    if (type == 202 || type == 203) {
        if (!server && (attrs & (FldOptional | FldZeroLength)) != 0) {
            setProperty(*column, u"Jet OLEDB:Allow Zero Length"_s, true);
        }
        if (required) {
            setRecord(&TdColumn::Nullable, true);
            setProperty(*column, u"Nullable"_s, true);
            nullUpdate = server && (def.isEmpty() || def == kTwoDoubleQuotes);
        }
    }
    if ((attrs & FldAutoIncrement) != 0 && (!server || name.toUpper() != u"SYS_RECORD"_s)) {
        // On the server SYS_RECORD is a plain integer: its numbers come from SYS_IDS.
        setRecord(&TdColumn::Identity, true);
        setProperty(*column, u"Autoincrement"_s, true);
    }
    def = dropOnePair(dropOnePair(def, u'"'), u'\'');

    vb::Variant value = NormalizeDefault(def, type, required);
    if (!server) {
        setProperty(*column, u"Default"_s, value);
    } else {
        if (value.isEmpty() && type == 11) {
            value = vb::Variant(std::int16_t{0});
        }
        if (!value.isEmpty()) {
            nullUpdate = true;
            QString oldTable;
            const QString old = previousConstraint(name, &oldTable);
            if (!old.isEmpty()) {
                addBatch(u"if exists (select name from sysobjects where name ='"_s +
                         EnclosureRemove(old, u"[]"_s) + u"' and type='D') "_s + u"alter table "_s +
                         QuoteTblName(oldTable) + u" drop constraint "_s + QuoteTblName(old));
            }
            addBatch(u"alter table "_s + t + u" add constraint "_s + defaultConstraintName(name) +
                     u" default "_s + value.toString() + u" for "_s + q);
        }
    }
    if ((attrs & FldNotNull) != 0) {
        setRecord(&TdColumn::Nullable, false);
        setProperty(*column, u"Nullable"_s, false);
    }

    // On the server no default goes into the column itself, so "no default" always holds there.
    const bool noDefault = server || value.isEmpty();
    bool nullable = false;
    switch (type) {
    case 2:
    case 3:
        nullable = !required && noDefault && (attrs & FldAutoIncrement) == 0;
        break;
    case 5:
    case 6:
    case 7:
    case 135:
        nullable = !required && noDefault;
        break;
    case 11:
    case 202:
    case 203:
        nullable = server && !required && noDefault;
        break;
    default:
        break;
    }
    if (nullable) {
        setRecord(&TdColumn::Nullable, true);
        setProperty(*column, u"Nullable"_s, true);
    } else if (server && required && (type == 202 || type == 203)) {
        setRecord(&TdColumn::Nullable, false);
        setProperty(*column, u"Nullable"_s, false);
    }

    const QString typeText = ColumnTypeText(columnType, size);
    if (!server) {
        m_td->Columns().Append(column);
    } else if (!m_td->Type().isEmpty()) {
        addBatch(
            u"alter table "_s + t + u" add "_s + q + u' ' + typeText +
            (propertyIs(*column, u"Autoincrement"_s, true) ? u" identity(1, 1)"_s : u" null"_s));
    } else if (!m_sql2005) {
        m_td->Columns().Append(column);
    }
    if (nullUpdate) {
        m_columnsChanged = true;
        // The value the constraint got: a flag with no default is filled with 0.
        addBatch(u"update "_s + t + u" set "_s + q + u'=' + value.toString() + u" where "_s + q +
                 u" is null"_s);
        if (propertyIs(*column, u"Nullable"_s, false)) {
            addBatch(u"alter table "_s + t + u" alter column "_s + q + u' ' + typeText +
                     u" not null"_s);
        }
    }
}

bool nxTd::alterColumn(const QString& name, long type, long size, long attrs, const QString& def) {
    nxConn& conn = *m_db->ConnUtils();
    const bool server = isServer();
    const bool required = (attrs & FldRequired) != 0;
    const QString table = m_td->Name();
    if (conn.IsIdentityField(table, name)) {
        return true; // identity columns are never altered
    }
    const QString q = server ? m_db->NormalizeFld(name) : name;
    const QString t = QuoteTblName(table);
    ado::adox::Column& column = m_td->Columns().Item(FindCollectionKey(m_td->Columns(), name));
    const long currentType = static_cast<long>(column.Type());
    const bool currentIsText = currentType == 130 || currentType == 202;
    const long currentSize = currentIsText ? column.DefinedSize() : 0;
    const QString current =
        EnclosureRemove(EnclosureRemove(conn.GetDefault(table, name), kTwoDoubleQuotes), u"()"_s);
    const QString currentDefault = NormalizeDefault(current, currentType, required).toString();

    bool typeDiffers = false;
    switch (type) {
    case 7:
    case 135:
        break; // a date column is not retyped
    case 130:
    case 202:
        // A text column never shrinks; a flag or a date column stays what it is.
        typeDiffers = currentIsText ? currentSize < size
                                    : FldKind(name, u"1"_s, u"2"_s, u"3"_s, u"4"_s) == u"1"_s;
        break;
    case 203:
        typeDiffers = server ? currentType != 130 && currentType != 203 : currentType != 203;
        break;
    default:
        typeDiffers = currentType != type;
        break;
    }

    vb::Variant wanted = NormalizeDefault(
        EnclosureRemove(EnclosureRemove(def, kTwoDoubleQuotes), u"()"_s), type, required);
    if (wanted.isEmpty() && type == 11) {
        wanted = vb::Variant(std::int16_t{0});
    }
    const QString wantedDefault = wanted.toString();
    const bool defaultDiffers =
        type == m_db->DateType() ? nxApp::Misc().RemoveChars(wantedDefault, u" "_s).toLower() !=
                                       nxApp::Misc().RemoveChars(currentDefault, u" "_s).toLower()
                                 : wantedDefault != currentDefault;
    const bool optional = (attrs & FldOptional) != 0;
    const bool nullDiffers = conn.CheckNullable(table, name, !optional);
    bool zeroLengthChanged = false;
    if (!server) {
        const bool zeroLength = (attrs & (FldOptional | FldZeroLength)) != 0;
        if (!propertyIs(column, u"JET OLEDB:Allow Zero Length"_s, zeroLength)) {
            setProperty(column, u"JET OLEDB:Allow Zero Length"_s, zeroLength);
            zeroLengthChanged = true;
        }
    }
    if (!typeDiffers && !defaultDiffers && !nullDiffers && !zeroLengthChanged) {
        return true;
    }

    m_columnsChanged = true;
    const QString typeText = alterTypeText(type, std::max(currentSize, size));
    if (!server) {
        addBatch(u"alter table "_s + t + u" alter column "_s + m_db->NormalizeFld(q) + u' ' +
                 typeText +
                 (!wantedDefault.isEmpty() && defaultDiffers ? u" default "_s + wantedDefault
                                                             : QString()));
        return true;
    }
    const bool primary = ColumnDropConstaintsIdx(name);
    addBatch(u"alter table "_s + t + u" alter column "_s + q + u' ' + typeText +
             (primary ? u" not null"_s : QString()));
    const QString constraint = conn.GetConstraintName(StripName(table, false), name);
    if (!constraint.isEmpty()) {
        addBatch(u"if exists (select name from sysobjects where name ='"_s +
                 EnclosureRemove(constraint, u"[]"_s) + u"' and type='D') alter table "_s + t +
                 u" drop constraint "_s + constraint);
    }
    if (!(wantedDefault.isEmpty() && defaultDiffers)) {
        addBatch(u"alter table "_s + t + u" add constraint "_s + defaultConstraintName(name) +
                 u" default "_s + (wantedDefault.isEmpty() ? u"''"_s : wantedDefault) + u" for "_s +
                 q);
    }
    return true;
}

QString nxTd::alterTypeText(long type, long size) const {
    const bool server = isServer();
    switch (type) {
    case 11:
        return u"bit"_s;
    case 2:
        return u"smallint"_s;
    case 3:
        return u"integer"_s;
    case 5:
        return u"float"_s;
    case 6:
        return u"money"_s;
    case 7:
    case 135:
        return u"datetime"_s;
    case 72:
        return u"uniqueidentifier"_s;
    case 130:
    case 202:
        return (server ? u"nvarchar("_s : u"text("_s) + QString::number(size) + u')';
    case 203:
        if (!server) {
            return u"text"_s;
        }
        return m_db->ConnUtils()->DBMSVersion() >= 9 ? u"nvarchar(max)"_s : u"ntext"_s;
    default:
        return {};
    }
}
