#include "schema/qzSystem.h"

#include "schema/Catalogue.h"

#include "dbaccess/nxDb.h"

#include "platform/ado/Error.h"

#include "tests/schema/SchemaDbFixture.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;
using namespace schematest;
using ado::recording::Answer;

namespace {

// 72 relations, of which 10 cascade nothing and are therefore never made.
constexpr qsizetype kCascadingRelations = 62;

ado::Error serverError(const QString& text, std::int32_t native) {
    return ado::Error(ado::HResult::DB_E_ERRORSINCOMMAND, text,
                      u"Microsoft OLE DB Provider for SQL Server"_s, u"42000"_s, native);
}

ado::CatalogKey key(const QString& name, ado::KeyTypeEnum type) {
    ado::CatalogKey k;
    k.name = name;
    k.type = type;
    return k;
}

qsizetype countStarting(const QStringList& lines, const QString& prefix) {
    return std::count_if(lines.begin(), lines.end(),
                         [&](const QString& line) { return line.startsWith(prefix); });
}

qsizetype countContaining(const QStringList& lines, const QString& part) {
    return std::count_if(lines.begin(), lines.end(),
                         [&](const QString& line) { return line.contains(part); });
}

// What a run asked the server to make or change, in order: the statements other than plain
// queries, and the changes that went through the ADOX catalog.
QStringList ddl(const ado::recording::Journal& journal) {
    using Kind = ado::recording::Journal::Kind;
    QStringList out;
    for (const auto& entry : journal.entries()) {
        if (entry.kind == Kind::Execute && !entry.text.startsWith(u"select "_s)) {
            out << entry.text;
        } else if (entry.kind == Kind::Catalog) {
            out << u"catalog: "_s + entry.text;
        }
    }
    return out;
}

class DbCreateTest : public SchemaDbTest {
protected:
    bool createOnServer(long flags = 10, bool silent = true) {
        return qzSystem::DbCreate(u"QZ"_s, flags, silent, kServerProvider, u"SRV01"_s, 5, u"sa"_s,
                                  u"pw"_s);
    }
    // Opens the existing database QZ of the recording server and forgets what that recorded.
    void openServer(nxDb& db) {
        server->script().schema(ado::SchemaEnum::adSchemaCatalogs, {catalogRow(u"QZ"_s)});
        ASSERT_MEMBER_OK(
            db.DbOpen(u"QZ"_s, 9, true, kServerProvider, u"SRV01"_s, 2, u"sa"_s, u"pw"_s));
        server->journal().clear();
    }
};

TEST_F(DbCreateTest, NewDatabaseOnSqlServer2005) {
    EXPECT_MEMBER_OK(createOnServer());
    EXPECT_TRUE(box->shown().empty());
    const QStringList statements = server->journal().statements();
    EXPECT_EQ(statements.value(0), u"create database QZ"_s);
    EXPECT_EQ(countStarting(statements, u"create table "_s), 111);
    EXPECT_EQ(countContaining(statements, u" foreign key "_s), kCascadingRelations);
    // Two keys between the same two tables differ by the 1 only.
    EXPECT_EQ(countStarting(statements,
                            u"alter table DB_DOC_LINK add constraint DB_ELENCODB_DOC_LINK "_s),
              1);
    EXPECT_EQ(countStarting(statements,
                            u"alter table DB_DOC_LINK add constraint DB_ELENCODB_DOC_LINK1 "_s),
              1);
    // Field names are kept exactly as written, unlike names and all.
    EXPECT_EQ(countContaining(statements, u" foreign key (IdTipoFProc) references TipoElab "
                                          u"(IDTipoFCom) on delete cascade on update cascade"_s),
              1);
    expectGolden(u"dbcreate-2005"_s, ddl(server->journal()));
}

TEST_F(DbCreateTest, NewDatabaseOnSqlServer2000) {
    server->script().property(u"DBMS Version"_s, u"08.00.2039"_s);
    EXPECT_MEMBER_OK(createOnServer());
    const QStringList lines = server->journal().lines();
    EXPECT_EQ(countStarting(lines, u"catalog: append table "_s), 111);
    EXPECT_EQ(countStarting(server->journal().statements(), u"create table "_s), 0);
    // The server's date type, not Jet's.
    EXPECT_EQ(countContaining(lines, u"[FOLIATRA_DATA_SYNC] 135 0"_s), 1);
    expectGolden(u"dbcreate-2000"_s, ddl(server->journal()));
}

TEST_F(DbCreateTest, AFailureDoesNotStopTheChain) {
    server->script().onPrefix(u"create table Anag_02_Comuni "_s,
                              Answer::failing(serverError(u"Tabella rifiutata."_s, 2714)));
    server->script().onPrefix(
        u"alter table DB_DOC_LINK add constraint DB_ELENCODB_DOC_LINK "_s,
        Answer::failing(serverError(u"The ALTER TABLE statement conflicted."_s, 547)));
    EXPECT_FALSE(createOnServer());
    EXPECT_TRUE(box->shown().empty());
    const QStringList statements = server->journal().statements();
    // Every table and every relation was still tried, the failed ones included.
    EXPECT_EQ(countStarting(statements, u"create table "_s), 111);
    EXPECT_EQ(countContaining(statements, u" foreign key "_s), kCascadingRelations);
    EXPECT_EQ(countStarting(statements, u"create table VOLUMI_PC "_s), 1);
    EXPECT_EQ(countStarting(statements,
                            u"alter table DB_DOC_LINK add constraint DB_ELENCODB_DOC_LINK1 "_s),
              1);
    EXPECT_EQ(server->journal().entries().back().kind, ado::recording::Journal::Kind::Close);
}

TEST_F(DbCreateTest, FailuresShowWhenNotSilent) {
    server->script().onPrefix(u"create table SYS_LOG "_s,
                              Answer::failing(serverError(u"Tabella rifiutata."_s, 2714)));
    box->answer({1, 1, 1, 1});
    EXPECT_FALSE(createOnServer(10, false));
    ASSERT_FALSE(box->shown().empty());
    EXPECT_TRUE(box->shown().front().text.contains(u"Tabella rifiutata."_s))
        << box->shown().front().text.toStdString();
}

TEST_F(DbCreateTest, AFailedOpenCreatesNothing) {
    server->script().openFails(serverError(u"Login failed for user 'sa'."_s, 18456));
    EXPECT_FALSE(createOnServer());
    EXPECT_TRUE(server->journal().statements().isEmpty());

    // Without DbOpenCreate a database that is missing is not made.
    EXPECT_FALSE(createOnServer(8));
    EXPECT_TRUE(server->journal().statements().isEmpty());
    EXPECT_TRUE(box->shown().empty());
}

TEST_F(DbCreateTest, TheForeignKeysOfAnExistingDatabaseGoFirst) {
    server->script().schema(ado::SchemaEnum::adSchemaCatalogs, {catalogRow(u"QZ"_s)});
    using ado::KeyTypeEnum;
    // Two foreign keys back to back: after the first goes, the second moves into its place.
    server->script().catalogTable(
        ado::CatalogTable{u"RIGA"_s, u"TABLE"_s, {}, {}, {}}, {}, {},
        {key(u"PK_RIGA"_s, KeyTypeEnum::adKeyPrimary), key(u"FK_A"_s, KeyTypeEnum::adKeyForeign),
         key(u"FK_B"_s, KeyTypeEnum::adKeyForeign), key(u"UQ_RIGA"_s, KeyTypeEnum::adKeyUnique),
         key(u"FK_C"_s, KeyTypeEnum::adKeyForeign)});
    server->script().catalogTable(
        ado::CatalogTable{u"sysdiagrams"_s, u"SYSTEM TABLE"_s, {}, {}, {}}, {}, {},
        {key(u"FK_SYS"_s, KeyTypeEnum::adKeyForeign)});
    server->script().catalogTable(ado::CatalogTable{u"VISTA"_s, u"VIEW"_s, {}, {}, {}}, {}, {},
                                  {key(u"FK_V"_s, KeyTypeEnum::adKeyForeign)});
    EXPECT_MEMBER_OK(createOnServer(8));
    const QStringList lines = server->journal().lines();
    const QStringList deletes = lines.filter(u"catalog: delete key "_s);
    EXPECT_EQ(deletes,
              (QStringList{u"catalog: delete key RIGA.FK_A"_s, u"catalog: delete key RIGA.FK_B"_s,
                           u"catalog: delete key RIGA.FK_C"_s}));
    const qsizetype lastDelete = lines.indexOf(deletes.last());
    const auto firstTable = std::find_if(lines.begin(), lines.end(), [](const QString& line) {
        return line.contains(u"AGEN_DBDELEGATI"_s);
    });
    ASSERT_NE(firstTable, lines.end());
    EXPECT_LT(lastDelete, firstTable - lines.begin());
}

TEST_F(DbCreateTest, ATableUnderAnotherName) {
    nxDb db;
    openServer(db);
    ASSERT_MEMBER_OK(qzSystem::TdCreate(db, u"db_elenco"_s, {}, true));
    const QStringList own = ddl(server->journal());
    server->journal().clear();
    ASSERT_MEMBER_OK(qzSystem::TdCreate(db, u"DB_ELENCO"_s, u"ELENCO2"_s, true));
    QStringList other = ddl(server->journal());
    ASSERT_TRUE(other.value(0).startsWith(u"create table ELENCO2 ("_s))
        << other.value(0).toStdString();
    // The table's own name appears nowhere (its index DB_ELENCOID_AREA keeps its name).
    EXPECT_TRUE(other.filter(QRegularExpression(u"\\bDB_ELENCO\\b"_s)).isEmpty());
    // The same definition throughout, the name aside.
    other.replaceInStrings(u"ELENCO2"_s, u"DB_ELENCO"_s);
    EXPECT_EQ(other, own);
}

TEST_F(DbCreateTest, ATableTheCatalogueLacks) {
    nxDb db;
    openServer(db);
    EXPECT_FALSE(qzSystem::TdCreate(db, u"D_FATTURE"_s, {}, true));
    EXPECT_EQ(nxApp::LastError().Source(), u"qzSystem.TdCreate()"_s);
    EXPECT_EQ(nxApp::LastError().Description(), u"Tabella di sistema 'D_FATTURE' sconosciuta."_s);
    EXPECT_TRUE(server->journal().statements().isEmpty());
    box->answer(1);
    EXPECT_FALSE(qzSystem::TdCreate(db, u"D_FATTURE"_s, {}, false));
    ASSERT_EQ(box->shown().size(), 1u);
    EXPECT_TRUE(box->last().text.contains(u"D_FATTURE"_s));
}

TEST_F(DbCreateTest, OnJetTheDateTypeIsJets) {
    nxDb db;
    ASSERT_MEMBER_OK(db.DbOpen(jetFile(u"qz.mdb"_s), 8, true, kJetProvider));
    jet->journal().clear();
    EXPECT_MEMBER_OK(qzSystem::TdCreate(db, u"QZSYSTEM"_s, {}, true));
    const QStringList appends = jet->journal().lines().filter(u"catalog: append table QZSYSTEM"_s);
    ASSERT_EQ(appends.size(), 1);
    EXPECT_TRUE(appends[0].contains(u" FOLIATRA_DATA_SYNC 7 0,"_s)) << appends[0].toStdString();
}

} // namespace

