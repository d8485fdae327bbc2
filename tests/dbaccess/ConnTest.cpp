#include "tests/dbaccess/DbFixture.h"

#include <optional>

using namespace Qt::StringLiterals;
using namespace dbtest;
using ado::DataTypeEnum;
using ado::SchemaEnum;
using ado::SchemaRow;
using ado::recording::rows;

namespace {

class ConnTest : public DbTest {
protected:
    // Both made once the library has started, as the program makes them.
    void SetUp() override {
        DbTest::SetUp();
        handle.emplace();
        object.emplace();
    }
    void TearDown() override {
        object.reset();
        handle.reset();
        DbTest::TearDown();
    }
    // An nxConn bound to the open server handle's connection, the journal emptied.
    void bound() {
        openServer(db());
        conn().Connection(db().cn());
    }
    nxDb& db() { return *handle; }
    nxConn& conn() { return *object; }
    void columnRow(const QString& column, DataTypeEnum type, const vb::Variant& length,
                   const vb::Variant& def = vb::Null{}) {
        server->script().schema(SchemaEnum::adSchemaColumns,
                                {SchemaRow(SchemaEnum::adSchemaColumns)
                                     .set(u"TABLE_NAME", u"T"_s)
                                     .set(u"COLUMN_NAME", column)
                                     .set(u"DATA_TYPE", std::int32_t(type))
                                     .set(u"CHARACTER_MAXIMUM_LENGTH", length)
                                     .set(u"COLUMN_HASDEFAULT", !def.isNull())
                                     .set(u"COLUMN_DEFAULT", def)
                                     .take()});
    }

