#include "schema/Catalogue.h"

#include "tests/support/Printers.h"

#include <QSet>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using schema::Catalogue;
using schema::FieldDef;
using schema::TableDef;

namespace {

const Catalogue& builtIn() {
    const Catalogue& catalogue = Catalogue::builtIn();
    EXPECT_TRUE(catalogue.isValid()) << catalogue.error().toStdString();
    return catalogue;
}

// A field as one line: name, type on Jet, size, attributes, and the default or "-" for none.
QString describe(const FieldDef* f) {
    return f == nullptr
               ? u"missing"_s
               : u"%1 %2 %3 %4 %5"_s.arg(f->name, QString::number(f->adoType(7)),
                                         QString::number(f->size), QString::number(f->attributes),
                                         f->hasDefault ? f->defaultValue : u"-"_s);
}

QString errorOf(const QString& text) {
    const Catalogue parsed = Catalogue::parse(text);
    EXPECT_TRUE(parsed.tables().isEmpty() && parsed.relations().isEmpty());
    return parsed.error();
}

} // namespace

TEST(BuiltInCatalogue, HoldsTheSystemsTotalsInTheOrderOfCreation) {
    const Catalogue& catalogue = builtIn();
    EXPECT_EQ(catalogue.tables().size(), 111);
    EXPECT_EQ(catalogue.fieldCount(), 1073);
    EXPECT_EQ(catalogue.indexCount(), 230);
    EXPECT_EQ(catalogue.relations().size(), 72);
    const QString order =
        u"AGEN_DBDELEGATI AGEN_LUOGHICONS QZSYSTEM Anag_01_Anagrafica Anag_02_Comuni "
        u"Anag_03_Cap Anag_04_Province Anag_05_Regioni Anag_06_AreeGeografiche "
        u"Anag_AnagraficaExt Anag_AnagRuoli Anag_Attivita Anag_Cert Anag_Email Anag_Indirizzi "
        u"Anag_Liquidazione Anag_NaturaGiuridica Anag_PercorsiFile Anag_ProcCodici "
        u"Anag_Procedure Anag_RegimeFiscale Anag_Ruoli Anag_RuoliTipi Anag_Utenti APPLICATIVI "
        u"ARCHI_FAX ARCHI_PRINT ARCHI_SEND AREE AUTOSPOOL_PROFILI CampiElab CLASSI "
        u"Correlazioni DB_FOLIATRA_ID DB_FOLIATRA_STATO DB_DIZIONARIO DB_DIZIONARIO_LINK "
        u"DB_DOC_LINK DB_DOSSIER_ASSOC DB_DOSSIER_LINK DB_DOSSIER_PERM DB_ELENCO DB_ELENCO_PC "
        u"DB_ELENCO_UTENTI_CNIPA DB_PERMESSI DB_QUERY DB_QUERYUTENTI DB_SECRET_ADMINS "
        u"DB_STORICO_DOC DB_STORICO_LINK DefFCom DefSucc DOC_NOTIFICHE DOC_PROCEDIMENTI "
        u"FISCO_AGENZIE FISCO_ANAG_PERCORSI FISCO_ANAG_SEZIO FISCO_ANAGRAFICHE "
        u"FISCO_BOLLI_CONTA FISCO_BOLLI_F23 FISCO_BOLLI_F24PROGR FISCO_BOLLI_MOVIMENTI "
        u"FISCO_BOLLI_TARIFFE FISCO_BOLLI_VERSAMENTI FISCO_CONCBANCHE FISCO_F23 "
        u"FISCO_INTERMEDIARI FISCO_SEZIONALI FISCO_TIPOCONT GRUPPI JoinOnly LOGOTIPI "
        u"MARCHE_CARICO MARCHE_SCARICO PERMESSI PROCESSI PROCESSO_CAMPI PROCESSO_CAMPI_VALORE "
        u"PROCESSO_COMPUTER PROCESSO_FUNZIONI PROCESSO_LOTTI PROCESSO_LOTTO_DOCUMENTI "
        u"PROCESSO_MP PROTO_CONFIG PROTO_DB PROTO_TABELLA SCANNER SCHEMI SECRET_LEV "
        u"SYS_FIRMA_CONTESTUALE SYS_INTERMEDIARI SYS_LOG SYS_PROCEDURE SYS_PROCEDURE_DB "
        u"SYS_PROCEDURE_DB_EXPORT SYS_REGISTRI SYS_TATD SYS_TIPO_ARC SYS_TIPO_DOC_F "
        u"SYS_TIPO_DOC_TRIB SYS_XML_CAMPI TipoElab UTENTE_GRUPPI UTENTE_INTERMEDIARI "
        u"UTENTE_PERMESSI UTENTE_PROFILO UTENTE_STORICO UTENTI Valori VOLUMI VOLUMI_PC"_s;
    QStringList names;
    for (const TableDef& table : catalogue.tables()) {
        names.append(table.name);
    }
    EXPECT_EQ(names, order.split(u' '));
    EXPECT_EQ(catalogue.relations().first().name, u"FISCO_ANAGRAFICHEAGEN_DBDELEGATI"_s);
    EXPECT_EQ(catalogue.relations().last().name, u"VOLUMIVOLUMI_PC"_s);
}

