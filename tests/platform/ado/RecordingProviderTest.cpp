#include "platform/ado/Command.h"
#include "platform/ado/Connection.h"
#include "platform/ado/Error.h"
#include "platform/ado/ProviderRegistry.h"
#include "platform/ado/Recordset.h"
#include "platform/ado/SchemaRowsets.h"
#include "platform/ado/adox/Catalog.h"
#include "platform/ado/recording/RecordingProvider.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using ado::DataTypeEnum;
using ado::HResult;
using ado::SchemaEnum;
using ado::recording::Answer;
using ado::recording::RecordingProvider;

namespace {

class RecordingTest : public ::testing::Test {
protected:
    void SetUp() override {
        m_provider = std::make_shared<RecordingProvider>();
        m_scope = std::make_unique<ado::ScopedProvider>(u"SQLOLEDB"_s, m_provider);
    }

    ado::ConnectionPtr connect() {
        auto cn = ado::Connection::create();
        cn->Open(u"Provider=SQLOLEDB;Data Source=SRV\\ARC;Initial Catalog=Archivio"_s, u"sa"_s,
                 u"pw"_s);
        return cn;
    }

    std::shared_ptr<RecordingProvider> m_provider;
    std::unique_ptr<ado::ScopedProvider> m_scope;
};

std::int32_t count(ado::Recordset& rs) {
    std::int32_t n = 0;
    while (!rs.Eof()) {
        ++n;
        rs.MoveNext();
    }
    return n;
}

} // namespace

TEST_F(RecordingTest, JournalKeepsEverythingInOrder) {
    auto cn = connect();
    EXPECT_EQ(cn->Provider(), u"SQLOLEDB"_s);
    EXPECT_EQ(cn->BeginTrans(), 1);
    (void)cn->Execute(u"update T set A = 1"_s);

    auto cmd = std::make_shared<ado::Command>();
    cmd->setActiveConnection(cn);
    cmd->setCommandText(u"insert into T (A, B) values (?, ?)"_s);
    cmd->Parameters().Append(cmd->CreateParameter(u"A"_s, DataTypeEnum::adInteger,
                                                  ado::ParameterDirectionEnum::adParamInput, 0,
                                                  std::int32_t{5}));
    cmd->Parameters().Append(cmd->CreateParameter(u"B"_s, DataTypeEnum::adVarWChar,
                                                  ado::ParameterDirectionEnum::adParamInput, 20,
                                                  u"it's"_s));
    (void)cmd->Execute();
    cn->CommitTrans();
    (void)cn->OpenSchema(SchemaEnum::adSchemaTables, {vb::Variant(), vb::Variant(), u"T"_s});
    cn->Close();

    EXPECT_EQ(m_provider->journal().lines(),
              (QStringList{
                  u"open: Provider=SQLOLEDB;Data Source=SRV\\ARC;Initial Catalog=Archivio [user sa]"_s,
                  u"begin"_s,
                  u"execute: update T set A = 1"_s,
                  u"execute: insert into T (A, B) values (?, ?) [A adInteger(3) size 0 = 5, B adVarWChar(202) size 20 = 'it's']"_s,
                  u"commit"_s,
                  u"schema 20: -|-|T"_s,
                  u"close"_s}));
    EXPECT_EQ(m_provider->journal().statements(),
              (QStringList{u"update T set A = 1"_s, u"insert into T (A, B) values (?, ?)"_s}));
}

