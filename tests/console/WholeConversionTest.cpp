// A whole conversion of a Solvaria-shaped source (mdbgen's solvaria-small) through the engine's
// DbImport, driven through the real window and through upsizer-cli, onto a recording "SQLOLEDB"
// on which "create database" makes the database appear. The server is scripted with what a SQL
// Server 2005 or later answers to the run's questions of the new database: its version, and the
// list tables the run has just copied from the source (read from the source itself).
#include "console/DbImportRun.h"
#include "console/cli/Cli.h"

#include "platform/ado/Connection.h"
#include "platform/ado/Error.h"
#include "platform/ado/Field.h"
#include "platform/ado/ProviderRegistry.h"
#include "platform/ado/Recordset.h"
#include "platform/ado/SchemaRowsets.h"
#include "platform/win/WindowThreadMessageBox.h"

#include "tests/console/SolvariaSource.h"
#include "tests/console/WindowFixture.h"
#include "tests/support/CreatingServer.h"
#include "tests/support/ForwardingSession.h"

#include <QDeadlineTimer>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QRegularExpression>

#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;

namespace {

// Every row of a query on the source, its fields as variants.
std::vector<ado::Row> sourceRows(const QString& path, const QString& sql) {
    const ado::ConnectionPtr cn = openSource(path);
    std::vector<ado::Row> rows;
    const ado::RecordsetPtr rs = cn->Execute(sql);
    while (!rs->Eof()) {
        ado::Row row;
        for (long i = 0; i < rs->Fields().Count(); ++i) {
            row.push_back(rs->Fields().Item(i).Value());
        }
        rows.push_back(std::move(row));
        rs->MoveNext();
    }
    rs->Close();
    cn->Close();
    return rows;
}

// A session of the conversion's server: what it creates with "create table" and the foreign
// keys it adds with "alter table" stand in its catalog afterwards, as SQL Server's catalog shows
// them to ADOX (the run lists the new database's tables and orders them by their keys).
class CatalogKeepingSession : public ForwardingSession {
public:
    CatalogKeepingSession(std::unique_ptr<ado::ProviderSession> inner,
                          ado::recording::Script& script, const bool& keep)
        : ForwardingSession(std::move(inner)), m_script(script), m_keep(keep) {}

    ado::CommandResult execute(const ado::CommandRequest& request) override {
        ado::CommandResult result = ForwardingSession::execute(request);
        static const QRegularExpression created(u"^create table (\\S+) \\("_s);
        static const QRegularExpression keyed(
            u"^alter table (\\S+) add constraint (\\S+) foreign key \\(([^)]*)\\) references "
            u"(\\S+) \\(([^)]*)\\)"_s);
        if (!m_keep) {
            return result;
        }
        if (const auto m = created.match(request.text); m.hasMatch()) {
            m_script.catalogTable(ado::CatalogTable{bare(m.captured(1)), u"TABLE"_s, {}, {}, {}},
                                  {});
        } else if (const auto k = keyed.match(request.text); k.hasMatch()) {
            for (auto& table : m_script.catalog()) {
                if (table.table.name.compare(bare(k.captured(1)), Qt::CaseInsensitive) == 0) {
                    ado::CatalogKey key;
                    key.name = k.captured(2);
                    key.type = ado::KeyTypeEnum::adKeyForeign;
                    key.relatedTable = bare(k.captured(4));
                    ado::CatalogColumn column;
                    column.name = bare(k.captured(3));
                    column.relatedColumn = bare(k.captured(5));
                    key.columns.push_back(column);
                    table.keys.push_back(key);
                }
            }
        }
        return result;
    }

private:
    static QString bare(QString name) {
        if (name.startsWith(u'[') && name.endsWith(u']')) {
            name = name.mid(1, name.size() - 2);
        }
        return name;
    }

