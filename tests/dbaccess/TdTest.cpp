#include "dbaccess/nxTd.h"

#include "platform/ado/Error.h"

#include "tests/dbaccess/DbFixture.h"

#include <optional>

using namespace Qt::StringLiterals;
using namespace dbtest;
using ado::DataTypeEnum;

namespace {

class TdTest : public DbTest {};

TEST(TdText, BatchIsSortedIntoAnOrderTheServerAccepts) {
    const QStringList sorted = nxTd::sortBatchCommands(
        {QString(), u"if not exists(...) create index IX on T (A asc)"_s,
         u"alter table T drop constraint DF"_s, u"exec sp_rename 'T.A', 'B', 'COLUMN'"_s,
         u"alter table T add B int null"_s, u"ALTER TABLE T ALTER COLUMN A int not null"_s,
         u"alter table T add constraint DEFVAL_TA default 0 for A"_s,
         u"if exists (...) alter table T drop constraint X default Y"_s, QString(),
         u"alter table T add constraint CUR_T primary key (A asc)"_s,
         u"if not exists(...) create unique index UX on T (B desc)"_s,
         u"alter table T drop column C"_s, u"update T set A=0 where A is null"_s});
    EXPECT_EQ(sorted,
              (QStringList{u"alter table T add B int null"_s, u"update T set A=0 where A is null"_s,
                           u"alter table T drop constraint DF"_s,
                           u"if exists (...) alter table T drop constraint X default Y"_s,
                           u"alter table T drop column C"_s,
                           u"ALTER TABLE T ALTER COLUMN A int not null"_s,
                           u"alter table T add constraint DEFVAL_TA default 0 for A"_s,
                           u"alter table T add constraint CUR_T primary key (A asc)"_s,
                           u"if not exists(...) create index IX on T (A asc)"_s,
                           u"if not exists(...) create unique index UX on T (B desc)"_s,
                           u"exec sp_rename 'T.A', 'B', 'COLUMN'"_s}));
    EXPECT_TRUE(nxTd::sortBatchCommands({QString()}).isEmpty());
}

TEST(TdText, ServerTypeNames) {
    struct Case {
        long type;
        const char16_t* text;
    };
    for (const Case& c : {Case{2, u"smallint"}, Case{3, u"int"}, Case{5, u"float"},
                          Case{6, u"money"}, Case{11, u"bit"}, Case{72, u"uniqueidentifier"},
                          Case{130, u"nvarchar(12)"}, Case{202, u"nvarchar(12)"},
                          Case{135, u"datetime"}, Case{7, u""}, Case{4, u""}, Case{20, u""}}) {
        EXPECT_EQ(nxTd::columnTypeText(c.type, 12, true), QString::fromUtf16(c.text)) << c.type;
    }
    EXPECT_EQ(nxTd::columnTypeText(203, 0, true), u"nvarchar(max)"_s);
    EXPECT_EQ(nxTd::columnTypeText(203, 0, false), u"ntext"_s);
}

TEST(TdText, EnclosureRemoveTakesEveryLevel) {
    EXPECT_EQ(nxTd::EnclosureRemove(u"(((1)))"_s, u"()"_s), u"1"_s);
    EXPECT_EQ(nxTd::EnclosureRemove(u"[[A]]"_s, u"[]"_s), u"A"_s);
    EXPECT_EQ(nxTd::EnclosureRemove(u"\"\"x\"\""_s, u"\"\""_s), u"x"_s);
    EXPECT_EQ(nxTd::EnclosureRemove(u"(a)(b)"_s, u"()"_s), u"a)(b"_s);
    EXPECT_EQ(nxTd::EnclosureRemove(u"(a"_s, u"()"_s), u"(a"_s);
    EXPECT_EQ(nxTd::EnclosureRemove(u"(a)"_s, QString()), u"(a)"_s);
    EXPECT_EQ(nxTd::EnclosureRemove(QString(), u"()"_s), QString());
}

TEST_F(TdTest, QuotedNamesOnTheServerAndOnJet) {
    nxDb db;
    openServer(db);
    nxTd td;
    td.Db(&db);
    EXPECT_EQ(td.QuoteTblName(u"ORDINE"_s), u"ORDINE"_s);
    EXPECT_EQ(td.QuoteTblName(u"ORDINE_NEW"_s, true), u"ORDINE"_s);
    EXPECT_EQ(td.QuoteTblName(u"2023_DOC_NEW"_s, true), u"[2023_DOC]"_s);
    EXPECT_EQ(td.QuoteTblName(u"[ARCHIVIO]"_s), u"ARCHIVIO"_s);
    EXPECT_EQ(td.QuoteTblName(u"[9A]"_s), u"[9A]"_s);
    EXPECT_EQ(td.QuoteTblName(u"D-ELENCO"_s), u"[D-ELENCO]"_s);
    EXPECT_EQ(td.QuoteTblName(u"A/B"_s), u"[A/B]"_s);
    EXPECT_EQ(td.QuoteTblName(u"DATA"_s), u"[DATA]"_s); // a fragment of DATABASE
    EXPECT_EQ(td.QuoteIdxName(u"IX_NOME"_s), u"IX_NOME"_s);
    EXPECT_EQ(td.StripName(u"[ORDINE_BACKUP]"_s, true), u"ORDINE"_s);
    EXPECT_EQ(td.StripName(u"ORDINE_NEW"_s, false), u"ORDINE_NEW"_s);

    nxDb jetDb;
    openJet(jetDb);
    td.Db(&jetDb);
    EXPECT_EQ(td.QuoteTblName(u"D-ELENCO"_s), u"D-ELENCO"_s);
}

TEST_F(TdTest, NewTableOnSqlServer2005IsOneCreateTableThenItsBatch) {
    nxDb db;
    openServer(db);
    nxTd td;
    td.Db(&db);
    EXPECT_FALSE(td.TdClose()); // not open: nothing to do
    ASSERT_MEMBER_OK(td.TdOpen(u"ORDINE"_s));
    EXPECT_TRUE(td.IsNew());
    EXPECT_TRUE(td.Sql2005());
    EXPECT_EQ(td.IndexCatalog(), u"sys.indexes"_s);
    EXPECT_EQ(td.IndexIdColumn(), u"object_id"_s);
    EXPECT_MEMBER_OK(td.FldAdd(u"IDRec"_s, 3, 0, FldAutoIncrement, {}));
    EXPECT_MEMBER_OK(td.FldAdd(u"SYS_RECORD"_s, 3, 0, FldAutoIncrement, {}));
    EXPECT_MEMBER_OK(td.FldAdd(u"NOME"_s, 202, 50, FldRequired, {}));
    EXPECT_MEMBER_OK(td.FldAdd(u"CODICE"_s, 202, 10, FldZeroLength, u"\"'abc'\""_s));
    EXPECT_MEMBER_OK(td.FldAdd(u"QTA"_s, 3, 0, FldOptional, u"0"_s));
    EXPECT_MEMBER_OK(td.FldAdd(u"FLAG"_s, 11, 0, FldOptional, {}));
    EXPECT_MEMBER_OK(td.FldAdd(u"DATA"_s, 7, 0, FldOptional, u"date()"_s));
    EXPECT_MEMBER_OK(td.FldAdd(u"NOTE"_s, 203, 0, FldOptional, {}));
    EXPECT_MEMBER_OK(td.FldAdd(u"GUID"_s, 72, 0, FldOptional, {}));
    EXPECT_MEMBER_OK(td.IdxAdd(u"PrimaryKey"_s, u"+IDRec"_s, 7));
    EXPECT_MEMBER_OK(td.IdxAdd(u"IX_NOME"_s, u"-NOME;+;;+QTA"_s, 0));
    EXPECT_MEMBER_OK(td.IdxAdd(u"IX_KEY"_s, u"+KEY;-A-B"_s, 0));
    EXPECT_EQ(td.BuildCreateTable(),
              u"create table ORDINE ([IDRec] int not null identity(1, 1), [SYS_RECORD] int not "
              u"null, [NOME] nvarchar(50) not null, [CODICE] nvarchar(10), [QTA] int, [FLAG] bit, "
              u"[DATA] datetime, [NOTE] nvarchar(max), [GUID] uniqueidentifier not null)"_s);
    server->journal().clear();
    EXPECT_MEMBER_OK(td.TdClose());
    EXPECT_FALSE(td.IsOpened());
    EXPECT_FALSE(td.Sql2005()); // worked out afresh at the next TdOpen
    expectGolden(u"td-new-table-2005"_s, server->journal().statements());
}

TEST_F(TdTest, ATableNamedWithADigitFirstIsBracketed) {
    nxDb db;
    nxTd td;
    ASSERT_NO_FATAL_FAILURE(openServerTable(db, td, u"2023_DOC"_s));
    EXPECT_MEMBER_OK(td.FldAdd(u"A"_s, 3, 0, FldOptional, {}));
    EXPECT_EQ(td.BuildCreateTable(), u"create table [2023_DOC] ([A] int)"_s);
}

TEST_F(TdTest, AnEmptyNewTableIsNotMade) {
    nxDb db;
    nxTd td;
    ASSERT_NO_FATAL_FAILURE(openServerTable(db, td, u"VUOTA"_s));
    EXPECT_FALSE(td.TdClose());
    EXPECT_TRUE(server->journal().statements().isEmpty());
    EXPECT_TRUE(box->shown().empty());
}

TEST_F(TdTest, AFailedBatchStopsSilentlyAndKeepsWhatRan) {
    nxDb db;
    nxTd td;
    ASSERT_NO_FATAL_FAILURE(openServerTable(db, td, u"ELENCO"_s));
    ASSERT_MEMBER_OK(td.FldAdd(u"A"_s, 3, 0, FldOptional, u"1"_s));
    ASSERT_MEMBER_OK(td.FldAdd(u"B"_s, 3, 0, FldOptional, u"2"_s));
    ASSERT_MEMBER_OK(td.FldAdd(u"C"_s, 3, 0, FldOptional, u"3"_s));
    server->script().onPrefix(u"alter table ELENCO add constraint [DEFVAL_ELENCOA]"_s,
                              ado::recording::Answer::failing(ado::Error(
                                  ado::HResult::DB_E_ERRORSINCOMMAND, u"refused"_s, u"server"_s)));
    server->journal().clear();
    EXPECT_FALSE(td.TdClose(false));
    EXPECT_TRUE(box->shown().empty());
    EXPECT_EQ(nxApp::LastError().Source(), u"nxTd.ExecuteBatchCommands() - i = 3"_s);
    const QStringList ran = server->journal().statements();
    ASSERT_EQ(ran.size(), 5);
    EXPECT_TRUE(ran[0].startsWith(u"create table ELENCO"_s));
    EXPECT_EQ(ran[1], u"update ELENCO set [A]=1 where [A] is null"_s);
    EXPECT_EQ(ran[3], u"update ELENCO set [C]=3 where [C] is null"_s);
    EXPECT_EQ(ran[4], u"alter table ELENCO add constraint [DEFVAL_ELENCOA] default 1 for [A]"_s);
    EXPECT_FALSE(td.Td()); // released after a failure
}

TEST_F(TdTest, MissingTableOnAReadOnlyDatabase) {
    nxDb db;
    ASSERT_NO_FATAL_FAILURE(openReadOnlyJet(db));
    nxTd td;
    td.Db(&db);
    EXPECT_FALSE(td.TdOpen(u"ARCHIVIO"_s, {}, {}, true));
    EXPECT_TRUE(box->shown().empty());
    box->answer(1);
    EXPECT_FALSE(td.TdOpen(u"ARCHIVIO"_s));
    ASSERT_EQ(box->shown().size(), 1u);
    EXPECT_EQ(box->last().text, u"Tabella 'ARCHIVIO' inesistente."_s);
    EXPECT_EQ(box->last().flags, 48);
}

TEST_F(TdTest, OnSqlServer2000ANewTableGoesThroughTheCatalog) {
    server->script().property(u"DBMS Version"_s, u"08.00.2039"_s);
    nxDb db;
    nxTd td;
    ASSERT_NO_FATAL_FAILURE(openServerTable(db, td, u"[ORDINE]"_s));
    EXPECT_FALSE(td.Sql2005());
    EXPECT_EQ(td.IndexCatalog(), u"sysindexes"_s);
    EXPECT_MEMBER_OK(td.FldAdd(u"NOTE"_s, 203, 0, FldOptional, {}));
    EXPECT_MEMBER_OK(td.FldAdd(u"QTA"_s, 3, 0, FldOptional, u"5"_s));
    server->journal().clear();
    EXPECT_MEMBER_OK(td.TdClose());
    expectGolden(u"td-new-table-2000"_s, server->journal().lines());
}

} // namespace