namespace {

TEST_F(DbCreateTest, ARelationOfTheCatalogueByName) {
    nxDb db;
    openServer(db);
    ASSERT_MEMBER_OK(qzSystem::RelCreate(db, u"tipoelabdeffcom"_s, true));
    EXPECT_EQ(server->journal().statements().filter(u"foreign key"_s),
              QStringList{u"alter table DefFCom add constraint TipoElabDefFCom foreign key "
                          u"(IdTipoFProc) references TipoElab (IDTipoFCom) on delete cascade on "
                          u"update cascade"_s});
    // A relation that cascades nothing is not made, and that is no failure.
    server->journal().clear();
    EXPECT_MEMBER_OK(qzSystem::RelCreate(db, u"CLASSIDB_ELENCO"_s, true));
    EXPECT_TRUE(server->journal().statements().filter(u"foreign key"_s).isEmpty());

    EXPECT_FALSE(qzSystem::RelCreate(db, u"DB_ELENCOD_FATTURE"_s, true));
    EXPECT_EQ(nxApp::LastError().Source(), u"qzSystem.RelCreate()"_s);
    EXPECT_EQ(nxApp::LastError().Description(),
              u"Relazione di sistema 'DB_ELENCOD_FATTURE' sconosciuta."_s);
}

} // namespace

