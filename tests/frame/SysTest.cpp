#include "frame/nxFileVersion.h"
#include "frame/nxSys.h"
#include "frame/nxUtilsDll.h"
#include "frame/nxWaitCursor.h"

#include "platform/win/FileSystem.h"
#include "platform/win/FileVersion.h"

#include "tests/frame/FrameFixture.h"

#include <QCoreApplication>
#include <QDir>
#include <QThread>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class SysTest : public FrameTest {
protected:
    const QString native = QString(QDir::separator());
};

bool runningAsRoot() {
#ifdef _WIN32
    return false;
#else
    return ::geteuid() == 0; // root writes read-only files
#endif
}

TEST_F(SysTest, BackslashPathsSplitAsTheSystemSplitsThem) {
    nxSys& s = nxApp::Sys();
    EXPECT_EQ(s.GetDir(u"x.txt"_s, true), native); // no folder: a lone separator
    EXPECT_EQ(s.GetDir(u"C:\\a\\b.txt"_s, true), u"C:\\a\\"_s);
    EXPECT_EQ(s.GetDir(u"C:\\a\\b.txt"_s, false), u"\\a\\"_s);
    EXPECT_EQ(s.GetDir(u"\\\\srv\\share\\a\\f.txt"_s, false), u"\\a\\"_s);
    EXPECT_EQ(s.GetUnit(u" \\\\server\\share\\a\\b "_s), u"\\\\server\\share"_s);
    EXPECT_EQ(s.GetUnit(u"\\\\server\\share"_s), u"\\\\server\\share"_s);
    EXPECT_EQ(s.GetUnit(u"d:\\x"_s), u"d:"_s);
    EXPECT_EQ(s.GetName(u"C:\\a\\b.txt"_s, false), u"b"_s);
    EXPECT_EQ(s.GetName(u"C:\\a\\ b.tar.gz "_s, false), u"b.tar"_s);
    EXPECT_EQ(s.GetName(u"a\\b/c"_s, true, u"\\|"_s), u"b/c"_s);
    EXPECT_EQ(s.GetExt(u"C:\\a.b\\c"_s), QString());
    EXPECT_EQ(s.GetExt(u"C:\\a\\c.Log"_s), u"Log"_s);
    EXPECT_TRUE(s.IsUNC(u"\\\\srv\\x"_s));
    EXPECT_FALSE(s.IsUNC(u"\\srv"_s));
}

TEST_F(SysTest, SeparatorsFollowThePathOrThePlatform) {
    nxSys& s = nxApp::Sys();
    EXPECT_EQ(s.AddBkSlash(QString()), native);
    EXPECT_EQ(s.AddBkSlash(u"C:\\a"_s), u"C:\\a\\"_s);
    EXPECT_EQ(s.AddBkSlash(u"/srv/a"_s), u"/srv/a/"_s);
    EXPECT_EQ(s.AddBkSlash(u"C:\\a\\"_s), u"C:\\a\\"_s);
    EXPECT_EQ(s.AddBkSlash(u"a"_s), u"a"_s + native);
    EXPECT_EQ(s.AddBkSlash(u"a\\b"_s, false), u"\\a\\b"_s);
    EXPECT_EQ(s.DelBkSlash(u"a\\//\\"_s), u"a"_s);
    EXPECT_EQ(s.DelBkSlash(u"\\\\a\\"_s, false), u"a\\"_s);
    EXPECT_EQ(s.GetDir(u"/srv/data/x.mdb"_s, true), u"/srv/data/"_s);
    EXPECT_EQ(s.GetName(u"/srv/data/x.mdb"_s, false), u"x"_s);
    EXPECT_EQ(s.GetDir(QString(), true),
              s.AddBkSlash(QDir::toNativeSeparators(QDir::currentPath())));
}

TEST_F(SysTest, DirMakeMakesEveryParent) {
    const QString deep = dir.file(u"a/b\\c"_s);
    EXPECT_MEMBER_OK(nxApp::Sys().DirMake(deep));
    EXPECT_TRUE(QFileInfo(dir.file(u"a/b/c"_s)).isDir());
    EXPECT_TRUE(nxApp::Sys().DirMake(u"  "_s));
}

