#include "tests/dbaccess/DbFixture.h"

#include <array>

using namespace Qt::StringLiterals;
using namespace dbtest;

namespace {

class NamesTest : public DbTest {};

TEST_F(NamesTest, ReservedKeywordIsAPlainSubstringOfTheList) {
    nxDb db;
    EXPECT_TRUE(db.IsReservedKeyword(u"select"_s));
    EXPECT_TRUE(db.IsReservedKeyword(u"Current_User"_s));
    // No word boundary is asked for: fragments and runs across two words count.
    EXPECT_TRUE(db.IsReservedKeyword(u"ELEC"_s));
    EXPECT_TRUE(db.IsReservedKeyword(u"ADD ALL"_s));
    EXPECT_TRUE(db.IsReservedKeyword(u"D AL"_s));
    EXPECT_TRUE(db.IsReservedKeyword(u" WRITETEXT "_s));
    EXPECT_FALSE(db.IsReservedKeyword(u"SELECTS"_s));
    EXPECT_FALSE(db.IsReservedKeyword(u"DESCRIZIONE"_s));
    EXPECT_FALSE(db.IsReservedKeyword(u"IDREC"_s));
}

TEST_F(NamesTest, DataTypeKindPicksByAdoType) {
    nxDb db;
    struct Case {
        long type;
        const char16_t* picked;
    };
    const std::array cases{Case{2, u"n"},   Case{3, u"n"},   Case{4, u"n"},   Case{5, u"n"},
                           Case{6, u"n"},   Case{17, u"n"},  Case{131, u"n"}, Case{130, u"s"},
                           Case{202, u"s"}, Case{203, u"s"}, Case{11, u"b"},  Case{7, u"d"},
                           Case{135, u"d"}, Case{20, u""},   Case{14, u""},   Case{133, u""},
                           Case{72, u""},   Case{205, u""},  Case{-1, u""}};
    for (const Case& c : cases) {
        EXPECT_EQ(db.DataTypeKind(c.type, u"n"_s, u"s"_s, u"b"_s, u"d"_s),
                  QString::fromUtf16(c.picked))
            << "ADO type " << c.type;
    }
}

// Narrow text is not text to the system: only the national types it makes itself are. A varchar
// or char column (a server table made by hand) gets no kind, which is what keeps nxRs from
// writing into it; this pins that the narrow types were left out on purpose.
TEST_F(NamesTest, DataTypeKindGivesNarrowTextNoKind) {
    nxDb db;
    EXPECT_EQ(db.DataTypeKind(129, u"n"_s, u"s"_s, u"b"_s, u"d"_s), QString()); // adChar
    EXPECT_EQ(db.DataTypeKind(200, u"n"_s, u"s"_s, u"b"_s, u"d"_s), QString()); // adVarChar
    EXPECT_EQ(db.DataTypeKind(201, u"n"_s, u"s"_s, u"b"_s, u"d"_s), QString()); // adLongVarChar
    EXPECT_EQ(db.DataTypeKind(130, u"n"_s, u"s"_s, u"b"_s, u"d"_s), u"s"_s);   // adWChar
}

TEST_F(NamesTest, DataTypeKindAnswersNothingBeforeTheLibraryStarts) {
    nxApp::ResetForTesting();
    nxDb db;
    EXPECT_EQ(db.DataTypeKind(3, u"n"_s, u"s"_s, u"b"_s, u"d"_s), QString());
    nxConn conn;
    EXPECT_FALSE(conn.DatabaseExists(u"QZ"_s));
}

TEST_F(NamesTest, ServerDelimitersAndNames) {
    nxDb db;
    openServer(db);
    EXPECT_EQ(db.DateDel(), u"'"_s);
    EXPECT_EQ(db.FldStartDel(), u"["_s);
    EXPECT_EQ(db.FldEndDel(), u"]"_s);
    EXPECT_EQ(db.Jolly(), u"%"_s);
    EXPECT_EQ(db.DateType(), 135);

    EXPECT_EQ(db.NormalizeTbl(u"2023_DOC"_s, false), u"[2023_DOC]"_s);
    EXPECT_EQ(db.NormalizeTbl(u"[ARCHIVIO]"_s), u"ARCHIVIO"_s);
    EXPECT_EQ(db.NormalizeTbl(u"[2023_DOC]"_s), u"[2023_DOC]"_s);
    EXPECT_EQ(db.NormalizeTbl(u"[D ELENCO]"_s), u"D ELENCO"_s);
    EXPECT_EQ(db.NormalizeTbl(u"D ELENCO"_s), u"D ELENCO"_s);
    EXPECT_EQ(db.NormalizeTbl(u"DB_ELENCO"_s), u"DB_ELENCO"_s);
}

TEST_F(NamesTest, JetDelimitersAndNames) {
    nxDb db;
    openJet(db);
    EXPECT_EQ(db.DateDel(), u"#"_s);
    EXPECT_EQ(db.DateType(), 7);
    EXPECT_EQ(db.ServerName(), QString());

    EXPECT_EQ(db.NormalizeTbl(u"2023_DOC"_s, true), u"[2023_DOC]"_s);
    EXPECT_EQ(db.NormalizeTbl(u"2023_DOC"_s, false), u"2023_DOC"_s);
    EXPECT_EQ(db.NormalizeTbl(u"A INNER JOIN B ON A.X = B.X"_s), u"A INNER JOIN B ON A.X = B.X"_s);
    EXPECT_EQ(db.NormalizeTbl(u"D ELENCO"_s), u"[D ELENCO]"_s);
    EXPECT_EQ(db.NormalizeTbl(u"A/B"_s), u"[A/B]"_s);
    EXPECT_EQ(db.NormalizeTbl(u"[ARCHIVIO]"_s), u"[ARCHIVIO]"_s);
    EXPECT_EQ(db.NormalizeTbl(u"[D ELENCO]"_s), u"[[D ELENCO]]"_s);
}

TEST_F(NamesTest, NormalizeFldBracketsAnythingNotYetBracketed) {
    nxDb db;
    openServer(db);
    EXPECT_EQ(db.NormalizeFld(u"[IDRec]"_s), u"[IDRec]"_s);
    EXPECT_EQ(db.NormalizeFld(u"IDRec"_s), u"[IDRec]"_s);
    EXPECT_EQ(db.NormalizeFld(u"Data Doc"_s), u"[Data Doc]"_s);
    EXPECT_EQ(db.NormalizeFld(u"[Data"_s), u"[[Data]"_s);
}

} // namespace
