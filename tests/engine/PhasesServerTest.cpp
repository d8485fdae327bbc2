// The phases on a real Jet source built by mdbgen and, for the server side, on the real server
// named by UPSIZER_TEST_SERVER ("host,port"), logging in as UPSIZER_TEST_USER with
// UPSIZER_TEST_PASSWORD. The suite makes a database of its own and drops it. Without the
// Solvaria sources or without UPSIZER_TEST_SERVER the tests report themselves skipped.
//
// Where a PostgreSQL with T-SQL extensions answers in place of SQL Server, sys.* views give names
// in lower case, so index and column names are compared without regard to case.
#include "engine/IdentityObjects.h"
#include "engine/IndexRecreation.h"
#include "engine/TableCopy.h"
#include "engine/TableRecreation.h"

#include "PhaseFixture.h"

#include "tests/engine/DbImportFixture.h"
#include "tests/support/RealServer.h"

#include "jobs/nxRsJob.h"

#include "platform/ado/Error.h"
#include "platform/ado/Field.h"
#include "platform/ado/Recordset.h"
#include "platform/jetfile/Database.h"
#include "platform/jetfile/RowCursor.h"

#include <QElapsedTimer>
#include <QRegularExpression>

#include <iostream>

namespace phasetest {
namespace {

// Every row of a query, its fields joined with "|".
QStringList query(const ado::ConnectionPtr& c, const QString& sql) {
    QStringList out;
    ado::RecordsetPtr r = c->Execute(sql);
    while (!r->Eof()) {
        QStringList fields;
        for (long i = 0; i < r->Fields().Count(); ++i) {
            fields << r->Fields().Item(i).Value().toString();
        }
        out << fields.join(u'|');
        r->MoveNext();
    }
    r->Close();
    return out;
}

// SYS_RECORD, CODICE, OGGETTO and NOTE of the given records of an archive, read from the file
// by jetfile (the Jet provider answers no such query), fields joined with "|".
QStringList fileRows(const QString& path, const QString& table, const QList<long>& records) {
    QStringList out;
    const auto db = jetfile::Database::open(path);
    auto cursor = db.scan(table);
    const QStringList names = {u"SYS_RECORD"_s, u"CODICE"_s, u"OGGETTO"_s, u"NOTE"_s};
    while (cursor.next()) {
        if (!records.contains(cursor.value(u"SYS_RECORD").toLong().value_or(-1))) {
            continue;
        }
        QStringList fields;
        for (const QString& name : names) {
            fields << cursor.value(name).toString();
        }
        out << fields.join(u'|');
    }
    return out;
}

// The archive shape every Solvaria archive has, as its columns map to the server.
QString archiveStatement(const QString& enclosedName) {
    return u"create table "_s + enclosedName +
           u" (SYS_RECORD int not null, SYS_DATAINS datetime, SYS_UTENTE nvarchar(25), "
           u"CODICE nvarchar(20) not null, OGGETTO nvarchar(255) default '', NUMERO int default 0, "
           u"DATA_DOC datetime, IMPORTO money default 0, ALIQUOTA float, NOTE ntext, "
           u"ARCHIVIATO bit default 0)"_s;
}

// A copy of solvaria-small.mdb opened through the built-in Jet provider.
class JetSourceTest : public PhaseTest {
protected:
    void SetUp() override {
        PhaseTest::SetUp();
        jetScope.reset();
        const QString built = enginetest::solvariaSource(u"small"_s);
        if (built.isEmpty() || !QFile::exists(built)) {
            GTEST_SKIP() << "the Solvaria sources are built only with -DUPSIZER_MDBGEN=ON";
        }
        source = dir.file(u"QZSystem.mdb"_s);
        ASSERT_TRUE(QFile::copy(built, source));
        QFile::setPermissions(source, QFile::ReadOwner | QFile::WriteOwner);
        ASSERT_MEMBER_OK(run->src.DbOpen(source, 9, true, kJet, {}, 2));
        run->srcConn.Connection(run->src.ConnUtils()->CloneConnection());
    }

