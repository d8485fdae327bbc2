#include "engine/TableRecreation.h"

#include "engine/ColumnDefinition.h"

#include "dbaccess/nxConn.h"
#include "dbaccess/nxDb.h"
#include "frame/nxApp.h"
#include "frame/nxMisc.h"
#include "frame/nxStringBuilder.h"

#include "platform/ado/Enums.h"
#include "platform/ado/Field.h"
#include "platform/ado/adox/Catalog.h"
#include "platform/ado/adox/Objects.h"
#include "platform/vb/Err.h"

using namespace Qt::StringLiterals;

namespace engine {

namespace {

vb::Variant field(ado::Recordset& rs, const char16_t* name) {
    return rs.Fields(QStringView(name)).Value();
}

// CLng and CBool of a rowset value, failing as the run time fails on Null or on text that is no
// number or boolean.
template <class Convert> auto converted(const vb::Variant& value, Convert convert) {
    if (value.isNull()) {
        vb::Raise(vb::errors::kInvalidUseOfNull, u"DbImport"_s,
                  vb::ErrorText(vb::errors::kInvalidUseOfNull));
    }
    const auto out = convert(value);
    if (!out) {
        vb::Raise(vb::errors::kTypeMismatch, u"DbImport"_s,
                  vb::ErrorText(vb::errors::kTypeMismatch));
    }
    return *out;
}

long longOf(const vb::Variant& value) {
    return converted(value, [](const vb::Variant& v) { return v.toLong(); });
}

bool boolOf(const vb::Variant& value) {
    return converted(value, [](const vb::Variant& v) { return v.toBool(); });
}

constexpr long kBoolean = 11;
constexpr long kLong = 3;

} // namespace

TableRecreation::TableRecreation(const PhaseContext& run)
    : m_run(run), m_keywords(std::make_shared<QHash<QString, bool>>()) {}

QString TableRecreation::GetCreateTableSql(const QString& Table,
                                           const ado::ConnectionPtr& Source) {
    nxStringBuilder& sb = m_run.sb1;
    sb.Reset();
    ado::RecordsetPtr rs;
    try {
        if (!Source) {
            vb::Raise(vb::errors::kObjectRequired, u"DbImport"_s,
                      vb::ErrorText(vb::errors::kObjectRequired));
        }
        rs = Source->OpenSchema(ado::SchemaEnum::adSchemaColumns,
                                {vb::Variant(), vb::Variant(), vb::Variant(Table)});
        // Slot i holds the name at ordinal position i, so the statement lists the columns in
        // their ordinal order whatever order the rowset has; slot 0 stays empty.
        QStringList names(1);
        while (!rs->Eof()) {
            const long position = longOf(field(*rs, u"ORDINAL_POSITION"));
            if (position < 0) {
                vb::Raise(vb::errors::kSubscriptOutOfRange, u"DbImport"_s,
                          vb::ErrorText(vb::errors::kSubscriptOutOfRange));
            }
            if (position >= names.size()) {
                names.resize(position + 1);
            }
            names[position] = field(*rs, u"COLUMN_NAME").toString();
            rs->MoveNext();
        }
        if (!rs->Bof() || !rs->Eof()) {
            rs->MoveFirst();
        }
        sb.Append(u"create table "_s + EncloseTableName(Table) + u" ("_s);
        for (qsizetype i = 1; i < names.size(); ++i) {
            // The rowset is opened once and filtered for each column. A hole in the positions
            // filters on an empty name, finds no row and ends the statement here.
            rs->setFilter(u"COLUMN_NAME like '"_s + DoubleQuotes(names.at(i)) + u"'"_s);
            if (i > 1) {
                sb.Append(u", "_s);
            }
            const QString name = field(*rs, u"COLUMN_NAME").toString();
            sb.Append(EncloseFieldName(name) + u' ' + GetColumnDefinition(*rs));
        }
        sb.Append(u")"_s);
        rs->Close();
    } catch (...) {
        // What stands is returned: the server refuses the unfinished statement and the run
        // ends there, with the server's reason.
    }
    return sb.ToString();
}

QString TableRecreation::GetColumnDefinition(ado::Recordset& Columns) {
    SourceColumn column;
    column.name = field(Columns, u"COLUMN_NAME").toString();
    const QString table = field(Columns, u"TABLE_NAME").toString();
    column.ordinal = longOf(field(Columns, u"ORDINAL_POSITION"));
    column.dataType = longOf(field(Columns, u"DATA_TYPE"));
    column.maximumLength = field(Columns, u"CHARACTER_MAXIMUM_LENGTH");
    column.isNullable = boolOf(field(Columns, u"IS_NULLABLE"));
    column.hasDefault = boolOf(field(Columns, u"COLUMN_HASDEFAULT"));
    column.defaultValue = field(Columns, u"COLUMN_DEFAULT");

    const bool catalogRead = column.dataType == kBoolean || column.dataType == kLong;
    if (catalogRead) {
        const ado::adox::CatalogPtr& catalog = m_run.src.Db();
        if (!catalog) {
            vb::Raise(vb::errors::kObjectRequired, u"DbImport"_s,
                      vb::ErrorText(vb::errors::kObjectRequired));
        }
        ado::adox::Column& c = catalog->Tables().Item(table).Columns().Item(column.name);
        if (column.dataType == kBoolean) {
            column.catalogNullable = boolOf(c.Properties().Item(u"Nullable").Value());
        } else {
            column.autoincrement = boolOf(c.Properties().Item(u"Autoincrement").Value());
            if (column.autoincrement) {
                column.increment = longOf(c.Properties().Item(u"Increment").Value());
            }
        }
    }
    column.inPrimaryKey = m_run.srcConn.IsInPrimaryKey(nxApp::Misc().ApiciDoppi(column.name), table);

    long seed = 0;
    if (NeedsIdentityClause(column)) {
        ado::ConnectionPtr source = Columns.ActiveConnection();
        if (!source) {
            source = m_run.srcConn.Connection();
        }
        seed = GetIdentitySeed(table, column.name, source);
    }
    const ColumnDefinition definition = engine::GetColumnDefinition(column, seed);
    if (!definition.ok()) {
        // A default that is no boolean, or a type the suite never uses: no mapping is invented.
        vb::Raise(vb::errors::kTypeMismatch, u"DbImport"_s, definition.refusal);
    }
    nxStringBuilder& sb = m_run.sb2;
    sb.Reset();
    sb.Append(definition.text);
    return sb.ToString();
}

std::int32_t TableRecreation::GetIdentitySeed(const QString& Table, const QString& Column,
                                              const ado::ConnectionPtr& Source) noexcept {
    try {
        auto rs = std::make_shared<ado::Recordset>();
        rs->setCursorLocation(ado::CursorLocationEnum::adUseServer);
        rs->Open(u"select top 1 "_s + Column + u" from "_s + Table + u" order by "_s + Column +
                     u" asc"_s,
                 Source, ado::CursorTypeEnum::adOpenForwardOnly,
                 ado::LockTypeEnum::adLockReadOnly);
        if (rs->Eof()) {
            return 0;
        }
        const auto value = rs->Fields(0).Value().toLong();
        return value ? static_cast<std::int32_t>(*value) : 0;
    } catch (...) {
        return 0;
    }
}

QString TableRecreation::EncloseTableName(const QString& Name) const {
    return engine::EncloseTableName(Name);
}

QString TableRecreation::EncloseFieldName(const QString& Name) const {
    return engine::EncloseFieldName(Name, ServerKeywords());
}

bool TableRecreation::IsReservedWord(const QString& Name) const {
    return engine::IsReservedWord(Name);
}

KeywordTest TableRecreation::ServerKeywords() const {
    const nxConn* master = &m_run.masterConn;
    std::shared_ptr<QHash<QString, bool>> known = m_keywords;
    return [master, known](const QString& name) {
        const auto found = known->constFind(name);
        if (found != known->constEnd()) {
            return *found;
        }
        const bool answer = master->IsDbKeyword(name) || master->IsDbLiteral(name);
        known->insert(name, answer);
        return answer;
    };
}

} // namespace engine
