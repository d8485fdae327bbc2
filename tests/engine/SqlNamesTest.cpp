#include "engine/SqlNames.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace engine;

TEST(SqlNames, TableNames) {
    EXPECT_EQ(EncloseTableName(u"123"_s), u"[123]"_s);
    EXPECT_EQ(EncloseTableName(u"D_ABC"_s), u"D_ABC"_s);
    // Both ends are tested against the closing bracket.
    EXPECT_EQ(EncloseTableName(u"[D_ABC]"_s), u"[D_ABC]"_s);
    EXPECT_EQ(EncloseTableName(u"]D_ABC]"_s), u"D_ABC"_s);
    EXPECT_EQ(EncloseTableName(u"]1AB]"_s), u"]1AB]"_s);
    EXPECT_EQ(EncloseTableName(u""_s), u""_s);
    EXPECT_EQ(EncloseTableName(u"]"_s), u""_s);
}

TEST(SqlNames, FieldNamesThatNeedBrackets) {
    EXPECT_EQ(EncloseFieldName(u"Order"_s), u"[Order]"_s);
    EXPECT_EQ(EncloseFieldName(u"User"_s), u"[User]"_s);
    EXPECT_EQ(EncloseFieldName(u"Data ora"_s), u"[Data ora]"_s);
    EXPECT_EQ(EncloseFieldName(u"Descrizione"_s), u"Descrizione"_s);
    EXPECT_EQ(EncloseFieldName(u"1Campo"_s), u"[1Campo]"_s);
    for (const QString& name : {u"A-B"_s, u"A/B"_s, u"L'anno"_s, u"R&D"_s}) {
        EXPECT_EQ(EncloseFieldName(name), u'[' + name + u']') << name.toStdString();
    }
    // An already bracketed name loses its brackets unless a digit follows "[".
    EXPECT_EQ(EncloseFieldName(u"[Campo]"_s), u"Campo"_s);
    EXPECT_EQ(EncloseFieldName(u"[1Campo]"_s), u"[1Campo]"_s);
    EXPECT_EQ(EncloseFieldName(u"[Data ora]"_s), u"Data ora"_s);
}

TEST(SqlNames, ServerKeywordsComeFromTheConnection) {
    const KeywordTest server = [](const QString& n) { return n.toUpper() == u"DATA"; };
    EXPECT_EQ(EncloseFieldName(u"Data"_s), u"Data"_s);
    EXPECT_EQ(EncloseFieldName(u"Data"_s, server), u"[Data]"_s);
    EXPECT_EQ(EncloseFieldName(u"select"_s, server), u"[select]"_s);
}

TEST(SqlNames, ReservedWordsAreWholeWordsOfTheList) {
    EXPECT_TRUE(IsReservedWord(u"add"_s));
    EXPECT_TRUE(IsReservedWord(u"WRITETEXT"_s));
    EXPECT_TRUE(IsReservedWord(u"Current_User"_s));
    EXPECT_FALSE(IsReservedWord(u"DESCR"_s));
    EXPECT_FALSE(IsReservedWord(u"TEXT"_s));
    EXPECT_FALSE(IsReservedWord(u""_s));
    // The search is for " NAME " in the text, so two neighbours count as one word.
    EXPECT_TRUE(IsReservedWord(u"add all"_s));
    EXPECT_FALSE(IsReservedWord(u"ORDER BY"_s));
}

TEST(SqlNames, QuotesAndBrackets) {
    EXPECT_EQ(StripQuotes(u"'abc'"_s), u"abc"_s);
    EXPECT_EQ(StripQuotes(u"'abc"_s), u"'abc"_s);
    EXPECT_EQ(StripQuotes(u"''"_s), u""_s);
    EXPECT_EQ(DoubleQuotes(u"l'anno d'oro"_s), u"l''anno d''oro"_s);
    EXPECT_EQ(DoubleQuotes(u"'"_s), u"''"_s);
    EXPECT_EQ(StripBrackets(u"[D_ABC]"_s), u"D_ABC"_s);
    EXPECT_EQ(StripBrackets(u"D_ABC]"_s), u"D_ABC]"_s);
}
