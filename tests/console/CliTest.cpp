#include "console/cli/Cli.h"

#include "engine/DbImportEvents.h"

#include "frame/nxApp.h"

#include "tests/frame/FrameFixture.h"

#include <functional>

using namespace Qt::StringLiterals;

namespace {

// A conversion whose run is the test's own function; it keeps the values it was given.
class ScriptedCliRun : public ImportRun {
public:
    using Body = std::function<bool(DbImportEvents&)>;
    ScriptedCliRun(DbImportEvents* events, Body body, QStringList& values)
        : m_events(events), m_body(std::move(body)), m_values(values) {}

    void DbSrc(const QString& v) override { m_values << v; }
    void DbName(const QString& v) override { m_values << v; }
    void DbDesc(const QString& v) override { m_values << v; }
    void DbServerName(const QString& v) override { m_values << v; }
    void DbUsername(const QString& v) override { m_values << v; }
    void DbPassword(const QString& v) override { m_values << v; }
    void RecordControls(JobProgress*, JobLabel*) override {}
    bool Run(const QString&, QObject*) override { return m_body(*m_events); }
    void Stopped(bool) override {}
    bool Stopped() const override { return false; }

private:
    DbImportEvents* m_events;
    Body m_body;
    QStringList& m_values;
};

// The index question as the run asks it.
long askIndexQuestion() {
    return nxApp::MsgBoxExHelp(nullptr,
                               u"Rilevati possibili problemi negli indici delle tabelle."_s, 16385,
                               u"&Continua|&Annulla|&Vedi log"_s, [] {});
}

class CliTest : public FrameTest {
protected:
    void SetUp() override {
        startLibrary = false; // the program starts it
        FrameTest::SetUp();
        environment.insert(u"UPSIZER_PW"_s, u"s3gr3ta!"_s);
    }
    int runCli(const QStringList& arguments, ScriptedCliRun::Body body) {
        out.clear();
        err.clear();
        QTextStream outStream(&out);
        QTextStream errStream(&err);
        const ImportRunFactory runs = [&](DbImportEvents* events) {
            return std::make_unique<ScriptedCliRun>(events, body, values);
        };
        const int code = cli::main(arguments, environment, runs, outStream, errStream);
        outStream.flush();
        errStream.flush();
        return code;
    }
    static QStringList required() {
        return {u"--source"_s, u"/dati/QZSystem.mdb"_s, u"--server"_s,
                u"srv"_s,      u"--database"_s,         u"Archivio"_s};
    }
    static bool succeed(DbImportEvents&) { return true; }