TEST(BuiltInCatalogue, NamesAreUniqueAndIndexesNameTheirTablesFields) {
    QSet<QString> tables;
    for (const TableDef& table : builtIn().tables()) {
        SCOPED_TRACE(table.name.toStdString());
        EXPECT_FALSE(tables.contains(table.name.toLower()));
        tables.insert(table.name.toLower());
        QSet<QString> fields;
        for (const FieldDef& field : table.fields) {
            EXPECT_FALSE(fields.contains(field.name.toLower())) << field.name.toStdString();
            fields.insert(field.name.toLower());
        }
        int primaryKeys = 0;
        for (const schema::IndexDef& index : table.indexes) {
            primaryKeys += (index.flags & 1) != 0 ? 1 : 0;
            for (const QString& item : index.fields.split(u';')) {
                EXPECT_TRUE(item.startsWith(u'+') || item.startsWith(u'-')) << item.toStdString();
                EXPECT_EQ(describe(table.field(item.mid(1))).section(u' ', 0, 0), item.mid(1));
            }
        }
        EXPECT_EQ(primaryKeys, 1);
    }
}

// A foreign key needs like columns on both sides and a primary or unique key on the parent's
// side; it is named for the parent then the child, with 1 behind a second one.
TEST(BuiltInCatalogue, EveryRelationJoinsLikeColumnsToAKeyOfTheParent) {
    const Catalogue& catalogue = builtIn();
    qsizetype lastChild = 0;
    for (const schema::RelationDef& rel : catalogue.relations()) {
        SCOPED_TRACE(rel.name.toStdString());
        const TableDef* child = catalogue.table(rel.table);
        const TableDef* parent = catalogue.table(rel.relatedTable);
        ASSERT_TRUE(child != nullptr && parent != nullptr && rel.fields.size() == 1);
        const FieldDef* key = child->field(rel.fields[0]);
        const FieldDef* referred = parent->field(rel.relatedFields[0]);
        ASSERT_TRUE(key != nullptr && referred != nullptr);
        EXPECT_EQ(describe(key).section(u' ', 1, 2), describe(referred).section(u' ', 1, 2));
        bool keyed = false;
        for (const schema::IndexDef& index : parent->indexes) {
            keyed = keyed || ((index.flags & 5) != 0 && index.fields == u'+' + referred->name);
        }
        EXPECT_TRUE(keyed);
        const QString stem = parent->name + child->name;
        EXPECT_TRUE(rel.name == stem || rel.name == stem + u'1');
        // Relations come grouped by their child, in the order the tables are made.
        EXPECT_GE(child - catalogue.tables().constData(), lastChild);
        lastChild = child - catalogue.tables().constData();
    }
}

TEST(BuiltInCatalogue, MarksBecomeFldAddAttributesAndLookupsIgnoreCase) {
    const Catalogue& catalogue = builtIn();
    const auto field = [&](const char16_t* table, const char16_t* name) {
        const TableDef* t = catalogue.table(QStringView(table));
        return describe(t != nullptr ? t->field(QStringView(name)) : nullptr);
    };
    EXPECT_EQ(field(u"anag_01_anagrafica", u"id_anag"), u"ID_Anag 3 0 2 -"_s);
    EXPECT_EQ(field(u"Anag_01_Anagrafica", u"Denominazione"), u"Denominazione 202 255 32 \"\""_s);
    EXPECT_EQ(field(u"Anag_01_Anagrafica", u"GUID"), u"GUID 72 0 1 -"_s);
    EXPECT_EQ(field(u"Anag_02_Comuni", u"Cod_Catasto"), u"Cod_Catasto 202 4 33 -"_s);
    EXPECT_EQ(field(u"Anag_02_Comuni", u"Denom_ITA"), u"Denom_ITA 203 0 4 -"_s);
    EXPECT_EQ(field(u"DB_ELENCO", u"ARCHIVIO"), u"ARCHIVIO 202 100 4 -"_s);
    EXPECT_EQ(field(u"FISCO_AGENZIE", u"Denominazione"),
              u"Denominazione 202 50 32 \"Agenzia delle Entrate\""_s);
    EXPECT_EQ(field(u"PROCESSI", u"BARCODE_FC_L"), u"BARCODE_FC_L 3 0 4 -1"_s);
    EXPECT_EQ(field(u"VOLUMI", u"SYS_CAT_SIZE"), u"SYS_CAT_SIZE 5 0 1 0"_s);
    EXPECT_EQ(field(u"D_ARCHIVIO", u"SYS_SERIALE"), u"missing"_s);
    // A date takes the database's own date type when the table is made.
    const FieldDef* date = catalogue.table(u"SYS_LOG")->field(u"DATA");
    EXPECT_TRUE(date->dateType && date->adoType(7) == 7 && date->adoType(135) == 135);
}