TEST_F(RecordingTest, ScriptAnswersExactTextPrefixesAndUsesUpCountedAnswers) {
    auto& script = m_provider->script();
    script.on(u"select count(*) from T"_s,
              Answer::withRows(ado::recording::rows({{u""_s, DataTypeEnum::adInteger}},
                                                    {{std::int32_t{7}}})),
              1);
    script.onPrefix(u"select * from "_s,
                    Answer::withRows(ado::recording::rows({{u"X"_s, DataTypeEnum::adVarWChar}},
                                                          {{u"a"_s}, {u"b"_s}})));
    auto cn = connect();
    auto first = cn->Execute(u"select count(*) from T"_s);
    ASSERT_EQ(first->State(), ado::adStateOpen);
    EXPECT_EQ(*first->Fields(0L).Value().toLong(), 7);
    // Used up: the same text now has no answer, and a lenient script returns no rows.
    EXPECT_EQ(cn->Execute(u"select count(*) from T"_s)->State(), ado::adStateClosed);
    EXPECT_EQ(count(*cn->Execute(u"select * from ANY_TABLE"_s)), 2);
    // Text that only looks alike is not answered: no SQL is modelled.
    EXPECT_EQ(cn->Execute(u"SELECT * FROM ANY_TABLE"_s)->State(), ado::adStateClosed);

    script.strict();
    try {
        (void)cn->Execute(u"select 1"_s);
        ADD_FAILURE() << "strict script answered";
    } catch (const ado::Error& e) {
        EXPECT_TRUE(e.is(HResult::DB_E_ERRORSINCOMMAND));
        EXPECT_EQ(e.description(), u"The recording provider has no answer for: select 1"_s);
    }
}

TEST_F(RecordingTest, ScriptedOpenFailuresPropertiesAndTransactions) {
    m_provider->script()
        .openFails(ado::Error(HResult::E_UNSPECIFIED, u"Login failed for user 'sa'."_s,
                              u"Microsoft OLE DB Provider for SQL Server"_s, u"28000"_s, 18456))
        .property(u"DBMS Version"_s, u"08.00.2039"_s)
        .property(u"Server Collation"_s, u"Latin1_General_CI_AS"_s);
    auto cn = ado::Connection::create();
    try {
        cn->Open(u"Provider=SQLOLEDB;Data Source=x"_s);
        ADD_FAILURE() << "opened";
    } catch (const ado::Error& e) {
        EXPECT_EQ(e.nativeError(), 18456);
    }
    ASSERT_EQ(cn->Errors().Count(), 1);
    EXPECT_EQ(cn->Errors().Item(0).description(), u"Login failed for user 'sa'."_s);
    EXPECT_EQ(cn->State(), ado::adStateClosed);

    cn->Open(u"Provider=SQLOLEDB;Data Source=x"_s); // the failure was scripted once
    EXPECT_EQ(cn->Properties().Item(u"DBMS Version").Value().toString(), u"08.00.2039"_s);
    EXPECT_EQ(cn->Properties().Item(u"server collation").Value().toString(),
              u"Latin1_General_CI_AS"_s);
    EXPECT_EQ(cn->Properties().Item(u"Data Source").Value().toString(), u"x"_s);

    try {
        cn->CommitTrans();
        ADD_FAILURE() << "committed without a transaction";
    } catch (const ado::Error& e) {
        EXPECT_TRUE(e.is(HResult::XACT_E_NOTRANSACTION));
    }
    EXPECT_EQ(cn->BeginTrans(), 1);
    EXPECT_EQ(cn->BeginTrans(), 2);
    cn->RollbackTrans();
    cn->Close(); // an open transaction is rolled back with the connection
    EXPECT_EQ(m_provider->journal().lines().mid(2),
              (QStringList{u"commit"_s, u"begin"_s, u"begin"_s, u"rollback"_s, u"rollback"_s,
                           u"close"_s}));
}

TEST_F(RecordingTest, SchemaRowsHaveTheStandardColumnsAndAreRestricted) {
    auto row = [](const QString& table, const QString& type) {
        ado::SchemaRow r(SchemaEnum::adSchemaTables);
        r.set(u"TABLE_NAME", table).set(u"TABLE_TYPE", type);
        return r.take();
    };
    m_provider->script().schema(SchemaEnum::adSchemaTables,
                                {row(u"DB_ELENCO"_s, u"TABLE"_s), row(u"MSysObjects"_s, u"SYSTEM TABLE"_s),
                                 row(u"QZSYSTEM"_s, u"TABLE"_s)});
    auto cn = connect();
    auto all = cn->OpenSchema(SchemaEnum::adSchemaTables);
    EXPECT_EQ(all->Fields(0L).Name(), u"TABLE_CATALOG"_s);
    EXPECT_EQ(all->Fields(3L).Name(), u"TABLE_TYPE"_s);
    EXPECT_EQ(all->CursorType(), ado::CursorTypeEnum::adOpenStatic);
    EXPECT_EQ(all->RecordCount(), 3);

    auto tables = cn->OpenSchema(SchemaEnum::adSchemaTables,
                                 {vb::Variant(), vb::Variant(), vb::Variant(), u"table"_s});
    std::vector<QString> names;
    while (!tables->Eof()) {
        names.push_back(tables->Fields(u"TABLE_NAME").Value().toString());
        tables->MoveNext();
    }
    EXPECT_EQ(names, (std::vector<QString>{u"DB_ELENCO"_s, u"QZSYSTEM"_s}));

    try {
        (void)cn->OpenSchema(SchemaEnum::adSchemaTables,
                             std::vector<vb::Variant>(10, vb::Variant(u"x"_s)));
        ADD_FAILURE() << "too many restrictions accepted";
    } catch (const ado::Error& e) {
        EXPECT_TRUE(e.is(HResult::adErrInvalidArgument));
    }
}

