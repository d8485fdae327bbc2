#include "frame/nxApp.h"

#include "tests/console/WindowFixture.h"

#include <QGroupBox>
#include <QLabel>
#include <QProgressBar>
#include <QStatusBar>

#include <vector>

using namespace Qt::StringLiterals;

namespace {

const QString kGeneral = u"SOFTWARE\\Brontel Data\\Solvaria\\General"_s;
const QString kRecent = u"SOFTWARE\\Brontel Data\\Solvaria\\General\\Recent"_s;

} // namespace

using ControlsTest = WindowTest;

TEST_F(ControlsTest, CaptionsTooltipsAndStateAtStart) {
    EXPECT_EQ(control<QGroupBox>("Frame1")->title(), u"Origine dati"_s);
    EXPECT_EQ(control<QGroupBox>("Frame2")->title(), u"Server di destinazione (SQL Server)"_s);
    EXPECT_EQ(control<QGroupBox>("Frame3")->title(), u"Attività"_s);
    EXPECT_EQ(control<QLabel>("Label5")->text(),
              u"Elenco percorsi rilevati contenenti database Access (QZSystem.mdb)"_s);
    EXPECT_EQ(control<QLabel>("Label2")->text(), u"Username SQL Server:"_s);
    EXPECT_EQ(buttonNamed("cmdTestConn")->text(), u"&Verifica connessione"_s);
    EXPECT_EQ(buttonNamed("cmdImport")->text(), u"&Importa"_s);
    EXPECT_EQ(buttonNamed("cmdStop")->text(), u"I&nterrompi"_s);
    EXPECT_EQ(buttonNamed("cmdExit")->text(), u"&Esci"_s);
    EXPECT_EQ(buttonNamed("cmdSqlSrv")->toolTip(),
              u"Effettua una ricerca delle istanze di SQL Server presenti e pubblicizzati nel "
              u"dominio corrente"_s);
    EXPECT_EQ(edit("txtUsername")->toolTip(),
              u"Inserire il nome utente SQL Server o lasciare in bianco se si usa "
              u"l'autenticazione Windows"_s);
    EXPECT_EQ(
        list("lstMdbPath")->toolTip(),
        u"Selezionare uno dei percorsi già registrati contenenti un archivio da convertire"_s);

    EXPECT_TRUE(buttonNamed("cmdPath")->isEnabled());
    EXPECT_TRUE(buttonNamed("cmdSqlSrv")->isEnabled());
    EXPECT_TRUE(buttonNamed("cmdExit")->isEnabled());
    EXPECT_FALSE(buttonNamed("cmdTestConn")->isEnabled());
    EXPECT_FALSE(buttonNamed("cmdImport")->isEnabled());
    EXPECT_FALSE(buttonNamed("cmdStop")->isEnabled());
    EXPECT_TRUE(serverBox()->isEditable());
    for (const char* bar : {"pgBarTbl", "pgBarRec"}) {
        EXPECT_EQ(control<QProgressBar>(bar)->minimum(), 0);
        EXPECT_EQ(control<QProgressBar>(bar)->maximum(), 100);
        EXPECT_EQ(control<QProgressBar>(bar)->value(), 0);
    }
}

TEST_F(ControlsTest, ThePasswordShowsOnlyStars) {
    type("txtPassword", u"segreto"_s);
    EXPECT_EQ(edit("txtPassword")->text(), u"segreto"_s);
    EXPECT_EQ(edit("txtPassword")->displayText(), u"*******"_s);
}

TEST_F(ControlsTest, TabGoesThroughTheFieldsInOrder) {
    const QStringList expected{
        u"lstMdbPath"_s, u"txtMDBPath"_s, u"cmdPath"_s,     u"cmbSqlServer"_s, u"cmdSqlSrv"_s,
        u"txtDbName"_s,  u"txtDbDesc"_s,  u"txtUsername"_s, u"txtPassword"_s,  u"cmdTestConn"_s,
        u"lstLog"_s,     u"cmdImport"_s,  u"cmdStop"_s,     u"cmdExit"_s};
    QStringList seen;
    QWidget* at = list("lstMdbPath");
    for (int guard = 0; guard < 200 && seen.size() < expected.size(); ++guard) {
        if (expected.contains(at->objectName()) && !seen.contains(at->objectName())) {
            seen.append(at->objectName());
        }
        at = at->nextInFocusChain();
    }
    EXPECT_EQ(seen, expected);
}

