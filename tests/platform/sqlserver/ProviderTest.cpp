// The provider through ADO's own objects, over the recording ODBC layer: what a Connection,
// Command, Recordset, OpenSchema and ADOX call turns into at the driver, and what comes back.
#include "platform/ado/Command.h"
#include "platform/ado/Connection.h"
#include "platform/ado/ProviderRegistry.h"
#include "platform/ado/Recordset.h"
#include "platform/ado/adox/Catalog.h"
#include "platform/ado/sqlserver/ServerCatalog.h"
#include "platform/ado/sqlserver/SqlServerProvider.h"
#include "platform/ado/sqlserver/odbc/SchemaQueries.h"
#include "tests/platform/sqlserver/RecordingOdbc.h"
#include "tests/platform/sqlserver/FailureOf.h"
#include "tests/support/Printers.h"

#include <QElapsedTimer>


#include <gtest/gtest.h>

#include <sqlucode.h>

using namespace Qt::StringLiterals;
using namespace ado;
using R = RecordingOdbc;

namespace {

odbc::ColumnDescription col(const QString& name, SQLSMALLINT type, SQLULEN size = 0,
                            SQLSMALLINT digits = 0) {
    return odbc::ColumnDescription{name, type, size, digits, SQL_NULLABLE};
}

R::Batch versionAnswer() {
    return {R::rows({col(u"v"_s, SQL_WVARCHAR, 128)}, {u"nvarchar"_s},
                    {{vb::Variant(u"12.0.2000.8"_s)}})};
}

class ProviderTest : public ::testing::Test {
protected:
    std::shared_ptr<sqlserver::SqlServerProvider> makeProvider() {
        sqlserver::Transport t;
        t.api = &api;
        t.driver = odbc::Driver::FreeTds;
        t.resolvePort = [this](const QString& host, const QString& instance, int timeoutMs) {
            lookups << u"%1\\%2 %3ms"_s.arg(host, instance, QString::number(timeoutMs));
            return 50123;
        };
        return std::make_shared<sqlserver::SqlServerProvider>(u"SQLOLEDB.1"_s, t);
    }
    void TearDown() override {
        if (connection->State() != 0) {
            connection->Close();
        }
        EXPECT_EQ(api.openHandles(), 0) << "a handle was not freed";
    }
    void open(const QString& extra = {}) {
        api.batches.push_back(versionAnswer());
        connection->Open(u"Provider=SQLOLEDB;Data Source=127.0.0.1,1433;Initial Catalog=Archivio;"
                         u"User ID=sa;Password=pw"_s + extra);
        api.log.clear();
        api.fetches = 0;
        api.fetchesBeforeExec.clear();
    }
    QStringList calls(const QString& prefix) const { return api.log.filter(prefix); }

    RecordingOdbc api;
    QStringList lookups;
    std::shared_ptr<sqlserver::SqlServerProvider> provider = makeProvider();
    ScopedProvider scope{u"SQLOLEDB"_s, provider};
    ConnectionPtr connection = Connection::create();
};

} // namespace

TEST_F(ProviderTest, OpenTranslatesTheStringAndAsksTheVersion) {
    api.batches.push_back(versionAnswer());
    connection->Open(u"Provider=SQLOLEDB;Data Source=srv\\ARCHIVIO;Initial Catalog=Archivio;"
                     u"User ID=sa;Password=p;w;Connect Timeout=5;Persist Security Info=False"_s
                         .replace(u"p;w"_s, u"'p;w'"_s));
    EXPECT_EQ(lookups, QStringList{u"srv\\ARCHIVIO 5000ms"_s});
    ASSERT_EQ(calls(u"SQLDriverConnect"_s).size(), 1);
    EXPECT_EQ(calls(u"SQLDriverConnect"_s).at(0),
              u"SQLDriverConnect DRIVER={FreeTDS};Server=srv;Port=50123;Database=Archivio;UID=sa;"
              u"PWD={p;w};TDS_Version=7.4;ClientCharset=UTF-8;Encryption=request;"_s);
    EXPECT_TRUE(calls(u"SQLSetConnectAttr 103=5"_s).size() == 1) << api.log.join(u'\n').toStdString();
    EXPECT_EQ(calls(u"SQLExecDirect"_s),
              QStringList{u"SQLExecDirect "_s + odbc::productVersionQuery()});
    EXPECT_EQ(connection->Provider(), u"SQLOLEDB.1"_s);
    EXPECT_EQ(connection->Properties().Item(u"DBMS Version"_s).Value(),
              vb::Variant(u"12.00.2000"_s));
    EXPECT_EQ(connection->Properties().Item(u"Data Source"_s).Value(),
              vb::Variant(u"srv\\ARCHIVIO"_s));
    EXPECT_EQ(connection->Properties().Item(u"User ID"_s).Value(), vb::Variant(u"sa"_s));
    // Without Persist Security Info the password is not read back from the string.
    EXPECT_FALSE(connection->ConnectionString().contains(u"p;w"_s)) << connection->ConnectionString().toStdString();
    EXPECT_TRUE(connection->ConnectionString().contains(u"Initial Catalog=Archivio"_s));
}

