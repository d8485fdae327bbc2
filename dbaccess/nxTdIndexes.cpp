#include "dbaccess/ErrorText.h"
#include "dbaccess/nxConn.h"
#include "dbaccess/nxDb.h"
#include "dbaccess/nxTd.h"

#include "frame/Edge.h"
#include "frame/nxApp.h"
#include "frame/nxMisc.h"

#include "platform/ado/Recordset.h"

using namespace Qt::StringLiterals;

// Indexes and primary keys. On the server every statement is guarded by "if exists" or "if not
// exists", so that a batch can run again after a partial failure.

namespace {

bool hasRows(ado::Recordset& rs) {
    return !(rs.Bof() && rs.Eof());
}

} // namespace

bool nxTd::IdxExist(const QString& Name) noexcept {
    if (!m_isOpened) {
        return false;
    }
    return nxApp::Misc().ObjectExist(m_td->Indexes(), Name);
}

bool nxTd::IdxAdd(const QString& Name, const QString& Fields, long Flags, bool Silent) noexcept {
    if (!m_isOpened) {
        return false;
    }
    return Edge(u"nxTd.IdxAdd()", Silent, false, [&] {
        const bool server = isServer();
        const bool primary = (Flags & IdxPrimary) != 0;
        const bool primaryOrUnique = (Flags & (IdxPrimary | IdxUnique)) != 0;
        const QString n = server ? QuoteIdxName(Name) : Name;
        if (server && !primaryOrUnique) {
            m_columnsChanged = true; // a plain index on the server always goes out as text
        }
        if (IdxExist(Name)) {
            return true;
        }
        auto index = std::make_shared<ado::adox::Index>(n);
        QStringList cols;
        for (const QString& raw : Fields.split(u';')) {
            const QString item = raw.trimmed();
            if (item.isEmpty()) {
                break;
            }
            QString column = item.mid(1).trimmed();
            if (column.isEmpty()) {
                continue;
            }
            if (server && (column.contains(u'-') || column.contains(u' ') ||
                           nxApp::ReservedWords().contains(column.toUpper()))) {
                column = m_db->FldStartDel() + column + m_db->FldEndDel();
            }
            const bool descending = item.front() == u'-';
            auto c = std::make_shared<ado::adox::Column>(column);
            c->setSortOrder(descending ? ado::SortOrderEnum::adSortDescending
                                       : ado::SortOrderEnum::adSortAscending);
            index->Columns().Append(c);
            if (server && primaryOrUnique) {
                // The server refuses a key or unique index on a nullable column.
                ColumnSetNotNull(column);
            }
            cols.append(m_db->NormalizeFld(column) + (descending ? u" desc"_s : u" asc"_s));
        }
        index->setPrimaryKey(primary);
        index->setUnique((Flags & IdxUnique) != 0);
        if (!primaryOrUnique) {
            index->setIndexNulls(ado::AllowNullsEnum::adIndexNullsAllow);
        }
        if (server && !primary && m_columnsChanged) {
            addIndexText(n, Flags, cols.join(u", "_s));
        } else if (server && primary) {
            addPrimaryKey(Name, cols.join(u", "_s));
        } else {
            QString current;
            if (primary && m_db->ConnUtils()->HasPrimaryKey(m_td->Name(), &current)) {
                m_td->Indexes().Delete(current);
            }
            m_td->Indexes().Append(index);
        }
        return true;
    });
}

void nxTd::addIndexText(const QString& index, long flags, const QString& columns) {
    const QString t = QuoteTblName(m_td->Name());
    const QString bare = nxApp::Misc().LeadRemove(index, u"[]"_s);
    const QString holder = m_db->ConnUtils()->GetTableFromConstraintName(bare, {});
    if (!holder.isEmpty()) {
        addBatch(u"if exists(select * from sysindexes where name = '"_s + bare +
                 u"') drop index "_s + QuoteTblName(holder) + u'.' + bare);
    }
    addBatch(u"if not exists(select * from "_s + m_indexCatalog + u" where "_s + m_indexIdColumn +
             u" = object_id('"_s + t + u"') and name='"_s + bare + u"') create "_s +
             ((flags & IdxUnique) != 0 ? u"unique "_s : QString()) + u"index "_s + index +
             u" on "_s + t + u" ("_s + columns + u')');
}