namespace {

// An existing server table ELENCO with one column, as the catalog and the schema rowsets say.
class ExistingColumnTest : public DbTest {
protected:
    void column(const QString& name, DataTypeEnum type, long size, const vb::Variant& def) {
        ado::CatalogColumn c;
        c.name = name;
        c.type = type;
        c.definedSize = size;
        columns.push_back(c);
        server->script().schema(
            ado::SchemaEnum::adSchemaColumns,
            {ado::SchemaRow(ado::SchemaEnum::adSchemaColumns)
                 .set(u"TABLE_NAME", u"ELENCO"_s)
                 .set(u"COLUMN_NAME", name)
                 .set(u"DATA_TYPE", std::int32_t(type))
                 .set(u"CHARACTER_MAXIMUM_LENGTH",
                      size > 0 ? vb::Variant(std::int32_t(size)) : vb::Variant(vb::Null{}))
                 .set(u"COLUMN_HASDEFAULT", !def.isNull())
                 .set(u"COLUMN_DEFAULT", def)
                 .take()});
    }
    void open() {
        server->script().schema(ado::SchemaEnum::adSchemaTables,
                                {ado::SchemaRow(ado::SchemaEnum::adSchemaTables)
                                     .set(u"TABLE_NAME", u"ELENCO"_s)
                                     .set(u"TABLE_TYPE", u"TABLE"_s)
                                     .take()});
        server->script().catalogTable(ado::CatalogTable{u"ELENCO"_s, u"TABLE"_s, {}, {}, {}},
                                      columns);
        db.emplace();
        td.emplace();
        openServer(*db);
        td->Db(&*db);
        ASSERT_MEMBER_OK(td->TdOpen(u"ELENCO"_s));
        ASSERT_FALSE(td->IsNew());
        server->journal().clear();
    }
    // What FldAdd queued, in the order it will run.
    QStringList batch() const { return nxTd::sortBatchCommands(td->BatchCommands()); }

