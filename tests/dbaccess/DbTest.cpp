#include "platform/ado/Error.h"

#include "tests/dbaccess/DbFixture.h"

using namespace Qt::StringLiterals;
using namespace dbtest;
using ado::DataTypeEnum;
using ado::recording::rows;

namespace {

class DbHandleTest : public DbTest {};

const ado::Error kRefused(ado::HResult::DB_E_ERRORSINCOMMAND, u"Incorrect syntax near 'tabel'."_s,
                          u"Microsoft OLE DB Provider for SQL Server"_s, u"42000"_s, 102);

TEST_F(DbHandleTest, TransactionsAreCountedAndOnlyTheOutermostReachesTheServer) {
    nxDb db;
    EXPECT_FALSE(db.BeginTrans(true)); // closed
    EXPECT_FALSE(db.CommitTrans(true));
    EXPECT_FALSE(db.RollbackTrans(true));
    openServer(db);

    EXPECT_MEMBER_OK(db.CommitTrans()); // nothing to end
    EXPECT_MEMBER_OK(db.BeginTrans());
    EXPECT_MEMBER_OK(db.BeginTrans());
    EXPECT_EQ(db.TransLevel(), 2);
    EXPECT_MEMBER_OK(db.RollbackTrans()); // inner: only the count
    EXPECT_EQ(db.TransLevel(), 1);
    EXPECT_MEMBER_OK(db.CommitTrans());
    EXPECT_MEMBER_OK(db.BeginTrans());
    EXPECT_MEMBER_OK(db.RollbackTrans());
    EXPECT_EQ(db.TransLevel(), 0);
    EXPECT_EQ(server->journal().lines(),
              (QStringList{u"begin"_s, u"commit"_s, u"begin"_s, u"rollback"_s}));
}

TEST_F(DbHandleTest, CloseCommitsOpenLevelsAndNeverRollsBack) {
    nxDb db;
    openServer(db);
    ASSERT_MEMBER_OK(db.BeginTrans());
    ASSERT_MEMBER_OK(db.BeginTrans());
    db.DbClose();
    EXPECT_FALSE(db.IsOpened());
    EXPECT_FALSE(db.cn());
    EXPECT_FALSE(db.ConnUtils());
    EXPECT_EQ(server->journal().lines(), (QStringList{u"begin"_s, u"commit"_s, u"close"_s}));
    db.DbClose(); // twice is harmless
    EXPECT_FALSE(db.Execute(u"select 1"_s));
}

TEST_F(DbHandleTest, ServerCommandsRunOnAConnectionOfTheirOwn) {
    nxDb db;
    openServer(db);
    ASSERT_MEMBER_OK(db.BeginTrans());
    EXPECT_MEMBER_OK(db.Execute(u"create table T (A int)"_s, false, 128));
    ASSERT_MEMBER_OK(db.CommitTrans());
    expectGolden(u"execute-server"_s, server->journal().lines());
}

TEST_F(DbHandleTest, ARefusedCommandNamesItself) {
    nxDb db;
    openServer(db);
    server->script().fails(u"create tabel T (A int)"_s, kRefused);
    box->answer(1);
    EXPECT_FALSE(db.Execute(u"create tabel T (A int)"_s, false, 128));
    EXPECT_EQ(nxApp::LastError().Number(), ado::toNumber(ado::HResult::DB_E_ERRORSINCOMMAND));
    EXPECT_EQ(nxApp::LastError().Source(), u"nxDb.Execute()"_s);
    EXPECT_EQ(nxApp::LastError().Description(),
              u"Incorrect syntax near 'tabel'. (create tabel T (A int))"_s);
    ASSERT_EQ(box->shown().size(), 1u);
    EXPECT_EQ(box->last().flags, 48);

    EXPECT_FALSE(db.Execute(u"create tabel T (A int)"_s, true, 128));
    EXPECT_EQ(box->shown().size(), 1u); // silent
    EXPECT_TRUE(db.IsOpened());
}

// What fails on the server while a member asks it comes back as the member's empty answer and
// is recorded under the member's label, with a box unless the call or the member is silent.
TEST_F(DbHandleTest, FailedQuestionsCarryTheMembersLabel) {
    nxDb db;
    openServer(db);
    server->script().schema(ado::SchemaEnum::adSchemaTables,
                            {ado::SchemaRow(ado::SchemaEnum::adSchemaTables)
                                 .set(u"TABLE_NAME", u"DOC"_s)
                                 .set(u"TABLE_TYPE", u"TABLE"_s)
                                 .take()});
    server->script().fails(u"select count(*) from DOC"_s, kRefused);
    box->answer(1);
    EXPECT_EQ(db.TdRecordCount(u"DOC"_s), 0);
    EXPECT_EQ(nxApp::LastError().Source(), u"nxDb.TdRecordCount()"_s);
    EXPECT_EQ(nxApp::LastError().Number(), ado::toNumber(ado::HResult::DB_E_ERRORSINCOMMAND));
    ASSERT_EQ(box->shown().size(), 1u);
    EXPECT_EQ(db.TdRecordCount(u"DOC"_s, true), 0);
    EXPECT_EQ(box->shown().size(), 1u);

    // nxConn's column questions take a connection of their own; a refused login ends them.
    const ado::Error login(ado::HResult::E_UNSPECIFIED, u"Login failed for user 'sa'."_s,
                           u"Microsoft OLE DB Provider for SQL Server"_s, u"28000"_s, 18456);
    server->script().openFails(login);
    EXPECT_FALSE(db.ConnUtils()->ColumnExists(u"DOC"_s, u"A"_s));
    EXPECT_EQ(nxApp::LastError().Source(), u"nxConn.ColumnExists()"_s);
    EXPECT_EQ(nxApp::LastError().Description(), u"Login failed for user 'sa'."_s);
    server->script().openFails(login);
    EXPECT_EQ(db.ConnUtils()->GetDefault(u"DOC"_s, u"A"_s), QString());
    EXPECT_EQ(nxApp::LastError().Source(), u"nxConn.GetDefault()"_s);
    EXPECT_EQ(box->shown().size(), 1u); // both always silent
    // The other questions give their empty answers and no message.
    server->script().openFails(login);
    EXPECT_FALSE(db.ConnUtils()->TableExists(u"DOC"_s));
    server->script().openFails(login);
    EXPECT_EQ(db.ConnUtils()->GetConstraintName(u"DOC"_s, u"A"_s), QString());
    EXPECT_EQ(nxApp::LastError().Source(), u"nxConn.GetDefault()"_s); // no new report
    EXPECT_EQ(box->shown().size(), 1u);
    EXPECT_TRUE(db.IsOpened());
}

TEST_F(DbHandleTest, JetCommandsRunOnTheConnection) {
    nxDb db;
    openJet(db);
    EXPECT_MEMBER_OK(db.Execute(u"delete from T"_s, true, 128));
    EXPECT_EQ(jet->journal().lines(), QStringList{u"execute: delete from T"_s});
}

TEST_F(DbHandleTest, RecordCountOnAClone) {
    nxDb db;
    openServer(db);
    server->script().schema(ado::SchemaEnum::adSchemaTables,
                            {ado::SchemaRow(ado::SchemaEnum::adSchemaTables)
                                 .set(u"TABLE_NAME", u"2023_DOC"_s)
                                 .set(u"TABLE_TYPE", u"TABLE"_s)
                                 .take()});
    server->script().returns(u"select count(*) from [2023_DOC]"_s,
                             rows({{u""_s, DataTypeEnum::adInteger}}, {{std::int32_t{42}}}));
    EXPECT_EQ(db.TdRecordCount(u"2023_DOC"_s), 42);
    expectGolden(u"record-count"_s, server->journal().lines());

    server->journal().clear();
    EXPECT_EQ(db.TdRecordCount(u"MISSING"_s), 0);
    EXPECT_TRUE(box->shown().empty());
    EXPECT_TRUE(server->journal().statements().isEmpty());
}

TEST_F(DbHandleTest, IndexExistsListsItsColumns) {
    nxDb db;
    openServer(db);
    auto column = [](const QString& name, std::int32_t ordinal, std::int16_t collation) {
        return ado::SchemaRow(ado::SchemaEnum::adSchemaIndexes)
            .set(u"TABLE_NAME", u"DB_ELENCO"_s)
            .set(u"INDEX_NAME", u"IX_NOME"_s)
            .set(u"COLUMN_NAME", name)
            .set(u"ORDINAL_POSITION", ordinal)
            .set(u"COLLATION", collation)
            .take();
    };
    server->script().schema(ado::SchemaEnum::adSchemaIndexes,
                            {column(u"NOME"_s, 1, 1), column(u"IDRec"_s, 2, 2)});
    QString fields;
    EXPECT_TRUE(db.IdxExists(u"DB_ELENCO"_s, u"IX_NOME"_s, &fields));
    EXPECT_EQ(fields, u"NOME asc,IDRec desc"_s);
    EXPECT_EQ(server->journal().lines(), QStringList{u"schema 12: -|-|IX_NOME|-|DB_ELENCO"_s});

    fields = u"untouched"_s;
    EXPECT_FALSE(db.IdxExists(u"DB_ELENCO"_s, u"IX_ALTRO"_s, &fields));
    EXPECT_EQ(fields, u"untouched"_s);
}

TEST_F(DbHandleTest, TablesAndFieldsOfTheCatalog) {
    nxDb db;
    EXPECT_FALSE(db.TdExist(u"DB_ELENCO"_s));
    openServer(db);
    ado::CatalogTable table;
    table.name = u"DB_ELENCO"_s;
    table.type = u"TABLE"_s;
    ado::CatalogColumn id;
    id.name = u"IDRec"_s;
    id.type = DataTypeEnum::adInteger;
    server->script().catalogTable(table, {id});
    server->script().schema(ado::SchemaEnum::adSchemaColumns,
                            {ado::SchemaRow(ado::SchemaEnum::adSchemaColumns)
                                 .set(u"TABLE_NAME", u"DB_ELENCO"_s)
                                 .set(u"COLUMN_NAME", u"IDRec"_s)
                                 .take()});
    EXPECT_TRUE(db.TdExist(u"db_elenco"_s));
    EXPECT_FALSE(db.TdExist(u"DB_ALTRO"_s));
    EXPECT_TRUE(db.TblFieldExists(u"DB_ELENCO"_s, u"IDRec"_s));
    EXPECT_FALSE(db.TblFieldExists(u"DB_ELENCO"_s, u"NOME"_s));
    EXPECT_TRUE(box->shown().empty());
}

TEST_F(DbHandleTest, AutoIncrementOnTheServerGoesToSysIds) {
    nxDb db;
    openServer(db);
    ado::CatalogTable table;
    table.name = u"DB_ELENCO"_s;
    server->script().catalogTable(table, {});
    server->script().catalogTable(ado::CatalogTable{u"PLAIN"_s, u"TABLE"_s, {}, {}, {}}, {});
    auto top = rows({{u"IDRec"_s, DataTypeEnum::adInteger}, {u"NOME"_s, DataTypeEnum::adVarWChar}},
                    {{std::int32_t{1}, u"a"_s}});
    top.columns[0].properties.push_back({u"ISAUTOINCREMENT"_s, true, false});
    server->script().returns(u"select top 1 * from DB_ELENCO"_s, top);
    server->script().returns(u"select max ([IDRec]) from DB_ELENCO"_s,
                             rows({{u""_s, DataTypeEnum::adInteger}}, {{std::int32_t{77}}}));
    EXPECT_MEMBER_OK(db.UpdateAutoIncrement(u"DB_ELENCO"_s, 0));
    EXPECT_MEMBER_OK(db.UpdateAutoIncrement(u"DB_ELENCO"_s, 500));
    expectGolden(u"update-autoincrement"_s, server->journal().statements());

    // A table without an auto-increment field ends the operation.
    server->journal().clear();
    server->script().returns(u"select top 1 * from PLAIN"_s,
                             rows({{u"A"_s, DataTypeEnum::adInteger}}));
    EXPECT_FALSE(db.UpdateAutoIncrement(u"PLAIN"_s, 5));
    EXPECT_EQ(server->journal().statements(), QStringList{u"select top 1 * from PLAIN"_s});
}

} // namespace