TEST_F(SysTest, DirMakeUnderAFileFails) {
    ASSERT_TRUE(writeFile(dir.file(u"f"_s), "x"));
    EXPECT_FALSE(nxApp::Sys().DirMake(dir.file(u"f/g"_s), true));
    EXPECT_TRUE(box->shown().empty());
    EXPECT_EQ(nxApp::LastError().Source(), u"nxSys.DirMake()"_s);
    EXPECT_EQ(nxApp::LastError().Number(), 75);
    // The walk stops at the first folder it cannot make: the file standing in the way.
    EXPECT_TRUE(nxApp::LastError().Description().endsWith(u" ("_s + dir.file(u"f"_s) + u')'));
    box->answer(1);
    EXPECT_FALSE(nxApp::Sys().DirMake(dir.file(u"f/g"_s)));
    EXPECT_EQ(box->last().flags, 16);
}

TEST_F(SysTest, FileInUse) {
    nxSys& s = nxApp::Sys();
    const QString file = dir.file(u"held.txt"_s);
    EXPECT_FALSE(s.FileInUse(file)); // missing
    ASSERT_TRUE(writeFile(file, "x"));
    EXPECT_FALSE(s.FileInUse(file));
    {
        win::LockedFile holder;
        ASSERT_TRUE(holder.openAppend(file));
        EXPECT_TRUE(s.FileInUse(file));
    }
    EXPECT_FALSE(s.FileInUse(file));
    if (!runningAsRoot()) {
        QFile::setPermissions(file, QFileDevice::ReadOwner);
        EXPECT_TRUE(s.FileInUse(file)); // no rights counts as in use
    }
}

TEST_F(SysTest, FileCopyFailuresAndAttributes) {
    nxSys& s = nxApp::Sys();
    EXPECT_FALSE(s.FileCopy(dir.file(u"manca"_s), dir.file(u"dest"_s), true));
    EXPECT_TRUE(box->shown().empty());
    EXPECT_TRUE(nxApp::LastError().Description().startsWith(u"nxSys.FileCopy - Errore: "_s));
    EXPECT_EQ(nxApp::LastError().Source(), u"nxSys.FileCopy()"_s);
    box->answer(1);
    EXPECT_FALSE(s.FileCopy(dir.file(u"manca"_s), dir.file(u"dest"_s)));
    EXPECT_EQ(box->last().flags, 16);
    EXPECT_FALSE(s.FileCopy(u" "_s, dir.file(u"dest"_s)));

    const QString source = dir.file(u"src.txt"_s);
    ASSERT_TRUE(writeFile(source, "dati"));
    ASSERT_TRUE(s.SetAttr(source, win::attr::kReadOnly, true));
    EXPECT_MEMBER_OK(s.FileCopy(source, dir.file(u"nuova/copia.txt"_s)));
    EXPECT_EQ(readAll(dir.file(u"nuova/copia.txt"_s)), "dati");
    EXPECT_FALSE(s.GetAttr(dir.file(u"nuova/copia.txt"_s), win::attr::kReadOnly));
    EXPECT_MEMBER_OK(s.FileCopy(source, dir.file(u"attr.txt"_s), false, true));
    EXPECT_TRUE(s.GetAttr(dir.file(u"attr.txt"_s), win::attr::kReadOnly));
}

TEST_F(SysTest, FileRemoveTakesReadOnlyHiddenAndWildCards) {
    nxSys& s = nxApp::Sys();
    const QString hidden = dir.file(u".nascosto.tmp"_s);
    ASSERT_TRUE(writeFile(hidden, "x"));
    ASSERT_TRUE(s.SetAttr(hidden, win::attr::kReadOnly, true));
    ASSERT_TRUE(writeFile(dir.file(u"a.tmp"_s), "x"));
    ASSERT_TRUE(writeFile(dir.file(u"a.keep"_s), "x"));
    EXPECT_FALSE(s.FileRemove(dir.path() + u'/')); // no name part: nothing goes
    EXPECT_TRUE(QFile::exists(dir.file(u"a.tmp"_s)));
    EXPECT_MEMBER_OK(s.FileRemove(dir.file(u"*.tmp"_s)));
    EXPECT_FALSE(QFile::exists(hidden));
    EXPECT_FALSE(QFile::exists(dir.file(u"a.tmp"_s)));
    EXPECT_TRUE(QFile::exists(dir.file(u"a.keep"_s)));
    EXPECT_MEMBER_OK(s.FileRemove(dir.file(u"manca/*.x"_s)));
}

