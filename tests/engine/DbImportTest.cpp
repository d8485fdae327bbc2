#include "engine/DbImport.h"

#include "platform/ado/ProviderRegistry.h"
#include "platform/ado/SchemaRowsets.h"
#include "platform/ado/recording/RecordingProvider.h"
#include "platform/win/Shell.h"

#include "tests/engine/DbImportEventLog.h"
#include "tests/engine/DbImportFixture.h"

#include <functional>

using namespace enginetest;
using ado::recording::RecordingProvider;

namespace {

struct CreateCall {
    QString name;
    long flags = 0;
    bool silent = false;
    QString provider;
    QString server;
    long engineType = 0;
    QString user;
    QString password;
};

class DbImportTest : public EngineTest {
protected:
    void SetUp() override {
        EngineTest::SetUp();
        nxApp::SetShell(shell);
        run.DbName(u"Archivio2024"_s);
        run.DbDesc(u"Archivio dell'anno"_s);
        run.DbServerName(u"SRV01"_s);
        run.DbUsername(u"sa"_s);
        run.DbPassword(u"pw"_s);
        // The database is not made here: the run's later steps have tests of their own.
        run.SetDatabaseCreator([this](const QString& name, long flags, bool silent,
                                      const QString& provider, const QString& serverName,
                                      long engineType, const QString& user,
                                      const QString& password) {
            creates.push_back(
                {name, flags, silent, provider, serverName, engineType, user, password});
            return false;
        });
    }

    bool start(const QString& source) {
        run.DbSrc(source);
        return run.Run(source, nullptr, kJetProvider, {});
    }
    QStringList logLines() const {
        QStringList lines = logTexts(dir.file(u"ConversionLog.txt"_s));
        while (!lines.isEmpty() && lines.last().isEmpty()) {
            lines.removeLast();
        }
        return lines;
    }

