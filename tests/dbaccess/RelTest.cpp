#include "dbaccess/nxRel.h"

#include "platform/ado/Error.h"

#include "tests/dbaccess/DbFixture.h"

using namespace Qt::StringLiterals;
using namespace dbtest;

namespace {

class RelTest : public DbTest {
protected:
    // The server's refusal of a cascade that would form cycles or several cascade paths.
    static ado::Error cascadeRefused() {
        return ado::Error(ado::HResult::DB_E_ERRORSINCOMMAND,
                          u"Introducing FOREIGN KEY constraint 'FK' on table 'RIGA' may cause "
                          u"cycles or multiple cascade paths."_s,
                          u"Microsoft OLE DB Provider for SQL Server"_s, u"42000"_s, 1785);
    }
};

TEST_F(RelTest, ARelationThatCascadesNothingIsNotCreated) {
    nxDb db;
    openServer(db);
    nxRel rel;
    rel.Db(&db);
    ASSERT_MEMBER_OK(rel.RelOpen(u"FK_RIGA_ORDINE"_s, u"RIGA"_s, u"ORDINE"_s, u"IDOrdine"_s,
                                 u"IDRec"_s, 0, 0, 2));
    EXPECT_TRUE(rel.IsNew());
    EXPECT_MEMBER_OK(rel.FldAdd(u"IDOrdine"_s, u"IDRec"_s));
    EXPECT_TRUE(rel.FldExist(u"idordine"_s));
    EXPECT_MEMBER_OK(rel.RelClose());
    EXPECT_FALSE(rel.IsOpened());
    EXPECT_FALSE(rel.Rel());
    EXPECT_TRUE(server->journal().statements().isEmpty());
    EXPECT_FALSE(rel.RelClose()); // not open

    nxDb jetDb;
    openJet(jetDb);
    rel.Db(&jetDb);
    ASSERT_MEMBER_OK(rel.RelOpen(u"FK"_s, u"RIGA"_s, u"ORDINE"_s, u"IDOrdine"_s, u"IDRec"_s, 0, 0));
    EXPECT_MEMBER_OK(rel.RelClose());
    EXPECT_TRUE(jet->journal().lines().filter(u"catalog:"_s).isEmpty());
}

TEST_F(RelTest, KeyNamesThatAreGuidTextsBecomeIdentifiers) {
    nxDb db;
    openServer(db);
    nxRel rel;
    rel.Db(&db);
    ASSERT_MEMBER_OK(rel.RelOpen(u"{6A1F-22B0}"_s, u"RIGA"_s, u"ORDINE"_s, u"A"_s, u"B"_s, 1, 0));
    EXPECT_EQ(rel.Rel()->Name(), u"REL_6A1F22B0"_s);
    EXPECT_EQ(rel.Name(), u"{6A1F-22B0}"_s);
    ASSERT_MEMBER_OK(rel.RelOpen(u"FK_1"_s, u"RIGA"_s, u"ORDINE"_s, u"A"_s, u"B"_s, 1, 0));
    EXPECT_EQ(rel.Rel()->Name(), u"FK_1"_s);
}

TEST_F(RelTest, CascadesOnTheServerAreOneStatement) {
    nxDb db;
    openServer(db);
    nxRel rel;
    rel.Db(&db);
    ASSERT_MEMBER_OK(
        rel.RelOpen(u"FK_RIGA"_s, u"RIGA"_s, u"ORDINE"_s, u"IDOrdine"_s, u"IDRec"_s, 1, 1));
    ASSERT_MEMBER_OK(rel.FldAdd(u"IDOrdine"_s, u"IDRec"_s));
    ASSERT_MEMBER_OK(rel.FldAdd(u"Anno"_s, u"Anno"_s));
    EXPECT_MEMBER_OK(rel.RelClose());
    EXPECT_EQ(
        server->journal().statements(),
        QStringList{u"alter table RIGA add constraint FK_RIGA foreign key (IDOrdine, Anno) "
                    u"references ORDINE (IDRec, Anno) on delete cascade on update cascade"_s});
}

TEST_F(RelTest, ARefusedCascadeBecomesTriggersOnTheParent) {
    nxDb db;
    openServer(db);
    nxRel rel;
    rel.Db(&db);
    server->script().onPrefix(u"alter table RIGA add constraint FK_RIGA"_s,
                              ado::recording::Answer::failing(cascadeRefused()));
    for (int run = 0; run < 2; ++run) { // a second run replaces the triggers
        ASSERT_MEMBER_OK(
            rel.RelOpen(u"FK_RIGA"_s, u"RIGA"_s, u"ORDINE"_s, u"IDOrdine"_s, u"IDRec"_s, 1, 1));
        ASSERT_MEMBER_OK(rel.FldAdd(u"IDOrdine"_s, u"IDRec"_s));
        ASSERT_MEMBER_OK(rel.FldAdd(u"Anno"_s, u"AnnoOrd"_s));
        EXPECT_FALSE(rel.RelClose()); // triggers do not count as success
        EXPECT_FALSE(rel.IsOpened());
    }
    EXPECT_TRUE(box->shown().empty());
    expectGolden(u"rel-cascade-triggers"_s, server->journal().lines());
}

TEST_F(RelTest, OnlyTheDeleteTriggerWhenOnlyDeletesCascade) {
    nxDb db;
    openServer(db);
    nxRel rel;
    rel.Db(&db);
    server->script().onPrefix(u"alter table RIGA"_s,
                              ado::recording::Answer::failing(cascadeRefused()));
    ASSERT_MEMBER_OK(
        rel.RelOpen(u"FK_RIGA"_s, u"RIGA"_s, u"ORDINE"_s, u"IDOrdine"_s, u"IDRec"_s, 1, 0));
    ASSERT_MEMBER_OK(rel.FldAdd(u"IDOrdine"_s, u"IDRec"_s));
    EXPECT_FALSE(rel.RelClose());
    const QStringList statements = server->journal().statements();
    ASSERT_EQ(statements.size(), 3);
    EXPECT_EQ(statements[2], u"create trigger TR_FK_RIGA on ORDINE for delete as delete from "
                             u"RIGA where RIGA.IDOrdine in (select IDRec from deleted)"_s);
}

TEST_F(RelTest, OtherFailuresAreReportedAndNotRetried) {
    nxDb db;
    openServer(db);
    nxRel rel;
    rel.Db(&db);
    server->script().onPrefix(u"alter table RIGA"_s,
                              ado::recording::Answer::failing(ado::Error(
                                  ado::HResult::DB_E_ERRORSINCOMMAND,
                                  u"The ALTER TABLE statement conflicted with the FOREIGN KEY "
                                  u"constraint."_s,
                                  u"Microsoft OLE DB Provider for SQL Server"_s, u"23000"_s, 547)));
    ASSERT_MEMBER_OK(
        rel.RelOpen(u"FK_RIGA"_s, u"RIGA"_s, u"ORDINE"_s, u"IDOrdine"_s, u"IDRec"_s, 1, 1));
    ASSERT_MEMBER_OK(rel.FldAdd(u"IDOrdine"_s, u"IDRec"_s));
    box->answer(1);
    EXPECT_FALSE(rel.RelClose());
    EXPECT_EQ(server->journal().statements().size(), 1);
    EXPECT_EQ(nxApp::LastError().Source(), u"nxRel.RelClose()"_s);
    EXPECT_EQ(nxApp::LastError().Description(),
              u"The ALTER TABLE statement conflicted with the FOREIGN KEY constraint. (FK_RIGA)"_s);
    EXPECT_EQ(box->shown().size(), 1u);
}

TEST_F(RelTest, MissingRelationOnAReadOnlyDatabase) {
    nxDb db;
    ASSERT_NO_FATAL_FAILURE(openReadOnlyJet(db));
    nxRel rel;
    rel.Db(&db);
    box->answer(1);
    EXPECT_FALSE(rel.RelOpen(u"FK_X"_s, u"RIGA"_s, u"ORDINE"_s, u"A"_s, u"B"_s, 1, 1));
    ASSERT_EQ(box->shown().size(), 1u);
    EXPECT_EQ(box->last().text, u"Relazione 'FK_X' inesistente."_s);
    EXPECT_EQ(box->last().flags, 48);
}

} // namespace