TEST_F(SysTest, FileRenameMakesTheFolderAndRefusesToOverwrite) {
    nxSys& s = nxApp::Sys();
    ASSERT_TRUE(writeFile(dir.file(u"QZSystem.mdb"_s), "jet"));
    EXPECT_MEMBER_OK(s.FileRename(dir.file(u"QZSystem.mdb"_s), dir.file(u"old/QZSystem.bak"_s)));
    EXPECT_EQ(readAll(dir.file(u"old/QZSystem.bak"_s)), "jet");
    ASSERT_TRUE(writeFile(dir.file(u"b"_s), "b"));
    EXPECT_FALSE(s.FileRename(dir.file(u"b"_s), dir.file(u"old/QZSystem.bak"_s), true));
    EXPECT_EQ(nxApp::LastError().Number(), 58);
    EXPECT_EQ(nxApp::LastError().Source(), u"nxSys.FileRename()"_s);
    EXPECT_FALSE(s.FileRename(dir.file(u"manca"_s), dir.file(u"c"_s), true));
    EXPECT_EQ(nxApp::LastError().Number(), 53);
    EXPECT_FALSE(s.FileRename(dir.file(u"b"_s), u"  "_s, true));
}

TEST_F(SysTest, ShortPathsAreForComparing) {
    nxSys& s = nxApp::Sys();
    EXPECT_EQ(s.GetShortPath(u"C:\\Manca\\File.txt"_s), u"C:\\Manca\\File.txt"_s);
    ASSERT_TRUE(writeFile(dir.file(u"Uno.txt"_s), "x"));
    EXPECT_EQ(s.GetShortPath(dir.file(u"Uno.txt"_s)), dir.file(u"Uno.txt"_s).toUpper());
}

TEST_F(SysTest, ShellWithNothingToRun) {
    nxSys& s = nxApp::Sys();
    box->answer({1, 1});
    EXPECT_FALSE(s.Shell({}, {}, {}, {}));
    EXPECT_EQ(box->last().text, u"Specificare un applicativo e/o un file."_s);
    EXPECT_EQ(box->last().flags, 48);
    EXPECT_FALSE(s.Shell(dir.file(u"manca.exe"_s), {}, u"a.txt"_s, {}));
    EXPECT_EQ(box->last().text,
              u"Applicativo '"_s + dir.file(u"manca.exe"_s) + u"' non trovato."_s);
    EXPECT_FALSE(s.Shell({}, {}, {}, {}, 1, 1, {}, true));
    EXPECT_EQ(box->shown().size(), 2u);
    EXPECT_EQ(nxApp::LastError().Description(), u"Specificare un applicativo e/o un file."_s);
    EXPECT_TRUE(shell->calls.empty());
}

TEST_F(SysTest, ShellRunsTheProgramOrLetsTheFileOpen) {
    nxSys& s = nxApp::Sys();
    const QString editor = dir.file(u"editor"_s);
    ASSERT_TRUE(writeFile(editor, "#!"));
    EXPECT_MEMBER_OK(s.Shell({}, {}, u"log.txt"_s, {}, 2, 3, u"C:\\w"_s));
    EXPECT_MEMBER_OK(s.Shell(editor, u"-a"_s, u"log.txt"_s, u"-z"_s));
    shell->associatedProgram = editor;
    EXPECT_MEMBER_OK(s.Shell(editor, u"-a"_s, u"log.txt"_s, u"-z"_s, 0));
    ASSERT_EQ(shell->calls.size(), 3u);
    EXPECT_EQ(shell->calls[0].verb, u"print"_s);
    EXPECT_EQ(shell->calls[0].file, u"log.txt"_s);
    EXPECT_EQ(shell->calls[0].show, 3);
    EXPECT_EQ(shell->calls[0].workDir, u"C:\\w"_s);
    EXPECT_EQ(shell->calls[1].file, editor);
    EXPECT_EQ(shell->calls[1].arguments, u"-a log.txt -z"_s);
    EXPECT_EQ(shell->calls[2].verb, u"view"_s);
    EXPECT_EQ(shell->calls[2].file, u"log.txt"_s);
    EXPECT_EQ(shell->calls[2].arguments, QString());
    EXPECT_EQ(pointer->history, (std::vector<int>{11, 0, 11, 0, 11, 0}));

    shell->result = 31;
    box->answer(1);
    // The associated program is the application: the file itself is opened, with no arguments.
    EXPECT_FALSE(s.Shell(editor, {}, u"x.doc"_s, {}));
    EXPECT_EQ(box->last().text, u"Impossibile eseguire il programma associato al file 'x.doc '."_s);
    // Another program is associated: the application runs with the file among its arguments.
    shell->associatedProgram = u"/usr/bin/altro"_s;
    box->answer(1);
    EXPECT_FALSE(s.Shell(editor, {}, u"x.doc"_s, {}));
    EXPECT_EQ(box->last().text, u"Impossibile eseguire il programma associato al file '"_s +
                                    editor + u"  x.doc '."_s);
}

