#include "recordset/SqlCondition.h"

#include "tests/support/Printers.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(SqlConditionTest, FieldNames) {
    EXPECT_EQ(rs::SQLFieldName(u"t.Campo"_s, true), u"t.[Campo]"_s);
    EXPECT_EQ(rs::SQLFieldName(u"[a].[b]"_s, true), u"a.[b]"_s);
    EXPECT_EQ(rs::SQLFieldName(u"[a].[b]"_s, false), u"a.b"_s);
    EXPECT_EQ(rs::SQLFieldName(u"Campo"_s, true), u"[Campo]"_s);
    EXPECT_EQ(rs::SQLFieldName(u"[a b]"_s, true), u"[a b]"_s);
}

TEST(SqlConditionTest, ValuesAreQuotedAndCleaned) {
    EXPECT_EQ(rs::SQLValueFrom(u"l'anno d'oro"_s), u"l''anno d''oro"_s);
    QString v = u"'%ab%'"_s;
    rs::SQLCleanValue(v);
    EXPECT_EQ(v, u"ab"_s);
    v = u"#12/31/2024#"_s;
    rs::SQLCleanValue(v);
    EXPECT_EQ(v, u"12/31/2024"_s);
    // Only the character that opens the value is taken off; "%" always.
    v = u"%x'"_s;
    rs::SQLCleanValue(v);
    EXPECT_EQ(v, u"x'"_s);
    v = u"''a''"_s;
    rs::SQLCleanValue(v);
    EXPECT_EQ(v, u"a"_s);
}

TEST(SqlConditionTest, FieldOrder) {
    QString dir;
    EXPECT_EQ(rs::SQLFieldOrder(u" [a b] DeSc"_s, dir), u"[a b]"_s);
    EXPECT_EQ(dir, u"desc"_s);
    EXPECT_EQ(rs::SQLFieldOrder(u"t.[c] asc"_s, dir), u"t.[c]"_s);
    EXPECT_EQ(dir, u"asc"_s);
    EXPECT_EQ(rs::SQLFieldOrder(u"NOME"_s, dir), u"NOME"_s);
    EXPECT_EQ(dir, u"asc"_s);
    EXPECT_EQ(rs::SQLFieldOrder(u"NOME descending"_s, dir), u"NOME"_s);
    EXPECT_EQ(dir, u"asc"_s);
}

TEST(SqlConditionTest, OperatorsAreWholeWords) {
    int pos = 1;
    EXPECT_EQ(rs::SQLOperator(u"ORDINE = 1 and ISOLA = 2"_s, pos), u"AND"_s);
    EXPECT_EQ(pos, 12);
    pos = 13;
    EXPECT_EQ(rs::SQLOperator(u"ORDINE = 1 and ISOLA = 2"_s, pos), u""_s);
    EXPECT_EQ(pos, 13);
    pos = 1;
    EXPECT_EQ(rs::SQLOperator(u"a is null"_s, pos), u"IS"_s);
    EXPECT_EQ(pos, 3);
    pos = 1;
    EXPECT_EQ(rs::SQLOperator(u"x=1 Or(y=2)"_s, pos), u"OR"_s);
    EXPECT_EQ(pos, 5);
}

TEST(SqlConditionTest, StatementParts) {
    const QString text = u"  ( [a b].[c d] >= 'it''s' ) and x = 1"_s;
    int pos = 1;
    rs::SQLParts p;
    EXPECT_EQ(rs::SQLStatement(text, pos, p), u"[a b].[c d] >= 'it''s'"_s);
    EXPECT_EQ(p.field, u"[a b].[c d]"_s);
    EXPECT_EQ(p.op, u">="_s);
    EXPECT_EQ(p.value1, u"'it''s'"_s);
    EXPECT_EQ(p.openBrackets, 1);
    EXPECT_EQ(p.closeBrackets, 1);
    EXPECT_FALSE(p.isNot);
    // Positions count in the trimmed text; behind the closing bracket.
    EXPECT_EQ(pos, 27);
    EXPECT_EQ(rs::SQLOperator(text.trimmed(), pos), u"AND"_s);
    pos += 3;
    EXPECT_EQ(rs::SQLStatement(text, pos, p), u"x = 1"_s);
    EXPECT_EQ(p.value1, u"1"_s);
    EXPECT_EQ(pos, static_cast<int>(text.trimmed().size()) + 1);
    EXPECT_EQ(rs::SQLStatement(text, pos, p), u""_s);
}