// The tool opens a connection for nearly every catalog question: the server's version is asked
// at the first open of each data source only.
TEST_F(ProviderTest, TheVersionIsAskedOncePerDataSource) {
    open();
    connection->Close();
    const QString again = u"Provider=SQLOLEDB;Data Source=127.0.0.1,1433;Initial Catalog=Altro;"
                          u"User ID=sa;Password=pw"_s;
    connection->Open(again);
    EXPECT_EQ(calls(u"SQLExecDirect"_s), QStringList());
    EXPECT_EQ(connection->Properties().Item(u"DBMS Version"_s).Value(), vb::Variant(u"12.00.2000"_s));
    connection->Close();
    api.batches.push_back(versionAnswer());
    connection->Open(u"Provider=SQLOLEDB;Data Source=127.0.0.2,1433;User ID=sa;Password=pw"_s);
    EXPECT_EQ(calls(u"SQLExecDirect"_s),
              QStringList{u"SQLExecDirect "_s + odbc::productVersionQuery()});
    EXPECT_TRUE(api.batches.empty());
}

TEST_F(ProviderTest, RefusedLoginListsEveryRecordInErrors) {
    api.connectResult = SQL_ERROR;
    api.connectDiagnostics = {
        R::diag(u"42000"_s, 18456, u"[FreeTDS][SQL Server]Login failed for user 'sa'."_s),
        R::diag(u"08001"_s, 0, u"[FreeTDS][SQL Server]Unable to connect to data source"_s)};
    try {
        connection->Open(u"Provider=SQLOLEDB;Data Source=127.0.0.1;User ID=sa;Password=x"_s);
        FAIL() << "opened";
    } catch (const Error& e) {
        // Whatever stops a login is an unspecified failure to ADO; the number tells them apart.
        EXPECT_EQ(e.hresult(), static_cast<std::int32_t>(0x80004005u)) << e.what();
        EXPECT_EQ(e.nativeError(), 18456);
        EXPECT_EQ(e.sqlState(), u"42000"_s);
        EXPECT_EQ(e.description(), u"Login failed for user 'sa'."_s);
        EXPECT_EQ(e.source(), u"Microsoft OLE DB Provider for SQL Server"_s);
    }
    EXPECT_EQ(connection->State(), 0);
    ASSERT_EQ(connection->Errors().Count(), 2);
    EXPECT_EQ(connection->Errors().Item(0).nativeError(), 18456);
    EXPECT_EQ(connection->Errors().Item(1).sqlState(), u"08001"_s);
}

TEST_F(ProviderTest, AnErrorInTheSecondStatementIsThrownAfterTheLastStatementRan) {
    open();
    api.batches.push_back(
        {R::count(1),
         R::error(u"23000"_s, 2627,
                  u"[FreeTDS][SQL Server]Violation of PRIMARY KEY constraint 'PK_T'. Cannot "
                  u"insert duplicate key in object 'dbo.T'."_s),
         R::count(1)});
    try {
        connection->Execute(u"insert into T values (1); insert into T values (1); "
                            u"insert into L values ('done')"_s);
        FAIL() << "no error";
    } catch (const Error& e) {
        EXPECT_TRUE(e.is(HResult::DB_E_INTEGRITYVIOLATION)) << e.what();
        EXPECT_EQ(e.nativeError(), 2627);
        EXPECT_TRUE(e.description().startsWith(u"Violation of PRIMARY KEY constraint 'PK_T'"_s));
    }
    // Every result was read: the third statement's count came through SQLMoreResults.
    EXPECT_EQ(calls(u"SQLMoreResults"_s).size(), 3);
    EXPECT_EQ(connection->Errors().Count(), 1);
    // The connection is free for the next statement.
    long affected = 0;
    api.batches.push_back({R::count(4)});
    connection->Execute(u"delete from T"_s, &affected);
    EXPECT_EQ(affected, 4);
}

TEST_F(ProviderTest, CommandTimeOutInTheStringBeatsTheCommandsOwn) {
    open(u";Command Properties='Command Time Out=0'"_s);
    connection->setCommandTimeout(30);
    connection->Execute(u"create database X"_s);
    EXPECT_EQ(calls(u"SQLSetStmtAttr 0="_s), QStringList{u"SQLSetStmtAttr 0=0"_s})
        << api.log.join(u'\n').toStdString();
}

TEST_F(ProviderTest, TransactionsNestOnceAndRollBackOnClose) {
    open();
    EXPECT_EQ(connection->BeginTrans(), 1);
    EXPECT_THROW(connection->BeginTrans(), Error);
    connection->CommitTrans();
    EXPECT_THROW(connection->CommitTrans(), Error);
    connection->BeginTrans();
    connection->Close();
    EXPECT_EQ(api.log, QStringList({u"SQLSetConnectAttr 102=0"_s, u"SQLEndTran commit"_s,
                                    u"SQLSetConnectAttr 102=1"_s, u"SQLSetConnectAttr 102=0"_s,
                                    u"SQLEndTran rollback"_s, u"SQLSetConnectAttr 102=1"_s,
                                    u"SQLDisconnect"_s}));
}