TEST(CatalogueParse, FaultsNameTheFileAndLineAndLeaveNothing) {
    const QString t = u"# head\n\ntable\tT\nfield\tID\tI4\tA\nfield\tNAME\tV10\n"_s;
    const QString at6 = u"catalogue.tsv:6: "_s;
    EXPECT_EQ(errorOf(t + u"field\tX\tV256\n"_s), at6 + u"unknown type 'V256'"_s);
    EXPECT_EQ(errorOf(t + u"field\tX\tI4\tZ\n"_s), at6 + u"unknown mark 'Z'"_s);
    EXPECT_EQ(errorOf(t + u"field\tX\tI4\t=0\tR\n"_s), at6 + u"unexpected column 'R'"_s);
    EXPECT_EQ(errorOf(t + u"field\tname\tI4\n"_s),
              at6 + u"field 'name' is defined twice in table 'T'"_s);
    EXPECT_EQ(errorOf(t + u"field\tX\t\tI4\n"_s), at6 + u"column 3 is empty"_s);
    EXPECT_EQ(errorOf(t + u"index\tPK\t+ID;+Name\t7\n"_s),
              at6 + u"index 'PK' names no field 'Name' of table 'T'"_s);
    EXPECT_EQ(errorOf(t + u"index\tPK\tID\t7\n"_s),
              at6 + u"index 'PK': 'ID' is not + or - and a field name"_s);
    EXPECT_EQ(errorOf(t + u"index\tA\t+ID\t7\nindex\tB\t+NAME\t7\n"_s),
              u"catalogue.tsv:7: table 'T' has a second primary key 'B'"_s);
    EXPECT_EQ(errorOf(t + u"table\tt\n"_s), at6 + u"table 't' is defined twice, first at line 3"_s);
    EXPECT_EQ(errorOf(t + u"table\tU\nrelation\tTU\tU\tID\tT\tID\tnone\n"_s),
              at6 + u"table 'U' has no fields"_s);
    EXPECT_EQ(errorOf(t + u"relation\tTX\tX\tID\tT\tID\tdelete\n"_s),
              at6 + u"relation 'TX' names no table 'X'"_s);
    EXPECT_EQ(errorOf(t + u"relation\tTT\tT\tID\tT\tid\tdelete\n"_s),
              at6 + u"relation 'TT' names no field 'id' of table 'T'"_s);
    EXPECT_EQ(errorOf(t + u"relation\tTT\tT\tID\tT\tID\tinsert\n"_s),
              at6 + u"unknown cascade 'insert'"_s);
    EXPECT_EQ(errorOf(t + u"relation\tTT\tT\tNAME\tT\tID\tnone\nfield\tX\tI4\n"_s),
              u"catalogue.tsv:7: a field or index line outside a table block"_s);
    EXPECT_EQ(errorOf(u"tabel\tT\n"_s), u"catalogue.tsv:1: unknown kind of line 'tabel'"_s);
    EXPECT_EQ(errorOf(u"# nothing\n"_s), u"catalogue.tsv: no tables"_s);
    EXPECT_EQ(Catalogue::parse(u"table\tT\n"_s, u"other.tsv"_s).error(),
              u"other.tsv:1: table 'T' has no fields"_s);
}

TEST(CatalogueParse, ReadsWindowsLineEndsAndKeysOfSeveralFields) {
    const Catalogue parsed = Catalogue::parse(
        u"table\tP\r\nfield\tA\tI4\r\nfield\tB\tDATE\r\nindex\tPK\t+A;-B\t7\r\n"
        u"table\tC\r\nfield\tA\tI4\r\nfield\tB\tDATE\r\nrelation\tPC\tC\tA;B\tP\tA;B\tupdate\r\n"_s);
    ASSERT_TRUE(parsed.isValid()) << parsed.error().toStdString();
    EXPECT_EQ(parsed.table(u"P")->indexes[0].fields, u"+A;-B"_s);
    const schema::RelationDef& rel = parsed.relations()[0];
    EXPECT_EQ(rel.fields, (QStringList{u"A"_s, u"B"_s}));
    EXPECT_EQ(rel.deleteRule * 10 + rel.updateRule, 1);
}
