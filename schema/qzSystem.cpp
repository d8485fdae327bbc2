#include "schema/qzSystem.h"

#include "schema/Catalogue.h"

#include "dbaccess/nxDb.h"
#include "dbaccess/nxRel.h"
#include "dbaccess/nxTd.h"

#include "frame/Edge.h"

#include "platform/vb/Err.h"

using namespace Qt::StringLiterals;

namespace {

constexpr long kAdUseServer = 2;

// The built-in catalogue; one that cannot be read is a build fault and stops the member.
const schema::Catalogue& catalogue() {
    const schema::Catalogue& cat = schema::Catalogue::builtIn();
    if (!cat.isValid()) {
        vb::Raise(vb::errors::kInvalidProcedureCall, u"qzSystem"_s, cat.error());
    }
    return cat;
}

// One table of the catalogue under `name`: open, every field, every index, close. Each step is
// tried whatever the ones before it answered.
bool createTable(nxDb& db, const schema::TableDef& table, const QString& name, bool silent) {
    nxTd td;
    td.Db(&db);
    bool result = td.TdOpen(name.isEmpty() ? table.name : name, {}, {}, silent);
    for (const schema::FieldDef& field : table.fields) {
        // The date type is the database's at this moment, so one definition serves both back ends.
        result = td.FldAdd(field.name, field.adoType(db.DateType()), field.size, field.attributes,
                           field.hasDefault ? field.defaultValue : QString(), silent) &&
                 result;
    }
    for (const schema::IndexDef& index : table.indexes) {
        result = td.IdxAdd(index.name, index.fields, index.flags, silent) && result;
    }
    return td.TdClose(silent) && result;
}

// An existing database loses its foreign keys first, so that its tables can change without
// being held by them. The deletes answer nothing and do not enter the result.
void dropForeignKeys(nxDb& db) {
    for (const ado::adox::TablePtr& table : db.Db()->Tables()) {
        if (table->Type().toLower() != u"table"_s) {
            continue;
        }
        ado::adox::Keys& keys = table->Keys();
        long i = 0;
        while (i < keys.Count()) {
            const ado::adox::Key& key = keys.Item(i);
            if (key.Type() == ado::KeyTypeEnum::adKeyForeign) {
                keys.Delete(key.Name()); // the next key moves into place i
            } else {
                ++i;
            }
        }
    }
}

bool createRelation(nxRel& rel, const schema::RelationDef& relation, bool silent) {
    bool result = rel.RelOpen(relation.name, relation.table, relation.relatedTable,
                              relation.fields.value(0), relation.relatedFields.value(0),
                              relation.deleteRule, relation.updateRule, 2, silent);
    for (qsizetype i = 0; i < relation.fields.size(); ++i) {
        result = rel.FldAdd(relation.fields[i], relation.relatedFields.value(i), silent) && result;
    }
    return rel.RelClose(silent) && result;
}

} // namespace

bool qzSystem::TdCreate(nxDb& Db, const QString& Table, const QString& Name, bool Silent) noexcept {
    return Edge(u"qzSystem.TdCreate()", Silent, false, [&] {
        const schema::TableDef* table = catalogue().table(Table);
        if (!table) {
            vb::Raise(vb::errors::kInvalidProcedureCall, u"qzSystem"_s,
                      u"Tabella di sistema '%1' sconosciuta."_s.arg(Table));
        }
        return createTable(Db, *table, Name, Silent);
    });
}

bool qzSystem::RelCreate(nxDb& Db, const QString& Relation, bool Silent) noexcept {
    return Edge(u"qzSystem.RelCreate()", Silent, false, [&] {
        for (const schema::RelationDef& relation : catalogue().relations()) {
            if (relation.name.compare(Relation, Qt::CaseInsensitive) == 0) {
                nxRel rel;
                rel.Db(&Db);
                return createRelation(rel, relation, Silent);
            }
        }
        vb::Raise(vb::errors::kInvalidProcedureCall, u"qzSystem"_s,
                  u"Relazione di sistema '%1' sconosciuta."_s.arg(Relation));
    });
}

bool qzSystem::DbCreate(const QString& Name, long Flags, bool Silent, const QString& Provider,
                        const QString& Server, long EngineType, const QString& User,
                        const QString& Password) noexcept {
    // Declared outside the trap: on an error the database is not closed here, its release does.
    nxDb db;
    return Edge(u"qzSystem.DbCreate()", Silent, false, [&] {
        const schema::Catalogue& cat = catalogue();
        if (!db.DbOpen(Name, Flags, Silent, Provider, Server, kAdUseServer, User, Password,
                       EngineType)) {
            return false;
        }
        nxRel rel;
        rel.Db(&db);
        if ((Flags & DbOpenCreate) == 0) {
            dropForeignKeys(db);
        }
        bool result = true;
        for (const schema::TableDef& table : cat.tables()) {
            result = createTable(db, table, QString(), Silent) && result;
        }
        for (const schema::RelationDef& relation : cat.relations()) {
            result = createRelation(rel, relation, Silent) && result;
        }
        db.DbClose();
        return result;
    });
}