TEST_F(ProviderTest, CommandParametersAreBoundByTheirAdoType) {
    open();
    Command cmd;
    cmd.setActiveConnection(connection);
    cmd.setCommandText(u"insert into T (A, B, C, D) values (?, ?, ?, ?)"_s);
    cmd.Parameters().Append(cmd.CreateParameter(u"A"_s, DataTypeEnum::adInteger,
                                                ParameterDirectionEnum::adParamInput, 0,
                                                vb::Variant(std::int32_t(7))));
    cmd.Parameters().Append(cmd.CreateParameter(u"B"_s, DataTypeEnum::adVarWChar,
                                                ParameterDirectionEnum::adParamInput, 50,
                                                vb::Variant(u"città"_s)));
    cmd.Parameters().Append(cmd.CreateParameter(u"C"_s, DataTypeEnum::adVarWChar,
                                                ParameterDirectionEnum::adParamInput, 50,
                                                vb::Variant(vb::Null{})));
    cmd.Parameters().Append(cmd.CreateParameter(u"D"_s, DataTypeEnum::adLongVarWChar,
                                                ParameterDirectionEnum::adParamInput, 9000,
                                                vb::Variant(QString(9000, u'x'))));
    api.batches.push_back({R::count(1)});
    long affected = 0;
    cmd.Execute(&affected);
    EXPECT_EQ(affected, 1);
    EXPECT_EQ(calls(u"SQLBindParameter"_s),
              QStringList({u"SQLBindParameter 1 c=-16 sql=4 size=10 digits=0"_s,
                           u"SQLBindParameter 2 c=-8 sql=-9 size=50 digits=0"_s,
                           u"SQLBindParameter 3 c=-8 sql=-9 size=50 digits=0"_s,
                           u"SQLBindParameter 4 c=-8 sql=-10 size=9000 digits=0"_s}));
    ASSERT_EQ(api.lastParameterBytes.size(), 4u);
    EXPECT_EQ(api.lastParameterBytes.at(1),
              QByteArray(reinterpret_cast<const char*>(u"città"), 10));
    EXPECT_EQ(api.lastParameterBytes.at(2), QByteArray("<null>")) << "NULL sent as a value";
    EXPECT_EQ(api.lastParameterBytes.at(3).size(), 18000);
}

TEST_F(ProviderTest, OutputParametersAreRefusedClearly) {
    open();
    Command cmd;
    cmd.setActiveConnection(connection);
    cmd.setCommandText(u"p"_s);
    cmd.setCommandType(CommandTypeEnum::adCmdStoredProc);
    cmd.Parameters().Append(cmd.CreateParameter(u"R"_s, DataTypeEnum::adInteger,
                                                ParameterDirectionEnum::adParamOutput));
    try {
        cmd.Execute();
        FAIL() << "ran";
    } catch (const Error& e) {
        EXPECT_TRUE(e.is(HResult::DB_E_NOTSUPPORTED));
    }
    EXPECT_TRUE(calls(u"SQLExecDirect"_s).isEmpty());
}

TEST_F(ProviderTest, KeysetRecordsetsAreBufferedAndMoveBothWays) {
    open();
    api.batches.push_back({R::rows({col(u"ID"_s, SQL_INTEGER, 10), col(u"Name"_s, SQL_WVARCHAR, 50),
                                    col(u"Paid"_s, SQL_DECIMAL, 19, 4)},
                                   {u"int"_s, u"nvarchar"_s, u"money"_s},
                                   {{vb::Variant(std::int32_t(1)), vb::Variant(u"Rossi"_s),
                                     vb::Variant(u"12.5000"_s)},
                                    {vb::Variant(std::int32_t(2)), vb::Variant(u"Bianchi"_s),
                                     vb::Variant(vb::Null{})},
                                    {vb::Variant(std::int32_t(3)), vb::Variant(u"Rossetti"_s),
                                     vb::Variant(u"0.0100"_s)}})});
    auto rs = std::make_shared<Recordset>();
    rs->Open(u"select ID, Name, Paid from T"_s, connection, CursorTypeEnum::adOpenKeyset,
             LockTypeEnum::adLockReadOnly);
    EXPECT_EQ(rs->Fields().Item(0L).Type(), DataTypeEnum::adInteger);
    EXPECT_EQ(rs->Fields().Item(1L).Type(), DataTypeEnum::adVarWChar);
    EXPECT_EQ(rs->Fields().Item(2L).Type(), DataTypeEnum::adCurrency);
    EXPECT_EQ(rs->RecordCount(), 3);
    rs->MoveLast();
    EXPECT_EQ(rs->Fields().Item(u"Name"_s).Value(), vb::Variant(u"Rossetti"_s));
    rs->MovePrevious();
    EXPECT_TRUE(rs->Fields().Item(u"Paid"_s).Value().isNull());
    rs->setFilter(u"Name like 'Ross%'"_s);
    EXPECT_EQ(rs->RecordCount(), 2);
    rs->MoveFirst();
    EXPECT_EQ(rs->Fields().Item(u"Paid"_s).Value(), vb::Variant(vb::Currency{125000}));
    rs->Close();
    // The statement was read to its end before the rows were handed over.
    EXPECT_EQ(api.fetches, 4);
    EXPECT_EQ(calls(u"SQLMoreResults"_s).size(), 1);
}