    ado::recording::Script& m_script;
    const bool& m_keep;
};

class CatalogKeepingServer : public ado::Provider {
public:
    QString name() const override { return m_inner->name(); }
    std::unique_ptr<ado::ProviderSession> open(const ado::OpenRequest& request) override {
        return std::make_unique<CatalogKeepingSession>(m_inner->open(request), m_inner->script(),
                                                       keepCatalog);
    }
    void createDatabase(const ado::ConnectionString& cs) override { m_inner->createDatabase(cs); }

    ado::recording::Script& script() { return m_inner->script(); }
    ado::recording::Journal& journal() { return m_inner->journal(); }
    // Off: the tables the server creates do not show in its catalog (a server that fails the
    // run's listing of the new database's tables).
    bool keepCatalog = true;

private:
    std::shared_ptr<CreatingServer> m_inner = std::make_shared<CreatingServer>();
};

// The server's side: a creating recording server answering as SQL Server 2005 does, with the
// archives and dictionaries of the source once the system tables are copied.
class ConversionServer {
public:
    explicit ConversionServer(const QString& source) {
        auto& script = server->script();
        script.property(u"DBMS Version"_s, u"09.00.5000"_s);
        // The provider's own keywords (those outside SQL-92), which the verification holds the
        // source's names against; the list of the ODBC driver of the same era.
        std::vector<ado::Row> keywords;
        for (const QString& word :
             u"BREAK,BROWSE,BULK,CHECKPOINT,CLUSTERED,COMMITTED,COMPUTE,CONFIRM,CONTROLROW,"
             u"DATABASE,DBCC,DISK,DISTRIBUTED,DUMMY,DUMP,ERRLVL,ERROREXIT,EXIT,FILE,FILLFACTOR,"
             u"FLOPPY,HOLDLOCK,IDENTITY_INSERT,IDENTITYCOL,IF,KILL,LINENO,LOAD,MIRROREXIT,"
             u"NONCLUSTERED,OFF,OFFSETS,ONCE,OVER,PERCENT,PERM,PERMANENT,PLAN,PRINT,PROC,"
             u"PROCESSEXIT,RAISERROR,READ,READTEXT,RECONFIGURE,REPEATABLE,RETURN,ROWCOUNT,RULE,"
             u"SAVE,SERIALIZABLE,SETUSER,SHUTDOWN,STATISTICS,TAPE,TEMP,TEXTSIZE,TOP,TRAN,TRIGGER,"
             u"TRUNCATE,TSEQUEL,UNCOMMITTED,UPDATETEXT,USE,WAITFOR,WHILE,WRITETEXT"_s.split(u',')) {
            keywords.push_back(ado::SchemaRow(ado::SchemaEnum::adSchemaDBInfoKeywords)
                                   .set(u"Keyword", word)
                                   .take());
        }
        script.schema(ado::SchemaEnum::adSchemaDBInfoKeywords, std::move(keywords));
        archives = sourceRows(source, u"select SYS_SERIALE, ARCHIVIO from DB_ELENCO "
                                      u"order by SYS_SERIALE"_s);
        const auto dictionaries =
            sourceRows(source, u"select count(*) from DB_DIZIONARIO"_s).at(0).at(0);
        script.returns(
            u"select count(*) from DB_ELENCO"_s,
            ado::recording::rows({{u"n"_s, ado::DataTypeEnum::adInteger}},
                                 {{vb::Variant(static_cast<std::int32_t>(archives.size()))}}));
        script.returns(u"select SYS_SERIALE, ARCHIVIO from DB_ELENCO order by SYS_SERIALE"_s,
                       ado::recording::rows({{u"SYS_SERIALE"_s, ado::DataTypeEnum::adVarWChar},
                                             {u"ARCHIVIO"_s, ado::DataTypeEnum::adVarWChar}},
                                            archives));
        for (const ado::Row& archive : archives) {
            try {
                const auto count =
                    sourceRows(source, u"select count(*) from ["_s + archive[0].toString() + u"]"_s)
                        .at(0)
                        .at(0)
                        .toLong()
                        .value_or(0);
                archiveCounts[archive[1].toString()] = static_cast<std::int32_t>(count);
            } catch (const ado::Error&) {
                // listed, but not in the source
            }
        }
        // The new database's description, as the copy of QZSYSTEM left it.
        script.returns(
            u"select DESCRIZIONE from QZSYSTEM"_s,
            ado::recording::rows({{u"DESCRIZIONE"_s, ado::DataTypeEnum::adVarWChar}},
                                 sourceRows(source, u"select DESCRIZIONE from QZSYSTEM"_s)));
        script.returns(
            u"select count(*) from DB_DIZIONARIO"_s,
            ado::recording::rows({{u"n"_s, ado::DataTypeEnum::adInteger}}, {{dictionaries}}));
    }

