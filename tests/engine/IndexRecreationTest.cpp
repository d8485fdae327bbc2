#include "engine/IndexRecreation.h"
#include "engine/TableRecreation.h"

#include "PhaseFixture.h"

#include "platform/ado/Error.h"

namespace phasetest {
namespace {

ado::Row indexRow(const QString& table, const QString& index, const QString& column,
                  bool primary = false, bool unique = false, std::int32_t collation = 1) {
    return ado::SchemaRow(ado::SchemaEnum::adSchemaIndexes)
        .set(u"TABLE_NAME", table)
        .set(u"INDEX_NAME", index)
        .set(u"PRIMARY_KEY", primary)
        .set(u"UNIQUE", unique)
        .set(u"COLUMN_NAME", column)
        .set(u"COLLATION", collation)
        .take();
}

class IndexRecreationTest : public PhaseTest {
protected:
    void SetUp() override {
        PhaseTest::SetUp();
        openRecordedSource();
        openDest();
    }
    bool createIndexes(QString table) {
        engine::TableRecreation names(run->context());
        engine::IndexRecreation phase(run->context(), names);
        return phase.CreateTableIndexes(table);
    }

};

TEST_F(IndexRecreationTest, OneStatementPerIndexInRowsetOrder) {
    const QString t = u"D_ABC"_s;
    jet->script().schema(
        ado::SchemaEnum::adSchemaIndexes,
        {
            indexRow(t, u"Mia chiave"_s, u"Order"_s, false, true, 1),
            indexRow(t, u"Mia chiave"_s, u"DATA_DOC"_s, false, true, 2),
            indexRow(t, u"PrimaryKey"_s, u"SYS_RECORD"_s, true, true),
            indexRow(t, u"PrimaryKey"_s, u"ANNO"_s, true, true),
            indexRow(t, u"codice"_s, u"CODICE"_s),
            indexRow(t, u"CODICE"_s, u"Data ora"_s, false, false, 0), // same index, other case
            indexRow(t, u"D_ABC"_s, u"NUMERO"_s),
            indexRow(t, u"D_ABC_Data"_s, u"DATA_DOC"_s, false, false, 2),
            indexRow(u"D_ALTRA"_s, u"PrimaryKey"_s, u"X"_s, true, true),
        });
    EXPECT_TRUE(createIndexes(t));
    EXPECT_EQ(statements(),
              (QStringList{
                  u"create unique index [Mia chiave] on [D_ABC] ([Order] asc, DATA_DOC desc)"_s,
                  u"alter table [D_ABC] add constraint CUR_D_ABCPrimaryKey primary key "
                  u"(SYS_RECORD asc, ANNO asc)"_s,
                  u"create index codice on [D_ABC] (CODICE asc, [Data ora])"_s,
                  u"create index D_ABC_IDX on [D_ABC] (NUMERO asc)"_s,
                  u"create index D_ABC_Data on [D_ABC] (DATA_DOC desc)"_s,
              }));
    EXPECT_TRUE(run->events.lines.isEmpty());
}

TEST_F(IndexRecreationTest, ATableWithoutIndexesRunsNothing) {
    jet->script().schema(ado::SchemaEnum::adSchemaIndexes,
                         {indexRow(u"D_ALTRA"_s, u"PrimaryKey"_s, u"X"_s, true, true)});
    EXPECT_TRUE(createIndexes(u"D_VUOTA"_s));
    EXPECT_TRUE(statements().isEmpty());
}

TEST_F(IndexRecreationTest, ARefusedIndexEndsTheTableAndKeepsTheIndexesBeforeIt) {
    const QString t = u"D_ABC"_s;
    jet->script().schema(ado::SchemaEnum::adSchemaIndexes,
                         {indexRow(t, u"PrimaryKey"_s, u"SYS_RECORD"_s, true, true),
                          indexRow(t, u"NOTE"_s, u"NOTE"_s), indexRow(t, u"CODICE"_s, u"CODICE"_s)});
    server->script().fails(
        u"create index NOTE on [D_ABC] (NOTE asc)"_s,
        ado::Error(ado::HResult::DB_E_ERRORSINCOMMAND,
                   u"Column 'NOTE' in table 'D_ABC' is of a type that is invalid for use as a key "
                   u"column in an index."_s,
                   u"Microsoft OLE DB Provider for SQL Server"_s));
    box->answer(1); // nxDb.Execute tells the refusal in its own box
    EXPECT_FALSE(createIndexes(t));
    EXPECT_EQ(statements(),
              (QStringList{u"alter table [D_ABC] add constraint CUR_D_ABCPrimaryKey primary key "
                           u"(SYS_RECORD asc)"_s,
                           u"create index NOTE on [D_ABC] (NOTE asc)"_s}));
    ASSERT_EQ(run->events.lines.size(), 1);
    EXPECT_TRUE(run->events.lines.at(0).startsWith(
        u"Error 4 (D_ABC) -2147217900: Column 'NOTE' in table 'D_ABC' is of a type"_s))
        << run->events.lines.at(0).toStdString();
    EXPECT_EQ(box->shown().size(), 1u);
}

TEST_F(IndexRecreationTest, IndexNamesFollowTheDestinationDelimiters) {
    engine::TableRecreation names(run->context());
    engine::IndexRecreation phase(run->context(), names);
    EXPECT_EQ(phase.GetIndexName(u"PrimaryKey"_s, u"D_ABC"_s, u"primarykey"_s),
              u"CUR_D_ABCPrimaryKey"_s);
    EXPECT_EQ(phase.GetIndexName(u"PrimaryKey"_s, u"D_ABC"_s, vb::Variant(vb::Null{})),
              u"PrimaryKey"_s);
    EXPECT_EQ(phase.GetIndexName(u"d_abc"_s, u"D_ABC"_s, u"PrimaryKey"_s), u"d_abc_IDX"_s);
    EXPECT_EQ(phase.GetIndexName(u"Data/ora"_s, u"D_ABC"_s, u""_s), u"[Data/ora]"_s);
    EXPECT_EQ(phase.GetIndexName(u"1chiave"_s, u"D_ABC"_s, u""_s), u"[1chiave]"_s);
    EXPECT_EQ(phase.GetIndexName(u"PrimaryKey"_s, u"sys_predefinita"_s, u"PrimaryKey"_s),
              u"PrimaryKey"_s);
    EXPECT_EQ(engine::IndexRecreation::StripBrackets(u"[D_ABC]"_s), u"D_ABC"_s);
    EXPECT_EQ(engine::IndexRecreation::StripBrackets(u"[D_ABC"_s), u"[D_ABC"_s);
}

} // namespace
} // namespace phasetest