TEST_F(ProviderTest, AForwardOnlyResultIsReadIntoMemoryWhenTheConnectionIsNeededAgain) {
    open();
    std::vector<std::vector<vb::Variant>> rows;
    for (int i = 1; i <= 3; ++i) {
        rows.push_back({vb::Variant(std::int32_t(i))});
    }
    api.batches.push_back({R::rows({col(u"N"_s, SQL_INTEGER, 10)}, {u"int"_s}, rows)});
    RecordsetPtr first = connection->Execute(u"select N from A"_s);
    EXPECT_EQ(first->Fields().Item(0L).Value(), vb::Variant(std::int32_t(1)));
    api.batches.push_back({R::count(5)});
    long affected = 0;
    connection->Execute(u"update B set X = 1"_s, &affected);
    EXPECT_EQ(affected, 5);
    // The first result was fetched to its end before the second statement was sent.
    ASSERT_EQ(api.fetchesBeforeExec.size(), 2u);
    EXPECT_EQ(api.fetchesBeforeExec.back(), 4);
    first->MoveNext();
    EXPECT_EQ(first->Fields().Item(0L).Value(), vb::Variant(std::int32_t(2)));
    first->MoveNext();
    first->MoveNext();
    EXPECT_TRUE(first->Eof());
}

// The layers above find a table's identity column by the field property ISAUTOINCREMENT, on a
// streaming and on a buffered recordset alike; the driver's auto-unique attribute gives it.
TEST_F(ProviderTest, FieldsSayWhichColumnIsTheIdentity) {
    open();
    odbc::ColumnDescription id = col(u"ID"_s, SQL_INTEGER, 10);
    id.autoUnique = true;
    id.nullable = SQL_NO_NULLS;
    const R::Result answer = R::rows({id, col(u"Name"_s, SQL_WVARCHAR, 50)},
                                     {u"int"_s, u"nvarchar"_s},
                                     {{vb::Variant(std::int32_t(7)), vb::Variant(u"Rossi"_s)}});
    for (const CursorTypeEnum cursor : {CursorTypeEnum::adOpenForwardOnly, CursorTypeEnum::adOpenKeyset,
                                        CursorTypeEnum::adOpenStatic}) {
        api.batches.push_back({answer});
        auto rs = std::make_shared<Recordset>();
        rs->Open(u"select top 1 * from Doc"_s, connection, cursor, LockTypeEnum::adLockReadOnly);
        EXPECT_EQ(rs->CursorType(), cursor);
        EXPECT_EQ(rs->Fields().Item(u"ID"_s).Properties().Item(u"ISAUTOINCREMENT"_s).Value(),
                  vb::Variant(true))
            << static_cast<int>(cursor);
        EXPECT_EQ(rs->Fields().Item(u"Name"_s).Properties().Item(u"ISAUTOINCREMENT"_s).Value(),
                  vb::Variant(false))
            << static_cast<int>(cursor);
        EXPECT_EQ(rs->Fields().Item(u"ID"_s).Attributes() & adFldIsNullable, 0);
        rs->Close();
    }
}

namespace {

R::Result docRows() {
    odbc::ColumnDescription id = col(u"ID"_s, SQL_INTEGER, 10);
    id.nullable = SQL_NO_NULLS; // the identity bit left out, as some servers do
    return R::rows({id, col(u"Name"_s, SQL_WVARCHAR, 50)}, {u"int"_s, u"nvarchar"_s},
                   {{vb::Variant(std::int32_t(1)), vb::Variant(u"Rossi"_s)},
                    {vb::Variant(std::int32_t(2)), vb::Variant(vb::Null{})}});
}

// What the catalog says of Doc: ID an identity, Name; and its indexes.
R::Batch docColumns() {
    const auto columnRow = [](const QString& name, const QString& type, bool identity) {
        return std::vector<vb::Variant>{vb::Variant(name), vb::Variant(type),
                                        vb::Variant(std::int32_t(4)), vb::Variant(std::int32_t(10)),
                                        vb::Variant(std::int32_t(0)), vb::Variant(!identity),
                                        vb::Variant(identity), vb::Variant(std::int32_t(1)),
                                        vb::Variant(std::int32_t(1)), vb::Variant(vb::Null{})};
    };
    return {R::rows({col(u"NAME"_s, SQL_WVARCHAR, 128), col(u"TYPE_NAME"_s, SQL_WVARCHAR, 128),
                     col(u"MAX_LENGTH"_s, SQL_INTEGER), col(u"PRECISION"_s, SQL_INTEGER),
                     col(u"SCALE"_s, SQL_INTEGER), col(u"IS_NULLABLE"_s, SQL_BIT),
                     col(u"IS_IDENTITY"_s, SQL_BIT), col(u"SEED"_s, SQL_INTEGER),
                     col(u"INCREMENT"_s, SQL_INTEGER), col(u"DEFAULT_TEXT"_s, SQL_WVARCHAR, 4000)},
                    {u"nvarchar"_s, u"nvarchar"_s, u"int"_s, u"int"_s, u"int"_s, u"bit"_s,
                     u"bit"_s, u"int"_s, u"int"_s, u"nvarchar"_s},
                    {columnRow(u"ID"_s, u"int"_s, true), columnRow(u"Name"_s, u"nvarchar"_s, false)})};
}

R::Batch docIndexes(bool primaryKey) {
    std::vector<std::vector<vb::Variant>> rows;
    if (primaryKey) {
        rows.push_back({vb::Variant(u"PK_Doc"_s), vb::Variant(true), vb::Variant(true),
                        vb::Variant(true), vb::Variant(u"ID"_s), vb::Variant(false)});
    }
    return {R::rows({col(u"INDEX_NAME"_s, SQL_WVARCHAR, 128), col(u"PRIMARY_KEY"_s, SQL_BIT),
                     col(u"IS_UNIQUE"_s, SQL_BIT), col(u"IS_CLUSTERED"_s, SQL_BIT),
                     col(u"COLUMN_NAME"_s, SQL_WVARCHAR, 128), col(u"DESCENDING"_s, SQL_BIT)},
                    {u"nvarchar"_s, u"bit"_s, u"bit"_s, u"bit"_s, u"nvarchar"_s, u"bit"_s},
                    std::move(rows))};
}

} // namespace