    QProcessEnvironment environment;
    QString out;
    QString err;
    QStringList values;
};

TEST_F(CliTest, BadArgumentsEndWithAReasonAndNoRun) {
    struct Case {
        QStringList arguments;
        QString reason;
    };
    const std::vector<Case> cases{
        {{u"--source"_s, u"x"_s, u"--server"_s, u"s"_s}, u"--database is required"_s},
        {{u"--server"_s, u"s"_s, u"--database"_s, u"d"_s}, u"--source is required"_s},
        {required() + QStringList{u"--password"_s, u"chiaro"_s}, u"password"_s},
        {required() + QStringList{u"--password-env"_s, u"MANCA"_s},
         u"the environment variable MANCA named by --password-env is not set"_s},
        {required() + QStringList{u"avanzo"_s}, u"unexpected argument 'avanzo'"_s},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(runCli(c.arguments, &succeed), cli::kBadArguments) << c.reason.toStdString();
        EXPECT_TRUE(err.startsWith(u"upsizer-cli: "_s)) << err.toStdString();
        EXPECT_TRUE(err.contains(c.reason)) << err.toStdString();
    }
    EXPECT_TRUE(values.isEmpty());
    EXPECT_FALSE(nxApp::IsInit());
}

TEST_F(CliTest, ARunPrintsTheActivityLinesAndEndsWithZero) {
    const int code =
        runCli(required() + QStringList{u"--description"_s, u"Sede"_s, u"--user"_s, u"sa"_s,
                                        u"--password-env"_s, u"UPSIZER_PW"_s},
               [](DbImportEvents& e) {
                   e.EVTImportStart();
                   e.EVTUserTableImportStart(1);
                   e.EVTUserTableImporting(1, u"ARC_0001"_s, vb::Variant(u"Fatture"_s));
                   e.EVTDictionaryCreating(u"DIZ_A"_s, 3);
                   e.EVTError(4, u"IX_1"_s, false);
                   e.EVTImportEnd();
                   return true;
               });
    EXPECT_EQ(code, cli::kDone) << err.toStdString();
    EXPECT_EQ(out, u"Inizio importazione archivio.\n"
                   u"Sono presenti 1 archivi utente nel db di origine.\n"
                   u"Importazione tabella utente ARC_0001 (Fatture)\n"
                   u"---> Creazione indici\n"
                   u"Errore creazione indice: IX_1\n"
                   u"Termine importazione archivio.\n"
                   u"Importazione eseguita.\n"_s);
    EXPECT_EQ(values, (QStringList{u"/dati/QZSystem.mdb"_s, u"Archivio"_s, u"Sede"_s, u"srv"_s,
                                   u"sa"_s, u"s3gr3ta!"_s}));
    // The password reached the run, and nowhere else: not the output, not the library's
    // command line.
    EXPECT_FALSE(out.contains(u"s3gr3ta!"_s));
    EXPECT_FALSE(err.contains(u"s3gr3ta!"_s));
    for (std::int32_t i = 0; i < nxApp::ParamCount(); ++i) {
        EXPECT_FALSE(nxApp::Param(i).contains(u"s3gr3ta!"_s));
    }
}

TEST_F(CliTest, IndexWarningsStopTheRunUnlessToldToGoOn) {
    const auto body = [](DbImportEvents&) { return askIndexQuestion() == win::id::kOk; };
    EXPECT_EQ(runCli(required(), body), cli::kFailed);
    EXPECT_TRUE(out.endsWith(u"  -> Annulla\n"_s)) << out.toStdString();
    EXPECT_EQ(err, u"upsizer-cli: Importazione fallita. Rilevati possibili problemi negli "
                   u"indici delle tabelle.\n"_s);

    nxApp::ResetForTesting();
    nxApp::SetRegistry(registry);
    EXPECT_EQ(runCli(required() + QStringList{u"--continue-on-index-warnings"_s}, body),
              cli::kDone);
    EXPECT_TRUE(out.contains(u"  -> Continua\n"_s)) << out.toStdString();
}

TEST_F(CliTest, AFailedVerificationIsPrintedWithoutAskingAndGivesTheReason) {
    const int code = runCli(required(), [](DbImportEvents& e) {
        e.EVTError(5, u"Per maggiori dettagli verificare il log."_s, true);
        return false;
    });
    EXPECT_EQ(code, cli::kFailed);
    EXPECT_EQ(out, u"Verifica database sorgente non riuscita.\n"
                   u"Errore verifica database sorgente: Per maggiori dettagli verificare il "
                   u"log.\n"_s);
    EXPECT_EQ(err, u"upsizer-cli: Importazione fallita. Errore verifica database sorgente: Per "
                   u"maggiori dettagli verificare il log.\n"_s);
}

TEST_F(CliTest, AMessageOfTheRunIsPrintedAndIsTheReasonOfTheFailure) {
    const int code = runCli(required(), [](DbImportEvents&) {
        nxApp::MsgBox(u"Cartella '/manca/' non trovata. Verificare il percorso inserito."_s, 48);
        return false;
    });
    EXPECT_EQ(code, cli::kFailed);
    EXPECT_EQ(out, u"Cartella '/manca/' non trovata. Verificare il percorso inserito.\n"_s);
    EXPECT_EQ(err, u"upsizer-cli: Importazione fallita. Cartella '/manca/' non trovata. "
                   u"Verificare il percorso inserito.\n"_s);
}

} // namespace