    std::shared_ptr<RecordingProvider> server = std::make_shared<RecordingProvider>(u"SQLOLEDB"_s);
    ado::ScopedProvider serverScope{u"SQLOLEDB"_s, server};
    std::shared_ptr<win::RecordingShell> shell = std::make_shared<win::RecordingShell>();
    EventLog events;
    DbImport run{&events};
    std::vector<CreateCall> creates;
};

// Before the record job exists a stop request reaches nothing, so the flag stays clear and the
// run would go on: the checks and the creation of the database cannot be stopped.
TEST(DbImport, StopBeforeTheJobHasNoEffect) {
    DbImport run;
    run.DbSrc(QStringLiteral("C:\\Archivio\\QZSystem.mdb"));
    EXPECT_FALSE(run.Stopped());
    run.Stopped(true);
    EXPECT_FALSE(run.Stopped());
}

TEST_F(DbImportTest, MissingFolderIsRefusedBeforeAnyConnection) {
    box->answer(win::id::kOk);
    EXPECT_FALSE(start(dir.file(u"altrove/QZSystem.mdb"_s)));
    ASSERT_EQ(box->shown().size(), 1u);
    EXPECT_EQ(box->last().text, u"Cartella '"_s + dir.path() +
                                    u"/altrove/' non trovata. Verificare il percorso inserito."_s);
    EXPECT_EQ(box->last().flags, 48);
    EXPECT_EQ(events.lines, QStringList());
    EXPECT_TRUE(server->journal().lines().isEmpty());
    EXPECT_FALSE(QFile::exists(dir.file(u"ConversionLog.txt"_s)));
}

TEST_F(DbImportTest, MissingFileIsToldInTheLog) {
    box->answer(win::id::kOk); // the database handle's own box about the file
    const QString source = dir.file(u"QZSystem.mdb"_s);
    EXPECT_FALSE(start(source));
    const QString text = u"File '"_s + source + u"' non trovato. Verificare il percorso inserito."_s;
    EXPECT_EQ(events.lines, QStringList{u"Error 5 "_s + text});
    EXPECT_EQ(logLines(), QStringList{text});
    // The master connection was opened with the login, naming no catalog.
    EXPECT_TRUE(server->journal().lines().join(u'\n').contains(
        u"Provider=SQLOLEDB;Data Source=SRV01;User ID=sa;Password=pw"_s));
    EXPECT_TRUE(creates.empty());
}

// A file that is not a database, or a database cut short, is refused at the source's opening
// as a missing one is: the database handle shows the provider's reason (the operator's only
// account of what is wrong with the file), the run tells the window and the log that the file
// cannot be used, and nothing reaches the server but the master's question. The file keeps its
// name and every byte.
struct BadSource {
    const char* name;
    const char* reason; // what the provider's description says about the file
    // The bytes put in place of the source: a text, or a cut copy of a Solvaria source.
    std::function<QByteArray()> bytes;
};

QByteArray solvariaCut(qint64 (*cut)(qint64 size)) {
    QFile f(solvariaSource(u"small"_s));
    if (!f.open(QIODevice::ReadOnly)) {
        return {};
    }
    return f.read(cut(f.size()));
}

class BadSourceTest : public DbImportTest, public testing::WithParamInterface<BadSource> {
protected:
    // Writes the bytes as the source; empty when there are none to write.
    QString place(const QByteArray& bytes) {
        const QString source = dir.file(u"QZSystem.mdb"_s);
        QFile f(source);
        if (bytes.isEmpty() || !f.open(QIODevice::WriteOnly) || f.write(bytes) != bytes.size()) {
            return {};
        }
        return source;
    }
    void expectLeftAsItWas(const QString& source, const QByteArray& bytes) {
        QFile after(source);
        ASSERT_TRUE(after.open(QIODevice::ReadOnly));
        EXPECT_TRUE(after.readAll() == bytes);
        EXPECT_FALSE(QFile::exists(source + u".old"_s));
        EXPECT_FALSE(QFile::exists(dir.file(u"config.ini"_s)));
        EXPECT_TRUE(creates.empty());
        EXPECT_TRUE(server->journal().statements().isEmpty())
            << server->journal().statements().join(u'\n').toStdString();
    }
};

TEST_P(BadSourceTest, IsRefusedAtTheOpeningAndLeftAsItWas) {
    const QByteArray bytes = GetParam().bytes();
    const QString source = place(bytes);
    SKIP_WITHOUT_SOURCE(source);
    box->answer(win::id::kOk);
    EXPECT_FALSE(start(source));

    ASSERT_EQ(box->shown().size(), 1u) << events.lines.join(u'\n').toStdString();
    const QString shown = box->last().text;
    EXPECT_TRUE(shown.contains(QString::fromLatin1(GetParam().reason))) << shown.toStdString();
    EXPECT_TRUE(shown.contains(source)) << shown.toStdString();
    EXPECT_TRUE(shown.endsWith(u"\r\n\r\nnxDb.DbOpen (errore -2147467259, 0x80004005)"_s))
        << shown.toStdString();
    EXPECT_EQ(box->last().flags, 48);

    const QString text = u"File '"_s + source + u"' non trovato. Verificare il percorso inserito."_s;
    EXPECT_EQ(events.lines, QStringList{u"Error 5 "_s + text});
    EXPECT_EQ(logLines(), QStringList{text});
    expectLeftAsItWas(source, bytes);
}

INSTANTIATE_TEST_SUITE_P(
    Files, BadSourceTest,
    testing::Values(
        BadSource{"Text", "the file is too short to be a Jet database",
                  [] { return QByteArray("Elenco dei protocolli del 2019\r\n"); }},
        BadSource{"TextOfAPage", "Unrecognized database format",
                  [] { return QByteArray(4096, 'x'); }},
        // Half the file, not ending at a page's end.
        BadSource{"CutInAPage", "is not a whole number of 4096-byte pages",
                  [] { return solvariaCut([](qint64 size) { return size / 2; }); }},
        // An eighth, ending at a page's end: the catalog's pages are missing.
        BadSource{"CutAtAPage", "the page lies outside the file",
                  [] { return solvariaCut([](qint64 size) { return size / 8 / 4096 * 4096; }); }},
        BadSource{"OnlyTheHeader", "the page lies outside the file",
                  [] { return solvariaCut([](qint64) -> qint64 { return 4096; }); }}),
    [](const testing::TestParamInfo<BadSource>& param) { return std::string(param.param.name); });

// A copy that holds its catalog but not all of its data opens; the verification's queries then
// fail on the missing pages. Such a failure is silent and counts as a finding: the tables that
// could not be read stand in the log under their headings with nothing beneath, and the run ends
// sending the operator to the log, before the server is touched.
TEST_F(BadSourceTest, ACopyMissingDataPagesEndsAtTheVerification) {
    const QByteArray bytes = solvariaCut([](qint64 size) { return size * 7 / 8 / 4096 * 4096; });
    const QString source = place(bytes);
    SKIP_WITHOUT_SOURCE(source);
    EXPECT_FALSE(start(source));
    EXPECT_TRUE(box->shown().empty());
    const QString log = dir.file(u"ConversionLog.txt"_s);
    EXPECT_EQ(events.lines,
              (QStringList{u"Error 6 Inizio verifica database sorgente..."_s,
                           u"Error 5 [log] Per maggiori dettagli verificare il log contenuto in "_s +
                               log + u" e correggere i problemi ivi elencati."_s}));
    const QStringList lines = logLines();
    const QString separator = u"==================================================="_s;
    int unread = 0;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (lines.at(i).startsWith(u"Anomalie tabella "_s)) {
            ++unread;
            EXPECT_EQ(lines.value(i + 1), separator) << lines.at(i).toStdString();
        }
    }
    EXPECT_GT(unread, 0) << lines.join(u'\n').toStdString();
    // An archive among them, so the run could not have gone on.
    EXPECT_TRUE(lines.contains(u"Anomalie tabella D_FATTURE (Fatture passive)"_s))
        << lines.join(u'\n').toStdString();
    EXPECT_FALSE(lines.contains(u"Fine procedura di conversione."_s));
    expectLeftAsItWas(source, bytes);
}