// Opened as the layers above open an editable recordset (client cursor, key alone compared),
// the rows are kept here and each change goes to the server as one parameterised statement.
TEST_F(ProviderTest, AnEditableRecordsetWritesEachChangeBackByKey) {
    open();
    api.batches.push_back({docRows()});
    api.batches.push_back(docColumns());
    api.batches.push_back(docIndexes(true));
    auto rs = std::make_shared<Recordset>();
    rs->setCursorLocation(CursorLocationEnum::adUseClient);
    rs->Properties().Item(u"Update Criteria"_s).setValue(std::int32_t(0));
    rs->Open(u"select * from Doc"_s, connection, CursorTypeEnum::adOpenKeyset,
             LockTypeEnum::adLockOptimistic);
    QStringList statements = calls(u"SQLExecDirect"_s);
    ASSERT_EQ(statements.size(), 3);
    EXPECT_EQ(statements[1], u"SQLExecDirect "_s + sqlserver::ddl::columnsQuery());
    EXPECT_EQ(statements[2], u"SQLExecDirect "_s + sqlserver::ddl::indexesQuery());
    EXPECT_TRUE(rs->Supports(adUpdate | adAddNew | adDelete));
    // The catalog names the identity the result's metadata left out.
    EXPECT_EQ(rs->Fields().Item(u"ID"_s).Properties().Item(u"ISAUTOINCREMENT"_s).Value(),
              vb::Variant(true));

    api.log.clear();
    api.batches.push_back({R::count(1), R::rows({col(u""_s, SQL_NUMERIC, 38)}, {u"numeric"_s},
                                                {{vb::Variant(u"12"_s)}})});
    rs->AddNew();
    rs->Fields().Item(u"Name"_s).setValue(vb::Variant(u"Verdi"_s));
    rs->Update();
    EXPECT_EQ(calls(u"SQLExecDirect"_s),
              QStringList{u"SQLExecDirect INSERT INTO Doc ([Name]) VALUES (?); SELECT SCOPE_IDENTITY()"_s});
    EXPECT_EQ(calls(u"SQLBindParameter"_s),
              QStringList{u"SQLBindParameter 1 c=-8 sql=-9 size=50 digits=0"_s});
    EXPECT_EQ(rs->Fields().Item(u"ID"_s).Value(), vb::Variant(std::int32_t(12)));
    EXPECT_EQ(rs->Status(), adRecNew);

    // The row just added, changed again: found by the identity read back.
    api.log.clear();
    api.batches.push_back({R::count(1)});
    rs->Fields().Item(u"Name"_s).setValue(vb::Variant(u"Neri"_s));
    rs->Update();
    EXPECT_EQ(calls(u"SQLExecDirect"_s),
              QStringList{u"SQLExecDirect UPDATE Doc SET [Name] = ? WHERE [ID] = ?"_s});
    EXPECT_EQ(calls(u"SQLBindParameter"_s),
              QStringList({u"SQLBindParameter 1 c=-8 sql=-9 size=50 digits=0"_s,
                           u"SQLBindParameter 2 c=-16 sql=4 size=10 digits=0"_s}));

    // Somebody else deleted the first row: the update touches nothing.
    rs->MoveFirst();
    api.batches.push_back({R::count(0)});
    rs->Fields().Item(u"Name"_s).setValue(vb::Variant(u"Bianchi"_s));
    EXPECT_EQ(failureOf([&] { rs->Update(); }), static_cast<std::int32_t>(0x80040E38u));
    EXPECT_EQ(rs->Status(), adRecConcurrencyViolation);
    ASSERT_EQ(connection->Errors().Count(), 1);
    EXPECT_EQ(connection->Errors().Item(0).description(),
              u"Row cannot be located for updating. Some values may have been changed since it was last read."_s);
    EXPECT_EQ(rs->EditMode(), EditModeEnum::adEditInProgress);
    rs->CancelUpdate();
    EXPECT_EQ(rs->Fields().Item(u"Name"_s).Value(), vb::Variant(u"Rossi"_s));

    // A duplicate: the server's own error, as an integrity violation.
    api.batches.push_back({R::error(u"23000"_s, 2627,
                                    u"Violation of PRIMARY KEY constraint 'PK_Doc'."_s)});
    rs->Fields().Item(u"ID"_s).setValue(vb::Variant(std::int32_t(2)));
    EXPECT_EQ(failureOf([&] { rs->Update(); }), static_cast<std::int32_t>(0x80040E2Fu));
    EXPECT_EQ(rs->Status(), adRecIntegrityViolation);
    EXPECT_EQ(connection->Errors().Item(0).nativeError(), 2627);
    EXPECT_EQ(connection->Errors().Item(0).description(),
              u"Violation of PRIMARY KEY constraint 'PK_Doc'."_s);
    rs->CancelUpdate();

    api.log.clear();
    api.batches.push_back({R::count(1)});
    rs->Delete(AffectEnum::adAffectCurrent);
    EXPECT_EQ(calls(u"SQLExecDirect"_s), QStringList{u"SQLExecDirect DELETE FROM Doc WHERE [ID] = ?"_s});
    rs->MoveFirst();
    EXPECT_EQ(rs->Fields().Item(u"ID"_s).Value(), vb::Variant(std::int32_t(2)));
}