    QString source;
};

TEST_F(JetSourceTest, TheArchivesOfTheSourceBecomeOneStatementEach) {
    engine::TableRecreation phase(run->context());
    EXPECT_EQ(phase.GetCreateTableSql(u"D_PROTOCOLLO"_s, run->srcConn.Connection()),
              archiveStatement(u"D_PROTOCOLLO"_s));
    EXPECT_EQ(phase.GetCreateTableSql(u"2019_CORRISP"_s, run->srcConn.Connection()),
              archiveStatement(u"[2019_CORRISP]"_s));
    // A table the source does not have gives the bare frame, which the server refuses.
    EXPECT_EQ(phase.GetCreateTableSql(u"D_RIMOSSO"_s, run->srcConn.Connection()),
              u"create table D_RIMOSSO ()"_s);
}

class PhasesServerTest : public JetSourceTest {
protected:
    static void SetUpTestSuite() {
        if (!realserver::isNamed()) {
            return;
        }
        s_database = realserver::scratchName(u"phases"_s);
        try {
            realserver::recreateDatabase(s_database);
        } catch (const ado::Error& e) {
            s_setupError = e.description();
        }
    }
    static void TearDownTestSuite() {
        if (s_database.isEmpty()) {
            return;
        }
        try {
            realserver::dropDatabase(s_database);
        } catch (const ado::Error& e) {
            std::cerr << "could not drop " << s_database.toStdString() << ": "
                      << e.description().toStdString() << '\n';
        }
    }
    void SetUp() override {
        REQUIRE_REAL_SERVER();
        if (s_setupError.contains(u"single-db mode"_s)) {
            // A server that holds one user database at a time, and another suite's is there.
            GTEST_SKIP() << "the server refused a database of this suite's own: "
                         << s_setupError.toStdString();
        }
        ASSERT_TRUE(s_setupError.isEmpty()) << s_setupError.toStdString();
        JetSourceTest::SetUp();
        if (IsSkipped()) {
            return;
        }
        serverScope.reset();
        ASSERT_MEMBER_OK(run->dest.DbOpen(s_database, 8, true, kServer, realserver::server(), 2,
                                         realserver::user(), realserver::password()));
        run->destConn.Connection(run->dest.ConnUtils()->CloneConnection());
        run->masterConn.Connection(realserver::open());
        check = realserver::open(s_database);
    }
    void TearDown() override {
        if (check) {
            check->Close();
        }
        if (run) {
            run->dest.DbClose();
            run->src.DbClose();
        }
        JetSourceTest::TearDown();
    }

    std::int32_t sourceCount(const QString& table) { return run->src.TdRecordCount(table, true); }