    std::shared_ptr<CatalogKeepingServer> server = std::make_shared<CatalogKeepingServer>();
    ado::ScopedProvider scope{u"SQLOLEDB"_s, server};
    std::vector<ado::Row> archives;
    // The records of each archive the source holds, by its description.
    std::map<QString, std::int32_t> archiveCounts;
};

class WholeConversionTest : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        SKIP_WITHOUT_BUILT_SOURCE(u"small"_s);
        source = dir.file(u"QZSystem.mdb"_s);
        ASSERT_TRUE(copyBuiltSource(source));
        server = std::make_unique<ConversionServer>(source);
        nxApp::SetMessageBox(std::make_shared<win::WindowThreadMessageBox>(box));
        window = std::make_unique<frmMain>(servers, std::make_unique<ScriptedFileDialog>(),
                                           dbImportRuns());
        window->resize(640, 720);
        window->show();
    }
    void TearDown() override {
        window.reset();
        server.reset();
        WindowTest::TearDown();
    }

    bool waitForEnd() {
        const QDeadlineTimer deadline(120000);
        while (window->Running() && !deadline.hasExpired()) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        }
        return !window->Running();
    }
    QStringList logLines() const {
        QStringList lines;
        for (int i = 0; i < list("lstLog")->count(); ++i) {
            lines << list("lstLog")->item(i)->text();
        }
        return lines;
    }

    QString source;
    std::unique_ptr<ConversionServer> server;
};

// What the window showed while the run went on, on the window's thread: the status bar as each
// activity line was added, and, by status, how far the record bar and its counter went.
struct Watch {
    QStringList statusAtLine; // "line | status" for each line added
    struct Records {
        int value = 0;
        int maximum = 0;
        QString counter;
    };
    std::map<QString, Records> records;
};

