#pragma once

#include "dbaccess/nxDb.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace dbtest {

// One column as the schema declares it to nxTd::FldAdd.
struct FieldDef {
    QString name;
    long type = 0;
    long size = 0;
    long attrs = 0;
    QString def;
};

// One index as the schema declares it to nxTd::IdxAdd.
struct IndexDef {
    QString name;
    QString fields;
    long flags = 0;
};

// One relation as the schema declares it to nxRel.
struct RelationDef {
    QString name;
    QString table;
    QString relatedTable;
    QString column;
    QString relatedColumn;
    long deleteRule = 0;
    long updateRule = 0;
};

struct TableDef {
    QString name;
    std::vector<FieldDef> fields;
    std::vector<IndexDef> indexes;
};

// Three tables that between them use every type, attribute combination and default the schema
// declares (attributes 1, 2, 4, 16, 32, 33 on types 2, 3, 5, 6, 7, 135, 11, 72, 202, 203;
// defaults "", two double quotes, "0", date(), time(), 'abc'), a primary key on each, a unique
// and a descending index, and a relation of each rule: delete and update, update only, delete
// only, and none. `dateType` is the database's DateType, as the schema passes dates.
std::vector<TableDef> documentTables(long dateType);
std::vector<RelationDef> documentRelations();

// Runs the definition through nxTd and nxRel on `db`, as the schema does: TdOpen, FldAdd,
// IdxAdd, TdClose per table, then RelOpen, FldAdd, RelClose per relation. `beforeClose` and
// `afterClose` run around every TdClose and RelClose with its label ("TdClose DOCUMENTO"); each
// member that answers false is a test failure, except RelClose for a relation named in
// `refusedRelations` (the server's cascade refusal ends in triggers and a false answer).
void defineDocuments(nxDb& db, const QStringList& refusedRelations = {},
                     const std::function<void(const QString&)>& beforeClose = {},
                     const std::function<void(const QString&)>& afterClose = {});

} // namespace dbtest