    std::vector<ado::CatalogColumn> columns;
    // Made once the library has started.
    std::optional<nxDb> db;
    std::optional<nxTd> td;
};

TEST_F(ExistingColumnTest, TextWidensButNeverShrinks) {
    column(u"NOME"_s, DataTypeEnum::adVarWChar, 20, vb::Null{});
    open();
    EXPECT_MEMBER_OK(td->FldAdd(u"NOME"_s, 202, 10, FldZeroLength, {}));
    EXPECT_TRUE(batch().isEmpty());
    EXPECT_MEMBER_OK(td->FldAdd(u"NOME"_s, 202, 30, FldZeroLength, {}));
    EXPECT_EQ(
        batch(),
        (QStringList{
            u"alter table ELENCO alter column [NOME] nvarchar(30)"_s,
            u"alter table ELENCO add constraint [DEFVAL_ELENCONOME] default '' for [NOME]"_s}));
    EXPECT_TRUE(box->shown().empty());
}

TEST_F(ExistingColumnTest, DateDefaultsCompareWithoutBlanksOrCase) {
    column(u"DATA"_s, DataTypeEnum::adDBTimeStamp, 0, u"(CONVERT(varchar(8),getdate(),112))"_s);
    open();
    EXPECT_MEMBER_OK(td->FldAdd(u"DATA"_s, 135, 0, FldOptional, u"date()"_s));
    EXPECT_TRUE(batch().isEmpty());
    // Another default: the old constraint goes, the new one comes.
    server->script().onPrefix(u"select object_name(default_object_id) from sys.columns"_s,
                              ado::recording::Answer::withRows(ado::recording::rows(
                                  {{u"X"_s, DataTypeEnum::adVarWChar}}, {{u"DF_OLD"_s}})));
    EXPECT_MEMBER_OK(td->FldAdd(u"DATA"_s, 135, 0, FldOptional, u"time()"_s));
    EXPECT_EQ(
        batch(),
        (QStringList{
            u"if exists (select name from sysobjects where name ='DF_OLD' and type='D') alter table ELENCO drop constraint DF_OLD"_s,
            u"alter table ELENCO alter column [DATA] datetime"_s,
            u"alter table ELENCO add constraint [DEFVAL_ELENCODATA] default '18991230 '+convert(char(8), getdate(), 108) for [DATA]"_s}));
}

TEST_F(ExistingColumnTest, IdentityColumnsAreNeverAltered) {
    column(u"IDRec"_s, DataTypeEnum::adInteger, 0, vb::Null{});
    open();
    server->script().returns(
        u"SELECT COLUMNPROPERTY( OBJECT_ID('ELENCO'),'IDRec','IsIdentity')"_s,
        ado::recording::rows({{u""_s, DataTypeEnum::adInteger}}, {{std::int32_t{1}}}));
    EXPECT_MEMBER_OK(td->FldAdd(u"IDRec"_s, 5, 0, FldAutoIncrement, u"7"_s));
    EXPECT_TRUE(batch().isEmpty());
}

} // namespace

