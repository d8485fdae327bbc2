#include "dbaccess/nxRel.h"

#include "dbaccess/ErrorText.h"
#include "dbaccess/nxConn.h"
#include "dbaccess/nxDb.h"

#include "frame/Edge.h"
#include "frame/nxApp.h"
#include "frame/nxMisc.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

constexpr std::int32_t kCascadeRefused = 1785; // cycles or multiple cascade paths

} // namespace

nxRel::~nxRel() {
    RelClose(false);
    m_db = nullptr;
}

bool nxRel::RelOpen(const QString& Name, const QString& Table, const QString& RelatedTable,
                    const QString& Column, const QString& RelatedColumn, long DeleteRule,
                    long UpdateRule, long KeyType, bool Silent) noexcept {
    if (!nxApp::IsInit() || !m_db || !m_db->IsOpened()) {
        return false;
    }
    RelClose(true);
    m_isNew = false;
    return Edge(u"nxRel.RelOpen()", Silent, false, [&] {
        nxConn conn;
        conn.Connection(m_db->cn());
        if (conn.RelationExists(Table, RelatedTable, Column, RelatedColumn)) {
            m_table = Table;
            m_rel = m_db->Db()->Tables().Item(Table).Keys().ItemPtr(Name);
            m_deleteRule = DeleteRule;
            m_updateRule = UpdateRule;
            m_isOpened = true;
        } else if (!m_db->IsReadOnly()) {
            m_table = Table;
            // Names that are GUID texts are made into identifiers.
            const QString name = nxApp::Misc().IsAlpha(Name, 1)
                                     ? Name
                                     : u"REL_"_s + nxApp::Misc().RemoveChars(Name, u"{}-"_s);
            m_rel = std::make_shared<ado::adox::Key>(name);
            if (!Table.isEmpty() && !RelatedTable.isEmpty()) {
                m_rel->setRelatedTable(RelatedTable);
                m_rel->setType(static_cast<ado::KeyTypeEnum>(KeyType));
                m_rel->setDeleteRule(static_cast<ado::RuleEnum>(DeleteRule));
                m_rel->setUpdateRule(static_cast<ado::RuleEnum>(UpdateRule));
            }
            m_isOpened = true;
            m_isNew = true;
        } else if (!Silent) {
            nxApp::MsgBox(u"Relazione '"_s + Name + u"' inesistente."_s, 48);
        }
        if (m_isOpened) {
            m_name = Name;
        }
        return m_isOpened;
    });
}

bool nxRel::FldExist(const QString& Column) noexcept {
    return m_isOpened && m_rel && nxApp::Misc().ObjectExist(m_rel->Columns(), Column);
}

bool nxRel::FldAdd(const QString& Column, const QString& RelatedColumn, bool Silent) noexcept {
    if (!m_isOpened) {
        return false;
    }
    return Edge(u"nxRel.FldAdd()", Silent, false, [&] {
        if (!FldExist(Column)) {
            auto column =
                std::make_shared<ado::adox::Column>(Column, ado::DataTypeEnum::adVarWChar, 0);
            m_rel->Columns().Append(column);
            column->setRelatedColumn(RelatedColumn);
        }
        return true;
    });
}

QString nxRel::foreignKeyStatement(long deleteRule, long updateRule) const {
    QStringList columns;
    QStringList related;
    for (const auto& c : m_rel->Columns()) {
        columns.append(c->Name());
        related.append(c->RelatedColumn());
    }
    return u"alter table "_s + m_table + u" add constraint "_s + m_rel->Name() +
           u" foreign key ("_s + columns.join(u", "_s) + u") references "_s +
           m_rel->RelatedTable() + u" ("_s + related.join(u", "_s) + u')' +
           (deleteRule == 1 ? u" on delete cascade"_s : QString()) +
           (updateRule == 1 ? u" on update cascade"_s : QString());
}

