// upsizer-cli converting mdbgen's solvaria-small onto the server named by UPSIZER_TEST_SERVER
// (tests/support/RealServer.h) into a database of the test's own, dropped at the end. Without a
// server, or without the Solvaria sources, the tests report themselves skipped.
//
// Where a PostgreSQL with T-SQL extensions answers in place of SQL Server:
// - it refuses "alter table .. alter column .. not null" and the whole batch with it, so
//   qzSystem::DbCreate would make no key, default or index after the first such statement and
//   the run would end with "Errore di creazione database". The conversion therefore runs in this
//   process with the server's provider wrapped (tests/support/NotNullTolerance.h) so that exactly
//   that refusal is answered as if the statement had run; the columns it concerned are checked to
//   be not null all the same. The built program meets the refusal as it is, so it is started
//   here only for what ends before the database is made;
// - qzSystem::DbCreate asks the catalog a question for nearly every column, key and index, each
//   on a login of its own: the whole system schema takes 11 to 25 minutes there (hours while its
//   T-SQL parser started cold for every login), and the run prints nothing meanwhile: it waits on
//   the server, it is not hung. The whole conversion took 14 to 24 minutes there under load;
// - it accepts any password for a known login, so a refused login is shown with an unknown one;
// - it lists names in lower case, so tables are compared without regard to case.
#include "console/DbImportRun.h"
#include "console/cli/Cli.h"

#include "platform/ado/Error.h"
#include "platform/ado/Field.h"
#include "platform/ado/ProviderRegistry.h"
#include "platform/ado/Recordset.h"

#include "tests/console/SolvariaSource.h"
#include "tests/frame/FrameFixture.h"
#include "tests/support/NotNullTolerance.h"
#include "tests/support/RealServer.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <iostream>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

// The first field of every row of a query.
QStringList firstColumn(const ado::ConnectionPtr& cn, const QString& sql) {
    QStringList values;
    const ado::RecordsetPtr rs = cn->Execute(sql);
    while (!rs->Eof()) {
        values << rs->Fields().Item(0L).Value().toString();
        rs->MoveNext();
    }
    rs->Close();
    return values;
}

qint64 rowCount(const ado::ConnectionPtr& cn, const QString& table) {
    const QStringList counts = firstColumn(cn, u"select count(*) from ["_s + table + u"]"_s);
    return counts.size() == 1 ? counts[0].toLongLong() : -1;
}

class CliRealServerTest : public FrameTest {
protected:
    void SetUp() override {
        REQUIRE_REAL_SERVER();
        startLibrary = false;
        FrameTest::SetUp();
        SKIP_WITHOUT_BUILT_SOURCE(u"small"_s);
        source = dir.file(u"QZSystem.mdb"_s);
        ASSERT_TRUE(copyBuiltSource(source));
        // The run renames the source; the rows are counted in a copy of its own.
        original = dir.file(u"original.mdb"_s);
        ASSERT_TRUE(copyBuiltSource(original));
        database = realserver::scratchName(u"cli"_s);
        realserver::dropDatabase(database);
    }
    void TearDown() override {
        if (!database.isEmpty()) {
            try {
                realserver::dropDatabase(database);
            } catch (const ado::Error& e) {
                std::cerr << "could not drop " << database.toStdString() << ": "
                          << e.description().toStdString() << '\n';
            }
        }
        FrameTest::TearDown();
    }

    QStringList arguments() const {
        return {u"--source"_s,
                source,
                u"--server"_s,
                realserver::server(),
                u"--database"_s,
                database,
                u"--description"_s,
                u"Archivio di prova"_s,
                u"--user"_s,
                realserver::user(),
                u"--password-env"_s,
                u"UPSIZER_CLI_PASSWORD"_s,
                u"--continue-on-index-warnings"_s};
    }

    // What the run printed, what it said on the error stream and the log: for a failure message.
    QString report(int code, const QString& out, const QString& err) const {
        return u"exit %1\n--- out\n%2--- err\n%3--- log\n%4"_s.arg(
            QString::number(code), out, err,
            QString::fromLatin1(readAll(dir.file(u"ConversionLog.txt"_s))));
    }

    // Nothing the run printed or wrote beside the source holds the password in the clear (the
    // configuration holds it encrypted, for the suite to log in with).
    void expectThePasswordNowhere(const QString& password, const QString& out, const QString& err) {
        ASSERT_FALSE(password.isEmpty());
        EXPECT_FALSE(out.contains(password));
        EXPECT_FALSE(err.contains(password));
        for (const QString& file : QDir(dir.path()).entryList(QDir::Files)) {
            EXPECT_FALSE(readAll(dir.file(file)).contains(password.toUtf8())) << file.toStdString();
        }
    }

    QString source;
    QString original;
    QString database;
};