TEST_F(ControlsTest, BandsStandTopToBottomAsWideAsTheWindow) {
    window->resize(640, 700);
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    std::vector<QWidget*> bands{control<QGroupBox>("Frame1"), control<QGroupBox>("Frame2"),
                                control<QGroupBox>("Frame3"), control<QWidget>("Picture1"),
                                control<QStatusBar>("StatusBar1")};
    for (std::size_t i = 1; i < bands.size(); ++i) {
        EXPECT_GE(bands[i]->geometry().top(), bands[i - 1]->geometry().bottom())
            << bands[i]->objectName().toStdString();
        EXPECT_EQ(bands[i]->width(), bands[0]->width());
    }
    for (const char* name : {"cmdImport", "cmdStop", "cmdExit"}) {
        EXPECT_EQ(buttonNamed(name)->parentWidget(), bands[3]) << name;
    }
    auto* tbl = control<QProgressBar>("pgBarTbl");
    auto* rec = control<QProgressBar>("pgBarRec");
    EXPECT_GT(rec->geometry().top(), tbl->geometry().top());
    EXPECT_GT(control<QLabel>("lblRec")->geometry().left(), rec->geometry().left());
}

TEST_F(ControlsTest, ExitClosesTheWindowWithoutAsking) {
    window->show();
    click(buttonNamed("cmdExit"));
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(box->shown().empty());
}

TEST_F(ControlsTest, EnableControlsLeavesThePathAndLoginOpen) {
    window->EnableControls(false);
    for (const char* name : {"cmdPath", "cmdSqlSrv", "cmdTestConn", "cmdImport", "cmdExit"}) {
        EXPECT_FALSE(buttonNamed(name)->isEnabled()) << name;
    }
    EXPECT_FALSE(list("lstMdbPath")->isEnabled());
    EXPECT_FALSE(edit("txtDbName")->isEnabled());
    EXPECT_FALSE(edit("txtDbDesc")->isEnabled());
    EXPECT_FALSE(serverBox()->isEnabled());
    EXPECT_TRUE(buttonNamed("cmdStop")->isEnabled());
    EXPECT_TRUE(edit("txtMDBPath")->isEnabled());
    EXPECT_TRUE(edit("txtUsername")->isEnabled());
    EXPECT_TRUE(edit("txtPassword")->isEnabled());

    // Back on, the two run buttons come on whatever the fields hold.
    window->EnableControls(true);
    EXPECT_TRUE(buttonNamed("cmdImport")->isEnabled());
    EXPECT_TRUE(buttonNamed("cmdTestConn")->isEnabled());
    EXPECT_FALSE(buttonNamed("cmdStop")->isEnabled());
}

using FieldRuleTest = WindowTest;

TEST_F(FieldRuleTest, ImportNeedsPathServerAndName) {
    type("txtMDBPath", u"C:\\dati\\QZSystem.mdb"_s);
    EXPECT_FALSE(buttonNamed("cmdImport")->isEnabled());
    typeServer(u"srv"_s);
    EXPECT_FALSE(buttonNamed("cmdImport")->isEnabled());
    type("txtDbName", u"Archivio"_s);
    EXPECT_TRUE(buttonNamed("cmdImport")->isEnabled());
    edit("txtMDBPath")->clear();
    EXPECT_FALSE(buttonNamed("cmdImport")->isEnabled());
}

TEST_F(FieldRuleTest, TestingAConnectionAsksForServerAndName) {
    typeServer(u"srv"_s);
    EXPECT_FALSE(buttonNamed("cmdTestConn")->isEnabled());
    type("txtDbName", u"A"_s);
    EXPECT_TRUE(buttonNamed("cmdTestConn")->isEnabled());
    // The login takes no part, and a change of the path leaves the test button alone.
    serverBox()->lineEdit()->clear();
    EXPECT_FALSE(buttonNamed("cmdTestConn")->isEnabled());
    window->EnableControls(true);
    type("txtMDBPath", u"x"_s);
    EXPECT_TRUE(buttonNamed("cmdTestConn")->isEnabled());
}

using RegisteredPathsTest = WindowTest;

TEST_F(RegisteredPathsTest, AnEmptyRegistryLeavesAnEmptyUsableWindow) {
    window->Form_Load();
    EXPECT_EQ(list("lstMdbPath")->count(), 0);
    EXPECT_EQ(window->windowTitle(),
              u"Solvaria Access -> SQL Server upsizing tool - ver. "_s + nxApp::AppRelease());
    EXPECT_FALSE(nxApp::AppRelease().isEmpty());
    EXPECT_EQ(list("lstMdbPath")->currentRow(), -1);
}

TEST_F(RegisteredPathsTest, OnePathIsListedOnceAsFirstWritten) {
    const QString folder = archiveFolder(u"Archivio"_s);
    registerValue(win::kHKeyLocalMachine, kGeneral, u"SharedPath"_s, folder + u'/');
    registerValue(win::kHKeyCurrentUser, kGeneral, u"SharedPath"_s, folder);
    registerValue(win::kHKeyCurrentUser, kRecent, u"SharedPath3"_s, folder + u"//"_s);
    window->Form_Load();
    ASSERT_EQ(list("lstMdbPath")->count(), 1);
    EXPECT_EQ(list("lstMdbPath")->item(0)->text(), folder + u'/');
}

