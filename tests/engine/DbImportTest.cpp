#include "engine/DbImport.h"

#include "platform/ado/ProviderRegistry.h"
#include "platform/ado/SchemaRowsets.h"
#include "platform/ado/recording/RecordingProvider.h"
#include "platform/win/Shell.h"

#include "tests/engine/DbImportFixture.h"

#include <functional>

using namespace enginetest;
using ado::recording::RecordingProvider;

namespace {

// Every event as one line, in the order of arrival.
class EventLog : public DbImportEvents {
public:
    QStringList lines;
    // What the window does when a system table starts (a press of the stop button).
    std::function<void()> onSysTable;

    void EVTImportStart() override { lines << u"ImportStart"_s; }
    void EVTImportEnd() override { lines << u"ImportEnd"_s; }
    void EVTSysTableImportStart(std::int16_t last) override {
        lines << u"SysTableImportStart %1"_s.arg(last);
    }
    void EVTTableImportStart(std::int32_t count) override {
        lines << u"TableImportStart %1"_s.arg(count);
    }
    void EVTTableImportEnd() override { lines << u"TableImportEnd"_s; }
    void EVTSysTableImporting(std::int16_t index, const QString& table) override {
        lines << u"SysTableImporting %1 %2"_s.arg(QString::number(index), table);
        if (onSysTable) {
            onSysTable();
        }
    }
    void EVTUserTableImportStart(std::int16_t count) override {
        lines << u"UserTableImportStart %1"_s.arg(count);
    }
    void EVTUserTableImporting(std::int16_t index, const QString& table,
                               const vb::Variant& description) override {
        lines << u"UserTableImporting %1 %2 (%3)"_s.arg(QString::number(index), table,
                                                          description.toString());
    }
    void EVTUserTableCreating(const QString& table, const vb::Variant&) override {
        lines << u"UserTableCreating "_s + table;
    }
    void EVTUserTableDataCopy(const QString& table, const vb::Variant&) override {
        lines << u"UserTableDataCopy "_s + table;
    }
    void EVTUserTableIndexCreating(const QString& table, const vb::Variant&) override {
        lines << u"UserTableIndexCreating "_s + table;
    }
    void EVTUserTableNotExisting(const QString& table, const vb::Variant&) override {
        lines << u"UserTableNotExisting "_s + table;
    }
    void EVTDictionayImportStart(std::int16_t count) override {
        lines << u"DictionaryImportStart %1"_s.arg(count);
    }
    void EVTDictionaryImporting(std::int16_t index, const QString& table) override {
        lines << u"DictionaryImporting %1 %2"_s.arg(QString::number(index), table);
    }
    void EVTDictionaryCreating(const QString& table, std::int16_t step) override {
        lines << u"DictionaryCreating %1 %2"_s.arg(table, QString::number(step));
    }
    void EVTDictionaryNotExisting(const QString& table) override {
        lines << u"DictionaryNotExisting "_s + table;
    }
    void EVTRecordImporting(std::int32_t current, std::int32_t total) override {
        lines << u"RecordImporting %1 %2"_s.arg(current).arg(total);
    }
    void EVTError(std::int32_t kind, const QString& text, bool askViewLog) override {
        lines << u"Error %1 %2%3"_s.arg(QString::number(kind), askViewLog ? u"[log] "_s : QString(),
                                         text);
    }
};

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

TEST_F(DbImportTest, HardFindingsStopTheRunWithTheLog) {
    const QString source = copySource(u"findings-dates"_s);
    SKIP_WITHOUT_SOURCE(source);
    EXPECT_FALSE(start(source));
    const QString log = dir.file(u"ConversionLog.txt"_s);
    EXPECT_EQ(events.lines,
              (QStringList{u"Error 6 Inizio verifica database sorgente..."_s,
                           u"Error 5 [log] Per maggiori dettagli verificare il log contenuto in "_s +
                               log + u" e correggere i problemi ivi elencati."_s}));
    EXPECT_TRUE(creates.empty());
    EXPECT_TRUE(logLines().contains(u"     Campi data non validi:"_s));
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
