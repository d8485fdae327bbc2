#include "dbaccess/nxTd.h"

#include "dbaccess/ErrorText.h"
#include "dbaccess/nxConn.h"
#include "dbaccess/nxDb.h"

#include "frame/Edge.h"
#include "frame/nxApp.h"
#include "frame/nxMisc.h"

#include "platform/ado/Command.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

bool startsWithDigit(const QString& text) {
    return !text.isEmpty() && text.front().isDigit();
}

QString dropSuffix(const QString& name) {
    for (const QString& suffix : {u"_NEW"_s, u"_OLD"_s, u"_BACKUP"_s}) {
        if (name.endsWith(suffix)) {
            return name.left(name.size() - suffix.size());
        }
    }
    return name;
}

} // namespace

nxTd::nxTd() = default;

nxTd::~nxTd() {
    TdClose(false);
    m_db = nullptr;
    m_builder.clear();
}

bool nxTd::isServer() const {
    return m_db && m_db->DbType() == 1;
}

void nxTd::addBatch(const QString& command) {
    m_batchCommands.append(command);
}

bool nxTd::hasBatch() const {
    return m_batchCommands.size() > 1 ||
           (!m_batchCommands.isEmpty() && !m_batchCommands[0].isEmpty());
}

bool nxTd::TdOpen(const QString& Name, const QString& Connect, const QString& RemoteTable,
                  bool Silent) noexcept {
    if (!nxApp::IsInit() || !m_db || !m_db->IsOpened()) {
        return false;
    }
    TdClose(true);
    m_isNew = false;
    return Edge(u"nxTd.TdOpen()", Silent, false, [&] {
        nxConn& conn = *m_db->ConnUtils();
        if (conn.TableExists(Name)) {
            m_td.reset();
            ado::adox::Tables& tables = m_db->Db()->Tables();
            m_td = tables.ItemPtr(FindCollectionKey(tables, Name));
            m_isOpened = true;
            m_batchCommands = QStringList{QString()};
        } else if (!m_db->IsReadOnly()) {
            m_td = std::make_shared<ado::adox::Table>(Name);
            m_td->setParentCatalog(m_db->Db());
            if (m_db->DbType() == 0 && !Connect.isEmpty() && !RemoteTable.isEmpty()) {
                linkTable(Connect, RemoteTable);
            }
            m_isOpened = true;
            m_isNew = true;
            m_batchCommands = QStringList{QString()};
        } else if (!Silent) {
            nxApp::MsgBox(u"Tabella '"_s + Name + u"' inesistente."_s, 48);
        }
        if (m_isOpened) {
            m_name = Name;
        }
        const bool version9 = conn.DBMSVersion() >= 9;
        if (!m_sql2005 && m_db->DbType() == 1) {
            m_sql2005 = version9;
        }
        m_columnsChanged = m_sql2005;
        if (m_isOpened && m_sql2005 && !m_isNew) {
            m_td->Columns().Refresh();
            m_columns.clear();
            for (const auto& column : m_td->Columns()) {
                m_columns.push_back({column->Name(), static_cast<std::int32_t>(column->Type()),
                                     static_cast<std::int32_t>(column->DefinedSize()),
                                     (column->Attributes() & 2) != 0, false});
            }
        }
        m_indexCatalog = version9 ? u"sys.indexes"_s : u"sysindexes"_s;
        m_indexIdColumn = version9 ? u"object_id"_s : u"id"_s;
        return m_isOpened;
    });
}

void nxTd::linkTable(const QString& connect, const QString& remoteTable) {
    QStringList values;
    for (const QString& item : connect.split(u';')) {
        values.append(item.section(u'=', 1));
    }
    auto value = [&](int i) { return i < values.size() ? values[i] : QString(); };
    ado::Properties& p = m_td->Properties();
    p.put({u"Jet OLEDB:Create Link"_s, true});
    p.put({u"Jet OLEDB:Remote Table Name"_s, remoteTable});
    if (value(0).trimmed() == u"Microsoft.Jet.OLEDB.4.0"_s) {
        p.put({u"Jet OLEDB:Link Datasource"_s, value(1)});
        p.put({u"Jet OLEDB:Link Provider String"_s, u"MS Access;Pwd="_s + value(2)});
        return;
    }
    QString text = u"ODBC;Driver={SQL Server};Server="_s + value(2);
    text += connect.toLower().contains(u"trusted_connection=yes"_s)
                ? u";Trusted_Connection=yes"_s
                : u";UID="_s + value(3) + u";pwd="_s + value(4);
    text += u";Database="_s + value(1);
    p.put({u"Jet OLEDB:Link Provider String"_s, text});
    p.put({u"Jet OLEDB:Cache Link Name/Password"_s, true});
}