namespace {

TEST_F(RelTest, KeysOfTheCatalog) {
    nxDb db;
    EXPECT_FALSE(db.RelExist(u"FK_RIGA"_s, u"RIGA"_s));
    openServer(db);
    ado::CatalogKey key;
    key.name = u"FK_RIGA"_s;
    key.type = ado::KeyTypeEnum::adKeyForeign;
    key.relatedTable = u"ORDINE"_s;
    server->script().catalogTable(ado::CatalogTable{u"RIGA"_s, u"TABLE"_s, {}, {}, {}}, {}, {},
                                  {key});
    EXPECT_TRUE(db.RelExist(u"fk_riga"_s, u"RIGA"_s));
    EXPECT_FALSE(db.RelExist(u"FK_ALTRO"_s, u"RIGA"_s));
    EXPECT_FALSE(db.RelExist(u"FK_RIGA"_s, u"NESSUNA"_s));
    EXPECT_MEMBER_OK(db.RelDel(u"FK_ALTRO"_s, u"RIGA"_s)); // nothing to delete
    EXPECT_MEMBER_OK(db.RelDel(u"FK_RIGA"_s, u"RIGA"_s));
    EXPECT_FALSE(db.RelExist(u"FK_RIGA"_s, u"RIGA"_s));
    EXPECT_TRUE(server->journal().lines().contains(u"catalog: delete key RIGA.FK_RIGA"_s));
}

} // namespace