namespace {

TEST_F(ExistingColumnTest, AnIndexOnAnAlteredColumnIsDroppedAndMadeAgain) {
    column(u"NOME"_s, DataTypeEnum::adVarWChar, 20, vb::Null{});
    server->script().schema(ado::SchemaEnum::adSchemaIndexes,
                            {ado::SchemaRow(ado::SchemaEnum::adSchemaIndexes)
                                 .set(u"TABLE_NAME", u"ELENCO"_s)
                                 .set(u"INDEX_NAME", u"IX_NOME"_s)
                                 .set(u"PRIMARY_KEY", false)
                                 .set(u"UNIQUE", false)
                                 .set(u"COLUMN_NAME", u"NOME"_s)
                                 .set(u"COLLATION", std::int16_t{2})
                                 .take()});
    server->script().returns(
        u"select object_id, is_unique, is_unique_constraint from sys.indexes where object_id = "
        u"object_id('ELENCO') and name='IX_NOME'"_s,
        ado::recording::rows({{u"object_id"_s, DataTypeEnum::adInteger},
                              {u"is_unique"_s, DataTypeEnum::adBoolean},
                              {u"is_unique_constraint"_s, DataTypeEnum::adBoolean}},
                             {{std::int32_t{7}, false, false}}));
    open();
    EXPECT_MEMBER_OK(td->FldAdd(u"NOME"_s, 202, 40, FldZeroLength, u"'x'"_s));
    EXPECT_EQ(batch(),
              (QStringList{u"if exists(select * from sys.indexes where object_id = "
                           u"object_id('ELENCO') and name='IX_NOME') drop index ELENCO.IX_NOME"_s,
                           u"alter table ELENCO alter column [NOME] nvarchar(40)"_s,
                           u"alter table ELENCO add constraint [DEFVAL_ELENCONOME] default 'x' "
                           u"for [NOME]"_s,
                           u"if not exists(select * from sys.indexes where object_id = "
                           u"object_id('ELENCO') and name='IX_NOME') create index IX_NOME on "
                           u"ELENCO (NOME desc)"_s}));
    EXPECT_TRUE(box->shown().empty());
}

TEST_F(TdTest, APrimaryKeyOnAWorkingTableFirstTakesTheOldTablesKeyAway) {
    server->script().schema(ado::SchemaEnum::adSchemaTables,
                            {ado::SchemaRow(ado::SchemaEnum::adSchemaTables)
                                 .set(u"TABLE_NAME", u"ORDINE_OLD"_s)
                                 .take()});
    server->script().returns(
        u"select object_name(id) as TBLNAMES from sysindexes where name = 'CUR_ORDINEPrimaryKey'"_s,
        ado::recording::rows({{u"TBLNAMES"_s, DataTypeEnum::adVarWChar}}, {{u"ORDINE_OLD"_s}}));
    nxDb db;
    nxTd td;
    ASSERT_NO_FATAL_FAILURE(openServerTable(db, td, u"ORDINE_NEW"_s));
    ASSERT_MEMBER_OK(td.FldAdd(u"IDRec"_s, 3, 0, FldAutoIncrement, {}));
    ASSERT_MEMBER_OK(td.IdxAdd(u"PrimaryKey"_s, u"+IDRec"_s, 7));
    const QString drop = u"if exists(select * from sysindexes where name = 'CUR_ORDINEPrimaryKey') "
                         u"alter table ORDINE_OLD drop constraint CUR_ORDINEPrimaryKey"_s;
    EXPECT_EQ(
        nxTd::sortBatchCommands(td.BatchCommands()),
        (QStringList{drop, drop, u"alter table ORDINE_NEW alter column [IDRec] int not null"_s,
                     u"if not exists(select * from sys.indexes where object_id = "
                     u"object_id('ORDINE_NEW') and name='CUR_ORDINEPrimaryKey') alter table "
                     u"ORDINE_NEW add constraint CUR_ORDINEPrimaryKey primary key ([IDRec] "
                     u"asc)"_s}));
}

} // namespace