bool nxRel::close() {
    const ado::ConnectionPtr& cn = m_db->cn();
    const bool server = m_db->DbType() == 1;
    if (!m_isNew) {
        if (!server) {
            ado::adox::Keys& keys = m_db->Db()->Tables().Item(m_table).Keys();
            keys.Delete(m_rel->Name());
            m_rel->setDeleteRule(static_cast<ado::RuleEnum>(m_deleteRule));
            m_rel->setUpdateRule(static_cast<ado::RuleEnum>(m_updateRule));
            keys.Append(m_rel);
        } else if (!m_rel->RelatedTable().isEmpty()) {
            cn->Execute(u"alter table "_s + m_table + u" drop constraint "_s + m_rel->Name());
            cn->Execute(foreignKeyStatement(m_deleteRule, m_updateRule));
        }
        return true;
    }
    const auto deleteRule = static_cast<long>(m_rel->DeleteRule());
    const auto updateRule = static_cast<long>(m_rel->UpdateRule());
    if (m_rel->Type() == ado::KeyTypeEnum::adKeyForeign && deleteRule == 0 && updateRule == 0) {
        return true; // a plain reference is deliberately not enforced
    }
    if (!server) {
        m_db->Db()->Tables().Item(m_table).Keys().Append(m_rel);
    } else if (!m_rel->RelatedTable().isEmpty()) {
        cn->Execute(foreignKeyStatement(deleteRule, updateRule));
    }
    return true;
}

// The server refused the cascade: the parent's triggers do the cascading in its place.
void nxRel::createCascadeTriggers(bool silent) {
    const ado::ConnectionPtr& cn = m_db->cn();
    const QString k = m_rel->Name();
    const QString parent = m_rel->RelatedTable();
    QStringList deleted;
    QStringList updated;
    QString firstRelated;
    for (const auto& c : m_rel->Columns()) {
        if (firstRelated.isEmpty()) {
            firstRelated = c->RelatedColumn();
        }
        deleted.append(m_table + u'.' + c->Name() + u" in (select "_s + c->RelatedColumn() +
                       u" from deleted)"_s);
        updated.append(m_table + u'.' + c->Name() + u" = i."_s + c->RelatedColumn());
    }
    if (m_rel->DeleteRule() == ado::RuleEnum::adRICascade) {
        cn->Execute(u"if exists (select name from sysobjects where name='TR_"_s + k + u"') "_s +
                    u"drop trigger TR_"_s + k);
        cn->Execute(u"create trigger TR_"_s + k + u" on "_s + parent +
                    u" for delete as delete from "_s + m_table + u" where "_s +
                    deleted.join(u" and "_s));
    }
    if (m_rel->UpdateRule() == ado::RuleEnum::adRICascade) {
        // Only the first related column is tested and joined, on the same name both sides.
        cn->Execute(u"if exists (select name from sysobjects where name='TR_"_s + k + u"_UPD') "_s +
                    u"drop trigger TR_"_s + k + u"_UPD"_s);
        m_db->Execute(u"create trigger TR_"_s + k + u"_UPD on "_s + parent +
                          u" for update as if update("_s + firstRelated + u") update "_s + m_table +
                          u" set "_s + updated.join(u", "_s) + u" from inserted i inner join "_s +
                          parent + u" as T"_s + u" on i."_s + firstRelated + u"=T."_s +
                          firstRelated,
                      silent, ado::adExecuteNoRecords);
    }
}

bool nxRel::RelClose(bool Silent) noexcept {
    if (!m_isOpened) {
        return false;
    }
    const bool result = Edge(u"nxRel.RelClose()", Silent, false, [&] {
        return dbaccess::completingErr(m_name, [&] {
            try {
                return close();
            } catch (const ado::Error& e) {
                if (!e.is(ado::HResult::DB_E_ERRORSINCOMMAND) ||
                    e.nativeError() != kCascadeRefused) {
                    throw;
                }
            }
            createCascadeTriggers(Silent);
            return false; // triggers are not the statement's success
        });
    });
    m_rel.reset();
    m_isOpened = false;
    m_isNew = false;
    return result;
}