TEST_F(WholeConversionTest, TheWindowConvertsTheSourceAndShowsEachStep) {
    Watch watch;
    auto* tableBar = control<QProgressBar>("pgBarTbl");
    auto* recordBar = control<QProgressBar>("pgBarRec");
    auto* counter = control<QLabel>("lblRec");
    QListWidget* log = list("lstLog");
    QObject::connect(log->model(), &QAbstractItemModel::rowsInserted, window.get(),
                     [&](const QModelIndex&, int first, int) {
                         watch.statusAtLine << log->model()->index(first, 0).data().toString() +
                                                   u" | "_s + window->StatusText();
                     });
    QObject::connect(recordBar, &QProgressBar::valueChanged, window.get(), [&](int value) {
        Watch::Records& seen = watch.records[window->StatusText()];
        if (value > seen.value) {
            seen = {value, recordBar->maximum(), counter->text()};
        }
    });
    type("txtMDBPath", source);
    typeServer(u"SRV01"_s);
    type("txtDbName", u"Archivio"_s);
    type("txtDbDesc", u"Sede centrale"_s);
    type("txtUsername", u"sa"_s);
    type("txtPassword", u"s3gr3ta!"_s);
    box->setFallback(win::id::kOk);
    click(buttonNamed("cmdImport"));
    EXPECT_FALSE(buttonNamed("cmdImport")->isEnabled());
    EXPECT_TRUE(buttonNamed("cmdStop")->isEnabled());
    ASSERT_TRUE(waitForEnd());
    const QStringList lines = logLines();
    const QString journal = server->server->journal().lines().join(u'\n');
    const std::string context = (lines.join(u'\n') + u"\n---\n"_s + journal).toStdString();

    // One box, at the end.
    ASSERT_EQ(box->shown().size(), 1U) << box->shown()[0].text.toStdString() << '\n' << context;
    EXPECT_EQ(box->shown()[0].text, u"Importazione eseguita."_s);

    // The activity list, from the check of the source to the end of the import.
    ASSERT_GE(lines.size(), 6) << context;
    EXPECT_EQ(lines.mid(0, 5), (QStringList{u"Inizio verifica database sorgente..."_s,
                                            u"Verifica database sorgente completata."_s,
                                            u"Creazione database 'Archivio' su SRV01."_s,
                                            u"Creazione database completata."_s,
                                            u"Inizio importazione archivio."_s}))
        << context;
    EXPECT_EQ(lines.last(), u"Termine importazione archivio."_s);
    // Each archive DB_ELENCO lists: announced, created, indexed and filled, in its order.
    const qsizetype announced = lines.indexOf(
        u"Sono presenti %1 archivi utente nel db di origine."_s.arg(server->archives.size()));
    ASSERT_GT(announced, 4) << context;
    qsizetype at = announced + 1;
    for (const ado::Row& archive : server->archives) {
        const QString named = archive[0].toString() + u" ("_s + archive[1].toString() + u")"_s;
        ASSERT_LT(at, lines.size()) << context;
        EXPECT_EQ(lines[at], u"Importazione tabella utente "_s + named);
        if (lines[at + 1].endsWith(u" non esiste nel db sorgente."_s)) {
            EXPECT_EQ(lines[at + 1],
                      u"---> La tabella "_s + named + u" non esiste nel db sorgente."_s);
            at += 2;
            continue;
        }
        EXPECT_EQ(lines.mid(at + 1, 3), (QStringList{u"---> Creazione tabella "_s + named,
                                                     u"---> Creazione indici tabella "_s + named,
                                                     u"---> Copia dati tabella "_s + named}))
            << context;
        at += 4;
    }
    // The system tables before the archives, each named once.
    const QStringList system = lines.mid(5, announced - 5);
    EXPECT_FALSE(system.isEmpty());
    for (const QString& line : system) {
        EXPECT_TRUE(line.startsWith(u"Importazione tabella di sistema "_s)) << line.toStdString();
    }
    EXPECT_TRUE(system.contains(u"Importazione tabella di sistema QZSYSTEM"_s)) << context;
    EXPECT_EQ(
        std::count(lines.begin(), lines.end(), u"Importazione tabella di sistema DB_ELENCO"_s), 1);

    // Each archive was named in the status bar while it was created, and the record bar and
    // its counter ran to its last record while it was copied.
    for (const ado::Row& archive : server->archives) {
        const QString named = archive[0].toString() + u" ("_s + archive[1].toString() + u")"_s;
        const QString status = u"Importazione tabella utente '"_s + archive[1].toString() + u"'"_s;
        const auto count = server->archiveCounts.find(archive[1].toString());
        if (count == server->archiveCounts.end()) {
            continue; // listed, not in the source
        }
        EXPECT_TRUE(
            watch.statusAtLine.contains(u"---> Creazione tabella "_s + named + u" | "_s + status))
            << watch.statusAtLine.join(u'\n').toStdString();
        if (count->second > 0) {
            // The job moves the bar in steps of its own, to the top at the last record, and
            // writes the count whole ("1.000 di 1.000 record") in the counter.
            const Watch::Records& seen = watch.records[status];
            EXPECT_GT(seen.maximum, 0) << status.toStdString();
            EXPECT_EQ(seen.value, seen.maximum) << status.toStdString();
            const QString total = QLocale(QLocale::Italian).toString(count->second);
            EXPECT_EQ(seen.counter, total + u" di "_s + total + u" record"_s)
                << status.toStdString();
        }
    }
    EXPECT_GT(server->archiveCounts[u"Protocollo generale"_s], 0);

    // At rest again: bars at zero, counter and status empty, the controls back.
    EXPECT_EQ(tableBar->value(), 0);
    EXPECT_EQ(recordBar->value(), 0);
    EXPECT_EQ(counter->text(), QString());
    EXPECT_EQ(window->StatusText(), QString());
    EXPECT_TRUE(buttonNamed("cmdImport")->isEnabled());
    EXPECT_FALSE(buttonNamed("cmdStop")->isEnabled());
    saveScreen(*window, u"finished-run.png"_s);

    // The server got the database and one insert per record; the source was set aside and the
    // suite pointed at the server, the password never in the clear beside the source.
    EXPECT_TRUE(journal.contains(u"execute: create database Archivio"_s)) << context;
    EXPECT_TRUE(QFile::exists(source + u".old"_s));
    EXPECT_FALSE(QFile::exists(source));
    EXPECT_TRUE(QFile::exists(dir.file(u"config.ini"_s)));
    for (const QString& file : QDir(dir.path()).entryList(QDir::Files)) {
        EXPECT_FALSE(readAll(dir.file(file)).contains("s3gr3ta!")) << file.toStdString();
    }
}