namespace {

TEST_F(TdTest, NewJetTableIsPutTogetherInTheCatalog) {
    nxDb db;
    openJet(db);
    nxTd td;
    td.Db(&db);
    ASSERT_MEMBER_OK(td.TdOpen(u"ORDINE"_s));
    EXPECT_FALSE(td.Sql2005());
    ASSERT_MEMBER_OK(td.FldAdd(u"IDRec"_s, 3, 0, FldAutoIncrement, {}));
    ASSERT_MEMBER_OK(td.FldAdd(u"NOME"_s, 202, 50, FldZeroLength, u"'abc'"_s));
    ASSERT_MEMBER_OK(td.FldAdd(u"DATA"_s, 135, 0, FldOptional, u"getdate()"_s));
    ASSERT_MEMBER_OK(td.FldAdd(u"QTA"_s, 3, 0, FldOptional, {}));
    ASSERT_MEMBER_OK(td.IdxAdd(u"PrimaryKey"_s, u"+IDRec"_s, 7));
    ASSERT_MEMBER_OK(td.IdxAdd(u"IX_NOME"_s, u"-NOME"_s, 0));

    ado::adox::Columns& columns = td.Td()->Columns();
    ASSERT_EQ(columns.Count(), 4);
    EXPECT_EQ(columns.Item(u"IDRec").Properties().Item(u"Autoincrement").Value(),
              vb::Variant(true));
    EXPECT_EQ(columns.Item(u"NOME").Properties().Item(u"Default").Value(),
              vb::Variant(u"\"abc\""_s)); // Jet's quotes
    EXPECT_EQ(columns.Item(u"NOME").Properties().Item(u"Jet OLEDB:Allow Zero Length").Value(),
              vb::Variant(true));
    EXPECT_EQ(columns.Item(u"DATA").Type(), DataTypeEnum::adDate);
    EXPECT_EQ(columns.Item(u"DATA").Properties().Item(u"Default").Value(),
              vb::Variant(u"date()"_s));
    EXPECT_EQ(columns.Item(u"QTA").Properties().Item(u"Nullable").Value(), vb::Variant(true));
    ado::adox::Indexes& indexes = td.Td()->Indexes();
    ASSERT_EQ(indexes.Count(), 2);
    EXPECT_TRUE(indexes.Item(u"PrimaryKey").PrimaryKey());
    EXPECT_EQ(indexes.Item(u"IX_NOME").Columns().Item(0).SortOrder(),
              ado::SortOrderEnum::adSortDescending);
    EXPECT_TRUE(td.BatchCommands().join(QString()).isEmpty()); // Jet needs no statements

    EXPECT_MEMBER_OK(td.TdClose());
    const QStringList catalog = lines(jet->journal()).filter(u"catalog: "_s);
    ASSERT_EQ(catalog.size(), 1);
    EXPECT_EQ(catalog.front(),
              u"catalog: append table ORDINE (IDRec 3 0, NOME 202 50, DATA 7 0, QTA 3 0)"_s);
}

} // namespace
