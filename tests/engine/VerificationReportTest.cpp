#include "engine/VerificationReport.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace engine;

TEST(TableReport, DateFindingsLineByLine) {
    TableReport r = TableReport::forArchiveTable(u"D_ABC"_s, u"Fatture"_s);
    r.addInvalidDateField(u"DATA_DOC"_s);
    r.addRecord(vb::Variant::fromLong(12), vb::Variant(vb::makeDate(1752, 12, 31)));
    r.addRecord(vb::Variant::fromLong(13), vb::Variant(vb::makeDate(1700, 1, 1, 10, 30)));
    r.addInvalidDateField(u"DATA_REG"_s);
    const QStringList expected = {
        u"==================================================="_s,
        u"Anomalie tabella D_ABC (Fatture)"_s,
        u"     Campi data non validi:"_s,
        u"          Campo [DATA_DOC]"_s,
        u"               SYS_RECORD: 12 (31/12/1752)"_s,
        u"               SYS_RECORD: 13 (01/01/1700 10:30:00)"_s,
        u"     Campi data non validi:"_s,
        u"          Campo [DATA_REG]"_s,
    };
    EXPECT_EQ(r.lines(), expected);
    EXPECT_EQ(r.text(), expected.join(u"\r\n"_s));
}

TEST(TableReport, KeyMemoAndLengthFindings) {
    TableReport r = TableReport::forSystemTable(u"UTENTI"_s);
    r.addNullKeyField(u"CODICE"_s);
    r.addRecord(vb::Variant::fromLong(5), vb::Null{});
    r.addMemoIndex(u"IdxNote"_s, u"NOTE"_s);
    r.addMemoIndex(u"IdxTesto"_s, u"TESTO"_s);
    r.addMemoAdvice();
    r.addIndexTooLong(u"IdxLungo"_s);
    const QStringList expected = {
        u"==================================================="_s,
        u"Anomalie tabella di sistema UTENTI"_s,
        u"     Campi della chiave primaria con valori nulli:"_s,
        u"          Campo [CODICE]"_s,
        u"               SYS_RECORD: 5 ()"_s,
        u"     Indice 'IdxNote': Campo 'NOTE' di tipo MEMO."_s,
        u"     Indice 'IdxTesto': Campo 'TESTO' di tipo MEMO."_s,
        u"          In SQL Server non è possibile indicizzare un campo di tipo MEMO."_s,
        u"          Modificare il tipo dei campi o la definizione degli indici sopra elencati."_s,
        u"     Indice IdxLungo di lunghezza eccessiva."_s,
        u"     - Modificare la definizione dell'archivio."_s,
    };
    EXPECT_EQ(r.lines(), expected);
}

TEST(TableReport, OtherLines) {
    EXPECT_EQ(NotListedLines(u"D_XYZ"_s),
              (QStringList{u"==================================================="_s,
                           u"Tabella D_XYZ non presente in DB_ELENCO. Non verrà importata."_s}));
    EXPECT_EQ(WalkErrorText(3021, u"Nessun record"_s, u"DbImport.AnalyzeTables()"_s),
              u"Errore 3021 (Nessun record) - DbImport.AnalyzeTables()"_s);
    EXPECT_EQ(TableReport::separator().size(), 51);
}

TEST(TableReport, SystemTablePassIsBroad) {
    EXPECT_TRUE(IsSystemTableName(u"UTENTI"_s));
    EXPECT_TRUE(IsSystemTableName(u"D_ABC"_s)); // archives pass here too
    EXPECT_FALSE(IsSystemTableName(u"d_"_s));
    EXPECT_FALSE(IsSystemTableName(u"Diz_Comuni"_s));
    EXPECT_FALSE(IsSystemTableName(u"123"_s));
    EXPECT_TRUE(IsSystemTableName(u"D"_s));
}

TEST(IndexLength, BytesAndTheLimit) {
    const struct {
        long type;
        long octets;
        long bytes;
    } rows[] = {{11, 99, 1}, {3, 99, 4}, {5, 0, 8},      {6, 0, 8},    {7, 0, 8},
                {130, 100, 100}, {202, 510, 510}, {203, 0, 0}, {2, 0, -2}, {17, 0, -2}};
    for (const auto& r : rows) {
        EXPECT_EQ(IndexLength::columnBytes(r.type, r.octets), r.bytes) << r.type;
    }
    IndexLength exact;
    exact.add(130, 892);
    exact.add(7, 0);
    EXPECT_EQ(exact.bytes(), 900);
    EXPECT_FALSE(exact.tooLong());
    exact.add(11, 0);
    EXPECT_TRUE(exact.tooLong());
    // An unknown type takes two bytes off.
    exact.add(72, 16);
    EXPECT_FALSE(exact.tooLong());
}