// A lone name of unknown command type opens the table, editable as a select of it would be;
// a T-SQL statement of one word stays a statement.
TEST_F(ProviderTest, ALoneNameOpensItsTable) {
    open();
    api.batches.push_back({docRows()});
    api.batches.push_back(docColumns());
    api.batches.push_back(docIndexes(true));
    auto rs = std::make_shared<Recordset>();
    rs->Open(u" [Doc] "_s, connection, CursorTypeEnum::adOpenKeyset, LockTypeEnum::adLockOptimistic,
             adOptionUnspecified);
    ASSERT_GE(calls(u"SQLExecDirect"_s).size(), 1);
    EXPECT_EQ(calls(u"SQLExecDirect"_s).at(0), u"SQLExecDirect select * from [Doc]"_s);
    EXPECT_TRUE(rs->Supports(adUpdate));
    rs->Close();
    api.log.clear();
    connection->Execute(u"checkpoint"_s);
    connection->Execute(u"select 1"_s);
    EXPECT_EQ(calls(u"SQLExecDirect"_s),
              QStringList({u"SQLExecDirect checkpoint"_s, u"SQLExecDirect select 1"_s}));
}

// A server cursor compares every value it read, so a row changed meanwhile is noticed too.
TEST_F(ProviderTest, AServerCursorComparesEveryValueItRead) {
    open();
    api.batches.push_back({docRows()});
    api.batches.push_back(docColumns());
    api.batches.push_back(docIndexes(true));
    auto rs = std::make_shared<Recordset>();
    rs->Open(u"select ID, Name from Doc order by ID"_s, connection, CursorTypeEnum::adOpenKeyset,
             LockTypeEnum::adLockPessimistic);
    rs->MoveLast();
    api.log.clear();
    api.batches.push_back({R::count(0)});
    rs->Fields().Item(u"Name"_s).setValue(vb::Variant(u"Neri"_s));
    EXPECT_EQ(failureOf([&] { rs->Update(); }), static_cast<std::int32_t>(0x80040E38u));
    EXPECT_EQ(calls(u"SQLExecDirect"_s),
              QStringList{u"SQLExecDirect UPDATE Doc SET [Name] = ? WHERE [ID] = ? AND [Name] IS NULL"_s});
    EXPECT_EQ(rs->Status(), adRecConcurrencyViolation);
    EXPECT_EQ(connection->Errors().Item(0).source(), u"Microsoft OLE DB Provider for SQL Server"_s);
}

