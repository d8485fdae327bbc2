#include "engine/TableRecreation.h"

#include "PhaseFixture.h"

namespace phasetest {
namespace {

using ado::CatalogColumn;
using ado::CatalogTable;
using ado::DataTypeEnum;

CatalogColumn catalogColumn(const QString& name, DataTypeEnum type, bool autoincrement = false,
                            bool nullable = true) {
    CatalogColumn c;
    c.name = name;
    c.type = type;
    c.properties = {{u"Autoincrement"_s, autoincrement, false},
                    {u"Increment"_s, std::int32_t{1}, false},
                    {u"Nullable"_s, nullable, false}};
    return c;
}

class TableRecreationTest : public PhaseTest {
protected:
    void SetUp() override {
        PhaseTest::SetUp();
        openRecordedSource();
    }
    QString create(const QString& table) {
        engine::TableRecreation phase(run->context());
        return phase.GetCreateTableSql(table, run->srcConn.Connection());
    }

};

TEST_F(TableRecreationTest, ColumnsInOrdinalOrderWithTheWholeTypeMapping) {
    const QString t = u"D_ABC"_s;
    // Rowset order differs from ordinal order on purpose.
    jet->script().schema(
        ado::SchemaEnum::adSchemaColumns,
        {
            columnRow(t, u"NOTE"_s, 6, 130, std::int32_t{0}, true, u"'nota lunga'"_s),
            columnRow(t, u"SYS_RECORD"_s, 1, 3, vb::Variant(vb::Null{}), false),
            columnRow(t, u"Order"_s, 2, 130, std::int32_t{5}, true, u"\"testo più lungo\""_s),
            columnRow(t, u"Data ora"_s, 3, 7, vb::Variant(vb::Null{}), true, u"Date()"_s),
            columnRow(t, u"Creato"_s, 4, 7, vb::Variant(vb::Null{}), true, u"Now()"_s),
            columnRow(t, u"Descrizione"_s, 5, 130, std::int32_t{4}, false, u"'abcdefgh'"_s),
            columnRow(t, u"ARCHIVIATO"_s, 7, 11),
            columnRow(t, u"IMPORTO"_s, 8, 6, vb::Variant(vb::Null{}), true, u"0"_s),
            columnRow(t, u"User"_s, 9, 5),
            columnRow(t, u"ORA"_s, 10, 7, vb::Variant(vb::Null{}), true, u"TIME()"_s),
            columnRow(t, u"VALIDO"_s, 11, 11, vb::Variant(vb::Null{}), true, u"True"_s),
        });
    jet->script().catalogTable(
        CatalogTable{t, u"TABLE"_s, {}, {}, {}},
        {catalogColumn(u"SYS_RECORD"_s, DataTypeEnum::adInteger, true, false),
         catalogColumn(u"ARCHIVIATO"_s, DataTypeEnum::adBoolean, false, false),
         catalogColumn(u"VALIDO"_s, DataTypeEnum::adBoolean, false, true)});
    jet->script().schema(ado::SchemaEnum::adSchemaPrimaryKeys,
                         {ado::SchemaRow(ado::SchemaEnum::adSchemaPrimaryKeys)
                              .set(u"TABLE_NAME", t)
                              .set(u"COLUMN_NAME", u"SYS_RECORD"_s)
                              .take()});
    EXPECT_EQ(create(t),
              u"create table D_ABC (SYS_RECORD int not null, [Order] nvarchar(5) default '"
              u"testo più lungo', [Data ora] datetime default getdate(), Creato datetime, "
              u"Descrizione nvarchar(4) not null default 'abcd', NOTE ntext default 'nota lunga', "
              u"ARCHIVIATO bit not null default 0, IMPORTO money default 0, [User] float, "
              u"ORA datetime default '18991230 '+convert(char(8), getdate(), 108), "
              u"VALIDO bit default 1)"_s);
}

TEST_F(TableRecreationTest, AnAutoincrementColumnStartsWhereTheDataStarts) {
    const QString t = u"D_NUM"_s;
    jet->script().schema(ado::SchemaEnum::adSchemaColumns,
                         {columnRow(t, u"ID"_s, 1, 3, vb::Variant(vb::Null{}), false),
                          columnRow(t, u"N"_s, 2, 3)});
    jet->script().catalogTable(CatalogTable{t, u"TABLE"_s, {}, {}, {}},
                               {catalogColumn(u"ID"_s, DataTypeEnum::adInteger, true),
                                catalogColumn(u"N"_s, DataTypeEnum::adInteger)});
    jet->script().returns(u"select top 1 ID from D_NUM order by ID asc"_s,
                          ado::recording::rows({{u"ID"_s, DataTypeEnum::adInteger}},
                                               {{vb::Variant(std::int32_t{17})}}));
    EXPECT_EQ(create(t), u"create table D_NUM (ID int identity(17, 1) not null, N int)"_s);
    EXPECT_TRUE(jet->journal().statements().contains(
        u"select top 1 ID from D_NUM order by ID asc"_s));
}

TEST_F(TableRecreationTest, AnEmptyTableSeedsAtZeroAndSysRecordGetsNoIdentity) {
    const QString t = u"123"_s;
    jet->script().schema(ado::SchemaEnum::adSchemaColumns,
                         {columnRow(t, u"ID"_s, 1, 3), columnRow(t, u"sys_record"_s, 2, 3)});
    jet->script().catalogTable(CatalogTable{t, u"TABLE"_s, {}, {}, {}},
                               {catalogColumn(u"ID"_s, DataTypeEnum::adInteger, true),
                                catalogColumn(u"sys_record"_s, DataTypeEnum::adInteger, true)});
    EXPECT_EQ(create(t), u"create table [123] (ID int identity(0, 1), sys_record int)"_s);
}

TEST_F(TableRecreationTest, AServerKeywordIsEnclosedAsTheMasterConnectionSays) {
    const QString t = u"D_K"_s;
    jet->script().schema(ado::SchemaEnum::adSchemaColumns,
                         {columnRow(t, u"Data"_s, 1, 5), columnRow(t, u"Testo"_s, 2, 5)});
    server->script().schema(ado::SchemaEnum::adSchemaDBInfoKeywords,
                            {ado::SchemaRow(ado::SchemaEnum::adSchemaDBInfoKeywords)
                                 .set(u"Keyword", u"DATA"_s)
                                 .take()});
    EXPECT_EQ(create(t), u"create table D_K ([Data] float, Testo float)"_s);
}

TEST_F(TableRecreationTest, WhatCannotBeMappedLeavesTheStatementUnfinished) {
    // A hole in the ordinal positions.
    jet->script().schema(ado::SchemaEnum::adSchemaColumns,
                         {columnRow(u"D_H"_s, u"A"_s, 1, 5), columnRow(u"D_H"_s, u"C"_s, 3, 5),
                          columnRow(u"D_X"_s, u"A"_s, 1, 5), columnRow(u"D_X"_s, u"B"_s, 2, 2),
                          columnRow(u"D_X"_s, u"C"_s, 3, 5),
                          columnRow(u"D_B"_s, u"A"_s, 1, 11, vb::Variant(vb::Null{}), true,
                                    u"forse"_s)});
    jet->script().catalogTable(CatalogTable{u"D_B"_s, u"TABLE"_s, {}, {}, {}},
                               {catalogColumn(u"A"_s, DataTypeEnum::adBoolean)});
    EXPECT_EQ(create(u"D_H"_s), u"create table D_H (A float, "_s);
    // A small integer has no server type of its own here: no mapping is invented.
    EXPECT_EQ(create(u"D_X"_s), u"create table D_X (A float, "_s);
    // A yes/no default that is no boolean.
    EXPECT_EQ(create(u"D_B"_s), u"create table D_B ("_s);
    EXPECT_TRUE(box->shown().empty());
}

TEST_F(TableRecreationTest, ASeedThatCannotBeReadIsZero) {
    jet->script().fails(u"select top 1 ID from D_E order by ID asc"_s,
                        ado::Error(ado::HResult::E_UNSPECIFIED, u"locked"_s, u"Jet"_s));
    engine::TableRecreation phase(run->context());
    EXPECT_EQ(phase.GetIdentitySeed(u"D_E"_s, u"ID"_s, run->srcConn.Connection()), 0);
    EXPECT_EQ(phase.GetIdentitySeed(u"D_E"_s, u"ID"_s, nullptr), 0);
}

} // namespace
} // namespace phasetest
