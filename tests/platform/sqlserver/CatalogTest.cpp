// ADOX on the server: the DDL each change issues, and columns read back with their properties.
#include "platform/ado/Connection.h"
#include "platform/ado/ProviderRegistry.h"
#include "platform/ado/adox/Catalog.h"
#include "platform/ado/adox/Objects.h"
#include "platform/ado/sqlserver/ServerCatalog.h"
#include "platform/ado/sqlserver/SqlServerProvider.h"
#include "tests/platform/sqlserver/RecordingOdbc.h"
#include "tests/support/Printers.h"

#include <gtest/gtest.h>

#include <sqlucode.h>

using namespace Qt::StringLiterals;
using namespace ado;
using namespace ado::sqlserver;
using R = RecordingOdbc;

namespace {

CatalogColumn column(const QString& name, DataTypeEnum type, long size = 0,
                     std::vector<PropertyValue> properties = {}) {
    CatalogColumn c;
    c.name = name;
    c.type = type;
    c.definedSize = size;
    c.properties = std::move(properties);
    return c;
}

PropertyValue prop(const QString& name, vb::Variant value) { return {name, std::move(value), true}; }

odbc::ColumnDescription col(const QString& name, SQLSMALLINT type, SQLULEN size = 0) {
    return odbc::ColumnDescription{name, type, size, 0, SQL_NULLABLE};
}

} // namespace

TEST(CatalogDdl, ColumnsDeclareTypeIdentityNullabilityAndDefault) {
    EXPECT_EQ(ddl::columnDefinition(column(u"ID"_s, DataTypeEnum::adInteger, 0,
                                           {prop(u"Autoincrement"_s, vb::Variant(true)),
                                            prop(u"Seed"_s, vb::Variant(std::int32_t(100))),
                                            prop(u"Nullable"_s, vb::Variant(false))})),
              u"[ID] int IDENTITY (100, 1) NOT NULL"_s);
    EXPECT_EQ(ddl::columnDefinition(column(u"Code"_s, DataTypeEnum::adVarWChar, 20,
                                           {prop(u"Default"_s, vb::Variant(u"N'x'"_s))})),
              u"[Code] nvarchar(20) NOT NULL DEFAULT N'x'"_s);
    // As in ADOX, a column takes NULLs only when its attributes or its Nullable say so.
    CatalogColumn nullable = column(u"Opt"_s, DataTypeEnum::adDBTimeStamp);
    nullable.attributes = adColNullable;
    EXPECT_EQ(ddl::columnDefinition(nullable), u"[Opt] datetime NULL"_s);
    nullable.properties = {prop(u"Nullable"_s, vb::Variant(false))};
    EXPECT_EQ(ddl::columnDefinition(nullable), u"[Opt] datetime NOT NULL"_s);
    // Long text past nvarchar's 4000 characters, memo and money as Jet has them.
    EXPECT_EQ(ddl::columnDefinition(column(u"Note"_s, DataTypeEnum::adVarWChar, 8000)),
              u"[Note] ntext NOT NULL"_s);
    EXPECT_EQ(ddl::columnDefinition(column(u"Memo"_s, DataTypeEnum::adLongVarWChar)),
              u"[Memo] ntext NOT NULL"_s);
    EXPECT_EQ(ddl::columnDefinition(column(u"Paid"_s, DataTypeEnum::adCurrency)),
              u"[Paid] money NOT NULL"_s);
    CatalogColumn n = column(u"N"_s, DataTypeEnum::adNumeric);
    n.precision = 12;
    n.numericScale = 3;
    EXPECT_EQ(ddl::columnDefinition(n), u"[N] numeric(12, 3) NOT NULL"_s);
    // Odd names are bracketed with a doubled closing bracket.
    EXPECT_EQ(ddl::quoted(u"a]b c"_s), u"[a]]b c]"_s);
    // A type with no server counterpart is refused, not guessed.
    try {
        ddl::columnDefinition(column(u"V"_s, DataTypeEnum::adVariant));
        FAIL() << "declared";
    } catch (const Error& e) {
        EXPECT_TRUE(e.is(HResult::DB_E_NOTSUPPORTED));
        EXPECT_TRUE(e.description().contains(u"'V'"_s));
    }
}