TEST_F(RegisteredPathsTest, EveryNumberIsTriedAndEachNameHasItsKey) {
    const QString a = archiveFolder(u"a"_s);
    const QString b = archiveFolder(u"b"_s);
    const QString c = archiveFolder(u"c"_s);
    const QString d = archiveFolder(u"d"_s);
    const QString empty = archiveFolder(u"vuota"_s, false);
    registerValue(win::kHKeyLocalMachine, kGeneral, u"SharedPath"_s, a);
    registerValue(win::kHKeyLocalMachine, kGeneral, u"SharedPath-1"_s, b); // not read here
    registerValue(win::kHKeyLocalMachine, kRecent, u"SharedPath"_s, b);    // nor this
    registerValue(win::kHKeyLocalMachine, kRecent, u"SharedPath57"_s, c);
    registerValue(win::kHKeyLocalMachine, kRecent, u"SharedPath-1"_s, d);
    registerValue(win::kHKeyLocalMachine, kRecent, u"SharedPath2"_s, empty); // no database
    window->Form_Load();
    QStringList shown;
    for (int i = 0; i < list("lstMdbPath")->count(); ++i) {
        shown.append(list("lstMdbPath")->item(i)->text());
    }
    EXPECT_EQ(shown, (QStringList{a, d, c}));
}

TEST_F(RegisteredPathsTest, ProductsAreScannedInTheirOrder) {
    const QString s = archiveFolder(u"s"_s);
    const QString t = archiveFolder(u"t"_s);
    const QString u = archiveFolder(u"u"_s);
    registerValue(win::kHKeyCurrentUser, u"SOFTWARE\\Brontel Data\\Tesselia\\General"_s,
                  u"SharedPath"_s, t);
    registerValue(win::kHKeyLocalMachine, u"SOFTWARE\\Brontel Data\\Tesselia\\General"_s,
                  u"SharedPath"_s, u);
    registerValue(win::kHKeyCurrentUser, kGeneral, u"SharedPath"_s, s);
    window->Form_Load();
    QStringList shown;
    for (int i = 0; i < list("lstMdbPath")->count(); ++i) {
        shown.append(list("lstMdbPath")->item(i)->text());
    }
    EXPECT_EQ(shown, (QStringList{s, u, t}));
}

TEST_F(RegisteredPathsTest, PathsDifferingInCaseOrClosingSeparatorAreOne) {
    EXPECT_FALSE(window->PathAlreadyListed(u"C:\\Dati"_s)); // an empty list
    const QString folder = archiveFolder(u"Dati"_s);
    registerValue(win::kHKeyCurrentUser, kGeneral, u"SharedPath"_s, folder);
    window->Form_Load();
    EXPECT_TRUE(window->PathAlreadyListed(folder.toUpper() + u"/"_s));
    EXPECT_TRUE(window->PathAlreadyListed(folder.toLower() + u"//"_s));
    EXPECT_FALSE(window->PathAlreadyListed(folder + u"x"_s));
}

using SourcePathTest = WindowTest;

TEST_F(SourcePathTest, PickingAFolderNamesItsSystemDatabase) {
    const QString folder = archiveFolder(u"a"_s);
    writeFile(folder + u"/config.ini"_s, "[Database]\r\nAltro=1\r\n");
    registerValue(win::kHKeyCurrentUser, kGeneral, u"SharedPath"_s, folder);
    window->Form_Load();
    edit("txtDbDesc")->setText(u"vecchia"_s);
    list("lstMdbPath")->setCurrentRow(0);
    EXPECT_EQ(window->SourcePath(), folder + u"/QZSystem.mdb"_s);
    EXPECT_EQ(edit("txtMDBPath")->text(), window->SourcePath());
    // config.ini without the description empties it, and the database is not asked.
    EXPECT_EQ(edit("txtDbDesc")->text(), QString());
    EXPECT_EQ(list("lstLog")->count(), 0);
}

// A mouse click on a row of the registered paths, as the operator makes it.
void clickRow(QListWidget* paths, int row) {
    const QRect area = paths->visualItemRect(paths->item(row));
    QTest::mouseClick(paths->viewport(), Qt::LeftButton, {}, area.center());
}

