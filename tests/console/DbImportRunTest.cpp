#include "console/DbImportRun.h"

#include "console/cli/Cli.h"

#include "platform/ado/Error.h"
#include "platform/ado/ProviderRegistry.h"
#include "platform/ado/recording/RecordingProvider.h"
#include "platform/win/WindowThreadMessageBox.h"

#include "tests/console/WindowFixture.h"

#include <QDeadlineTimer>

using namespace Qt::StringLiterals;

namespace {

bool isMissingFolderMessage(const QString& text) {
    return text.startsWith(u"Cartella '"_s) &&
           text.endsWith(u"' non trovata. Verificare il percorso inserito."_s);
}

// The engine's own run behind the window: a source whose folder does not exist is refused
// before anything is asked of the server, with its message shown on the window's thread.
class WindowDbImportTest : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        nxApp::SetMessageBox(std::make_shared<win::WindowThreadMessageBox>(box));
        window = std::make_unique<frmMain>(servers, std::make_unique<ScriptedFileDialog>(),
                                           dbImportRuns());
    }
};

TEST_F(WindowDbImportTest, AMissingSourceFolderEndsTheRunWithItsMessage) {
    type("txtMDBPath", dir.file(u"manca"_s) + u"/QZSystem.mdb"_s);
    typeServer(u"srv"_s);
    type("txtDbName", u"Archivio"_s);
    box->answer({win::id::kOk, win::id::kOk});
    click(buttonNamed("cmdImport"));
    const QDeadlineTimer deadline(10000);
    while (window->Running() && !deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    }
    ASSERT_FALSE(window->Running());
    ASSERT_EQ(box->shown().size(), 2U);
    EXPECT_TRUE(isMissingFolderMessage(box->shown()[0].text)) << box->shown()[0].text.toStdString();
    EXPECT_EQ(box->shown()[1].text, u"Importazione fallita."_s);
    EXPECT_TRUE(buttonNamed("cmdImport")->isEnabled());
}

// The scripted entry on the engine's run: each refused input ends with a non-zero code and a
// line that says why, and the password shows nowhere.
class CliDbImportTest : public FrameTest {
protected:
    void SetUp() override {
        startLibrary = false;
        FrameTest::SetUp();
        environment.insert(u"UPSIZER_PW"_s, u"s3gr3ta!"_s);
    }
    int runCli(const QStringList& arguments) {
        QTextStream outStream(&out);
        QTextStream errStream(&err);
        const int code = cli::main(arguments, environment, dbImportRuns(), outStream, errStream);
        outStream.flush();
        errStream.flush();
        return code;
    }

    QProcessEnvironment environment;
    QString out;
    QString err;
};

TEST_F(CliDbImportTest, AMissingSourceFolderIsTheReason) {
    EXPECT_EQ(runCli({u"--source"_s, dir.file(u"manca"_s) + u"/QZSystem.mdb"_s, u"--server"_s,
                      u"srv"_s, u"--database"_s, u"Archivio"_s}),
              cli::kFailed);
    EXPECT_TRUE(err.startsWith(u"upsizer-cli: Importazione fallita. Cartella '"_s))
        << err.toStdString();
    EXPECT_TRUE(isMissingFolderMessage(out.trimmed())) << out.toStdString();
}

TEST_F(CliDbImportTest, ARefusedLoginIsTheReasonAndThePasswordShowsNowhere) {
    auto provider = std::make_shared<ado::recording::RecordingProvider>(u"SQLOLEDB"_s);
    const ado::ScopedProvider scoped(u"SQLOLEDB"_s, provider);
    // The run's own connection and the one that asks why are both refused.
    provider->script().openFails(ado::Error(ado::HResult::DB_SEC_E_AUTH_FAILED,
                                            u"Login failed for user 'sa'."_s,
                                            u"Microsoft OLE DB Provider for SQL Server"_s),
                                 2);
    const QString folder = dir.file(u"sorgente"_s);
    QDir().mkpath(folder);
    EXPECT_EQ(runCli({u"--source"_s, folder + u"/QZSystem.mdb"_s, u"--server"_s, u"srv"_s,
                      u"--database"_s, u"Archivio"_s, u"--user"_s, u"sa"_s, u"--password-env"_s,
                      u"UPSIZER_PW"_s}),
              cli::kFailed);
    // The run traps the refused login without a word; the line names the connection, the
    // server's answer, and that there is no log to read.
    EXPECT_EQ(err,
              u"upsizer-cli: Importazione fallita. The connection to the server 'srv' as "
              u"'sa' failed: Login failed for user 'sa'. (%1); check the server name, the "
              u"login and the password. Nothing was written on the server and no log was "
              u"opened.\n"_s.arg(static_cast<std::int32_t>(ado::HResult::DB_SEC_E_AUTH_FAILED)));
    // The password went to the server, and nowhere else.
    ASSERT_FALSE(provider->journal().entries().empty());
    EXPECT_TRUE(provider->journal().entries()[0].text.contains(u"s3gr3ta!"_s));
    EXPECT_FALSE(out.contains(u"s3gr3ta!"_s));
    EXPECT_FALSE(err.contains(u"s3gr3ta!"_s));
    EXPECT_FALSE(QFile::exists(folder + u"/ConversionLog.txt"_s));
    for (const QString& file : QDir(folder).entryList(QDir::Files)) {
        EXPECT_FALSE(readAll(folder + u"/"_s + file).contains("s3gr3ta!")) << file.toStdString();
    }
}

TEST_F(CliDbImportTest, AServerThatAnswersTheSecondTimeIsToldSo) {
    auto provider = std::make_shared<ado::recording::RecordingProvider>(u"SQLOLEDB"_s);
    const ado::ScopedProvider scoped(u"SQLOLEDB"_s, provider);
    provider->script().openFails(ado::Error(ado::HResult::E_UNSPECIFIED, u"[DBNETLIB]Timeout"_s,
                                            u"Microsoft OLE DB Provider for SQL Server"_s));
    const QString folder = dir.file(u"sorgente"_s);
    QDir().mkpath(folder);
    EXPECT_EQ(runCli({u"--source"_s, folder + u"/QZSystem.mdb"_s, u"--server"_s, u"srv"_s,
                      u"--database"_s, u"Archivio"_s}),
              cli::kFailed);
    EXPECT_EQ(err, u"upsizer-cli: Importazione fallita. The connection to the server 'srv' with "
                   u"Windows authentication or the check of the database name failed during "
                   u"the run; the connection opens now, so try the run again. Nothing was "
                   u"written on the server and no log was opened.\n"_s);
    // The second connection is the same as the run's, to master.
    const QStringList opens = provider->journal().lines().filter(u"open: "_s);
    ASSERT_EQ(opens.size(), 2) << provider->journal().lines().join(u'\n').toStdString();
    EXPECT_EQ(opens[0], opens[1]);
}

} // namespace
