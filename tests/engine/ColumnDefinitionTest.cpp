#include "engine/ColumnDefinition.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace engine;

namespace {

SourceColumn column(const QString& name, long type, long ordinal = 1) {
    SourceColumn c;
    c.name = name;
    c.dataType = type;
    c.ordinal = ordinal;
    c.defaultValue = vb::Null{};
    c.maximumLength = vb::Null{};
    return c;
}

SourceColumn text(const QString& name, long length, long ordinal = 1) {
    SourceColumn c = column(name, 130, ordinal);
    c.maximumLength = vb::Variant::fromLong(length);
    return c;
}

QString definition(const SourceColumn& c, long seed = 0) {
    const ColumnDefinition d = GetColumnDefinition(c, seed);
    EXPECT_TRUE(d.ok()) << d.refusal.toStdString();
    return d.text;
}

} // namespace

TEST(ColumnDefinition, TypesOfTheSuite) {
    EXPECT_EQ(definition(column(u"N"_s, 3)), u"int"_s);
    EXPECT_EQ(definition(column(u"N"_s, 5)), u"float"_s);
    EXPECT_EQ(definition(column(u"N"_s, 6)), u"money"_s);
    EXPECT_EQ(definition(column(u"N"_s, 7)), u"datetime"_s);
    EXPECT_EQ(definition(text(u"T"_s, 50)), u"nvarchar(50)"_s);
    EXPECT_EQ(definition(text(u"T"_s, 0)), u"ntext"_s);
    // Booleans always get a default, so no insert leaves them null.
    EXPECT_EQ(definition(column(u"B"_s, 11)), u"bit default 0"_s);
}

TEST(ColumnDefinition, TypesWithoutAServerTypeAreRefused) {
    for (long type : {2L, 4L, 17L, 72L, 128L, 131L, 202L, 203L}) {
        const ColumnDefinition d = GetColumnDefinition(column(u"X"_s, type));
        EXPECT_FALSE(d.ok()) << type;
        EXPECT_TRUE(d.text.isEmpty());
    }
}

TEST(ColumnDefinition, NotNull) {
    SourceColumn c = column(u"N"_s, 3);
    c.isNullable = false;
    EXPECT_EQ(definition(c), u"int not null"_s);
    c.isNullable = true;
    c.inPrimaryKey = true;
    EXPECT_EQ(definition(c), u"int not null"_s);
    // A boolean takes its nullability from the catalog, not from IS_NULLABLE.
    SourceColumn b = column(u"B"_s, 11);
    b.isNullable = false;
    EXPECT_EQ(definition(b), u"bit default 0"_s);
    b.catalogNullable = false;
    EXPECT_EQ(definition(b), u"bit not null default 0"_s);
}

TEST(ColumnDefinition, Identity) {
    SourceColumn c = column(u"ID"_s, 3);
    c.autoincrement = true;
    c.inPrimaryKey = true;
    EXPECT_TRUE(NeedsIdentityClause(c));
    EXPECT_EQ(definition(c, 0), u"int identity(0, 1) not null"_s);
    c.increment = 5;
    EXPECT_EQ(definition(c, 17), u"int identity(17, 5) not null"_s);
    // SYS_RECORD is numbered by GetIdentity, never by the server.
    c.name = u"sys_record"_s;
    EXPECT_FALSE(NeedsIdentityClause(c));
    EXPECT_EQ(definition(c, 17), u"int not null"_s);
}

TEST(ColumnDefinition, DateDefaults) {
    SourceColumn c = column(u"D"_s, 7);
    c.hasDefault = true;
    c.defaultValue = u"Date()"_s;
    EXPECT_EQ(definition(c), u"datetime default getdate()"_s);
    c.defaultValue = u"TIME()"_s;
    EXPECT_EQ(definition(c), u"datetime default '18991230 '+convert(char(8), getdate(), 108)"_s);
    c.defaultValue = u"Now()"_s;
    EXPECT_EQ(definition(c), u"datetime"_s);
}