TEST(SqlConditionTest, NotBetweenLikeIsAndDates) {
    int pos = 1;
    rs::SQLParts p;
    EXPECT_EQ(rs::SQLStatement(u"not DATA between #01/01/2020# and #12/31/2020#"_s, pos, p),
              u"not DATA between #01/01/2020# and #12/31/2020#"_s);
    EXPECT_TRUE(p.isNot);
    EXPECT_EQ(p.op, u"BETWEEN"_s);
    EXPECT_EQ(p.value1, u"#01/01/2020#"_s);
    EXPECT_EQ(p.value2, u"#12/31/2020#"_s);
    EXPECT_TRUE(p.isDate);

    pos = 1;
    EXPECT_EQ(rs::SQLStatement(u"NOME not like '%x%'"_s, pos, p), u"NOME not like '%x%'"_s);
    EXPECT_TRUE(p.isNot);
    EXPECT_EQ(p.op, u"LIKE"_s);

    pos = 1;
    EXPECT_EQ(rs::SQLStatement(u"NOTE is not null"_s, pos, p), u"NOTE is not null"_s);
    EXPECT_EQ(p.field, u"NOTE"_s);
    EXPECT_EQ(p.op, u"IS NOT"_s);
    EXPECT_EQ(p.value1, u"null"_s);

    pos = 1;
    EXPECT_EQ(rs::SQLStatement(u"D = {ts '2020-05-01 10:00:00'}"_s, pos, p),
              u"D = {ts '2020-05-01 10:00:00'}"_s);
    EXPECT_TRUE(p.isDate);
    pos = 1;
    EXPECT_EQ(rs::SQLStatement(u"D = {fn 'abc'}"_s, pos, p), u"D = {fn 'abc'}"_s);
    EXPECT_FALSE(p.isDate);
}

TEST(SqlConditionTest, UnreadableStatements) {
    rs::SQLParts p;
    for (const QString& bad : {u"a"_s, u"a 1"_s, u"a = 'open"_s, u"a = #1/1/2020"_s, u"[a = 1"_s,
                               u"a between 1 or 2"_s, u"a ="_s, u"= 1"_s}) {
        int pos = 1;
        EXPECT_EQ(rs::SQLStatement(bad, pos, p), u""_s) << bad.toStdString();
        EXPECT_EQ(pos, 1) << bad.toStdString();
    }
}

TEST(SqlConditionTest, VerifyCountsConditions) {
    EXPECT_EQ(rs::SQLVerify(u""_s), 0);
    EXPECT_EQ(rs::SQLVerify(u"   "_s), 0);
    EXPECT_EQ(rs::SQLVerify(u"a = 1"_s), 1);
    EXPECT_EQ(rs::SQLVerify(u"(a = 1 or b <> 'x') and not c like 'y%'"_s), 3);
    EXPECT_EQ(rs::SQLVerify(u"a between 1 and 2 AND b is null"_s), 2);
    EXPECT_EQ(rs::SQLVerify(u"a = 'x and y'"_s), 1);
    // Something behind the last condition, or a missing joining word.
    EXPECT_EQ(rs::SQLVerify(u"a = 1 b = 2"_s), 0);
    EXPECT_EQ(rs::SQLVerify(u"a = 1 and"_s), 0);
    EXPECT_EQ(rs::SQLVerify(u"a = 1 garbage and b = 2"_s), 0);
    EXPECT_EQ(rs::SQLVerify(u"a = 'it''s' or b = 1"_s), 2);
}

} // namespace