namespace {

// The same questions on both back ends, so that a failure names the one that broke.
enum class Backend { Jet, Server };

class BothBackends : public DbTest, public testing::WithParamInterface<Backend> {
protected:
    void open(nxDb& db) { GetParam() == Backend::Jet ? openJet(db) : openServer(db); }
    ado::recording::Script& script() {
        return GetParam() == Backend::Jet ? jet->script() : server->script();
    }
    Journal& journal() { return GetParam() == Backend::Jet ? jet->journal() : server->journal(); }
};

TEST_P(BothBackends, RecordCountAndCommands) {
    nxDb db;
    open(db);
    script().schema(ado::SchemaEnum::adSchemaTables,
                    {ado::SchemaRow(ado::SchemaEnum::adSchemaTables)
                         .set(u"TABLE_NAME", u"D_FATTURE"_s)
                         .take()});
    script().returns(u"select count(*) from D_FATTURE"_s,
                     rows({{u""_s, DataTypeEnum::adInteger}}, {{std::int32_t{3}}}));
    EXPECT_EQ(db.TdRecordCount(u"D_FATTURE"_s), 3);
    EXPECT_EQ(db.TdRecordCount(u"D_ALTRE"_s), 0);
    EXPECT_MEMBER_OK(db.Execute(u"drop table D_VECCHIA"_s, false, 128));
    EXPECT_EQ(journal().statements(),
              (QStringList{u"select count(*) from D_FATTURE"_s, u"drop table D_VECCHIA"_s}));
    // Jet asks on its one connection; the server opens one per question and per command.
    const auto opens = journal().lines().filter(u"open: "_s).size();
    EXPECT_EQ(opens, GetParam() == Backend::Jet ? 0 : 4);
    EXPECT_EQ(db.DbType(), GetParam() == Backend::Jet ? 0 : 1);
    EXPECT_TRUE(box->shown().empty());
}

INSTANTIATE_TEST_SUITE_P(DbAccess, BothBackends, testing::Values(Backend::Jet, Backend::Server),
                         [](const testing::TestParamInfo<Backend>& backend) {
                             return backend.param == Backend::Jet ? "Jet" : "SqlServer";
                         });

} // namespace
