#include "tests/dbaccess/Definition.h"

#include "dbaccess/nxRel.h"
#include "dbaccess/nxTd.h"

#include "tests/support/MemberOk.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace dbtest {

std::vector<TableDef> documentTables(long dateType) {
    const QString none;
    const QString twoQuotes = u"\"\""_s;
    return {
        {u"DOCUMENTO"_s,
         {
             {u"IDRec"_s, 3, 0, FldAutoIncrement, none},
             {u"SYS_RECORD"_s, 3, 0, FldRequired, u"0"_s},
             {u"LIVELLO"_s, 2, 0, FldOptional, u"0"_s},
             {u"NUMERO"_s, 3, 0, FldNotNull, none},
             {u"IMPORTO"_s, 5, 0, FldOptional, none},
             {u"PREZZO"_s, 6, 0, FldOptional, u"0"_s},
             {u"DATA"_s, dateType, 0, FldOptional, u"date()"_s},
             {u"ORA"_s, 135, 0, FldOptional, u"time()"_s},
             {u"EMESSO"_s, 7, 0, FldOptional, none},
             {u"ATTIVO"_s, 11, 0, FldOptional, none},
             {u"CHIUSO"_s, 11, 0, FldRequired, twoQuotes},
             {u"CHIAVE"_s, 72, 0, FldOptional, none},
             {u"NOME"_s, 202, 50, FldRequired, none},
             {u"SIGLA"_s, 202, 10, FldRequired | FldZeroLength, u"'abc'"_s},
             {u"DESCR"_s, 202, 100, FldZeroLength, twoQuotes},
             {u"TESTO"_s, 203, 0, FldOptional, none},
             {u"MEMO"_s, 203, 0, FldRequired | FldZeroLength, none},
         },
         {
             {u"PrimaryKey"_s, u"+IDRec"_s, IdxPrimary | IdxRequired | IdxUnique},
             {u"UX_SIGLA"_s, u"+SIGLA"_s, IdxRequired | IdxUnique},
             {u"IX_DATA"_s, u"-DATA;+NOME"_s, 0},
         }},
        {u"RIGA"_s,
         {
             {u"IDRec"_s, 3, 0, FldAutoIncrement, none},
             {u"IDDocumento"_s, 3, 0, FldOptional, none},
             {u"IDOrigine"_s, 3, 0, FldOptional, none},
             {u"IDCopia"_s, 3, 0, FldOptional, none},
             {u"QTA"_s, 5, 0, FldOptional, u"0"_s},
         },
         {
             {u"PrimaryKey"_s, u"+IDRec"_s, IdxPrimary | IdxRequired | IdxUnique},
             {u"IX_DOCUMENTO"_s, u"+IDDocumento"_s, 0},
         }},
        {u"ALLEGATO"_s,
         {
             {u"IDRec"_s, 3, 0, FldAutoIncrement, none},
             {u"IDDocumento"_s, 3, 0, FldOptional, none},
             {u"FILE"_s, 202, 255, FldZeroLength, none},
         },
         {
             {u"PrimaryKey"_s, u"+IDRec"_s, IdxPrimary | IdxRequired | IdxUnique},
         }},
    };
}

std::vector<RelationDef> documentRelations() {
    return {
        {u"FK_RIGA_DOCUMENTO"_s, u"RIGA"_s, u"DOCUMENTO"_s, u"IDDocumento"_s, u"IDRec"_s, 1, 1},
        {u"FK_RIGA_ORIGINE"_s, u"RIGA"_s, u"DOCUMENTO"_s, u"IDOrigine"_s, u"IDRec"_s, 0, 1},
        {u"FK_RIGA_COPIA"_s, u"RIGA"_s, u"DOCUMENTO"_s, u"IDCopia"_s, u"IDRec"_s, 0, 0},
        {u"FK_ALLEGATO_DOCUMENTO"_s, u"ALLEGATO"_s, u"DOCUMENTO"_s, u"IDDocumento"_s, u"IDRec"_s,
         1, 0},
    };
}

void defineDocuments(nxDb& db, const QStringList& refusedRelations,
                     const std::function<void(const QString&)>& beforeClose,
                     const std::function<void(const QString&)>& afterClose) {
    auto around = [](const std::function<void(const QString&)>& hook, const QString& label) {
        if (hook) {
            hook(label);
        }
    };
    for (const TableDef& table : documentTables(db.DateType())) {
        nxTd td;
        td.Db(&db);
        ASSERT_MEMBER_OK(td.TdOpen(table.name));
        for (const FieldDef& f : table.fields) {
            EXPECT_MEMBER_OK(td.FldAdd(f.name, f.type, f.size, f.attrs, f.def))
                << table.name.toStdString() << "." << f.name.toStdString();
        }
        for (const IndexDef& i : table.indexes) {
            EXPECT_MEMBER_OK(td.IdxAdd(i.name, i.fields, i.flags))
                << table.name.toStdString() << "." << i.name.toStdString();
        }
        around(beforeClose, u"TdClose "_s + table.name);
        EXPECT_MEMBER_OK(td.TdClose()) << table.name.toStdString();
        around(afterClose, u"TdClose "_s + table.name);
    }
    for (const RelationDef& r : documentRelations()) {
        nxRel rel;
        rel.Db(&db);
        ASSERT_MEMBER_OK(rel.RelOpen(r.name, r.table, r.relatedTable, r.column, r.relatedColumn,
                                     r.deleteRule, r.updateRule, 2));
        EXPECT_MEMBER_OK(rel.FldAdd(r.column, r.relatedColumn)) << r.name.toStdString();
        around(beforeClose, u"RelClose "_s + r.name);
        if (refusedRelations.contains(r.name)) {
            EXPECT_FALSE(rel.RelClose()) << r.name.toStdString();
        } else {
            EXPECT_MEMBER_OK(rel.RelClose()) << r.name.toStdString();
        }
        around(afterClose, u"RelClose "_s + r.name);
    }
}

} // namespace dbtest