TEST_F(DbImportTest, IntegratedSecurityNamesTheMasterCatalog) {
    box->answer(win::id::kOk);
    run.DbUsername(QString());
    run.DbPassword(QString());
    EXPECT_FALSE(start(dir.file(u"QZSystem.mdb"_s)));
    EXPECT_TRUE(server->journal().lines().join(u'\n').contains(
        u"Provider=SQLOLEDB;Data Source=SRV01;Initial Catalog=master;Trusted_Connection=yes"_s));
}

// A failure the run does not expect lands in its one trap: nothing is shown, the close-down
// still tells the window that the import has ended.
TEST_F(DbImportTest, RefusedLoginEndsInTheTrap) {
    server->script().openFails(ado::Error(ado::HResult::DB_SEC_E_AUTH_FAILED,
                                          u"Login failed for user 'sa'."_s, u"SQLOLEDB"_s));
    EXPECT_FALSE(start(dir.file(u"QZSystem.mdb"_s)));
    EXPECT_EQ(events.lines, QStringList{u"ImportEnd"_s});
    EXPECT_TRUE(box->shown().empty());
    EXPECT_FALSE(QFile::exists(dir.file(u"ConversionLog.txt"_s)));
}

// What the server would refuse ends the run after the verification, whatever the finding: the
// operator is sent to the log, which names it under its archive; nothing reaches the server but
// the master's questions, the log is left without its closing line, and the source keeps its name.
struct HardFinding {
    const char* source;
    QStringList finding; // the lines under the archive's heading
};

class HardFindingTest : public DbImportTest, public testing::WithParamInterface<HardFinding> {};

TEST_P(HardFindingTest, EndsTheRunWithTheLog) {
    const QString source = copySource(QString::fromLatin1(GetParam().source));
    SKIP_WITHOUT_SOURCE(source);
    EXPECT_FALSE(start(source));
    const QString log = dir.file(u"ConversionLog.txt"_s);
    EXPECT_EQ(events.lines,
              (QStringList{u"Error 6 Inizio verifica database sorgente..."_s,
                           u"Error 5 [log] Per maggiori dettagli verificare il log contenuto in "_s +
                               log + u" e correggere i problemi ivi elencati."_s}));
    EXPECT_TRUE(box->shown().empty());
    EXPECT_TRUE(creates.empty());
    EXPECT_TRUE(server->journal().statements().isEmpty())
        << server->journal().statements().join(u'\n').toStdString();
    const QStringList lines = logLines();
    const qsizetype heading =
        lines.indexOf(u"Anomalie tabella D_ANOMALIE (Archivio con anomalie)"_s);
    ASSERT_GE(heading, 0) << lines.join(u'\n').toStdString();
    EXPECT_EQ(lines.mid(heading + 1, GetParam().finding.size()), GetParam().finding);
    EXPECT_FALSE(lines.contains(u"Fine procedura di conversione."_s));
    EXPECT_TRUE(QFile::exists(source));
    EXPECT_FALSE(QFile::exists(source + u".old"_s));
    EXPECT_FALSE(QFile::exists(dir.file(u"config.ini"_s)));
}