TEST_F(RecordingTest, EditsOnAScriptedRowsetAreJournalled) {
    m_provider->script().returns(
        u"select * from QZSYSTEM"_s,
        ado::recording::rows({{u"ID"_s, DataTypeEnum::adInteger}, {u"DESCRIZIONE"_s, DataTypeEnum::adVarWChar}},
                             {{std::int32_t{1}, u"uno"_s}}));
    auto cn = connect();
    auto rs = std::make_shared<ado::Recordset>();
    rs->Open(u"select * from QZSYSTEM"_s, cn, ado::CursorTypeEnum::adOpenKeyset,
             ado::LockTypeEnum::adLockOptimistic);
    rs->Fields(u"DESCRIZIONE").setValue(u"due"_s);
    EXPECT_EQ(rs->EditMode(), ado::EditModeEnum::adEditInProgress);
    EXPECT_EQ(rs->Fields(1L).Value().toString(), u"due"_s);
    EXPECT_EQ(rs->Fields(1L).UnderlyingValue().toString(), u"uno"_s);
    rs->Update();
    EXPECT_EQ(rs->Fields(1L).Value().toString(), u"due"_s);
    rs->AddNew();
    rs->Fields(0L).setValue(std::int32_t{2});
    rs->Update();
    EXPECT_EQ(rs->RecordCount(), 2);
    EXPECT_EQ(m_provider->journal().lines().mid(2),
              (QStringList{u"row: update select * from QZSYSTEM: DESCRIZIONE='due'"_s,
                           u"row: insert select * from QZSYSTEM: ID=2"_s}));
}

TEST_F(RecordingTest, AdoxReadsTheScriptedCatalogLazily) {
    ado::CatalogColumn id;
    id.name = u"SYS_SERIALE"_s;
    id.type = DataTypeEnum::adInteger;
    id.definedSize = 4;
    ado::CatalogIndex pk;
    pk.name = u"PrimaryKey"_s;
    pk.primaryKey = true;
    pk.unique = true;
    pk.columns.push_back(id);
    ado::CatalogTable table;
    table.name = u"DB_ELENCO"_s;
    table.type = u"TABLE"_s;
    m_provider->script().catalogTable(table, {id}, {pk});

    auto cn = connect();
    auto catalog = ado::adox::Catalog::create();
    catalog->setActiveConnection(cn);
    ASSERT_EQ(catalog->Tables().Count(), 1);
    auto& t = catalog->Tables().Item(u"db_elenco");
    EXPECT_EQ(t.Type(), u"TABLE"_s);
    EXPECT_EQ(t.Columns().Item(0L).Type(), DataTypeEnum::adInteger);
    EXPECT_TRUE(t.Indexes().Item(u"PrimaryKey").PrimaryKey());
    EXPECT_EQ(t.Indexes().Item(u"PrimaryKey").Columns().Item(0L).Name(), u"SYS_SERIALE"_s);
    try {
        (void)catalog->Tables().Item(u"NOPE");
        ADD_FAILURE() << "found";
    } catch (const ado::Error& e) {
        EXPECT_TRUE(e.is(HResult::adErrItemNotFound));
        EXPECT_EQ(e.source(), u"ADOX.Tables"_s);
    }
    // A catalog without a connection refuses.
    auto loose = ado::adox::Catalog::create();
    EXPECT_THROW((void)loose->Tables(), ado::Error);
}
