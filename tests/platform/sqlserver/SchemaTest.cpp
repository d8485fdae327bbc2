#include "platform/ado/sqlserver/odbc/Diagnostics.h"
#include "platform/ado/sqlserver/odbc/SchemaQueries.h"
#include "tests/support/Golden.h"
#include "tests/support/Printers.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace odbc;

namespace {

const vb::Variant kNone;

std::int32_t refusal(int id, std::vector<vb::Variant> restrictions) {
    try {
        schemaQuery(id, restrictions);
    } catch (const Failure& f) {
        return f.hresult();
    }
    return 0;
}

} // namespace

TEST(SchemaQueries, EveryRowsetQueryMatchesItsGoldenText) {
    QString all;
    for (int id : {schema::Catalogs, schema::Columns, schema::CheckConstraints, schema::Indexes,
                   schema::Procedures, schema::Tables, schema::ForeignKeys,
                   schema::PrimaryKeys}) {
        all += u"-- OpenSchema %1, no restrictions\n%2\n\n"_s.arg(QString::number(id),
                                                                 schemaQuery(id, {}).text);
    }
    all += u"-- ProductVersion\n"_s + productVersionQuery() + u"\n"_s;
    expectGoldenText(u"tests/platform/sqlserver/golden/schema-rowsets.sql"_s, all);
}

TEST(SchemaQueries, RestrictionsBecomeParametersInTheirPlace) {
    // The database handle's questions: a table, a column, an index by table (fifth), a
    // relation by both tables.
    const SchemaQuery tables = schemaQuery(schema::Tables, {kNone, kNone, u"D_ARCH"_s, kNone});
    EXPECT_TRUE(tables.text.endsWith(
        u") as r where r.TABLE_NAME = ? order by TABLE_TYPE, TABLE_CATALOG, TABLE_SCHEMA, "
        u"TABLE_NAME"_s));
    ASSERT_EQ(tables.parameters.size(), 1u);
    EXPECT_EQ(tables.parameters[0].adoType, 202);
    EXPECT_EQ(tables.parameters[0].value, vb::Variant(u"D_ARCH"_s));

    const SchemaQuery indexes =
        schemaQuery(schema::Indexes, {kNone, vb::Variant(vb::Null{}), u""_s, kNone, u"T"_s});
    EXPECT_TRUE(indexes.text.contains(u") as r where r.TABLE_NAME = ? order by "_s));
    EXPECT_EQ(indexes.parameters.size(), 1u);

    const SchemaQuery fk =
        schemaQuery(schema::ForeignKeys, {kNone, kNone, u"P"_s, kNone, kNone, u"F"_s});
    EXPECT_TRUE(fk.text.contains(u" where r.PK_TABLE_NAME = ? and r.FK_TABLE_NAME = ? "_s));
    ASSERT_EQ(fk.parameters.size(), 2u);
    EXPECT_EQ(fk.parameters[0].value, vb::Variant(u"P"_s));
    EXPECT_EQ(fk.parameters[1].value, vb::Variant(u"F"_s));

    // A procedure is found by its name with or without the group number.
    const SchemaQuery proc = schemaQuery(schema::Procedures, {kNone, kNone, u"GetIdentity"_s});
    EXPECT_TRUE(proc.text.contains(
        u" where (r.PROCEDURE_NAME = ? + N';1' or r.PROCEDURE_NAME = ?) "_s));
    EXPECT_EQ(proc.parameters.size(), 2u);

    const SchemaQuery typed = schemaQuery(schema::Indexes, {kNone, kNone, kNone, vb::Variant(std::int16_t(1))});
    ASSERT_EQ(typed.parameters.size(), 1u);
    EXPECT_EQ(typed.parameters[0].adoType, 2);
}

TEST(SchemaQueries, UnknownRowsetsAndTooManyRestrictionsAreRefused) {
    EXPECT_EQ(refusal(23, {}), static_cast<std::int32_t>(0x80040E53u));
    EXPECT_EQ(refusal(schema::PrimaryKeys, {kNone, kNone, kNone, kNone}),
              static_cast<std::int32_t>(0x800A0BB9u));
    EXPECT_EQ(refusal(schema::Catalogs, {u"master"_s}), 0);
}

TEST(SchemaQueries, KeywordsAndLiterals) {
    const StaticRowset keywords = staticRowset(schema::DBInfoKeywords);
    EXPECT_EQ(keywords.columns, QStringList{u"Keyword"_s});
    QStringList words;
    for (const auto& row : keywords.rows) {
        words << row.at(0).toString();
    }
    // Only words outside SQL-92: ORDER or SELECT never come from the provider.
    for (const QString& sql92 : {u"ORDER"_s, u"SELECT"_s, u"TABLE"_s, u"USER"_s}) {
        EXPECT_FALSE(words.contains(sql92)) << sql92.toStdString();
    }
    for (const QString& tsql : {u"IDENTITY_INSERT"_s, u"TOP"_s, u"DATABASE"_s, u"FILE"_s}) {
        EXPECT_TRUE(words.contains(tsql)) << tsql.toStdString();
    }
    const StaticRowset literals = staticRowset(schema::DBInfoLiterals);
    EXPECT_EQ(literals.columns.first(), u"LiteralName"_s);
    QStringList quoting;
    for (const auto& row : literals.rows) {
        ASSERT_EQ(row.size(), static_cast<std::size_t>(literals.columns.size()));
        if (row[0].toString().startsWith(u"Quote_"_s)) {
            quoting << row[1].toString();
        }
    }
    EXPECT_EQ(quoting, (QStringList{u"["_s, u"]"_s}));
    EXPECT_TRUE(isStaticSchema(30));
    EXPECT_FALSE(isStaticSchema(20));
}

TEST(SchemaQueries, DbmsVersionHasTheProviderForm) {
    EXPECT_EQ(dbmsVersion(u"9.00.5000.00"_s), u"09.00.5000"_s);
    EXPECT_EQ(dbmsVersion(u"15.0.2000.5"_s), u"15.00.2000"_s);
    EXPECT_EQ(dbmsVersion(u"12.0.2000.8"_s), u"12.00.2000"_s);
    EXPECT_EQ(dbmsVersion(u"16.0.4135.4 "_s), u"16.00.4135"_s);
    EXPECT_EQ(dbmsVersion(u"Babelfish"_s), QString());
    EXPECT_EQ(dbmsVersion(u"15.x.1"_s), QString());
}