TEST_F(SourcePathTest, EveryClickOnARowLoadsItsDescriptionOnce) {
    // No config.ini: each load opens the one-byte database, and its refusal is one box.
    const QString damaged = archiveFolder(u"guasto"_s);
    const QString plain = archiveFolder(u"pulito"_s);
    writeFile(plain + u"/config.ini"_s, "[Database]\r\nAltro=1\r\n");
    registerValue(win::kHKeyCurrentUser, kGeneral, u"SharedPath"_s, damaged);
    registerValue(win::kHKeyCurrentUser, kRecent, u"SharedPath1"_s, plain);
    window->Form_Load();
    window->show();
    QListWidget* paths = list("lstMdbPath");
    ASSERT_EQ(paths->count(), 2);
    box->answer({win::id::kOk, win::id::kOk});
    clickRow(paths, 0); // a new row: loaded once, not once per signal
    EXPECT_EQ(box->shown().size(), 1U);
    clickRow(paths, 0); // the selected row again: loaded again
    EXPECT_EQ(box->shown().size(), 2U);
    EXPECT_EQ(window->SourcePath(), damaged + u"/QZSystem.mdb"_s);

    clickRow(paths, 1);
    EXPECT_EQ(window->SourcePath(), plain + u"/QZSystem.mdb"_s);
    edit("txtDbDesc")->setText(u"scritta a mano"_s);
    clickRow(paths, 1); // config.ini without a description empties the field again
    EXPECT_EQ(edit("txtDbDesc")->text(), QString());
    // A press on the selected row that is let go elsewhere is no click.
    edit("txtDbDesc")->setText(u"scritta a mano"_s);
    QTest::mousePress(paths->viewport(), Qt::LeftButton, {},
                      paths->visualItemRect(paths->item(1)).center());
    QTest::mouseRelease(paths->viewport(), Qt::LeftButton, {},
                        paths->visualItemRect(paths->item(1)).bottomRight() + QPoint(0, 40));
    EXPECT_EQ(edit("txtDbDesc")->text(), u"scritta a mano"_s);
    EXPECT_EQ(box->shown().size(), 2U);
}

TEST_F(SourcePathTest, TheDialogStartsAtTheTypedPathAndItsNameIsTaken) {
    const QString folder = archiveFolder(u"scelto"_s);
    dialog->answers.push_back(folder + u"/QZSystem.mdb"_s);
    type("txtMDBPath", folder);
    box->answer(win::id::kOk); // the one-byte database is refused by the database layer
    click(buttonNamed("cmdPath"));
    EXPECT_EQ(dialog->shows, 1);
    EXPECT_EQ(dialog->seenInitDir, folder);
    EXPECT_EQ(dialog->seenFilter, u"Database Solvaria/Tesselia (QZSystem*.mdb)|QZSystem*.mdb"_s);
    EXPECT_EQ(dialog->FilterIndex, 1);
    EXPECT_EQ(edit("txtMDBPath")->text(), folder + u"/QZSystem.mdb"_s);
    EXPECT_EQ(window->SourcePath(), folder + u"/QZSystem.mdb"_s);
}

TEST_F(SourcePathTest, ADamagedDatabaseShowsTheDatabaseErrorAndKeepsTheDescription) {
    const QString folder = archiveFolder(u"guasto"_s); // a system database of one byte
    dialog->answers.push_back(folder + u"/QZSystem.mdb"_s);
    edit("txtDbDesc")->setText(u"vecchia"_s);
    box->answer(win::id::kOk);
    // No config.ini: the description comes from the database, whose open is not silent.
    click(buttonNamed("cmdPath"));
    ASSERT_EQ(box->shown().size(), 1U);
    EXPECT_TRUE(box->shown()[0].text.contains(u"nxDb.DbOpen"_s))
        << box->shown()[0].text.toStdString();
    EXPECT_EQ(edit("txtDbDesc")->text(), QString()); // emptied before the database was asked
    EXPECT_EQ(list("lstLog")->count(), 0);
}

TEST_F(SourcePathTest, ACancelledDialogStillGivesItsName) {
    type("txtMDBPath", u"C:\\x\\QZSystem.mdb"_s);
    click(buttonNamed("cmdPath")); // nothing chosen, nothing held: the field empties
    EXPECT_EQ(edit("txtMDBPath")->text(), QString());
    dialog->answers.push_back(u"/nowhere/QZSystem.mdb"_s);
    click(buttonNamed("cmdPath"));
    click(buttonNamed("cmdPath")); // cancelled: the name of the last showing stays
    EXPECT_EQ(edit("txtMDBPath")->text(), u"/nowhere/QZSystem.mdb"_s);
    EXPECT_EQ(list("lstLog")->count(), 0); // a missing folder loads nothing
}

TEST_F(SourcePathTest, TypedPathsAreTakenOnlyByTheRun) {
    type("txtMDBPath", u"/dati/QZSystem.mdb"_s);
    EXPECT_EQ(window->SourcePath(), QString());
}