// Without a key a server recordset is read-only: ADO refuses an edit before anything reaches
// the server. The cursor engine takes new rows but cannot find old ones again.
TEST_F(ProviderTest, AKeylessOrJoinedSelectCannotWriteRowsBack) {
    open();
    api.batches.push_back({docRows()});
    api.batches.push_back(docColumns());
    api.batches.push_back(docIndexes(false));
    auto rs = std::make_shared<Recordset>();
    rs->Open(u"select ID, Name from Doc"_s, connection, CursorTypeEnum::adOpenKeyset,
             LockTypeEnum::adLockOptimistic);
    int executed = static_cast<int>(calls(u"SQLExecDirect"_s).size());
    EXPECT_FALSE(rs->Supports(adUpdate));
    EXPECT_FALSE(rs->Supports(adAddNew));
    EXPECT_EQ(failureOf([&] { rs->Fields().Item(u"Name"_s).setValue(vb::Variant(u"Verdi"_s)); }),
              static_cast<std::int32_t>(0x800A0CB3u));
    EXPECT_EQ(failureOf([&] { rs->AddNew(); }), static_cast<std::int32_t>(0x800A0CB3u));
    EXPECT_EQ(rs->Status(), adRecOK);
    EXPECT_EQ(static_cast<int>(calls(u"SQLExecDirect"_s).size()), executed);
    rs->Close();

    // A join asks the catalog nothing and stays read-only.
    api.log.clear();
    api.batches.push_back({docRows()});
    rs->Open(u"select a.ID, b.Name from Doc a join Doc b on b.ID = a.ID"_s, connection,
             CursorTypeEnum::adOpenKeyset, LockTypeEnum::adLockOptimistic);
    EXPECT_EQ(calls(u"SQLExecDirect"_s).size(), 1);
    EXPECT_FALSE(rs->Supports(adUpdate));
    rs->Close();

    api.batches.push_back({docRows()});
    api.batches.push_back(docColumns());
    api.batches.push_back(docIndexes(false));
    rs->setCursorLocation(CursorLocationEnum::adUseClient);
    rs->Open(u"select ID, Name from Doc"_s, connection, CursorTypeEnum::adOpenStatic,
             LockTypeEnum::adLockOptimistic);
    rs->Fields().Item(u"Name"_s).setValue(vb::Variant(u"Verdi"_s));
    executed = static_cast<int>(calls(u"SQLExecDirect"_s).size());
    EXPECT_EQ(failureOf([&] { rs->Update(); }), static_cast<std::int32_t>(0x80004005u));
    EXPECT_EQ(connection->Errors().Item(0).description(),
              u"Insufficient key column information for updating or refreshing."_s);
    EXPECT_EQ(static_cast<int>(calls(u"SQLExecDirect"_s).size()), executed);
}

TEST_F(ProviderTest, SchemaRowsetsRunTheirCatalogQueryWithRestrictionsBound) {
    open();
    const std::vector<vb::Variant> restrictions{vb::Variant(), vb::Variant(), vb::Variant(u"Doc"_s)};
    const odbc::SchemaQuery expected = odbc::schemaQuery(20, restrictions);
    api.batches.push_back({R::rows({col(u"TABLE_CATALOG"_s, SQL_WVARCHAR, 128),
                                    col(u"TABLE_SCHEMA"_s, SQL_WVARCHAR, 128),
                                    col(u"TABLE_NAME"_s, SQL_WVARCHAR, 128),
                                    col(u"TABLE_TYPE"_s, SQL_WVARCHAR, 128)},
                                   {u"nvarchar"_s, u"nvarchar"_s, u"nvarchar"_s, u"nvarchar"_s},
                                   {{vb::Variant(u"Archivio"_s), vb::Variant(u"dbo"_s),
                                     vb::Variant(u"Doc"_s), vb::Variant(u"TABLE"_s)}})});
    RecordsetPtr rs = connection->OpenSchema(SchemaEnum::adSchemaTables, restrictions);
    EXPECT_EQ(calls(u"SQLExecDirect"_s), QStringList{u"SQLExecDirect "_s + expected.text});
    EXPECT_EQ(calls(u"SQLBindParameter"_s).size(), static_cast<qsizetype>(expected.parameters.size()));
    EXPECT_EQ(rs->Fields().Item(u"TABLE_TYPE"_s).Value(), vb::Variant(u"TABLE"_s));
    EXPECT_EQ(rs->RecordCount(), 1);
}

TEST_F(ProviderTest, KeywordsAndLiteralsNeedNoServer) {
    open();
    RecordsetPtr keywords = connection->OpenSchema(SchemaEnum::adSchemaDBInfoKeywords);
    // Only the words beyond SQL-92's, one row each in the column "Keyword".
    EXPECT_EQ(keywords->RecordCount(), 68);
    keywords->setFilter(u"Keyword = 'IDENTITY_INSERT'"_s);
    EXPECT_EQ(keywords->RecordCount(), 1);
    keywords->setFilter(u"Keyword = 'SELECT'"_s);
    EXPECT_EQ(keywords->RecordCount(), 0);
    RecordsetPtr literals = connection->OpenSchema(SchemaEnum::adSchemaDBInfoLiterals);
    literals->setFilter(u"LiteralName = 'Quote_Prefix'"_s);
    ASSERT_EQ(literals->RecordCount(), 1);
    EXPECT_EQ(literals->Fields().Item(u"LiteralValue"_s).Value(), vb::Variant(u"["_s));
    EXPECT_TRUE(api.log.filter(u"SQLExecDirect"_s).isEmpty());
}