// The key is named after the table without its working suffix, so the key of a table rebuilt
// as X_NEW has the name of the key of X, and the old one must go first.
void nxTd::addPrimaryKey(const QString& index, const QString& columns) {
    nxConn& conn = *m_db->ConnUtils();
    const QString t = QuoteTblName(m_td->Name());
    const QString table = StripName(m_td->Name(), false);
    const bool working = table.endsWith(u"_NEW"_s);
    const QString base = working ? table.left(table.size() - 4) : table;
    const QString key = QuoteIdxName(u"CUR_"_s + base + StripName(index, false));
    const QString bareKey = EnclosureRemove(key, u"[]"_s);
    auto dropKey = [&](const QString& onTable, const QString& name) {
        addBatch(u"if exists(select * from sysindexes where name = '"_s +
                 EnclosureRemove(name, u"[]"_s) + u"') alter table "_s + onTable +
                 u" drop constraint "_s + name);
    };
    if (working) {
        for (const QString& suffix : {u"_OLD"_s, u"_BACKUP"_s}) {
            const QString holder = conn.GetTableFromConstraintName(bareKey, base + suffix);
            if (!holder.isEmpty()) {
                dropKey(holder, key);
                break;
            }
        }
    }
    QString current;
    QString clean = t;
    if (!conn.HasPrimaryKey(m_td->Name(), &current)) {
        current = key;
        if (working) {
            clean = conn.TableExists(base + u"_OLD"_s) ? base + u"_OLD"_s : base + u"_BACKUP"_s;
        }
    }
    dropKey(clean, current);
    addBatch(u"if not exists(select * from "_s + m_indexCatalog + u" where "_s + m_indexIdColumn +
             u" = object_id('"_s + t + u"') and name='"_s + key + u"') alter table "_s + t +
             u" add constraint "_s + key + u" primary key ("_s + columns + u')');
}

bool nxTd::ColumnDropConstaintsIdx(const QString& column) {
    return Edge(u"nxTd.ColumnDropConstaintsIdx()", false, false, [&] {
        std::vector<std::vector<vb::Variant>> rows;
        if (!m_db->ConnUtils()->IsIndexed(m_td->Name(), column, &rows)) {
            return false;
        }
        const QString t = QuoteTblName(m_td->Name());
        const QString guard =
            u" where "_s + m_indexIdColumn + u" = object_id('"_s + t + u"') and name='"_s;
        bool isPrimary = false;
        for (const auto& row : rows) {
            const QString index = row.at(0).toString();
            const bool primary = row.at(1).toBool().value_or(false);
            const bool unique = row.at(2).toBool().value_or(false);
            bool uniqueIndex = false;
            bool uniqueConstraint = false;
            IdxGetFlags(index, uniqueIndex, uniqueConstraint);
            addBatch(u"if exists(select * from "_s + m_indexCatalog + guard + index +
                     (primary || uniqueConstraint
                          ? u"') alter table "_s + t + u" drop constraint "_s + index
                          : u"') drop index "_s + t + u'.' + index));
            QString fields;
            if (m_db->IdxExists(m_td->Name(), index, &fields)) {
                addBatch(
                    u"if not exists(select * from "_s + m_indexCatalog + guard + index + u"') "_s +
                    (primary ? u"alter table "_s + t + u" add constraint "_s + index +
                                   u" primary key ("_s + fields + u')'
                             : u"create "_s + (unique ? u"unique "_s : QString()) + u"index "_s +
                                   index + u" on "_s + t + u" ("_s + fields + u')'));
            }
            isPrimary = isPrimary || primary;
        }
        return isPrimary;
    });
}

bool nxTd::IdxGetFlags(const QString& index, bool& unique, bool& uniqueConstraint) {
    unique = false;
    uniqueConstraint = false;
    return Edge(u"nxTd.IdxGetFlags()", false, false, [&] {
        const ado::ConnectionPtr& cn = m_db->cn();
        const QString table = m_td->Name();
        if (m_sql2005) {
            ado::RecordsetPtr rs =
                cn->Execute(u"select object_id, is_unique, is_unique_constraint from sys.indexes "
                            u"where object_id = object_id('"_s +
                            table + u"') and name='"_s + index + u'\'');
            if (hasRows(*rs)) {
                unique = dbaccess::boolOf(rs->Fields(1).Value());
                uniqueConstraint = dbaccess::boolOf(rs->Fields(2).Value());
            }
            rs->Close();
            return true;
        }
        ado::RecordsetPtr rs = cn->Execute(
            u"select id, type, xtype from sysobjects where id = object_id('"_s + index + u"')"_s);
        uniqueConstraint =
            hasRows(*rs) && rs->Fields(u"xtype").Value().toString().trimmed() == u"UQ"_s;
        rs->Close();
        rs = cn->Execute(u"select name, indid, OBJECTPROPERTY(OBJECT_ID(name), 'IsPrimaryKey') AS "
                         u"IsPrimary, "
                         u"OBJECTPROPERTY(OBJECT_ID(name), 'IsUniqueCnst') as IsUnique "
                         u"from sysindexes "
                         u"where (id = OBJECT_ID('"_s +
                         table + u"')) and (indid between 1 and 254) and name = '"_s + index +
                         u'\'');
        unique = hasRows(*rs) && dbaccess::boolOf(rs->Fields(u"IsUnique").Value());
        rs->Close();
        return true;
    });
}
