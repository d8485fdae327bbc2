#include "tests/dbaccess/Definition.h"

#include "dbaccess/nxRel.h"
#include "dbaccess/nxTd.h"

#include "platform/ado/Error.h"
#include "platform/ado/recording/Journal.h"

#include "tests/dbaccess/DbFixture.h"

using namespace Qt::StringLiterals;
using namespace dbtest;

// The schema's whole repertoire of declarations, run on each back end: on the server the
// statements that reach the connection are compared, in order, with a reviewed golden file; on
// Jet the tables, columns with their properties, indexes and keys that reach the catalog.

namespace {

class DefinitionTest : public DbTest {
protected:
    // The server's refusal of a second cascade path from DOCUMENTO to RIGA.
    static ado::Error cascadeRefused() {
        return ado::Error(ado::HResult::DB_E_ERRORSINCOMMAND,
                          u"Introducing FOREIGN KEY constraint 'FK_RIGA_ORIGINE' on table 'RIGA' "
                          u"may cause cycles or multiple cascade paths."_s,
                          u"Microsoft OLE DB Provider for SQL Server"_s, u"42000"_s, 1785);
    }

    // What every TdClose and RelClose sent, each under its label.
    QStringList closing(nxDb& db, const std::function<QStringList()>& take) {
        QStringList result;
        defineDocuments(
            db, {u"FK_RIGA_ORIGINE"_s}, [&](const QString&) { server->journal().clear(); },
            [&](const QString& label) { result << u"-- "_s + label << take(); });
        return result;
    }
};

TEST_F(DefinitionTest, OnSqlServer2005EveryDeclarationBecomesStatements) {
    server->script().onPrefix(u"alter table RIGA add constraint FK_RIGA_ORIGINE"_s,
                              ado::recording::Answer::failing(cascadeRefused()));
    nxDb db;
    openServer(db);
    ASSERT_EQ(db.DateType(), 135);
    const QStringList sent = closing(db, [&] { return server->journal().statements(); });
    EXPECT_TRUE(box->shown().empty());
    expectGolden(u"definition-server-2005"_s, sent);
}

TEST_F(DefinitionTest, OnSqlServer2000NewTablesGoThroughTheCatalog) {
    server->script().property(u"DBMS Version"_s, u"08.00.2039"_s);
    server->script().onPrefix(u"alter table RIGA add constraint FK_RIGA_ORIGINE"_s,
                              ado::recording::Answer::failing(cascadeRefused()));
    nxDb db;
    openServer(db);
    const QStringList sent = closing(db, [&] {
        QStringList kept;
        for (const QString& line : server->journal().lines()) {
            if (line.startsWith(u"catalog: "_s) || line.startsWith(u"execute: "_s)) {
                kept << line;
            }
        }
        return kept;
    });
    EXPECT_TRUE(box->shown().empty());
    expectGolden(u"definition-server-2000"_s, sent);
}

QString describeProperties(const std::vector<ado::PropertyValue>& properties) {
    QStringList parts;
    for (const auto& p : properties) {
        parts << p.name + u'=' + ado::recording::Journal::describe(p.value);
    }
    return parts.join(u", "_s);
}

TEST_F(DefinitionTest, OnJetEveryDeclarationReachesTheCatalog) {
    nxDb db;
    openJet(db);
    ASSERT_EQ(db.DateType(), 7);
    QStringList sent;
    defineDocuments(
        db, {}, [&](const QString&) { jet->journal().clear(); },
        [&](const QString& label) {
            sent << u"-- "_s + label << jet->journal().lines().filter(u"catalog: "_s);
            EXPECT_TRUE(jet->journal().statements().isEmpty()) << label.toStdString();
        });
    // What the catalog holds afterwards, property by property.
    for (const auto& t : jet->script().catalog()) {
        sent << u"table "_s + t.table.name;
        for (const auto& c : t.columns) {
            sent << u"  column "_s + c.name + u' ' + QString::number(static_cast<int>(c.type)) +
                        u' ' + QString::number(c.definedSize) + u": "_s +
                        describeProperties(c.properties);
        }
        for (const auto& i : t.indexes) {
            QStringList columns;
            for (const auto& c : i.columns) {
                columns << c.name + (c.sortOrder == ado::SortOrderEnum::adSortDescending
                                         ? u" desc"_s
                                         : u" asc"_s);
            }
            sent << u"  index "_s + i.name + (i.primaryKey ? u" primary"_s : QString()) +
                        (i.unique ? u" unique"_s : QString()) +
                        (i.indexNulls == ado::AllowNullsEnum::adIndexNullsAllow
                             ? u" nulls allowed"_s
                             : QString()) +
                        u" ("_s + columns.join(u", "_s) + u')';
        }
    }
    EXPECT_TRUE(box->shown().empty());
    expectGolden(u"definition-jet"_s, sent);
}

// Failures come back as false with the member's label and never as an exception.
TEST_F(DefinitionTest, AnUnconvertibleDefaultIsReportedAndKeepsTheBatch) {
    nxDb db;
    nxTd td;
    ASSERT_NO_FATAL_FAILURE(openServerTable(db, td, u"ELENCO"_s));
    ASSERT_MEMBER_OK(td.FldAdd(u"A"_s, 3, 0, FldOptional, u"1"_s));
    const QStringList before = td.BatchCommands();
    box->answer(1);
    EXPECT_FALSE(td.FldAdd(u"B"_s, 3, 0, FldOptional, u"uno"_s));
    EXPECT_EQ(nxApp::LastError().Source(), u"nxTd.FldAdd()"_s);
    EXPECT_EQ(box->shown().size(), 1u);
    EXPECT_FALSE(td.FldAdd(u"C"_s, 11, 0, FldOptional, u"forse"_s, true));
    EXPECT_EQ(box->shown().size(), 1u); // silent
    EXPECT_EQ(td.BatchCommands(), before);
    EXPECT_TRUE(td.IsOpened());
}

// Jet has one auto-increment column to a table: a second one is the first under a new name.
TEST_F(DefinitionTest, OnJetASecondAutoIncrementColumnIsTheFirstRenamed) {
    nxDb db;
    openJet(db);
    nxTd td;
    td.Db(&db);
    ASSERT_MEMBER_OK(td.TdOpen(u"ELENCO"_s));
    ASSERT_MEMBER_OK(td.FldAdd(u"IDRec"_s, 3, 0, FldAutoIncrement, {}));
    ASSERT_MEMBER_OK(td.FldAdd(u"NOME"_s, 202, 20, FldZeroLength, {}));
    ASSERT_MEMBER_OK(td.FldAdd(u"IDElenco"_s, 3, 0, FldAutoIncrement, {}));
    ado::adox::Columns& columns = td.Td()->Columns();
    ASSERT_EQ(columns.Count(), 2);
    EXPECT_EQ(columns.Item(0L).Name(), u"IDElenco"_s);
    EXPECT_EQ(columns.Item(1L).Name(), u"NOME"_s);
    // Not so on the server, where the second is a column of its own.
    nxDb serverDb;
    openServer(serverDb);
    td.Db(&serverDb);
    ASSERT_MEMBER_OK(td.TdOpen(u"ELENCO"_s));
    ASSERT_MEMBER_OK(td.FldAdd(u"IDRec"_s, 3, 0, FldAutoIncrement, {}));
    ASSERT_MEMBER_OK(td.FldAdd(u"IDElenco"_s, 3, 0, FldAutoIncrement, {}));
    EXPECT_EQ(td.Columns().size(), 2u);
}

// An existing Jet table ELENCO with a column A and a primary key, as the catalog and the
// schema rowsets say; the rowset may name a key the catalog does not hold.
void existingJetTable(RecordingProvider& jet, const QString& keyInRowset) {
    jet.script().schema(ado::SchemaEnum::adSchemaTables,
                        {ado::SchemaRow(ado::SchemaEnum::adSchemaTables)
                             .set(u"TABLE_NAME", u"ELENCO"_s)
                             .set(u"TABLE_TYPE", u"TABLE"_s)
                             .take()});
    jet.script().schema(ado::SchemaEnum::adSchemaIndexes,
                        {ado::SchemaRow(ado::SchemaEnum::adSchemaIndexes)
                             .set(u"TABLE_NAME", u"ELENCO"_s)
                             .set(u"INDEX_NAME", keyInRowset)
                             .set(u"PRIMARY_KEY", true)
                             .set(u"UNIQUE", true)
                             .set(u"COLUMN_NAME", u"A"_s)
                             .take()});
    ado::CatalogColumn a;
    a.name = u"A"_s;
    a.type = ado::DataTypeEnum::adInteger;
    ado::CatalogIndex key;
    key.name = u"PK_VECCHIA"_s;
    key.primaryKey = true;
    key.unique = true;
    key.columns = {a};
    jet.script().catalogTable(ado::CatalogTable{u"ELENCO"_s, u"TABLE"_s, {}, {}, {}}, {a}, {key});
}

TEST_F(DefinitionTest, OnJetANewPrimaryKeyTakesThePlaceOfTheOldOne) {
    existingJetTable(*jet, u"PK_VECCHIA"_s);
    nxDb db;
    openJet(db);
    nxTd td;
    td.Db(&db);
    ASSERT_MEMBER_OK(td.TdOpen(u"ELENCO"_s));
    ASSERT_FALSE(td.IsNew());
    EXPECT_MEMBER_OK(td.IdxAdd(u"PrimaryKey"_s, u"+A"_s, 7));
    EXPECT_EQ(lines(jet->journal()).filter(u"catalog: "_s),
              (QStringList{u"catalog: delete index ELENCO.PK_VECCHIA"_s,
                           u"catalog: append index ELENCO.PrimaryKey primary unique (A asc)"_s}));
    EXPECT_MEMBER_OK(td.IdxAdd(u"PrimaryKey"_s, u"+A"_s, 7)); // there already: nothing happens
    EXPECT_EQ(lines(jet->journal()).filter(u"catalog: "_s).size(), 2);
    EXPECT_MEMBER_OK(td.TdClose());
}

TEST_F(DefinitionTest, AnIndexThatCannotBeMadeIsReportedWithItsLabel) {
    existingJetTable(*jet, u"PK_SPARITA"_s);
    nxDb db;
    openJet(db);
    nxTd td;
    td.Db(&db);
    ASSERT_MEMBER_OK(td.TdOpen(u"ELENCO"_s));
    box->answer(1);
    EXPECT_FALSE(td.IdxAdd(u"PrimaryKey"_s, u"+A"_s, 7));
    EXPECT_EQ(nxApp::LastError().Source(), u"nxTd.IdxAdd()"_s);
    EXPECT_EQ(box->shown().size(), 1u);
    EXPECT_FALSE(td.IdxAdd(u"PrimaryKey"_s, u"+A"_s, 7, true));
    EXPECT_EQ(box->shown().size(), 1u); // silent
    EXPECT_TRUE(lines(jet->journal()).filter(u"catalog: "_s).isEmpty());
}

TEST_F(DefinitionTest, ARefusedCreateTableRunsNoBatch) {
    nxDb db;
    nxTd td;
    ASSERT_NO_FATAL_FAILURE(openServerTable(db, td, u"ELENCO"_s));
    ASSERT_MEMBER_OK(td.FldAdd(u"A"_s, 3, 0, FldOptional, u"1"_s));
    server->script().onPrefix(u"create table ELENCO"_s,
                              ado::recording::Answer::failing(ado::Error(
                                  ado::HResult::DB_E_ERRORSINCOMMAND,
                                  u"There is already an object named 'ELENCO' in the database."_s,
                                  u"Microsoft OLE DB Provider for SQL Server"_s, u"42S01"_s,
                                  2714)));
    server->journal().clear();
    box->answer(1);
    EXPECT_FALSE(td.TdClose());
    EXPECT_EQ(server->journal().statements(),
              QStringList{u"create table ELENCO ([A] int)"_s});
    EXPECT_EQ(nxApp::LastError().Source(), u"nxDb.Execute()"_s);
    EXPECT_EQ(box->shown().size(), 1u);
    EXPECT_FALSE(td.IsOpened());
    EXPECT_FALSE(td.Td());
}

} // namespace