bool nxTd::TdClose(bool Silent) noexcept {
    if (!m_isOpened) {
        return false;
    }
    const bool result = Edge(u"nxTd.TdClose()", Silent, false, [&] {
        return dbaccess::completingErr(m_name, [&] {
            bool done = false;
            if (m_isNew && m_sql2005) {
                const QString text = BuildCreateTable();
                done = !text.isEmpty() && m_db->Execute(text, Silent, ado::adExecuteNoRecords);
                m_columns.clear();
                m_sql2005 = false; // the next TdOpen works it out afresh
            } else if (m_isNew) {
                if (isServer()) {
                    m_td->setName(m_db->NormalizeTbl(m_td->Name(), false));
                }
                m_db->Db()->Tables().Append(m_td);
                done = true;
            } else {
                done = true;
            }
            if (done && hasBatch()) {
                done = ExecuteBatchCommands(Silent);
            }
            return done;
        });
    });
    if (!result) {
        m_td.reset();
    }
    m_isOpened = false;
    return result;
}

QString nxTd::BuildCreateTable() noexcept {
    return Edge(u"nxTd.BuildCreateTable()", false, QString(), [&] {
        if (m_columns.empty()) {
            return m_builder;
        }
        QStringList parts;
        for (const TdColumn& c : m_columns) {
            QString part = m_db->NormalizeFld(c.Name) + u' ' + ColumnTypeText(c.Type, c.Size);
            if (!c.Nullable) {
                part += u" not null"_s;
            }
            if (c.Identity) {
                part += u" identity(1, 1)"_s;
            }
            parts.append(part);
        }
        return u"create table "_s + m_db->NormalizeTbl(m_name, true) + u" ("_s +
               parts.join(u", "_s) + u')';
    });
}

QString nxTd::ColumnTypeText(long Type, long Size) const {
    return columnTypeText(Type, Size, m_sql2005);
}

QString nxTd::columnTypeText(long type, long size, bool sql2005) {
    switch (type) {
    case 2:
        return u"smallint"_s;
    case 3:
        return u"int"_s;
    case 5:
        return u"float"_s;
    case 6:
        return u"money"_s;
    case 11:
        return u"bit"_s;
    case 72:
        return u"uniqueidentifier"_s;
    case 130:
    case 202:
        return u"nvarchar("_s + QString::number(size) + u')';
    case 135:
        return u"datetime"_s;
    case 203:
        return sql2005 ? u"nvarchar(max)"_s : u"ntext"_s;
    default:
        return {};
    }
}

QStringList nxTd::sortBatchCommands(const QStringList& commands) {
    // Groups in the order of their tests; a statement goes to the first test that holds.
    enum Group { AlterColumn, DropConstraint, DropColumn, Default, PrimaryKey, Index, Exec, Other };
    std::array<QStringList, Other + 1> groups;
    for (const QString& command : commands) {
        if (command.isEmpty()) {
            continue;
        }
        const QString text = command.toLower();
        Group g = Other;
        if (text.contains(u"alter column"_s)) {
            g = AlterColumn;
        } else if (text.contains(u"drop constraint"_s)) {
            g = DropConstraint;
        } else if (text.contains(u"drop column"_s)) {
            g = DropColumn;
        } else if (text.contains(u" default "_s)) {
            g = Default;
        } else if (text.contains(u"primary key"_s)) {
            g = PrimaryKey;
        } else if (text.contains(u"create index"_s) || text.contains(u"create unique index"_s)) {
            g = Index;
        } else if (text.left(5) == u"exec "_s) {
            g = Exec;
        }
        groups[g].append(command);
    }
    QStringList sorted;
    for (Group g :
         {Other, DropConstraint, DropColumn, AlterColumn, Default, PrimaryKey, Index, Exec}) {
        sorted += groups[g];
    }
    return sorted;
}

bool nxTd::ExecuteBatchCommands(bool Silent) {
    Q_UNUSED(Silent); // a failed statement is recorded, never shown: the caller reports
    if (!m_db || !m_db->cn() || !hasBatch()) {
        return false;
    }
    auto command = std::make_shared<ado::Command>();
    command->setActiveConnection(m_db->cn());
    command->setCommandTimeout(0);
    command->setCommandType(ado::CommandTypeEnum::adCmdText);
    m_batchCommands = sortBatchCommands(m_batchCommands);
    for (qsizetype i = 0; i < m_batchCommands.size(); ++i) {
        if (m_batchCommands[i].isEmpty()) {
            continue;
        }
        const bool ran =
            Edge(u"nxTd.ExecuteBatchCommands() - i = "_s + QString::number(i), true, false, [&] {
                command->setCommandText(m_batchCommands[i]);
                command->Execute(nullptr, nullptr, ado::adOptionUnspecified);
                return true;
            });
        if (!ran) {
            return false;
        }
        nxApp::DoEvents(); // long alterations: let the window breathe between statements
    }
    return true;
}