TEST(CatalogDdl, IndexesAndKeys) {
    CatalogIndex ix;
    ix.name = u"IX_Doc"_s;
    ix.unique = true;
    ix.columns = {column(u"A"_s, DataTypeEnum::adInteger), column(u"B"_s, DataTypeEnum::adInteger)};
    ix.columns[1].sortOrder = SortOrderEnum::adSortDescending;
    EXPECT_EQ(ddl::createIndex(u"Doc"_s, ix),
              u"CREATE UNIQUE NONCLUSTERED INDEX [IX_Doc] ON [Doc] ([A] ASC, [B] DESC)"_s);
    ix.primaryKey = true;
    ix.clustered = true;
    EXPECT_EQ(ddl::createIndex(u"Doc"_s, ix),
              u"ALTER TABLE [Doc] ADD CONSTRAINT [IX_Doc] PRIMARY KEY CLUSTERED ([A] ASC, [B] DESC)"_s);
    EXPECT_EQ(ddl::dropIndex(u"Doc"_s, u"IX_Doc"_s), u"DROP INDEX [IX_Doc] ON [Doc]"_s);

    CatalogKey fk;
    fk.name = u"FK_Doc_Cls"_s;
    fk.type = KeyTypeEnum::adKeyForeign;
    fk.relatedTable = u"Cls"_s;
    fk.deleteRule = RuleEnum::adRICascade;
    CatalogColumn c = column(u"ClsID"_s, DataTypeEnum::adInteger);
    c.relatedColumn = u"ID"_s;
    fk.columns = {c};
    EXPECT_EQ(ddl::addKey(u"Doc"_s, fk),
              u"ALTER TABLE [Doc] ADD CONSTRAINT [FK_Doc_Cls] FOREIGN KEY ([ClsID]) REFERENCES "
              u"[Cls] ([ID]) ON DELETE CASCADE ON UPDATE NO ACTION"_s);
    fk.type = KeyTypeEnum::adKeyUnique;
    EXPECT_EQ(ddl::addKey(u"Doc"_s, fk),
              u"ALTER TABLE [Doc] ADD CONSTRAINT [FK_Doc_Cls] UNIQUE ([ClsID])"_s);
}

class CatalogTest : public ::testing::Test {
protected:
    std::shared_ptr<SqlServerProvider> makeProvider() {
        Transport t;
        t.api = &api;
        t.resolvePort = [](const QString&, const QString&, int) { return 1433; };
        return std::make_shared<SqlServerProvider>(u"SQLOLEDB.1"_s, t);
    }
    void SetUp() override {
        connection->Open(u"Provider=SQLOLEDB;Data Source=127.0.0.1;Initial Catalog=A;"
                         u"User ID=u;Password=p"_s);
        cat->setActiveConnection(connection);
        api.log.clear();
    }
    void TearDown() override {
        connection->Close();
        EXPECT_EQ(api.openHandles(), 0);
    }
    QStringList statements() const {
        QStringList out;
        for (const QString& line : api.log.filter(u"SQLExecDirect "_s)) {
            out << line.mid(14);
        }
        return out;
    }
    R::Batch oneTable(const QString& name) {
        return {R::rows({col(u"TABLE_NAME"_s, SQL_WVARCHAR, 128), col(u"TABLE_TYPE"_s, SQL_WVARCHAR, 128),
                         col(u"DATE_CREATED"_s, SQL_TYPE_TIMESTAMP, 23),
                         col(u"DATE_MODIFIED"_s, SQL_TYPE_TIMESTAMP, 23)},
                        {u"nvarchar"_s, u"nvarchar"_s, u"datetime"_s, u"datetime"_s},
                        {{vb::Variant(name), vb::Variant(u"TABLE"_s), vb::Variant(vb::Null{}),
                          vb::Variant(vb::Null{})}})};
    }

    RecordingOdbc api;
    std::shared_ptr<SqlServerProvider> provider = makeProvider();
    ScopedProvider scope{u"SQLOLEDB"_s, provider};
    ConnectionPtr connection = Connection::create();
    std::shared_ptr<adox::Catalog> cat = std::make_shared<adox::Catalog>();
};

