// The whole definition of Definition.cpp against a real T-SQL server: the one named by
// UPSIZER_TEST_SERVER ("host,port"), logging in as UPSIZER_TEST_USER with UPSIZER_TEST_PASSWORD.
// Each test makes a database of its own through nxDb::DbOpen and drops it at the end. Without
// UPSIZER_TEST_SERVER every test reports itself skipped.
//
// Where the server is a PostgreSQL with T-SQL extensions rather than SQL Server, some facts
// differ and are noted where they are checked: names in the sys.* views come back lower-cased,
// and it accepts cascade paths SQL Server refuses with 1785, so every relation here becomes a
// foreign key and the TR_ trigger path is checked only on the recording provider. It also refuses
// to close a column with "alter table .. alter column .. not null"; the provider is wrapped so that
// the batch goes on past that refusal (tests/support/NotNullTolerance.h), and each column so
// closed is checked to be not null all the same. There the test runs 8 to 12 minutes, with
// seven closings tolerated (three required texts, SIGLA again for its unique index, and the
// three keys), and it gives the date default back in its own form (a cast of
// babelfish_conv_helper_to_varchar(..., 112)), so only the value of a new row is checked for it.
#include "tests/dbaccess/Definition.h"

#include "dbaccess/nxConn.h"
#include "dbaccess/nxDb.h"
#include "dbaccess/nxTd.h"

#include "platform/ado/Connection.h"
#include "platform/ado/Error.h"
#include "platform/ado/Recordset.h"

#include "tests/support/AppFixture.h"
#include "tests/support/MemberOk.h"
#include "tests/support/NotNullTolerance.h"
#include "tests/support/Printers.h"
#include "tests/support/RealServer.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

#include <iostream>
#include <optional>

using namespace Qt::StringLiterals;
using namespace dbtest;

namespace {

// Rows of a query on a connection of the test's own, each as "a|b|c", lower-cased so that both
// kinds of server compare alike.
QStringList rowsOf(const ado::ConnectionPtr& c, const QString& query) {
    QStringList result;
    ado::RecordsetPtr rs = c->Execute(query);
    for (; !rs->Eof(); rs->MoveNext()) {
        QStringList fields;
        for (long i = 0; i < rs->Fields().Count(); ++i) {
            const vb::Variant v = rs->Fields().Item(i).Value();
            fields << (v.isNull() ? u"null"_s : v.toString().toLower());
        }
        result << fields.join(u'|');
    }
    rs->Close();
    return result;
}

class RealServerTest : public apptest::AppTest {
protected:
    void SetUp() override {
        REQUIRE_REAL_SERVER();
        AppTest::SetUp();
        if (HasFatalFailure()) {
            return;
        }
        box->setFallback(1); // a box nobody expected is recorded, and the test fails on it
        database = realserver::scratchName(u"dba"_s);
        dropDatabase();
        db.emplace(); // after the library has started, which nxDb notes when it is made
        scope.emplace(apptest::kServerProvider,
                      std::make_shared<notnull::ToleratingProvider>(
                          ado::ProviderRegistry::instance().get(apptest::kServerProvider),
                          tolerated));
    }
    void TearDown() override {
        if (database.isEmpty()) {
            return;
        }
        if (db) {
            db->DbClose();
        }
        dropDatabase();
        scope.reset();
        AppTest::TearDown();
    }

    void dropDatabase() const {
        try {
            realserver::dropDatabase(database);
        } catch (const ado::Error& e) {
            ADD_FAILURE() << "could not drop " << database.toStdString() << ": " << e.what();
        }
    }
    void open() {
        ASSERT_MEMBER_OK(db->DbOpen(database, DbOpenShared | DbOpenCreate, false,
                                   apptest::kServerProvider, realserver::server(), 2,
                                   realserver::user(), realserver::password()));
        ASSERT_TRUE(db->IsNew());
        ASSERT_EQ(db->DbType(), 1);
    }