    std::optional<nxDb> handle;
    std::optional<nxConn> object;
};

TEST_F(ConnTest, AnUnboundObjectAnswersNothingAndNeverRaises) {
    nxConn c;
    EXPECT_EQ(c.DbType(), 0);
    c.Connection(nullptr);
    EXPECT_EQ(c.DbType(), -1);
    EXPECT_FALSE(c.CloneConnection());
    EXPECT_FALSE(c.DatabaseExists(u"QZ"_s));
    EXPECT_FALSE(c.TableExists(u"T"_s));
    EXPECT_FALSE(c.ColumnExists(u"T"_s, u"A"_s));
    long size = -7;
    EXPECT_EQ(c.ColumnType(u"T"_s, u"A"_s, &size), 10);
    EXPECT_EQ(size, -7);
    EXPECT_FALSE(c.RelationExists(u"A"_s, u"B"_s, u"X"_s, u"Y"_s));
    EXPECT_FALSE(c.IsIndexed(u"T"_s, u"A"_s));
    EXPECT_FALSE(c.HasPrimaryKey(u"T"_s));
    EXPECT_FALSE(c.HasIdentityField(u"T"_s));
    EXPECT_FALSE(c.IsIdentityField(u"T"_s, u"A"_s));
    EXPECT_FALSE(c.CheckNullable(u"T"_s, u"A"_s, true));
    EXPECT_FALSE(c.IsDbKeyword(u"SELECT"_s));
    EXPECT_EQ(c.GetDefault(u"T"_s, u"A"_s), QString());
    EXPECT_EQ(c.GetConstraintName(u"T"_s, u"A"_s), QString());
    EXPECT_TRUE(c.GetColumns(u"T"_s).isEmpty());
    EXPECT_EQ(c.DBMSVersion(), 0);
    EXPECT_TRUE(box->shown().empty());
    EXPECT_TRUE(server->journal().entries().empty());
}

TEST_F(ConnTest, VersionOfTheServer) {
    bound();
    EXPECT_EQ(conn().DbType(), 1);
    EXPECT_EQ(conn().DBMSVersion(), 9); // "09.00.5000"
    EXPECT_EQ(conn().DBMSVersionFull(), u"09.00.5000"_s);
    server->script().property(u"DBMS Version"_s, u"08.00.2039"_s);
    nxConn other;
    other.Connection(db().cn());
    EXPECT_EQ(other.DBMSVersion(), 9); // read once, at the open
    nxDb second;
    openServer(second);
    other.Connection(second.cn());
    EXPECT_EQ(other.DBMSVersion(), 8);
    other.Connection(nullptr);
    EXPECT_EQ(other.DBMSVersionFull(), QString());
}

TEST_F(ConnTest, EveryServerQuestionTakesAConnectionOfItsOwn) {
    bound();
    server->script().schema(
        SchemaEnum::adSchemaTables,
        {SchemaRow(SchemaEnum::adSchemaTables).set(u"TABLE_NAME", u"DB_ELENCO"_s).take()});
    EXPECT_TRUE(conn().TableExists(u"db_elenco"_s));
    EXPECT_FALSE(conn().TableExists(u"DB_ALTRO"_s));
    EXPECT_FALSE(conn().ProcedureExists(u"GetIdentity"_s));
    EXPECT_FALSE(conn().ConstraintExists(u"DEFVAL_T_A"_s));
    expectGolden(u"conn-schema-questions"_s, server->journal().lines());
}

TEST_F(ConnTest, CloseConnectionClosesOnlyWhatIsClosedAlready) {
    bound();
    ado::ConnectionPtr c = conn().CloneConnection();
    ASSERT_TRUE(c);
    EXPECT_NE(c, db().cn());
    EXPECT_EQ(c->ConnectionString(), db().cn()->ConnectionString());
    conn().CloseConnection(c);
    EXPECT_EQ(c->State(), ado::adStateOpen);
    c->Close();
    conn().CloseConnection(c); // a Close on a closed connection fails unnoticed
    EXPECT_EQ(c->State(), ado::adStateClosed);
    EXPECT_TRUE(box->shown().empty());

    nxDb jetDb;
    openJet(jetDb);
    nxConn j;
    j.Connection(jetDb.cn());
    EXPECT_EQ(j.DbType(), 0);
    EXPECT_EQ(j.CloneConnection(), jetDb.cn());
}

TEST_F(ConnTest, ColumnTypeAndSize) {
    bound();
    columnRow(u"NOME"_s, DataTypeEnum::adVarWChar, std::int32_t{50});
    columnRow(u"IDRec"_s, DataTypeEnum::adInteger, vb::Null{});
    long size = -1;
    EXPECT_EQ(conn().ColumnType(u"T"_s, u"NOME"_s, &size), 202);
    EXPECT_EQ(size, 50);
    size = -1;
    EXPECT_EQ(conn().ColumnType(u"T"_s, u"IDRec"_s, &size), 3);
    EXPECT_EQ(size, -1);
    EXPECT_EQ(conn().ColumnType(u"T"_s, u"MISSING"_s, &size), 10);
    EXPECT_TRUE(conn().ColumnExists(u"T"_s, u"nome"_s));
    EXPECT_FALSE(conn().ColumnExists(u"T"_s, u"MISSING"_s));
    EXPECT_TRUE(box->shown().empty());
}

TEST_F(ConnTest, DefaultsLoseTwoPairsOfParenthesesAndTheQuotesOfText) {
    bound();
    columnRow(u"N"_s, DataTypeEnum::adInteger, vb::Null{}, u"((0))"_s);
    columnRow(u"E"_s, DataTypeEnum::adVarWChar, 10, u"('')"_s);
    columnRow(u"S"_s, DataTypeEnum::adVarWChar, 10, u"('abc')"_s);
    columnRow(u"P"_s, DataTypeEnum::adInteger, vb::Null{}, u"(((1)))"_s);
    columnRow(u"D"_s, DataTypeEnum::adDBTimeStamp, vb::Null{}, u"(getdate())"_s);
    columnRow(u"X"_s, DataTypeEnum::adInteger, vb::Null{});
    EXPECT_EQ(conn().GetDefault(u"T"_s, u"N"_s), u"0"_s);
    EXPECT_EQ(conn().GetDefault(u"T"_s, u"E"_s), u""_s);
    EXPECT_EQ(conn().GetDefault(u"T"_s, u"S"_s), u"abc"_s);
    EXPECT_EQ(conn().GetDefault(u"T"_s, u"P"_s), u"(1)"_s);
    EXPECT_EQ(conn().GetDefault(u"T"_s, u"D"_s), u"getdate()"_s);
    EXPECT_EQ(conn().GetDefault(u"T"_s, u"X"_s), QString());
    EXPECT_EQ(conn().GetDefault(u"T"_s, u"MISSING"_s), QString());
}

TEST_F(ConnTest, IndexesKeysAndKeywordsThroughFilters) {
    bound();
    auto index = [](const QString& name, const QString& column, bool primary,
                    std::int16_t collation) {
        return SchemaRow(SchemaEnum::adSchemaIndexes)
            .set(u"TABLE_NAME", u"T"_s)
            .set(u"INDEX_NAME", name)
            .set(u"PRIMARY_KEY", primary)
            .set(u"UNIQUE", primary)
            .set(u"COLUMN_NAME", column)
            .set(u"COLLATION", collation)
            .take();
    };
    server->script().schema(SchemaEnum::adSchemaIndexes, {index(u"IX_A"_s, u"A"_s, false, 1),
                                                          index(u"CUR_T"_s, u"ID"_s, true, 1),
                                                          index(u"IX_AB"_s, u"A"_s, false, 2)});
    std::vector<std::vector<vb::Variant>> lines;
    EXPECT_TRUE(conn().IsIndexed(u"T"_s, u"a"_s, &lines));
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0], (std::vector<vb::Variant>{u"IX_A"_s, false, false, std::int16_t{1}}));
    EXPECT_EQ(lines[1][0], vb::Variant(u"IX_AB"_s));
    lines.clear();
    EXPECT_FALSE(conn().IsIndexed(u"T"_s, u"B"_s, &lines));
    EXPECT_TRUE(lines.empty());

    QString pk;
    EXPECT_TRUE(conn().HasPrimaryKey(u"T"_s, &pk));
    EXPECT_EQ(pk, u"CUR_T"_s);
    EXPECT_FALSE(conn().HasPrimaryKey(u"U"_s, &pk));

    server->script().schema(
        SchemaEnum::adSchemaDBInfoKeywords,
        {SchemaRow(SchemaEnum::adSchemaDBInfoKeywords).set(u"Keyword", u"SELECT"_s).take()});
    EXPECT_TRUE(conn().IsDbKeyword(u"select"_s));
    EXPECT_TRUE(conn().IsDbKeyword(u"SEL%"_s)); // a wildcard makes a pattern
    EXPECT_FALSE(conn().IsDbKeyword(u"SEL"_s));
    expectGolden(u"conn-filters"_s, server->journal().lines());
}