TEST_F(SysTest, SmallSystemQuestions) {
    nxSys& s = nxApp::Sys();
    EXPECT_FALSE(s.SystemErrorText(2).isEmpty());
    EXPECT_NE(s.SystemErrorText(2), u"sconosciuto."_s);
    EXPECT_EQ(s.SystemErrorText(987654), u"sconosciuto."_s);
    const auto before = static_cast<std::uint32_t>(s.TickCount());
    QThread::msleep(30);
    EXPECT_GE(static_cast<std::uint32_t>(s.TickCount()) - before, 25u);
    EXPECT_FALSE(s.ComputerName().isEmpty());
    EXPECT_EQ(s.AppExeName(),
              QFileInfo(QCoreApplication::applicationFilePath()).completeBaseName());
    EXPECT_EQ(s.AppPath(),
              QDir::toNativeSeparators(QCoreApplication::applicationDirPath()) + QDir::separator());
    s.AppPath(dir.path());
    EXPECT_EQ(s.AppPath(), dir.path() + u'/');
    s.AppPath(dir.file(u"manca"_s));
    EXPECT_EQ(s.AppPath(),
              QDir::toNativeSeparators(QCoreApplication::applicationDirPath()) + QDir::separator());
}

TEST_F(SysTest, ListScrollRangeFitsTheWidestRow) {
    MemoryList list;
    list.rows = {u"corta"_s, u"la più lunga"_s, u"media"_s};
    nxApp::Sys().SetListBoxHScrollbar(&list);
    EXPECT_EQ(list.extent, 12 * 7);
    nxApp::Sys().SetListBoxHScrollbar(nullptr);
}

TEST_F(SysTest, UtilityLibraryTestsFilesAndFolders) {
    nxUtilsDll& u = nxApp::Utils();
    EXPECT_TRUE(u.IsReady());
    ASSERT_TRUE(writeFile(dir.file(u"f"_s), "x"));
    EXPECT_TRUE(u.FileExists(dir.file(u"f"_s)));
    EXPECT_FALSE(u.FileExists(dir.path()));
    EXPECT_TRUE(u.DirExists(dir.path()));
    EXPECT_FALSE(u.DirExists(dir.file(u"f"_s)));
    EXPECT_FALSE(u.FileExists(QString()));
}

TEST_F(SysTest, TheProgramsOwnVersionBlock) {
#ifndef _WIN32 // a Windows test program carries no version resource
    nxFileVersion own;
    own.FullName(nxApp::Sys().AppFullName());
    ASSERT_TRUE(own.HasVersion());
    EXPECT_EQ(own.ProductName(), win::productName());
    EXPECT_EQ(own.LocalizationCount(), 1);
    EXPECT_EQ(own.Language(0), u"041004E4"_s);
    EXPECT_EQ(own.Language(5), QString());
    EXPECT_EQ(own.Value(0, u"fileversion"_s),
              QString::number(own.VerMajor()) + u'.' + QString::number(own.VerMinor()) + u'.' +
                  QString::number(own.VerRevision()) + u'.' + QString::number(own.VerBuild()));
#endif
    nxFileVersion other;
    ASSERT_TRUE(writeFile(dir.file(u"x.exe"_s), "MZ"));
    other.FullName(dir.file(u"x.exe"_s));
    EXPECT_EQ(other.FullName(), dir.file(u"x.exe"_s));
    if (!win::readVersionBlock(dir.file(u"x.exe"_s))) {
        EXPECT_FALSE(other.HasVersion());
        EXPECT_EQ(other.ProductName(), QString());
    }
}

TEST_F(SysTest, WaitCursorIsScoped) {
    nxApp::SetMousePointer(3);
    {
        nxWaitCursor wait;
        wait.Show(true);
        wait.Show(true);
        EXPECT_EQ(nxApp::SetMousePointer(11), 11);
        {
            nxWaitCursor inner;
            inner.Show(true);
        }
    }
    EXPECT_EQ(pointer->history, (std::vector<int>{3, 11, 3}));
}

TEST_F(SysTest, NothingBeforeTheStart) {
    nxApp::ResetForTesting();
    nxApp::SetPointer(pointer);
    pointer->history.clear();
    nxSys early;
    EXPECT_EQ(early.GetDir(u"C:\\a\\b"_s, true), QString());
    EXPECT_FALSE(early.DirMake(dir.file(u"x"_s)));
    EXPECT_FALSE(QFileInfo::exists(dir.file(u"x"_s)));
    EXPECT_EQ(early.TickCount(), 0);
    nxWaitCursor wait;
    wait.Show(true);
    EXPECT_TRUE(pointer->history.empty());
}

} // namespace