TEST_F(CliRealServerTest, ASmallSourceBecomesADatabaseOnTheServer) {
    auto tolerated = std::make_shared<notnull::Tolerated>();
    std::optional<ado::ScopedProvider> tolerating;
    tolerating.emplace(u"SQLOLEDB"_s,
                       std::make_shared<notnull::ToleratingProvider>(
                           ado::ProviderRegistry::instance().get(u"SQLOLEDB"), tolerated));
    QProcessEnvironment environment;
    environment.insert(u"UPSIZER_CLI_PASSWORD"_s, realserver::password());
    QString out;
    QString err;
    QTextStream outStream(&out);
    QTextStream errStream(&err);
    QElapsedTimer clock;
    clock.start();
    const int code = cli::main(arguments(), environment, dbImportRuns(), outStream, errStream);
    outStream.flush();
    errStream.flush();
    tolerating.reset();
    std::cout << "solvaria-small converted through upsizer-cli in " << clock.elapsed() / 1000
              << " s; the server refused \"alter column .. not null\" for "
              << tolerated->columns.size() << " columns, " << tolerated->leftOpen.size()
              << " of them still nullable then\n";
    const std::string why = report(code, out, err).toStdString();

    ASSERT_EQ(code, cli::kDone) << why;
    EXPECT_EQ(err, QString()) << why;
    const QStringList lines = out.split(u'\n', Qt::SkipEmptyParts);
    ASSERT_GE(lines.size(), 7) << why;
    EXPECT_EQ(
        lines.mid(0, 5),
        (QStringList{
            u"Inizio verifica database sorgente..."_s, u"Verifica database sorgente completata."_s,
            u"Creazione database '"_s + database + u"' su "_s + realserver::server() + u"."_s,
            u"Creazione database completata."_s, u"Inizio importazione archivio."_s}))
        << why;
    EXPECT_EQ(lines.mid(lines.size() - 2),
              (QStringList{u"Termine importazione archivio."_s, u"Importazione eseguita."_s}))
        << why;
    // DB_ELENCO lists five archives; D_RIMOSSO is listed but not in the source.
    EXPECT_TRUE(lines.contains(u"Sono presenti 5 archivi utente nel db di origine."_s)) << why;
    QStringList imported;
    static const QRegularExpression importing(u"^Importazione tabella utente (\\S+) \\("_s);
    for (const QString& line : lines) {
        if (const auto m = importing.match(line); m.hasMatch()) {
            imported << m.captured(1);
        }
    }
    EXPECT_EQ(imported, (QStringList{u"2019_CORRISP"_s, u"D_CONTRATTI"_s, u"D_FATTURE"_s,
                                     u"D_PROTOCOLLO"_s, u"D_RIMOSSO"_s}))
        << why;
    EXPECT_EQ(lines.filter(QRegularExpression(u"^---> La tabella (\\S+) .* non esiste nel db "
                                              u"sorgente\\.$"_s)),
              lines.filter(u"---> La tabella D_RIMOSSO ("_s))
        << why;
    EXPECT_TRUE(QFile::exists(source + u".old"_s));
    if (!realserver::password().isEmpty()) {
        expectThePasswordNowhere(realserver::password(), out, err);
    }

    // On the server: the suite's system tables as DbCreate makes them, and each archive with
    // every row of the source.
    const ado::ConnectionPtr check = realserver::open(database);
    EXPECT_EQ(notnull::stillNullable(check, *tolerated), QStringList());
    const QStringList tables =
        firstColumn(check, u"select lower(TABLE_NAME) from INFORMATION_SCHEMA.TABLES order by 1"_s);
    for (const QString& system : {u"qzsystem"_s, u"db_elenco"_s, u"db_dizionario"_s}) {
        EXPECT_TRUE(tables.contains(system)) << system.toStdString();
    }
    EXPECT_FALSE(tables.contains(u"d_rimosso"_s));
    const ado::ConnectionPtr jet = openSource(original);
    for (const QString& archive : imported.mid(0, 4)) {
        ASSERT_TRUE(tables.contains(archive.toLower())) << archive.toStdString();
        const qint64 rows = rowCount(jet, archive);
        EXPECT_GT(rows, 0) << archive.toStdString();
        EXPECT_EQ(rowCount(check, archive), rows) << archive.toStdString();
    }
    EXPECT_EQ(rowCount(check, u"DB_ELENCO"_s), rowCount(jet, u"DB_ELENCO"_s));
    jet->Close();
    check->Close();
}

// The built program, as a script would start it, with a login the server does not know: it
// ends before anything is made, with the server's refusal on one line, and no password shows.
TEST_F(CliRealServerTest, TheBuiltProgramTellsARefusedLogin) {
    QProcess cli;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"UPSIZER_CLI_PASSWORD"_s, u"n0n-qu3st4!"_s);
    cli.setProcessEnvironment(environment);
    QStringList args = arguments();
    args[args.indexOf(u"--user"_s) + 1] = u"upsizer_nobody"_s;
    cli.start(QStringLiteral(UPSIZER_CLI), args);
    ASSERT_TRUE(cli.waitForFinished(120000)) << "upsizer-cli did not end within 2 minutes";
    const QString out = QString::fromUtf8(cli.readAllStandardOutput());
    const QString err = QString::fromUtf8(cli.readAllStandardError());
    const std::string why = report(cli.exitCode(), out, err).toStdString();

    ASSERT_EQ(cli.exitStatus(), QProcess::NormalExit) << why;
    EXPECT_EQ(cli.exitCode(), cli::kFailed) << why;
    // The run's close-down is the only activity, as in the window's list.
    EXPECT_EQ(out, u"Termine importazione archivio.\n"_s) << why;
    const QRegularExpression refused(
        u"^upsizer-cli: Importazione fallita\\. The connection to the server '"_s +
        QRegularExpression::escape(realserver::server()) +
        u"' as 'upsizer_nobody' failed: .+ \\(-?\\d+\\); check the server name, the login and "
        u"the password\\. Nothing was written on the server and no log was opened\\.\\n$"_s);
    EXPECT_TRUE(refused.match(err).hasMatch()) << why;
    expectThePasswordNowhere(u"n0n-qu3st4!"_s, out, err);
    EXPECT_FALSE(QFile::exists(dir.file(u"ConversionLog.txt"_s)));
    EXPECT_TRUE(QFile::exists(source));
    // Nothing was made on the server.
    const ado::ConnectionPtr master = realserver::open();
    EXPECT_EQ(firstColumn(master, u"select name from sys.databases where name = '"_s +
                                      database.toLower() + u"'"_s),
              QStringList());
    master->Close();
}

} // namespace