TEST_F(ConnTest, RelationsMatchBothColumns) {
    bound();
    server->script().schema(SchemaEnum::adSchemaForeignKeys,
                            {SchemaRow(SchemaEnum::adSchemaForeignKeys)
                                 .set(u"PK_TABLE_NAME", u"P"_s)
                                 .set(u"PK_COLUMN_NAME", u"ID"_s)
                                 .set(u"FK_TABLE_NAME", u"C"_s)
                                 .set(u"FK_COLUMN_NAME", u"PID"_s)
                                 .take()});
    EXPECT_TRUE(conn().RelationExists(u"C"_s, u"P"_s, u"PID"_s, u"ID"_s));
    EXPECT_FALSE(conn().RelationExists(u"C"_s, u"P"_s, u"ID"_s, u"PID"_s));
    EXPECT_FALSE(conn().RelationExists(u"P"_s, u"C"_s, u"PID"_s, u"ID"_s));
    EXPECT_EQ(server->journal().lines().at(1), u"schema 27: -|-|P|-|-|C"_s);
}

TEST_F(ConnTest, ServerCatalogQueries) {
    bound();
    auto text = [](const QString& value) {
        return rows({{u"X"_s, DataTypeEnum::adVarWChar}}, {{value}});
    };
    server->script().returns(
        u"select object_name(default_object_id) from sys.columns where object_id = object_id('T') and name = 'A'"_s,
        text(u"DEFVAL_T_A"_s));
    server->script().returns(
        u"select object_name(default_object_id) from sys.columns where object_id = object_id('T') and name = 'B'"_s,
        rows({{u"X"_s, DataTypeEnum::adVarWChar}}, {{vb::Null{}}}));
    server->script().returns(
        u"select name from sysobjects where id=(select parent_obj from sysobjects where name = 'DEFVAL_T_A')"_s,
        text(u"T"_s));
    server->script().returns(
        u"select object_name(id) as TBLNAMES from sysindexes where name = 'CUR_T'"_s,
        rows({{u"TBLNAMES"_s, DataTypeEnum::adVarWChar}}, {{u"T"_s}, {u"T2"_s}}));
    EXPECT_EQ(conn().GetConstraintName(u"T"_s, u"A"_s), u"DEFVAL_T_A"_s);
    EXPECT_EQ(conn().GetConstraintName(u"T"_s, u"B"_s), QString());
    EXPECT_EQ(conn().GetConstraintName(u"T"_s, u"C"_s), QString());
    EXPECT_EQ(conn().GetTableFromDefVal(u"DEFVAL_T_A"_s), u"T"_s);
    EXPECT_EQ(conn().GetTableFromConstraintName(u"CUR_T"_s), u"T"_s);
    EXPECT_EQ(conn().GetTableFromConstraintName(u"CUR_T"_s, u"t2"_s), u"T2"_s);
    EXPECT_EQ(conn().GetTableFromConstraintName(u"CUR_T"_s, u"T3"_s), QString());

    expectGolden(u"conn-catalog-queries"_s, server->journal().statements());

    // SQL Server 2000 has no sys.columns.
    server->script().property(u"DBMS Version"_s, u"8.00.2039"_s);
    nxDb old;
    openServer(old);
    conn().Connection(old.cn());
    EXPECT_EQ(conn().GetConstraintName(u"T"_s, u"A"_s), QString());
    EXPECT_EQ(
        server->journal().statements(),
        QStringList{
            u"select object_name(cdefault) from syscolumns where id = object_id('T') and name = 'A'"_s});
}