// A second run in the same window, stopped while an archive is copied: the stop is confirmed,
// then the run's own question ends it; nothing says it was done, and the source keeps its name.
TEST_F(WholeConversionTest, ASecondRunIsStoppedDuringAnArchive) {
    type("txtMDBPath", source);
    typeServer(u"SRV01"_s);
    type("txtDbName", u"Archivio"_s);
    box->setFallback(win::id::kOk);
    click(buttonNamed("cmdImport"));
    ASSERT_TRUE(waitForEnd());
    ASSERT_EQ(box->shown().size(), 1U);
    ASSERT_EQ(box->shown()[0].text, u"Importazione eseguita."_s);
    box->clear();

    // The first run set the source aside; the operator gives it again, and another name. The
    // new database starts empty: the first one's tables are not in its catalog.
    server->server->script().catalog().clear();
    ASSERT_TRUE(QFile::remove(source + u".old"_s));
    ASSERT_TRUE(copyBuiltSource(source));
    edit("txtDbName")->clear();
    type("txtDbName", u"Secondo"_s);
    const int firstRunLines = list("lstLog")->count();
    bool pressed = false;
    auto* recordBar = control<QProgressBar>("pgBarRec");
    QObject::connect(recordBar, &QProgressBar::valueChanged, window.get(), [&](int value) {
        if (!pressed && value > 0 &&
            window->StatusText().startsWith(u"Importazione tabella utente"_s)) {
            pressed = true;
            click(buttonNamed("cmdStop"));
        }
    });
    box->answer({win::id::kYes, win::id::kYes});
    click(buttonNamed("cmdImport"));
    ASSERT_TRUE(waitForEnd());
    EXPECT_TRUE(pressed);
    const QStringList lines = logLines().mid(firstRunLines);
    std::vector<QString> texts;
    for (const auto& shown : box->shown()) {
        texts.push_back(shown.text);
    }
    EXPECT_EQ(texts, (std::vector<QString>{
                         u"Annullare l'operazione?"_s,
                         u"Vuoi interrompere l'operazione di esportazione del database?"_s}))
        << lines.join(u'\n').toStdString();
    // The list goes on below the first run's, and the run ended at the archive it was in.
    ASSERT_GE(lines.size(), 2);
    EXPECT_EQ(lines.first(), u"Inizio verifica database sorgente..."_s);
    EXPECT_EQ(lines.last(), u"Termine importazione archivio."_s);
    EXPECT_TRUE(lines[lines.size() - 2].startsWith(u"---> Copia dati tabella "_s))
        << lines.join(u'\n').toStdString();
    EXPECT_LT(lines.filter(u"Importazione tabella utente "_s).size(),
              static_cast<qsizetype>(server->archives.size()));
    EXPECT_TRUE(server->server->journal().lines().contains(u"execute: create database Secondo"_s));
    EXPECT_TRUE(QFile::exists(source));
    EXPECT_EQ(window->StatusText(), QString());
    EXPECT_TRUE(buttonNamed("cmdImport")->isEnabled());
}

