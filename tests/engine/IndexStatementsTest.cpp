#include "engine/IndexStatements.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace engine;

namespace {

IndexRow row(const QString& index, const QString& column, bool primary = false,
             bool unique = false, long collation = 1) {
    return {index, primary, unique, column, collation};
}

} // namespace

TEST(IndexName, RenamesThatKeepNamesUniqueOnTheServer) {
    const QString pk = u"PrimaryKey"_s;
    EXPECT_EQ(GetIndexName(u"PrimaryKey"_s, u"D_ABC"_s, pk), u"CUR_D_ABCPrimaryKey"_s);
    EXPECT_EQ(GetIndexName(u"primarykey"_s, u"D_ABC"_s, pk), u"CUR_D_ABCprimarykey"_s);
    EXPECT_EQ(GetIndexName(u"D_ABC"_s, u"D_ABC"_s, pk), u"D_ABC_IDX"_s);
    EXPECT_EQ(GetIndexName(u"d_abc"_s, u"D_ABC"_s, pk), u"d_abc_IDX"_s);
    EXPECT_EQ(GetIndexName(u"D_ABC_Data"_s, u"D_ABC"_s, pk), u"D_ABC_Data"_s);
    EXPECT_EQ(GetIndexName(u"Data"_s, u"D_ABC"_s, pk), u"Data"_s);
    // A primary key already named after its table is not prefixed.
    EXPECT_EQ(GetIndexName(u"PK_D_ABC"_s, u"D_ABC"_s, u"PK_D_ABC"_s), u"PK_D_ABC"_s);
    // The table's brackets are left out of the comparison, not out of the prefix.
    EXPECT_EQ(GetIndexName(u"PrimaryKey"_s, u"[D_ABC]"_s, pk), u"CUR_[D_ABC]PrimaryKey"_s);
}

TEST(IndexName, Delimiters) {
    const QString pk = u"PrimaryKey"_s;
    EXPECT_EQ(GetIndexName(u"Mia chiave"_s, u"D_ABC"_s, pk), u"[Mia chiave]"_s);
    EXPECT_EQ(GetIndexName(u"1Indice"_s, u"D_ABC"_s, pk), u"[1Indice]"_s);
    EXPECT_EQ(GetIndexName(u"A-B"_s, u"D_ABC"_s, pk), u"[A-B]"_s);
    EXPECT_EQ(GetIndexName(u"A/B"_s, u"D_ABC"_s, pk), u"[A/B]"_s);
    EXPECT_EQ(GetIndexName(u"Index"_s, u"D_ABC"_s, pk), u"[Index]"_s);
    EXPECT_EQ(GetIndexName(u"[Mia chiave]"_s, u"D_ABC"_s, pk), u"[Mia chiave]"_s);
    // The tests read the source name, the reserved-word test the new one.
    EXPECT_EQ(GetIndexName(u"D_ABC x"_s, u"D_ABC"_s, pk), u"[D_ABC x]"_s);
    NameDelimiters jet{u"["_s, u"]"_s, 0};
    EXPECT_EQ(GetIndexName(u"A/B"_s, u"D_ABC"_s, pk, jet), u"A/B"_s);
    NameDelimiters quotes{u"\""_s, u"\""_s, 1};
    EXPECT_EQ(GetIndexName(u"Mia chiave"_s, u"D_ABC"_s, pk, quotes), u"\"Mia chiave\""_s);
}

TEST(IndexName, PredefinedTableKeepsItsNames) {
    EXPECT_EQ(GetIndexName(u"PrimaryKey"_s, u"Sys_Predefinita"_s, u"PrimaryKey"_s),
              u"PrimaryKey"_s);
    EXPECT_EQ(GetIndexName(u"SYS_PREDEFINITA"_s, u"SYS_PREDEFINITA"_s, u""_s),
              u"SYS_PREDEFINITA"_s);
    EXPECT_EQ(GetIndexName(u"Mia chiave"_s, u"SYS_PREDEFINITA"_s, u""_s), u"[Mia chiave]"_s);
    // No digit and no reserved-word test here.
    EXPECT_EQ(GetIndexName(u"1Index"_s, u"SYS_PREDEFINITA"_s, u""_s), u"1Index"_s);
    EXPECT_EQ(GetIndexName(u"Index"_s, u"SYS_PREDEFINITA"_s, u""_s), u"Index"_s);
}

TEST(IndexStatements, OneStatementPerIndex) {
    const QList<IndexRow> rows = {
        row(u"PrimaryKey"_s, u"SYS_RECORD"_s, true, true),
        row(u"PrimaryKey"_s, u"ANNO"_s, true, true),
        row(u"Mia chiave"_s, u"Data ora"_s, false, true, 2),
        row(u"D_ABC"_s, u"Order"_s, false, false, 0),
    };
    const QStringList expected = {
        u"alter table [D_ABC] add constraint CUR_D_ABCPrimaryKey primary key (SYS_RECORD asc, ANNO asc)"_s,
        u"create unique index [Mia chiave] on [D_ABC] ([Data ora] desc)"_s,
        u"create index D_ABC_IDX on [D_ABC] ([Order])"_s,
    };
    EXPECT_EQ(IndexStatements(u"D_ABC"_s, rows), expected);
}

TEST(IndexStatements, NamesDifferingInCaseAreOneIndex) {
    const QList<IndexRow> rows = {row(u"Chiave"_s, u"A"_s), row(u"CHIAVE"_s, u"B"_s),
                                  row(u"chiave"_s, u"C"_s)};
    EXPECT_EQ(IndexStatements(u"DIZ_X"_s, rows),
              QStringList{u"create index Chiave on [DIZ_X] (A asc, B asc, C asc)"_s});
}

TEST(IndexStatements, NoIndexesNoStatements) {
    EXPECT_TRUE(IndexStatements(u"D_ABC"_s, {}).isEmpty());
    EXPECT_EQ(PrimaryIndexName({row(u"A"_s, u"X"_s), row(u"PK"_s, u"Y"_s, true)}), u"PK"_s);
    EXPECT_EQ(PrimaryIndexName({row(u"A"_s, u"X"_s)}), u""_s);
}