    QString database;
    std::optional<nxDb> db;
    std::shared_ptr<notnull::Tolerated> tolerated = std::make_shared<notnull::Tolerated>();
    std::optional<ado::ScopedProvider> scope;
};

// The definition is made once: on the PostgreSQL-based server each catalog question of nxConn
// takes seconds, and the whole definition close to ten minutes.
TEST_F(RealServerTest, TheDefinitionMakesTheCatalogItDescribes) {
    ASSERT_NO_FATAL_FAILURE(open());
    ASSERT_NO_FATAL_FAILURE(defineDocuments(*db));
    EXPECT_TRUE(box->shown().empty());
    nxConn& conn = *db->ConnUtils();
    ado::ConnectionPtr c = realserver::open(database);
    const bool babelfish = rowsOf(c, u"select @@version"_s).join(QString()).startsWith(u"babelfish"_s);
    std::cout << "statements tolerated: " << tolerated->columns.join(u", "_s).toStdString()
              << "\n";
    EXPECT_EQ(notnull::stillNullable(c, *tolerated), QStringList());

    // Column types, nullability and identity, in the order of the definition.
    EXPECT_EQ(rowsOf(c, u"select c.name, t.name, c.max_length, cast(c.is_nullable as int), "
                        u"cast(c.is_identity as int) from sys.columns c "
                        u"join sys.types t on t.user_type_id = c.user_type_id "
                        u"where c.object_id = object_id('DOCUMENTO') order by c.column_id"_s),
              (QStringList{u"idrec|int|4|0|1"_s, u"sys_record|int|4|0|0"_s,
                           u"livello|smallint|2|1|0"_s, u"numero|int|4|1|0"_s,
                           u"importo|float|8|1|0"_s, u"prezzo|money|8|1|0"_s,
                           u"data|datetime|8|1|0"_s, u"ora|datetime|8|1|0"_s,
                           u"emesso|datetime|8|1|0"_s, u"attivo|bit|1|1|0"_s,
                           u"chiuso|bit|1|0|0"_s, u"chiave|uniqueidentifier|16|0|0"_s,
                           u"nome|nvarchar|100|0|0"_s, u"sigla|nvarchar|20|0|0"_s,
                           u"descr|nvarchar|200|1|0"_s, u"testo|nvarchar|-1|1|0"_s,
                           u"memo|nvarchar|-1|0|0"_s}));
    EXPECT_TRUE(conn.IsIdentityField(u"DOCUMENTO"_s, u"IDRec"_s));
    EXPECT_FALSE(conn.IsIdentityField(u"DOCUMENTO"_s, u"SYS_RECORD"_s));
    QString identity;
    EXPECT_TRUE(conn.HasIdentityField(u"RIGA"_s, &identity));
    EXPECT_EQ(identity, u"IDRec"_s);
    if (babelfish) {
        // columnproperty(..., 'AllowsNull') answers null there, so neither flag matches.
        EXPECT_FALSE(conn.CheckNullable(u"DOCUMENTO"_s, u"DESCR"_s, true));
        EXPECT_FALSE(conn.CheckNullable(u"DOCUMENTO"_s, u"DESCR"_s, false));
    } else {
        EXPECT_TRUE(conn.CheckNullable(u"DOCUMENTO"_s, u"NOME"_s, false));
        EXPECT_TRUE(conn.CheckNullable(u"DOCUMENTO"_s, u"DESCR"_s, true));
        EXPECT_FALSE(conn.CheckNullable(u"DOCUMENTO"_s, u"MEMO"_s, true));
    }

    // Default constraints: one for each column that has a default, named DEFVAL_ with table
    // and column. The PostgreSQL-based server keeps no names of its own for defaults (it lists
    // them as df_<table>_<number>, with default_object_id 0 in sys.columns), so there only the
    // columns are checked, and nxConn finds no constraint name and no default through the
    // catalog; the values are checked by inserting a row below.
    const QStringList defaulted{u"attivo"_s, u"chiuso"_s, u"data"_s,  u"livello"_s,
                                u"memo"_s,   u"nome"_s,   u"ora"_s,   u"prezzo"_s,
                                u"sigla"_s,  u"sys_record"_s};
    const QStringList constraints =
        rowsOf(c, u"select col_name(d.parent_object_id, d.parent_column_id), d.name "
                  u"from sys.default_constraints d "
                  u"where d.parent_object_id = object_id('DOCUMENTO') order by 1"_s);
    ASSERT_EQ(constraints.size(), defaulted.size()) << constraints.join(u' ').toStdString();
    for (qsizetype i = 0; i < constraints.size(); ++i) {
        const QString column = constraints[i].section(u'|', 0, 0);
        EXPECT_EQ(column, defaulted[i]);
        if (!babelfish) {
            EXPECT_EQ(constraints[i].section(u'|', 1), u"defval_documento"_s + column);
        }
    }
    if (!babelfish) {
        EXPECT_EQ(conn.GetConstraintName(u"DOCUMENTO"_s, u"LIVELLO"_s).toLower(),
                  u"defval_documentolivello"_s);
        EXPECT_EQ(conn.GetDefault(u"DOCUMENTO"_s, u"LIVELLO"_s), u"0"_s);
        EXPECT_EQ(conn.GetDefault(u"DOCUMENTO"_s, u"SIGLA"_s), u"abc"_s);
        EXPECT_EQ(conn.GetDefault(u"DOCUMENTO"_s, u"NOME"_s), QString());
    }
    EXPECT_TRUE(conn.GetConstraintName(u"DOCUMENTO"_s, u"IMPORTO"_s).isEmpty());
    EXPECT_TRUE(conn.GetDefault(u"DOCUMENTO"_s, u"IMPORTO"_s).isEmpty());
    std::cout << "the server reports the date default as "
              << conn.GetDefault(u"DOCUMENTO"_s, u"DATA"_s).toStdString() << "\n";

    // Keys and indexes: the CUR_ primary keys, the unique index, the directions. The
    // PostgreSQL-based server lists an index that is no constraint under its name followed by
    // the table's and 32 hexadecimal digits; that tail is taken off here.
    QStringList indexes = rowsOf(
        c, u"select object_name(object_id), name, cast(is_primary_key as int), "
           u"cast(is_unique as int) from sys.indexes where object_id in (object_id('DOCUMENTO'), "
           u"object_id('RIGA'), object_id('ALLEGATO')) and name is not null order by 1, 2"_s);
    QString ixData = u"IX_DATA"_s;
    for (QString& row : indexes) {
        const QString table = row.section(u'|', 0, 0);
        const QString name = row.section(u'|', 1, 1);
        const QRegularExpression tail(u"^(.+)"_s + table + u"[0-9a-f]{32}$"_s);
        if (const auto m = tail.match(name); m.hasMatch()) {
            row.replace(name, m.captured(1));
            if (m.captured(1) == u"ix_data"_s) {
                ixData = name;
            }
        }
    }
    EXPECT_EQ(indexes,
              (QStringList{u"allegato|cur_allegatoprimarykey|1|1"_s,
                           u"documento|cur_documentoprimarykey|1|1"_s,
                           u"documento|ix_data|0|0"_s, u"documento|ux_sigla|0|1"_s,
                           u"riga|cur_rigaprimarykey|1|1"_s, u"riga|ix_documento|0|0"_s}));
    QString fields;
    EXPECT_TRUE(db->IdxExists(u"DOCUMENTO"_s, ixData, &fields)) << ixData.toStdString();
    EXPECT_EQ(fields.toLower(), u"data desc,nome asc"_s);
    EXPECT_TRUE(db->IdxExists(u"DOCUMENTO"_s, u"CUR_DOCUMENTOPrimaryKey"_s, &fields));
    EXPECT_EQ(fields.toLower(), u"idrec asc"_s);
    EXPECT_FALSE(db->IdxExists(u"DOCUMENTO"_s, u"PrimaryKey"_s));

    // Relations: each rule as the server holds it; the one that cascades nothing is not there.
    EXPECT_EQ(rowsOf(c, u"select name, object_name(parent_object_id), "
                        u"object_name(referenced_object_id), delete_referential_action_desc, "
                        u"update_referential_action_desc from sys.foreign_keys order by name"_s),
              (QStringList{u"fk_allegato_documento|allegato|documento|cascade|no_action"_s,
                           u"fk_riga_documento|riga|documento|cascade|cascade"_s,
                           u"fk_riga_origine|riga|documento|no_action|cascade"_s}));
    EXPECT_TRUE(conn.RelationExists(u"RIGA"_s, u"DOCUMENTO"_s, u"IDDocumento"_s, u"IDRec"_s));
    EXPECT_FALSE(conn.RelationExists(u"RIGA"_s, u"DOCUMENTO"_s, u"IDCopia"_s, u"IDRec"_s));
    EXPECT_TRUE(db->RelExist(u"FK_RIGA_DOCUMENTO"_s, u"RIGA"_s));
    EXPECT_FALSE(db->RelExist(u"FK_RIGA_COPIA"_s, u"RIGA"_s));
    EXPECT_TRUE(rowsOf(c, u"select name from sys.triggers"_s).isEmpty());

    // The defaults and cascades act as Jet's would: a row given only what has no default gets
    // the rest from the constraints, and deleting a document takes its lines and attachments
    // along, while the reference that cascades nothing is not enforced. FILE is a reserved word
    // of T-SQL: a statement of the test's own brackets it as nxTd does.
    c->Execute(u"insert into DOCUMENTO (NUMERO, CHIAVE) values (7, newid())"_s);
    EXPECT_EQ(rowsOf(c, u"select SYS_RECORD, LIVELLO, cast(PREZZO as int), cast(ATTIVO as int), "
                        u"cast(CHIUSO as int), NOME, SIGLA, DESCR, MEMO, IMPORTO, EMESSO, "
                        u"case when DATA = convert(varchar(8), getdate(), 112) then 'today' "
                        u"else 'other' end, convert(char(8), ORA, 112) from DOCUMENTO"_s),
              QStringList{u"0|0|0|0|0||abc|null||null|null|today|18991230"_s});
    c->Execute(u"insert into RIGA (IDDocumento, IDOrigine) select IDRec, IDRec from DOCUMENTO"_s);
    c->Execute(u"insert into ALLEGATO (IDDocumento, [FILE]) select IDRec, 'a.pdf' from DOCUMENTO"_s);
    c->Execute(u"insert into RIGA (IDCopia) values (12345)"_s);
    c->Execute(u"delete from DOCUMENTO"_s);
    EXPECT_EQ(rowsOf(c, u"select count(*) from RIGA"_s), QStringList{u"1"_s});
    EXPECT_EQ(rowsOf(c, u"select count(*) from ALLEGATO"_s), QStringList{u"0"_s});
    c->Close();
}

} // namespace