namespace {

TEST_F(DbCreateTest, OnJetTablesAndKeysGoThroughTheCatalog) {
    const QString path = jetFile(u"QZSystem.mdb"_s);
    EXPECT_MEMBER_OK(qzSystem::DbCreate(path, 8, true, kJetProvider, {}, 5, {}, {}));
    const QStringList lines = jet->journal().lines();
    EXPECT_EQ(countStarting(lines, u"catalog: append table "_s), 111);
    EXPECT_EQ(countContaining(lines, u" FOLIATRA_DATA_SYNC 7 0,"_s), 1);
    EXPECT_EQ(countStarting(lines, u"catalog: append key "_s), kCascadingRelations);
    EXPECT_EQ(countStarting(lines, u"catalog: append key DefFCom.TipoElabDefFCom type 2 "
                                   u"references TipoElab (IdTipoFProc=IDTipoFCom) delete 1 "
                                   u"update 1"_s),
              1);
    EXPECT_EQ(countStarting(lines, u"catalog: append key DB_DOC_LINK.DB_ELENCODB_DOC_LINK1 type 2 "
                                   u"references DB_ELENCO (DB_SON_SERIALE=SYS_SERIALE) delete 1 "
                                   u"update 0"_s),
              1);
    // The keys come after the last table.
    const auto lastTable = std::find_if(lines.rbegin(), lines.rend(), [](const QString& line) {
        return line.startsWith(u"catalog: append table "_s);
    });
    const auto firstKey = std::find_if(lines.begin(), lines.end(), [](const QString& line) {
        return line.startsWith(u"catalog: append key "_s);
    });
    ASSERT_NE(firstKey, lines.end());
    EXPECT_LT(lines.rend() - lastTable - 1, firstKey - lines.begin());
}

} // namespace