    static inline QString s_database;
    static inline QString s_setupError;
    ado::ConnectionPtr check;
};

TEST_F(PhasesServerTest, AnArchiveIsRecreatedIndexedAndCopied) {
    engine::TableRecreation tables(run->context());
    engine::IndexRecreation indexes(run->context(), tables);
    nxRsJob job;
    engine::TableCopy copy(run->context(), tables, job);
    QElapsedTimer clock;
    clock.start();
    for (QString table : {u"D_CONTRATTI"_s, u"2019_CORRISP"_s, u"DIZ_TIPIDOC"_s}) {
        ASSERT_MEMBER_OK(run->dest.Execute(
            tables.GetCreateTableSql(table, run->srcConn.Connection()), false, 128))
            << table.toStdString();
        ASSERT_TRUE(indexes.CreateTableIndexes(table)) << run->events.lines.join(u'\n').toStdString();
        if (table == u"D_CONTRATTI"_s) {
            // A Jet yes/no value is never null, so no source record can give the fix after the
            // copy anything to do: a record planted on the server before the copy does.
            check->Execute(u"insert into D_CONTRATTI (SYS_RECORD, CODICE, ARCHIVIATO) values "
                           u"(-1, 'PIANTATO', null)"_s);
        }
        ASSERT_TRUE(copy.CopyTableData(table)) << run->events.lines.join(u'\n').toStdString();
    }
    const qint64 ms = clock.elapsed();
    EXPECT_EQ(run->events.lines.filter(u"Error"_s), QStringList());

    // The yes/no null turned to 0 by the copy; then the planted record goes.
    EXPECT_EQ(query(check, u"select cast(ARCHIVIATO as int) from D_CONTRATTI where SYS_RECORD = -1"_s),
              QStringList{u"0"_s});
    check->Execute(u"delete from D_CONTRATTI where SYS_RECORD = -1"_s);

    // Every record, none of them with a null yes/no value.
    const std::int32_t contratti = sourceCount(u"D_CONTRATTI"_s);
    EXPECT_EQ(contratti, 100);
    EXPECT_EQ(query(check, u"select count(*) from D_CONTRATTI"_s),
              QStringList{QString::number(contratti)});
    EXPECT_EQ(query(check, u"select count(*) from [2019_CORRISP]"_s),
              QStringList{QString::number(sourceCount(u"2019_CORRISP"_s))});
    EXPECT_EQ(query(check, u"select count(*) from DIZ_TIPIDOC"_s), QStringList{u"8"_s});
    EXPECT_EQ(query(check, u"select count(*) from D_CONTRATTI where ARCHIVIATO is null"_s),
              QStringList{u"0"_s});
    // SYS_RECORD values kept as the source has them (no identity on the server).
    ado::ConnectionPtr jetConn = run->srcConn.Connection();
    EXPECT_EQ(query(check, u"select min(SYS_RECORD), max(SYS_RECORD) from D_CONTRATTI"_s),
              query(jetConn, u"select min(SYS_RECORD), max(SYS_RECORD) from D_CONTRATTI"_s));
    EXPECT_EQ(query(check, u"select count(*) from sys.identity_columns where object_id = "
                           u"object_id('D_CONTRATTI')"_s),
              QStringList{u"0"_s});
    // A sample of the text and memo values went through unchanged.
    EXPECT_EQ(query(check, u"select SYS_RECORD, CODICE, OGGETTO, NOTE from D_CONTRATTI where "
                           u"SYS_RECORD in (1, 2, 3, 50) order by SYS_RECORD"_s),
              fileRows(source, u"D_CONTRATTI"_s, {1, 2, 3, 50}));

    // The indexes with their names and directions.
    QStringList names = query(
        check, u"select i.name, c.name, ic.is_descending_key from sys.indexes i "
               u"join sys.index_columns ic on ic.object_id = i.object_id and ic.index_id = i.index_id "
               u"join sys.columns c on c.object_id = ic.object_id and c.column_id = ic.column_id "
               u"where i.object_id = object_id('D_CONTRATTI') order by i.name, ic.key_ordinal"_s);
    for (QString& n : names) {
        n = n.toUpper();
    }
    names.sort();
    QStringList expected{u"CODICE|CODICE|0"_s,           u"CUR_D_CONTRATTIPRIMARYKEY|SYS_RECORD|0"_s,
                         u"DATA_DOC|DATA_DOC|1"_s,       u"NUMERO_DATA|DATA_DOC|1"_s,
                         u"NUMERO_DATA|NUMERO|0"_s};
    // A yes/no value reads as Vero/Falso. The local server keeps an index under its name followed
    // by the table's and a 32-digit hash (SQL Server keeps the name as given): that tail is cut.
    names.replaceInStrings(u"|VERO"_s, u"|1"_s).replaceInStrings(u"|FALSO"_s, u"|0"_s);
    names.replaceInStrings(QRegularExpression(u"^([^|]+)D_CONTRATTI[0-9A-F]{32}\\|"_s), u"\\1|"_s);
    EXPECT_EQ(names, expected) << names.join(u'\n').toStdString();
    std::cout << "three tables (" << contratti << "+" << sourceCount(u"2019_CORRISP"_s)
              << "+8 records) recreated, indexed and copied in " << ms << " ms\n";
}

TEST_F(PhasesServerTest, TheIdentityObjectsHandOutTheNumbersTheSuiteExpects) {
    engine::IdentityObjects phase(run->dest);
    ASSERT_MEMBER_OK(phase.CreateSysIDsTable());
    // A second run meets the objects in place and makes them again.
    ASSERT_MEMBER_OK(phase.CreateSysIDsTable());
    check->Execute(u"create table D_NUMERI (SYS_RECORD int not null, X int)"_s);
    check->Execute(u"insert into D_NUMERI (SYS_RECORD) values (5)"_s);
    check->Execute(u"insert into D_NUMERI (SYS_RECORD) values (41)"_s);
    check->Execute(u"insert into D_NUMERI (SYS_RECORD) values (7)"_s);
    check->Execute(u"create table D_VUOTO (SYS_RECORD int not null)"_s);
    EXPECT_EQ(query(check, u"declare @m int; exec @m = GetMaxIdentity 'D_NUMERI'; select @m"_s),
              QStringList{u"41"_s});
    EXPECT_EQ(query(check, u"declare @m int; exec @m = GetMaxIdentity 'D_VUOTO'; select @m"_s),
              QStringList{u"0"_s});
    EXPECT_EQ(query(check, u"exec GetIdentity 'D_NUMERI'"_s), QStringList{u"42"_s});
    EXPECT_EQ(query(check, u"exec GetIdentity 'D_NUMERI'"_s), QStringList{u"43"_s});
    EXPECT_EQ(query(check, u"exec GetIdentity 'D_VUOTO'"_s), QStringList{u"1"_s});
    EXPECT_EQ(query(check, u"select TABELLA, RECNUM from SYS_IDS order by TABELLA"_s),
              (QStringList{u"D_NUMERI|43"_s, u"D_VUOTO|1"_s}));
}

} // namespace
} // namespace phasetest