TEST_F(ConnTest, IdentityAndNullability) {
    bound();
    server->script().returns(u"SELECT COLUMNPROPERTY( OBJECT_ID('T'),'ID','IsIdentity')"_s,
                             rows({{u""_s, DataTypeEnum::adInteger}}, {{std::int32_t{1}}}));
    EXPECT_TRUE(conn().IsIdentityField(u"T"_s, u"ID"_s));
    EXPECT_FALSE(conn().IsIdentityField(u"T"_s, u"NOME"_s)); // no row
    QString column;
    server->script().onPrefix(
        u"select t1.TABLE_NAME, c1.COLUMN_NAME from INFORMATION_SCHEMA.TABLES t1 inner join INFORMATION_SCHEMA.COLUMNS c1  on"_s,
        ado::recording::Answer::withRows(rows({{u"TABLE_NAME"_s, DataTypeEnum::adVarWChar},
                                               {u"COLUMN_NAME"_s, DataTypeEnum::adVarWChar}},
                                              {{u"T"_s, u"ID"_s}})));
    EXPECT_TRUE(conn().HasIdentityField(u"T"_s, &column));
    EXPECT_EQ(column, u"ID"_s);
    server->script().onPrefix(
        u"select t1.TABLE_NAME, c1.COLUMN_NAME from INFORMATION_SCHEMA.TABLES t1 inner join INFORMATION_SCHEMA.COLUMNS c1 on"_s,
        ado::recording::Answer::withRows(rows({{u"TABLE_NAME"_s, DataTypeEnum::adVarWChar},
                                               {u"COLUMN_NAME"_s, DataTypeEnum::adVarWChar}},
                                              {{u"T"_s, u"NOME"_s}, {u"T"_s, u"NOTE"_s}})));
    EXPECT_TRUE(conn().CheckNullable(u"T"_s, u"NOTE"_s, true));
    EXPECT_FALSE(conn().CheckNullable(u"T"_s, u"ID"_s, false));
    expectGolden(u"conn-identity-nullable"_s, server->journal().lines());
}

TEST_F(ConnTest, DatabaseExistsAsksTheMasterDatabase) {
    bound();
    server->script().schema(SchemaEnum::adSchemaCatalogs, {catalogRow(u"ALTRO"_s)});
    EXPECT_TRUE(conn().DatabaseExists(u"altro"_s));
    EXPECT_FALSE(conn().DatabaseExists(u"NESSUNO"_s));
    expectGolden(u"conn-database-exists"_s, server->journal().lines());
}

TEST_F(ConnTest, ColumnsPlacedByTheirOrdinal) {
    bound();
    auto row = [](SchemaEnum schema, const QString& column, const char16_t* ordinalField,
                  std::int32_t ordinal) {
        return SchemaRow(schema)
            .set(u"TABLE_NAME", u"T"_s)
            .set(u"COLUMN_NAME", column)
            .set(QStringView(ordinalField), ordinal)
            .take();
    };
    server->script().schema(SchemaEnum::adSchemaColumns,
                            {row(SchemaEnum::adSchemaColumns, u"C"_s, u"ORDINAL_POSITION", 3),
                             row(SchemaEnum::adSchemaColumns, u"A"_s, u"ORDINAL_POSITION", 1)});
    server->script().schema(SchemaEnum::adSchemaPrimaryKeys,
                            {row(SchemaEnum::adSchemaPrimaryKeys, u"ID"_s, u"ORDINAL", 1)});
    EXPECT_EQ(conn().GetColumns(u"T"_s), (QStringList{QString(), u"A"_s, QString(), u"C"_s}));
    EXPECT_EQ(conn().GetPKColumns(u"T"_s), (QStringList{QString(), u"ID"_s}));
    EXPECT_TRUE(conn().GetColumns(u"U"_s).isEmpty());
}

TEST_F(ConnTest, SharedConnectionServesTheLatestOpen) {
    nxDb first;
    openServer(first);
    nxDb second;
    openJet(second);
    EXPECT_EQ(dbaccess::AppConn().Connection(), second.cn());
    EXPECT_EQ(dbaccess::AppConn().DbType(), 0);
    EXPECT_EQ(first.ConnUtils()->DbType(), 1);
}

} // namespace