// upsizer-cli on the same source and server, in this process so that the recording server is
// the one it meets.
class CliConversionTest : public FrameTest {
protected:
    void SetUp() override {
        startLibrary = false;
        FrameTest::SetUp();
        SKIP_WITHOUT_BUILT_SOURCE(u"small"_s);
        source = dir.file(u"QZSystem.mdb"_s);
        ASSERT_TRUE(copyBuiltSource(source));
        server = std::make_unique<ConversionServer>(source);
        environment.insert(u"UPSIZER_PW"_s, u"s3gr3ta!"_s);
    }
    int runCli(const QStringList& more = {}) {
        QTextStream outStream(&out);
        QTextStream errStream(&err);
        const int code = cli::main(QStringList{u"--source"_s, source, u"--server"_s, u"SRV01"_s,
                                               u"--database"_s, u"Archivio"_s, u"--user"_s, u"sa"_s,
                                               u"--password-env"_s, u"UPSIZER_PW"_s} +
                                       more,
                                   environment, dbImportRuns(), outStream, errStream);
        outStream.flush();
        errStream.flush();
        return code;
    }

    QString source;
    std::unique_ptr<ConversionServer> server;
    QProcessEnvironment environment;
    QString out;
    QString err;
};

TEST_F(CliConversionTest, TheSourceIsConvertedAndEveryStepPrinted) {
    ASSERT_EQ(runCli(), cli::kDone) << out.toStdString() << err.toStdString();
    EXPECT_EQ(err, QString());
    const QStringList lines = out.split(u'\n', Qt::SkipEmptyParts);
    ASSERT_GE(lines.size(), 7) << out.toStdString();
    EXPECT_EQ(lines.mid(0, 5), (QStringList{u"Inizio verifica database sorgente..."_s,
                                            u"Verifica database sorgente completata."_s,
                                            u"Creazione database 'Archivio' su SRV01."_s,
                                            u"Creazione database completata."_s,
                                            u"Inizio importazione archivio."_s}));
    EXPECT_EQ(lines.mid(lines.size() - 2),
              (QStringList{u"Termine importazione archivio."_s, u"Importazione eseguita."_s}));
    EXPECT_TRUE(lines.contains(
        u"Sono presenti %1 archivi utente nel db di origine."_s.arg(server->archives.size())));
    for (const ado::Row& archive : server->archives) {
        EXPECT_TRUE(lines.contains(u"Importazione tabella utente "_s + archive[0].toString() +
                                   u" ("_s + archive[1].toString() + u")"_s))
            << archive[0].toString().toStdString();
    }
    // The password went to the server only: not printed, not in the log, not in the clear in
    // the configuration the suite reads.
    EXPECT_TRUE(server->server->journal().lines().join(u'\n').contains(u"s3gr3ta!"_s));
    EXPECT_FALSE(out.contains(u"s3gr3ta!"_s));
    EXPECT_TRUE(QFile::exists(dir.file(u"ConversionLog.txt"_s)));
    for (const QString& file : QDir(dir.path()).entryList(QDir::Files)) {
        EXPECT_FALSE(readAll(dir.file(file)).contains("s3gr3ta!")) << file.toStdString();
    }
    EXPECT_TRUE(QFile::exists(source + u".old"_s));
}