TEST_F(ProviderTest, CatalogReadsTablesKeysAndDeletesAKeyWithItsDdl) {
    open();
    api.batches.push_back({R::rows({col(u"TABLE_NAME"_s, SQL_WVARCHAR, 128),
                                    col(u"TABLE_TYPE"_s, SQL_WVARCHAR, 128),
                                    col(u"DATE_CREATED"_s, SQL_TYPE_TIMESTAMP, 23, 3),
                                    col(u"DATE_MODIFIED"_s, SQL_TYPE_TIMESTAMP, 23, 3)},
                                   {u"nvarchar"_s, u"nvarchar"_s, u"datetime"_s, u"datetime"_s},
                                   {{vb::Variant(u"Doc"_s), vb::Variant(u"TABLE"_s),
                                     vb::Variant(vb::Null{}), vb::Variant(vb::Null{})},
                                    {vb::Variant(u"vDoc"_s), vb::Variant(u"VIEW"_s),
                                     vb::Variant(vb::Null{}), vb::Variant(vb::Null{})}})});
    auto cat = std::make_shared<adox::Catalog>();
    cat->setActiveConnection(connection);
    ASSERT_EQ(cat->Tables().Count(), 2);
    EXPECT_EQ(cat->Tables().Item(u"vDoc"_s).Type(), u"VIEW"_s);
    // Keys: unique and primary keys first, then the foreign keys with their columns and rules.
    api.batches.push_back({R::rows({col(u"KEY_NAME"_s, SQL_WVARCHAR, 128),
                                    col(u"KEY_TYPE"_s, SQL_WCHAR, 2),
                                    col(u"COLUMN_NAME"_s, SQL_WVARCHAR, 128)},
                                   {u"nvarchar"_s, u"char"_s, u"nvarchar"_s},
                                   {{vb::Variant(u"PK_Doc"_s), vb::Variant(u"PK"_s),
                                     vb::Variant(u"ID"_s)}})});
    api.batches.push_back(
        {R::rows({col(u"KEY_NAME"_s, SQL_WVARCHAR, 128), col(u"RELATED_TABLE"_s, SQL_WVARCHAR, 128),
                  col(u"DELETE_RULE"_s, SQL_INTEGER, 10), col(u"UPDATE_RULE"_s, SQL_INTEGER, 10),
                  col(u"COLUMN_NAME"_s, SQL_WVARCHAR, 128),
                  col(u"RELATED_COLUMN"_s, SQL_WVARCHAR, 128)},
                 {u"nvarchar"_s, u"nvarchar"_s, u"int"_s, u"int"_s, u"nvarchar"_s, u"nvarchar"_s},
                 {{vb::Variant(u"FK_Doc_Cls"_s), vb::Variant(u"Cls"_s), vb::Variant(std::int32_t(1)),
                   vb::Variant(std::int32_t(0)), vb::Variant(u"ClsID"_s), vb::Variant(u"ID"_s)}})});
    adox::Table& doc = cat->Tables().Item(u"Doc"_s);
    ASSERT_EQ(doc.Keys().Count(), 2);
    EXPECT_EQ(doc.Keys().Item(u"PK_Doc"_s).Type(), KeyTypeEnum::adKeyPrimary);
    adox::Key& fk = doc.Keys().Item(u"FK_Doc_Cls"_s);
    EXPECT_EQ(fk.Type(), KeyTypeEnum::adKeyForeign);
    EXPECT_EQ(fk.RelatedTable(), u"Cls"_s);
    EXPECT_EQ(fk.DeleteRule(), RuleEnum::adRICascade);
    EXPECT_EQ(fk.UpdateRule(), RuleEnum::adRINone);
    EXPECT_EQ(fk.Columns().Item(0L).RelatedColumn(), u"ID"_s);
    api.log.clear();
    doc.Keys().Delete(u"FK_Doc_Cls"_s);
    EXPECT_EQ(calls(u"SQLExecDirect"_s),
              QStringList{u"SQLExecDirect ALTER TABLE [Doc] DROP CONSTRAINT [FK_Doc_Cls]"_s});
}

// The registered provider on the machine's own driver: bad input fails as an ado::Error within
// the connection time-out.
TEST(ProviderLoopback, UnreachableServerAndUnknownInstanceFailWithinTheTimeOut) {
    for (const QString& source : {u"127.0.0.1,1"_s, u"127.0.0.1\\NOSUCHINSTANCE"_s}) {
        ConnectionPtr c = Connection::create();
        QElapsedTimer clock;
        clock.start();
        try {
            c->Open(u"Provider=SQLOLEDB;Data Source=%1;User ID=a;Password=b;Connect Timeout=3"_s.arg(
                source));
            FAIL() << "opened " << source.toStdString();
        } catch (const Error& e) {
            EXPECT_EQ(e.hresult(), static_cast<std::int32_t>(0x80004005u)) << e.what();
            EXPECT_EQ(e.source(), u"Microsoft OLE DB Provider for SQL Server"_s);
        }
        EXPECT_LT(clock.elapsed(), 4500) << source.toStdString();
        EXPECT_EQ(c->State(), 0);
        EXPECT_GE(c->Errors().Count(), 1);
    }
}

TEST(ProviderLoopback, EveryNameOfTheProviderIsRegistered) {
    for (const QString& name : {u"SQLOLEDB"_s, u"SQLOLEDB.1"_s, u"SQLNCLI"_s, u"SQLNCLI10"_s}) {
        ConnectionPtr c = Connection::create();
        try {
            c->Open(u"Provider=%1;Data Source=127.0.0.1,1;Connect Timeout=1"_s.arg(name));
            FAIL() << "opened";
        } catch (const Error& e) {
            // The driver was reached: the provider exists under that name.
            EXPECT_EQ(e.source(), u"Microsoft OLE DB Provider for SQL Server"_s) << name.toStdString();
        }
    }
}