QString nxTd::EnclosureRemove(const QString& Text, const QString& Pair) {
    if (Text.isEmpty() || Pair.size() < 2) {
        return Text;
    }
    QString text = Text;
    while (text.size() >= 2 && text.front() == Pair[0] && text.back() == Pair[1]) {
        text = text.mid(1, text.size() - 2);
    }
    return text;
}

QString nxTd::StripName(const QString& Name, bool RemoveSuffix) const {
    QString name = Name;
    const QString start = m_db ? m_db->FldStartDel() : u"["_s;
    const QString end = m_db ? m_db->FldEndDel() : u"]"_s;
    if (name.size() >= start.size() + end.size() && name.startsWith(start) && name.endsWith(end)) {
        name = name.mid(start.size(), name.size() - start.size() - end.size());
    }
    return RemoveSuffix ? dropSuffix(name) : name;
}

QString nxTd::QuoteTblName(const QString& Name, bool RemoveSuffix) const {
    if (!isServer()) {
        return Name;
    }
    const QString start = m_db->FldStartDel();
    const QString end = m_db->FldEndDel();
    if (startsWithDigit(Name)) {
        return start + (RemoveSuffix ? dropSuffix(Name) : Name) + end;
    }
    QString result;
    if (Name.size() >= 2 && Name.startsWith(start) && Name.endsWith(end)) {
        const QString inner = StripName(Name, false);
        result = startsWithDigit(inner) ? Name : inner;
    } else if (Name.contains(u' ') || Name.contains(u'-') || Name.contains(u'/') ||
               nxApp::Misc().IsNumber(Name, 1, u"0"_s) ||
               nxApp::ReservedWords().contains(Name.toUpper())) {
        // A keyword, or a fragment of one, is bracketed as well.
        result = start + Name + end;
    } else {
        result = Name;
    }
    return RemoveSuffix ? dropSuffix(result) : result;
}

QString nxTd::QuoteIdxName(const QString& Name) const {
    return QuoteTblName(Name, false);
}

QString nxTd::FindCollectionKey(ado::adox::Tables& tables, const QString& name) const {
    nxMisc& misc = nxApp::Misc();
    if (misc.ObjectExist(tables, name)) {
        return name;
    }
    const QString stripped = StripName(name, false);
    if (misc.ObjectExist(tables, stripped)) {
        return stripped;
    }
    return m_db->FldStartDel() + name + m_db->FldEndDel();
}

QString nxTd::FindCollectionKey(ado::adox::Columns& columns, const QString& name) const {
    nxMisc& misc = nxApp::Misc();
    if (misc.ObjectExist(columns, name)) {
        return name;
    }
    const QString stripped = StripName(name, false);
    if (misc.ObjectExist(columns, stripped)) {
        return stripped;
    }
    return m_db->FldStartDel() + name + m_db->FldEndDel();
}

ado::adox::ColumnPtr nxTd::ColumnCreate(const QString& name) {
    return Edge(u"nxTd.ColumnCreate()", false, ado::adox::ColumnPtr(), [&] {
        const QString wanted = StripName(name, false);
        for (const TdColumn& c : m_columns) {
            if (StripName(c.Name, false).compare(wanted, Qt::CaseInsensitive) == 0) {
                return std::make_shared<ado::adox::Column>(
                    c.Name, static_cast<ado::DataTypeEnum>(c.Type), c.Size);
            }
        }
        return ado::adox::ColumnPtr();
    });
}

void nxTd::ColumnSetNotNull(const QString& column) {
    Edge(u"nxTd.ColumnSetNotNull()", false, [&] {
        if (isServer()) {
            ColumnDropConstaintsIdx(column);
            m_columnsChanged = true;
        }
        ado::adox::ColumnPtr c;
        if (!m_columns.empty() && m_sql2005) {
            c = ColumnCreate(column);
        } else {
            c = m_td->Columns().ItemPtr(FindCollectionKey(m_td->Columns(), column));
        }
        if (!c) {
            return;
        }
        if (isServer()) {
            addBatch(u"alter table "_s + QuoteTblName(m_td->Name()) + u" alter column "_s +
                     m_db->NormalizeFld(column) + u' ' +
                     ColumnTypeText(static_cast<long>(c->Type()), c->DefinedSize()) +
                     u" not null"_s);
        } else {
            c->Properties().Item(u"Nullable").setValue(false);
        }
    });
}