TEST_F(CatalogTest, ColumnsComeBackWithIdentityNullableAndDefault) {
    api.batches.push_back(oneTable(u"Doc"_s));
    api.batches.push_back(
        {R::rows({col(u"NAME"_s, SQL_WVARCHAR, 128), col(u"TYPE_NAME"_s, SQL_WVARCHAR, 128),
                  col(u"MAX_LENGTH"_s, SQL_INTEGER), col(u"PRECISION"_s, SQL_INTEGER),
                  col(u"SCALE"_s, SQL_INTEGER), col(u"IS_NULLABLE"_s, SQL_BIT),
                  col(u"IS_IDENTITY"_s, SQL_BIT), col(u"SEED"_s, SQL_INTEGER),
                  col(u"INCREMENT"_s, SQL_INTEGER), col(u"DEFAULT_TEXT"_s, SQL_WVARCHAR, 4000)},
                 {u"nvarchar"_s, u"nvarchar"_s, u"int"_s, u"int"_s, u"int"_s, u"bit"_s, u"bit"_s,
                  u"int"_s, u"int"_s, u"nvarchar"_s},
                 {{vb::Variant(u"ID"_s), vb::Variant(u"int"_s), vb::Variant(std::int32_t(4)),
                   vb::Variant(std::int32_t(10)), vb::Variant(std::int32_t(0)), vb::Variant(false),
                   vb::Variant(true), vb::Variant(std::int32_t(5)), vb::Variant(std::int32_t(2)),
                   vb::Variant(vb::Null{})},
                  {vb::Variant(u"Title"_s), vb::Variant(u"nvarchar"_s),
                   vb::Variant(std::int32_t(200)), vb::Variant(std::int32_t(0)),
                   vb::Variant(std::int32_t(0)), vb::Variant(true), vb::Variant(false),
                   vb::Variant(vb::Null{}), vb::Variant(vb::Null{}), vb::Variant(u"(N'x')"_s)},
                  {vb::Variant(u"Body"_s), vb::Variant(u"nvarchar"_s),
                   vb::Variant(std::int32_t(-1)), vb::Variant(std::int32_t(0)),
                   vb::Variant(std::int32_t(0)), vb::Variant(true), vb::Variant(false),
                   vb::Variant(vb::Null{}), vb::Variant(vb::Null{}), vb::Variant(vb::Null{})}})});
    adox::Table& doc = cat->Tables().Item(u"Doc"_s);
    ASSERT_EQ(doc.Columns().Count(), 3);
    adox::Column& id = doc.Columns().Item(u"ID"_s);
    EXPECT_EQ(id.Type(), DataTypeEnum::adInteger);
    EXPECT_EQ(id.Properties().Item(u"Autoincrement"_s).Value(), vb::Variant(true));
    EXPECT_EQ(id.Properties().Item(u"Seed"_s).Value(), vb::Variant(std::int32_t(5)));
    EXPECT_EQ(id.Properties().Item(u"Nullable"_s).Value(), vb::Variant(false));
    adox::Column& title = doc.Columns().Item(u"Title"_s);
    EXPECT_EQ(title.Type(), DataTypeEnum::adVarWChar);
    EXPECT_EQ(title.DefinedSize(), 100); // bytes on the server, characters to ADO
    EXPECT_EQ(title.Properties().Item(u"Default"_s).Value(), vb::Variant(u"(N'x')"_s));
    adox::Column& body = doc.Columns().Item(u"Body"_s);
    EXPECT_EQ(body.Type(), DataTypeEnum::adLongVarWChar); // nvarchar(max)
    EXPECT_EQ(body.DefinedSize(), 1073741823);
    // The table name is bound, never pasted into the query.
    EXPECT_EQ(api.log.filter(u"SQLBindParameter"_s).size(), 1);
    EXPECT_EQ(statements().at(1), ddl::columnsQuery());
}

TEST_F(CatalogTest, AppendsIssueTheirDdl) {
    api.batches.push_back(oneTable(u"Doc"_s));
    adox::Table& doc = cat->Tables().Item(u"Doc"_s);
    doc.Columns().Append(u"Note"_s, DataTypeEnum::adVarWChar, 100L);
    auto ix = std::make_shared<adox::Index>(u"IX_Note"_s);
    ix->Columns().Append(u"Note"_s);
    doc.Indexes().Append(ix);
    auto t = std::make_shared<adox::Table>(u"New"_s);
    t->Columns().Append(u"ID"_s, DataTypeEnum::adInteger, 0L);
    cat->Tables().Append(t);
    const QStringList s = statements();
    ASSERT_GE(s.size(), 3);
    EXPECT_TRUE(s.contains(u"ALTER TABLE [Doc] ADD [Note] nvarchar(100) NOT NULL"_s)) << s.join(u'\n').toStdString();
    EXPECT_TRUE(s.contains(u"CREATE NONCLUSTERED INDEX [IX_Note] ON [Doc] ([Note] ASC)"_s))
        << s.join(u'\n').toStdString();
    EXPECT_EQ(s.back(), u"CREATE TABLE [New] ([ID] int NOT NULL)"_s);
}

TEST_F(CatalogTest, ARefusedChangeComesBackAsTheServersError) {
    api.batches.push_back(oneTable(u"Doc"_s));
    adox::Table& doc = cat->Tables().Item(u"Doc"_s);
    api.batches.push_back({}); // the columns: none
    api.batches.push_back({R::error(u"42S21"_s, 2705,
                                    u"[FreeTDS][SQL Server]Column names in each table must be "
                                    u"unique. Column name 'Note' in table 'Doc' is specified "
                                    u"more than once."_s)});
    try {
        doc.Columns().Append(u"Note"_s, DataTypeEnum::adVarWChar, 10L);
        FAIL() << "appended";
    } catch (const Error& e) {
        EXPECT_EQ(e.nativeError(), 2705);
        EXPECT_TRUE(e.is(HResult::DB_E_ERRORSINCOMMAND)) << e.what();
    }
    EXPECT_EQ(doc.Columns().Count(), 0);
}