TEST_F(CliConversionTest, AFailureTheRunKeepsToItselfNamesTheLastStepAndTheLog) {
    // The new database's catalog does not show the tables just created: the run's listing of
    // them fails, and the run's one trap takes it without a word.
    server->server->keepCatalog = false;
    EXPECT_EQ(runCli(), cli::kFailed);
    const QStringList lines = out.split(u'\n', Qt::SkipEmptyParts);
    ASSERT_GE(lines.size(), 2) << out.toStdString();
    EXPECT_EQ(lines.mid(lines.size() - 2), (QStringList{u"Inizio importazione archivio."_s,
                                                        u"Termine importazione archivio."_s}));
    EXPECT_EQ(err, u"upsizer-cli: Importazione fallita. The run stopped after \"Inizio "
                   u"importazione archivio.\"; read the log "_s +
                       QDir::toNativeSeparators(dir.file(u"ConversionLog.txt"_s)) + u".\n"_s);
    EXPECT_TRUE(QFile::exists(source));
}

TEST_F(CliConversionTest, ASchemaTheServerRefusesEndsAtTheDatabaseWithItsName) {
    // A server that refuses to close a column with "alter column .. not null" (one T-SQL server
    // does): the system's creation of the database reports a failure, the run ends there
    // without its close-down, and nothing of the source is set aside.
    server->server->script().onPrefix(
        u"alter table QZSYSTEM alter column"_s,
        ado::recording::Answer::failing(
            ado::Error(ado::HResult::E_UNSPECIFIED,
                       u"'NOT NULL in ALTER TABLE ALTER COLUMN' is not supported"_s,
                       u"Microsoft OLE DB Provider for SQL Server"_s)));
    EXPECT_EQ(runCli(), cli::kFailed);
    EXPECT_EQ(out, u"Inizio verifica database sorgente...\n"
                   u"Verifica database sorgente completata.\n"
                   u"Creazione database 'Archivio' su SRV01.\n"
                   u"Errore di creazione database Archivio\n"_s);
    EXPECT_EQ(err, u"upsizer-cli: Importazione fallita. Errore di creazione database Archivio\n"_s);
    // The creation went on past the refused statement to the tables after it.
    const QStringList journal = server->server->journal().lines();
    EXPECT_FALSE(journal.filter(u"alter table QZSYSTEM alter column"_s).isEmpty());
    EXPECT_FALSE(journal.filter(u"create table UTENTE_PROFILO"_s).isEmpty());
    EXPECT_TRUE(QFile::exists(source));
    EXPECT_FALSE(QFile::exists(source + u".old"_s));
}

TEST_F(CliConversionTest, AFailedVerificationEndsWithTheLogToRead) {
    // A source with a Null in a primary key, which the server would refuse.
    QFile::remove(source);
    ASSERT_TRUE(copyBuiltSource(source, u"findings-nullkey"_s));
    EXPECT_EQ(runCli(), cli::kFailed);
    const QString log = dir.path() + u"/ConversionLog.txt"_s;
    const QString reason = u"Errore verifica database sorgente: Per maggiori dettagli verificare "
                           u"il log contenuto in "_s +
                           log + u" e correggere i problemi ivi elencati."_s;
    EXPECT_EQ(out, u"Inizio verifica database sorgente...\n"
                   u"Verifica database sorgente non riuscita.\n"_s +
                       reason + u"\n"_s);
    EXPECT_EQ(err, u"upsizer-cli: Importazione fallita. "_s + reason + u"\n"_s);
    EXPECT_TRUE(QString::fromLatin1(readAll(log)).contains(u"          Campo [CHIAVE]"_s));
    // Nothing was made on the server, and the source is where it was.
    EXPECT_FALSE(server->server->journal().lines().join(u'\n').contains(u"create database"_s));
    EXPECT_TRUE(QFile::exists(source));
}

} // namespace
