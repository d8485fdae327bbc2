#pragma once

#include "platform/ado/adox/Objects.h"

#include <QString>

#include <cstdint>

class nxDb;

// One foreign-key relation between two tables: RelOpen, FldAdd for each pair of columns,
// RelClose. On Jet the key goes into the catalog; on SQL Server it is one "alter table ... add
// constraint ... foreign key" statement, and where the server refuses a cascade (cycles or
// several cascade paths, error 1785) triggers named TR_ do the cascading instead. A relation
// that cascades nothing is not created at all: the suite's own checks guard plain references.
class nxRel {
public:
    nxRel() = default;
    ~nxRel();
    nxRel(const nxRel&) = delete;
    nxRel& operator=(const nxRel&) = delete;
    nxRel(nxRel&&) = delete;
    nxRel& operator=(nxRel&&) = delete;

    bool IsOpened() const noexcept { return m_isOpened; }
    bool IsNew() const noexcept { return m_isNew; }
    const ado::adox::KeyPtr& Rel() const noexcept { return m_rel; }
    const QString& Name() const noexcept { return m_name; }
    nxDb* Db() const noexcept { return m_db; }
    // The database stays the caller's; it must outlive its use here.
    void Db(nxDb* db) noexcept { m_db = db; }

    // `Table` holds the key, `RelatedTable` is the parent. Rules: 0 none, 1 cascade.
    bool RelOpen(const QString& Name, const QString& Table, const QString& RelatedTable,
                 const QString& Column, const QString& RelatedColumn, long DeleteRule,
                 long UpdateRule, long KeyType = 2, bool Silent = false) noexcept;
    bool RelClose(bool Silent = false) noexcept;
    bool FldExist(const QString& Column) noexcept;
    bool FldAdd(const QString& Column, const QString& RelatedColumn, bool Silent = false) noexcept;

private:
    bool close();
    QString foreignKeyStatement(long deleteRule, long updateRule) const;
    void createCascadeTriggers(bool silent);

    nxDb* m_db = nullptr;
    QString m_name;
    QString m_table;
    ado::adox::KeyPtr m_rel;
    bool m_isOpened = false;
    bool m_isNew = false;
    long m_deleteRule = 0;
    long m_updateRule = 0;
};