INSTANTIATE_TEST_SUITE_P(
    Sources, HardFindingTest,
    testing::Values(
        HardFinding{"findings-dates",
                    {u"     Campi data non validi:"_s, u"          Campo [DATA_DOC]"_s,
                     u"               SYS_RECORD: 1 (15/03/1700)"_s,
                     u"               SYS_RECORD: 3 (31/12/1752 23:59:59)"_s}},
        HardFinding{"findings-nullkey",
                    {u"     Campi della chiave primaria con valori nulli:"_s,
                     u"          Campo [CHIAVE]"_s}},
        HardFinding{"findings-memoindex",
                    {u"     Indice 'NOTE': Campo 'NOTE' di tipo MEMO."_s,
                     u"          In SQL Server non è possibile indicizzare un campo di tipo MEMO."_s,
                     u"          Modificare il tipo dei campi o la definizione degli indici sopra elencati."_s}}),
    [](const testing::TestParamInfo<HardFinding>& param) {
        return QString::fromLatin1(param.param.source).mid(9).toStdString();
    });

// An index of exactly 900 bytes is no finding: no question, and the run goes on to create the
// database.
TEST_F(DbImportTest, AnIndexOfExactly900BytesPassesWithoutAQuestion) {
    const QString source = copySource(u"findings-index900"_s);
    SKIP_WITHOUT_SOURCE(source);
    EXPECT_FALSE(start(source));
    EXPECT_TRUE(box->shown().empty());
    EXPECT_EQ(events.lines,
              (QStringList{u"Error 6 Inizio verifica database sorgente..."_s,
                           u"Error 6 Verifica database sorgente completata."_s,
                           u"Error 6 Creazione database 'Archivio2024' su SRV01."_s,
                           u"Error 1 Errore di creazione database Archivio2024"_s}));
    EXPECT_EQ(creates.size(), 1u);
    const QStringList lines = logLines();
    EXPECT_FALSE(lines.contains(u"     Indice LUNGO di lunghezza eccessiva."_s));
    EXPECT_FALSE(lines.contains(u"Anomalie tabella D_ANOMALIE (Archivio con anomalie)"_s));
    EXPECT_TRUE(QFile::exists(source));
}

TEST_F(DbImportTest, LongIndexAsksAndCancelEndsTheRun) {
    const QString source = copySource(u"findings-index901"_s);
    SKIP_WITHOUT_SOURCE(source);
    box->answer({win::id::kHelp, win::id::kCancel});
    EXPECT_FALSE(start(source));
    ASSERT_EQ(box->shown().size(), 1u);
    const auto& asked = box->last();
    const QString log = dir.file(u"ConversionLog.txt"_s);
    EXPECT_EQ(asked.text,
              u"Rilevati possibili problemi negli indici delle tabelle.\r\n\r\nSi consiglia di "
              u"visualizzare il log contenuto in "_s +
                  log +
                  u" e scegliere se proseguire oppure interrompere e correggere i problemi ivi "
                  u"elencati."_s);
    EXPECT_EQ(asked.flags, 16385);
    EXPECT_EQ(asked.captions.mid(0, 3), (QStringList{u"&Continua"_s, u"&Annulla"_s, u"&Vedi log"_s}));
    EXPECT_EQ(asked.helpPresses, 1);
    // The help button showed the log and left the box standing.
    ASSERT_FALSE(shell->calls.empty());
    EXPECT_TRUE(shell->calls.back().file.endsWith(u"ConversionLog.txt"_s) ||
                shell->calls.back().arguments.contains(u"ConversionLog.txt"_s));
    EXPECT_EQ(events.lines, QStringList{u"Error 6 Inizio verifica database sorgente..."_s});
    EXPECT_TRUE(creates.empty());
}