TEST(ColumnDefinition, BooleanDefaults) {
    SourceColumn c = column(u"B"_s, 11);
    c.hasDefault = true;
    c.defaultValue = u"True"_s;
    EXPECT_EQ(definition(c), u"bit default 1"_s);
    c.defaultValue = u"0"_s;
    EXPECT_EQ(definition(c), u"bit default 0"_s);
    c.defaultValue = u"-1"_s;
    EXPECT_EQ(definition(c), u"bit default 1"_s);
    c.defaultValue = u"forse"_s;
    EXPECT_FALSE(GetColumnDefinition(c).ok());
}

TEST(ColumnDefinition, TextDefaults) {
    SourceColumn c = text(u"T"_s, 5);
    c.hasDefault = true;
    c.defaultValue = u"'abcdefgh'"_s;
    EXPECT_EQ(definition(c), u"nvarchar(5) default 'abcde'"_s);
    // In double quotes the text is neither cut nor has its apostrophes doubled.
    c.defaultValue = u"\"l'abcdefgh\""_s;
    EXPECT_EQ(definition(c), u"nvarchar(5) default 'l'abcdefgh'"_s);
    SourceColumn memo = text(u"M"_s, 0);
    memo.hasDefault = true;
    memo.defaultValue = u"'abcdefgh'"_s;
    EXPECT_EQ(definition(memo), u"ntext default 'abcdefgh'"_s);
    // No default asked: COLUMN_DEFAULT is not read.
    c.hasDefault = false;
    EXPECT_EQ(definition(c), u"nvarchar(5)"_s);
}

TEST(ColumnDefinition, NumberDefaultsAreUnquoted) {
    SourceColumn c = column(u"N"_s, 3);
    c.hasDefault = true;
    c.defaultValue = u"0"_s;
    c.isNullable = false;
    EXPECT_EQ(definition(c), u"int not null default 0"_s);
    c.dataType = 6;
    c.defaultValue = u"'12'"_s;
    EXPECT_EQ(definition(c), u"money not null default 12"_s);
}

TEST(CreateTable, ColumnsInOrdinalOrder) {
    SourceColumn id = column(u"SYS_RECORD"_s, 3, 1);
    id.autoincrement = true;
    id.inPrimaryKey = true;
    const QList<SourceColumn> columns = {text(u"Data ora"_s, 20, 3), column(u"Order"_s, 5, 2), id};
    int seeds = 0;
    const CreateTableText t = GetCreateTableSql(u"123"_s, columns, [&](const SourceColumn&) {
        ++seeds;
        return 0L;
    });
    EXPECT_TRUE(t.complete);
    EXPECT_EQ(t.text,
              u"create table [123] (SYS_RECORD int not null, [Order] float, [Data ora] nvarchar(20))"_s);
    EXPECT_EQ(seeds, 0);
}

TEST(CreateTable, IdentitySeedAskedOnlyWhenNeeded) {
    SourceColumn id = column(u"ID"_s, 3, 1);
    id.autoincrement = true;
    const CreateTableText t = GetCreateTableSql(
        u"D_ABC"_s, {id, column(u"N"_s, 3, 2)}, [](const SourceColumn& c) {
            return c.name == u"ID" ? 42L : -1L;
        });
    EXPECT_EQ(t.text, u"create table D_ABC (ID int identity(42, 1), N int)"_s);
}

TEST(CreateTable, StopsAtAHoleOrARefusedColumn) {
    const CreateTableText hole =
        GetCreateTableSql(u"T"_s, {column(u"A"_s, 3, 1), column(u"C"_s, 3, 3)}, {});
    EXPECT_FALSE(hole.complete);
    EXPECT_EQ(hole.text, u"create table T (A int, "_s);
    const CreateTableText bad =
        GetCreateTableSql(u"T"_s, {column(u"A"_s, 3, 1), column(u"G"_s, 72, 2)}, {});
    EXPECT_FALSE(bad.complete);
    EXPECT_EQ(bad.text, u"create table T (A int, G "_s);
    EXPECT_FALSE(bad.refusal.isEmpty());
}
