#include "recordset/RsSource.h"

#include "tests/support/Printers.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

bool noTable(const QString&) {
    return false;
}

rs::SourceParts split(const QString& source) {
    rs::SourceParts parts;
    parts.where = u"left over"_s;
    parts.order = u"left over"_s;
    rs::SplitSource(source, noTable, parts);
    return parts;
}

TEST(RsSourceTest, StatementSplitsIntoBaseWhereOrderAndName) {
    const rs::SourceParts p =
        split(u"  select * from [ARCHIVIO] Where ID > 3 Order By ID desc  "_s);
    EXPECT_EQ(p.base, u"select * from [ARCHIVIO]"_s);
    EXPECT_EQ(p.where, u"ID > 3"_s);
    EXPECT_EQ(p.order, u"ID desc"_s);
    EXPECT_EQ(p.name, u"ARCHIVIO"_s);
    // Joined again with the capitals of the library, whatever the source used.
    EXPECT_EQ(rs::JoinSource(p), u"select * from [ARCHIVIO] Where ID > 3 Order By ID desc"_s);
}

TEST(RsSourceTest, KeywordsAreFoundWithoutRegardToCase) {
    const rs::SourceParts p = split(u"SELECT A FROM T WHERE A=1 ORDER BY A"_s);
    EXPECT_EQ(p.base, u"SELECT A FROM T"_s);
    EXPECT_EQ(p.where, u"A=1"_s);
    EXPECT_EQ(p.order, u"A"_s);
    EXPECT_EQ(p.name, u"T"_s);
}

TEST(RsSourceTest, OrderWithoutWhereLeavesTheEarlierWhereTextEmpty) {
    const rs::SourceParts p = split(u"select * from T ORDER BY B, C"_s);
    EXPECT_EQ(p.where, u""_s);
    EXPECT_EQ(p.order, u"B, C"_s);
    EXPECT_EQ(p.base, u"select * from T"_s);
    EXPECT_EQ(rs::JoinSource(p), u"select * from T Order By B, C"_s);
}

TEST(RsSourceTest, SubqueryIsCutAtTheFirstOccurrence) {
    const rs::SourceParts p =
        split(u"select * from (select * from T order by A) as X order by B"_s);
    EXPECT_EQ(p.base, u"select * from (select * from T"_s);
    EXPECT_EQ(p.order, u"A) as X order by B"_s);
    EXPECT_EQ(p.where, u""_s);
}

TEST(RsSourceTest, LineEndBeforeWhereIsNotSeen) {
    const QString source = u"select * from T\nWhere A = 1"_s;
    const rs::SourceParts p = split(source);
    EXPECT_EQ(p.base, source);
    EXPECT_EQ(p.where, u""_s);
    EXPECT_EQ(p.name, u"T\nWhere A = 1"_s);
}

TEST(RsSourceTest, NameOfAJoinKeepsItsWholeText) {
    const rs::SourceParts p =
        split(u"select * from [A] inner join [B] on A.x = B.x where A.y = 2"_s);
    EXPECT_EQ(p.name, u"[A] inner join [B] on A.x = B.x"_s);
    EXPECT_EQ(p.where, u"A.y = 2"_s);
}

TEST(RsSourceTest, TextWithoutFromIsSearchedFromItsStart) {
    const rs::SourceParts p = split(u"[T 1] where X = 'a'"_s);
    EXPECT_EQ(p.base, u"[T 1]"_s);
    EXPECT_EQ(p.name, u"T 1"_s);
    EXPECT_EQ(p.where, u"X = 'a'"_s);
}

TEST(RsSourceTest, BareTableNameKeepsTheWhereAndOrderSetBefore) {
    rs::SourceParts p;
    p.where = u"A = 1"_s;
    p.order = u"B"_s;
    rs::SplitSource(
        u" DIZ_CITTA "_s, [](const QString& t) { return t == u"DIZ_CITTA"; }, p);
    EXPECT_EQ(p.base, u"DIZ_CITTA"_s);
    EXPECT_EQ(p.name, u"DIZ_CITTA"_s);
    EXPECT_EQ(rs::JoinSource(p), u"DIZ_CITTA Where A = 1 Order By B"_s);
}

TEST(RsSourceTest, BlankPiecesAreLeftOutWhenJoining) {
    rs::SourceParts p;
    p.base = u"select * from T"_s;
    p.where = u"   "_s;
    p.order = u""_s;
    EXPECT_EQ(rs::JoinSource(p), u"select * from T"_s);
}

TEST(RsSourceTest, CountQueryJoinsWhereAndExtraWithoutBrackets) {
    rs::SourceParts p;
    p.base = u"select * from T"_s;
    EXPECT_EQ(rs::CountQueryText(p, {}),
              u"SELECT COUNT(*) AS RecNum FROM (select * from T) AS TempTab"_s);
    EXPECT_EQ(rs::CountQueryText(p, u"b = 2"_s),
              u"SELECT COUNT(*) AS RecNum FROM (select * from T WHERE b = 2) AS TempTab"_s);
    p.where = u"a = 1 or c = 3"_s;
    EXPECT_EQ(
        rs::CountQueryText(p, {}),
        u"SELECT COUNT(*) AS RecNum FROM (select * from T WHERE a = 1 or c = 3) AS TempTab"_s);
    EXPECT_EQ(
        rs::CountQueryText(p, u"b = 2"_s),
        u"SELECT COUNT(*) AS RecNum FROM (select * from T WHERE a = 1 or c = 3 AND b = 2) AS TempTab"_s);
}

TEST(RsSourceTest, MaxAndMinQueries) {
    rs::SourceParts p;
    p.base = u"select * from T"_s;
    EXPECT_EQ(rs::MaxQueryText(p, u"[ID]"_s, false),
              u"SELECT MAX([ID]) AS Num FROM (select * from T) AS TempTab"_s);
    p.where = u"X > 0"_s;
    EXPECT_EQ(rs::MaxQueryText(p, u"[ID]"_s, true),
              u"SELECT MIN([ID]) AS Num FROM (select * from T WHERE X > 0) AS TempTab"_s);
}

TEST(RsSourceTest, IndexOrder) {
    EXPECT_EQ(rs::IndexOrderText({{u"A"_s, false}, {u"B C"_s, true}}), u"[A] asc, [B C] desc"_s);
    EXPECT_EQ(rs::IndexOrderText({}), u""_s);
}

TEST(RsSourceTest, TrimTakesBlanksOnly) {
    EXPECT_EQ(rs::TrimBlanks(u"  a b \t"_s), u"a b \t"_s);
    EXPECT_EQ(rs::TrimBlanks(u"   "_s), u""_s);
}

} // namespace