namespace {

// RIGA holds FK_RIGA on IDOrdine, referring to ORDINE.IDRec with no cascade, as the catalog and
// the foreign-keys rowset of `provider` say.
void existingKey(ado::recording::Script& script) {
    script.schema(ado::SchemaEnum::adSchemaForeignKeys,
                  {ado::SchemaRow(ado::SchemaEnum::adSchemaForeignKeys)
                       .set(u"PK_TABLE_NAME", u"ORDINE"_s)
                       .set(u"PK_COLUMN_NAME", u"IDRec"_s)
                       .set(u"FK_TABLE_NAME", u"RIGA"_s)
                       .set(u"FK_COLUMN_NAME", u"IDOrdine"_s)
                       .set(u"FK_NAME", u"FK_RIGA"_s)
                       .take()});
    ado::CatalogColumn column;
    column.name = u"IDOrdine"_s;
    column.relatedColumn = u"IDRec"_s;
    ado::CatalogKey key;
    key.name = u"FK_RIGA"_s;
    key.type = ado::KeyTypeEnum::adKeyForeign;
    key.relatedTable = u"ORDINE"_s;
    key.columns = {column};
    script.catalogTable(ado::CatalogTable{u"RIGA"_s, u"TABLE"_s, {}, {}, {}}, {}, {}, {key});
}

// A key that exists is made again with the rules of the new declaration: on the server it is
// dropped and added by statements, on Jet deleted from the catalog and appended again.
TEST_F(RelTest, AnExistingKeyIsMadeAgainWithTheDeclaredRules) {
    existingKey(server->script());
    nxDb db;
    openServer(db);
    nxRel rel;
    rel.Db(&db);
    ASSERT_MEMBER_OK(
        rel.RelOpen(u"FK_RIGA"_s, u"RIGA"_s, u"ORDINE"_s, u"IDOrdine"_s, u"IDRec"_s, 1, 0));
    EXPECT_FALSE(rel.IsNew());
    EXPECT_TRUE(rel.FldExist(u"IDOrdine"_s));
    EXPECT_MEMBER_OK(rel.FldAdd(u"IDOrdine"_s, u"IDRec"_s)); // there already
    server->journal().clear();
    EXPECT_MEMBER_OK(rel.RelClose());
    EXPECT_EQ(server->journal().statements(),
              (QStringList{u"alter table RIGA drop constraint FK_RIGA"_s,
                           u"alter table RIGA add constraint FK_RIGA foreign key (IDOrdine) "
                           u"references ORDINE (IDRec) on delete cascade"_s}));

    existingKey(jet->script());
    nxDb jetDb;
    openJet(jetDb);
    rel.Db(&jetDb);
    ASSERT_MEMBER_OK(
        rel.RelOpen(u"FK_RIGA"_s, u"RIGA"_s, u"ORDINE"_s, u"IDOrdine"_s, u"IDRec"_s, 0, 1));
    EXPECT_FALSE(rel.IsNew());
    jet->journal().clear();
    EXPECT_MEMBER_OK(rel.RelClose());
    EXPECT_EQ(jet->journal().lines().filter(u"catalog: "_s),
              (QStringList{u"catalog: delete key RIGA.FK_RIGA"_s,
                           u"catalog: append key RIGA.FK_RIGA type 2 references ORDINE "
                           u"(IDOrdine=IDRec) delete 0 update 1"_s}));
    EXPECT_TRUE(jet->journal().statements().isEmpty());
    EXPECT_TRUE(box->shown().empty());
}

} // namespace