TEST_F(DbImportTest, LongIndexContinueGoesOnToCreateTheDatabase) {
    const QString source = copySource(u"findings-index901"_s);
    SKIP_WITHOUT_SOURCE(source);
    // An existing database of that name does not stop a new run: it is created over.
    server->script().schema(ado::SchemaEnum::adSchemaCatalogs,
                            {ado::SchemaRow(ado::SchemaEnum::adSchemaCatalogs)
                                 .set(u"CATALOG_NAME", u"Archivio2024"_s)
                                 .take()});
    box->answer(1);
    EXPECT_FALSE(start(source));
    EXPECT_EQ(events.lines,
              (QStringList{u"Error 6 Inizio verifica database sorgente..."_s,
                           u"Error 6 Verifica database sorgente completata."_s,
                           u"Error 6 Creazione database 'Archivio2024' su SRV01."_s,
                           u"Error 1 Errore di creazione database Archivio2024"_s}));
    ASSERT_EQ(creates.size(), 1u);
    const CreateCall& c = creates.front();
    EXPECT_EQ(c.name, u"Archivio2024"_s);
    EXPECT_EQ(c.flags, 10);
    EXPECT_TRUE(c.silent);
    EXPECT_EQ(c.provider, u"SQLOLEDB"_s);
    EXPECT_EQ(c.server, u"SRV01"_s);
    EXPECT_EQ(c.engineType, 5);
    EXPECT_EQ(c.user, u"sa"_s);
    EXPECT_EQ(c.password, u"pw"_s);
    // The log stays as the verification left it, closed without the closing line.
    const QStringList lines = logLines();
    EXPECT_TRUE(lines.contains(u"     Indice LUNGO di lunghezza eccessiva."_s));
    EXPECT_FALSE(lines.contains(u"Fine procedura di conversione."_s));
    EXPECT_TRUE(QFile::exists(source));
}

} // namespace

namespace {

// The destination's catalog as the recording server gives it: tables with their foreign keys.
class TableOrderTest : public DbImportTest {
protected:
    void table(const QString& name, const QStringList& parents) {
        std::vector<ado::CatalogKey> keys;
        keys.push_back(ado::CatalogKey{u"PK_"_s + name, ado::KeyTypeEnum::adKeyPrimary, {}, {}, {}, {}});
        for (const QString& parent : parents) {
            keys.push_back(ado::CatalogKey{u"FK_"_s + name + u"_"_s + parent,
                                           ado::KeyTypeEnum::adKeyForeign, parent, {}, {}, {}});
        }
        server->script().catalogTable(ado::CatalogTable{name, u"TABLE"_s, {}, {}, {}}, {}, {}, keys);
    }
    QStringList sorted(QStringList tables) {
        auto cn = ado::Connection::create();
        cn->Open(u"Provider=SQLOLEDB;Data Source=SRV01;Initial Catalog=QZ"_s);
        auto catalog = ado::adox::Catalog::create();
        catalog->setActiveConnection(cn);
        DbImport::SortTablesByDependency(tables, catalog->Tables());
        return tables;
    }
};

TEST_F(TableOrderTest, ParentsComeBeforeTheirChildren) {
    table(u"UTENTE_GRUPPI"_s, {u"utenti"_s, u"GRUPPI"_s});
    table(u"UTENTI"_s, {});
    table(u"PERMESSI"_s, {});
    table(u"GRUPPI"_s, {u"PERMESSI"_s});
    const QStringList order =
        sorted({u"UTENTE_GRUPPI"_s, u"UTENTI"_s, u"PERMESSI"_s, u"GRUPPI"_s});
    ASSERT_EQ(order.size(), 4);
    EXPECT_LT(order.indexOf(u"UTENTI"_s), order.indexOf(u"UTENTE_GRUPPI"_s));
    EXPECT_LT(order.indexOf(u"GRUPPI"_s), order.indexOf(u"UTENTE_GRUPPI"_s));
    EXPECT_LT(order.indexOf(u"PERMESSI"_s), order.indexOf(u"GRUPPI"_s));
    // The swaps as they happen: UTENTE_GRUPPI swaps with UTENTI, then with GRUPPI; GRUPPI then
    // swaps with PERMESSI.
    EXPECT_EQ(order, (QStringList{u"UTENTI"_s, u"PERMESSI"_s, u"GRUPPI"_s, u"UTENTE_GRUPPI"_s}));
}

TEST_F(TableOrderTest, KeysToTablesEarlierOrOutsideTheListChangeNothing) {
    table(u"A"_s, {});
    table(u"B"_s, {u"A"_s, u"ALTROVE"_s});
    table(u"C"_s, {u"B"_s});
    EXPECT_EQ(sorted({u"A"_s, u"B"_s, u"C"_s}), (QStringList{u"A"_s, u"B"_s, u"C"_s}));
}

} // namespace

