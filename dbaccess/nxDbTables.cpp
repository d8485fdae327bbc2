#include "dbaccess/ErrorText.h"
#include "dbaccess/nxConn.h"
#include "dbaccess/nxDb.h"

#include "frame/Edge.h"
#include "frame/nxApp.h"
#include "frame/nxMisc.h"

#include "platform/ado/Recordset.h"

using namespace Qt::StringLiterals;

using dbaccess::longOf;

bool nxDb::TdExist(const QString& Name) noexcept {
    if (!m_isOpened || !m_db) {
        return false;
    }
    return IgnoreErrors(false, [&] { return nxApp::Misc().ObjectExist(m_db->Tables(), Name); });
}

std::int32_t nxDb::TdRecordCount(const QString& Name, bool Silent) noexcept {
    if (!m_connUtils) {
        return 0;
    }
    return Edge(u"nxDb.TdRecordCount()", Silent, std::int32_t{0}, [&] {
        if (!m_connUtils->TableExists(Name)) {
            return std::int32_t{0};
        }
        ado::ConnectionPtr c = m_connUtils->CloneConnectionOrThrow();
        ado::RecordsetPtr rs = c->Execute(u"select count(*) from "_s + NormalizeTbl(Name, true));
        const std::int32_t count = longOf(rs->Fields(0).Value());
        rs->Close();
        m_connUtils->CloseConnection(c);
        return count;
    });
}

bool nxDb::IdxExists(const QString& Table, const QString& Index, QString* Fields) noexcept {
    if (!m_isOpened) {
        return false;
    }
    return Edge(u"nxDb.IdxExists()", false, false, [&] {
        ado::RecordsetPtr rs =
            m_cn->OpenSchema(ado::SchemaEnum::adSchemaIndexes,
                             {vb::Variant(), vb::Variant(), Index, vb::Variant(), Table});
        const bool found = !(rs->Bof() && rs->Eof());
        if (found && Fields) {
            QString text;
            for (; !rs->Eof(); rs->MoveNext()) {
                if (!text.isEmpty()) {
                    text += u',';
                }
                const bool ascending = rs->Fields(u"COLLATION").Value().toLong() == 1;
                text += rs->Fields(u"COLUMN_NAME").Value().toString() +
                        (ascending ? u" asc"_s : u" desc"_s);
            }
            *Fields = text;
        }
        rs->Close();
        return found;
    });
}

bool nxDb::TblFieldExists(const QString& Table, const QString& Field) noexcept {
    if (!m_isOpened) {
        return false;
    }
    nxConn conn;
    conn.Connection(m_cn);
    return conn.ColumnExists(Table, Field);
}

// The field that the provider marks as auto-increment in the first row's recordset.
QString nxDb::autoIncrementField(const QString& table) const {
    auto rs = std::make_shared<ado::Recordset>();
    rs->setCursorLocation(ado::CursorLocationEnum::adUseClient);
    rs->Open(u"select top 1 * from "_s + NormalizeTbl(table, true), m_cn,
             ado::CursorTypeEnum::adOpenStatic, ado::LockTypeEnum::adLockReadOnly);
    QString name;
    for (const auto& field : rs->Fields()) {
        const ado::Property* p = field->Properties().find(u"ISAUTOINCREMENT");
        if (p && p->Value().toBool().value_or(false)) {
            name = field->Name();
            break;
        }
    }
    rs->Close();
    return name;
}

bool nxDb::UpdateAutoIncrement(const QString& Table, std::int32_t Value, bool Silent) noexcept {
    if (!m_isOpened || !TdExist(Table)) {
        return false;
    }
    return Edge(u"nxDb.UpdateAutoIncrement", Silent, false, [&] {
        const QString field = autoIncrementField(Table);
        if (field.isEmpty()) {
            return false;
        }
        if (Value < 1) {
            auto rs = std::make_shared<ado::Recordset>();
            rs->setCursorLocation(ado::CursorLocationEnum::adUseClient);
            rs->Open(u"select max ("_s + NormalizeFld(field) + u") from "_s +
                         NormalizeTbl(Table, true),
                     m_cn, ado::CursorTypeEnum::adOpenStatic, ado::LockTypeEnum::adLockReadOnly);
            Value = longOf(rs->Fields(0).Value());
            rs->Close();
        }
        if (m_dbType != 0) {
            // The server keeps the next number in SYS_IDS, not in a counter of the table.
            return Execute(u"update SYS_IDS set RECNUM="_s + QString::number(Value) +
                               u" where TABELLA='"_s + NormalizeTbl(Table, true) + u'\'',
                           Silent, ado::adExecuteNoRecords);
        }
        ado::adox::Columns& columns = m_db->Tables().Item(Table).Columns();
        columns.Item(field).Properties().Item(u"Seed").setValue(vb::Variant(Value + 1));
        columns.Refresh();
        return true;
    });
}

bool nxDb::RelExist(const QString& Name, const QString& Table) noexcept {
    if (!m_isOpened) {
        return false;
    }
    return IgnoreErrors(
        false, [&] { return nxApp::Misc().ObjectExist(m_db->Tables().Item(Table).Keys(), Name); });
}

bool nxDb::RelDel(const QString& Name, const QString& Table) noexcept {
    if (!m_isOpened || m_isReadOnly) {
        return false;
    }
    return Edge(u"nxDb.RelDel()", false, false, [&] {
        if (RelExist(Name, Table)) {
            m_db->Tables().Item(Table).Keys().Delete(Name);
        }
        return true;
    });
}