namespace {

// Runs that get past the creation of the database, on a recording server that answers every
// statement with no rows.
class DbImportPastCreationTest : public DbImportTest {
protected:
    void SetUp() override {
        DbImportTest::SetUp();
        run.SetDatabaseCreator([](const QString&, long, bool, const QString&, const QString&, long,
                                  const QString&, const QString&) { return true; });
        server->script().property(u"DBMS Version"_s, u"09.00.5000"_s);
        server->script().schema(ado::SchemaEnum::adSchemaCatalogs,
                                {ado::SchemaRow(ado::SchemaEnum::adSchemaCatalogs)
                                     .set(u"CATALOG_NAME", u"Archivio2024"_s)
                                     .take()});
    }
};

// A destination that already holds an archive (a name with a leading digit) is not the new
// database the run should fill: it stops after the import has started, and the close-down
// still ends the import and closes the log. The run's result is still the one the verification
// gave, so the close-down renames the source although config.ini was never written.
TEST_F(DbImportPastCreationTest, AnArchiveInTheDestinationEndsTheRun) {
    const QString source = copySource(u"small"_s);
    SKIP_WITHOUT_SOURCE(source);
    server->script().catalogTable(ado::CatalogTable{u"QZSYSTEM"_s, u"TABLE"_s, {}, {}, {}}, {});
    server->script().catalogTable(ado::CatalogTable{u"2019_CORRISP"_s, u"TABLE"_s, {}, {}, {}}, {});
    box->answer(win::id::kOk);
    EXPECT_TRUE(start(source));
    ASSERT_EQ(box->shown().size(), 1u) << lastErrorReport();
    EXPECT_EQ(box->last().text,
              u"ATTENZIONE!!! Il database destinazione probabilmente contiene archivi utente.\r\n"
              u"Verificare il database destinazione indicato, indicare un altro database "
              u"destinazione e/o un altro server e ripetere l'importazione."_s);
    EXPECT_EQ(box->last().flags, 48);
    EXPECT_EQ(events.lines.mid(events.lines.size() - 3),
              (QStringList{u"Error 6 Creazione database completata."_s, u"ImportStart"_s,
                           u"ImportEnd"_s}));
    EXPECT_EQ(logLines().last(), u"Fine procedura di conversione."_s);
    EXPECT_FALSE(QFile::exists(dir.file(u"config.ini"_s)));
    EXPECT_TRUE(QFile::exists(source + u".old"_s));
}

} // namespace

namespace {

// A stop while the system tables are copied, confirmed: the transaction is rolled back, nothing
// is configured and the source keeps its name.
TEST_F(DbImportPastCreationTest, StopDuringTheSystemTablesRollsBack) {
    const QString source = copySource(u"small"_s);
    SKIP_WITHOUT_SOURCE(source);
    server->script().catalogTable(ado::CatalogTable{u"QZSYSTEM"_s, u"TABLE"_s, {}, {}, {}}, {});
    events.onSysTable = [this] { run.Stopped(true); };
    box->answer({win::id::kYes, win::id::kOk});
    start(source);
    ASSERT_EQ(box->shown().size(), 2u) << lastErrorReport();
    EXPECT_EQ(box->shown().at(0).text, u"Annullare l'operazione?"_s);
    EXPECT_EQ(box->last().text, u"Importazione interrotta."_s);
    EXPECT_EQ(box->last().flags, 48);
    EXPECT_TRUE(run.Stopped());
    const QStringList journal = server->journal().lines();
    EXPECT_TRUE(journal.contains(u"rollback"_s)) << journal.join(u'\n').toStdString();
    // The identity objects committed their own transaction before; the run's is rolled back.
    EXPECT_GT(journal.lastIndexOf(u"rollback"_s), journal.lastIndexOf(u"commit"_s));
    EXPECT_EQ(events.lines.last(), u"ImportEnd"_s);
    EXPECT_TRUE(QFile::exists(source));
    EXPECT_FALSE(QFile::exists(dir.file(u"config.ini"_s)));
}

} // namespace
