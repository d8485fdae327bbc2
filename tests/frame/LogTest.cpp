#include "frame/nxLog.h"
#include "frame/nxSys.h"

#include "platform/win/FileSystem.h"

#include "tests/frame/FrameFixture.h"

#include <QDate>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QThread>

#include <list>

using namespace Qt::StringLiterals;

namespace {

class LogTest : public FrameTest {
protected:
    QString logPath(const QString& name = u"x.log"_s) const { return dir.file(name); }
};

const QByteArray kRule = QByteArray(80, '-') + "\r\n";

// "dd/mm/yyyy - HH:nn - " at the start of a line.
const QRegularExpression kDated(u"^\\d\\d/\\d\\d/\\d{4} - \\d\\d:\\d\\d - "_s);

TEST_F(LogTest, TerminatingClosesTheSharedLogAndRenewsTheToolkits) {
    nxLog& ticks = nxApp::TickLog();
    ticks.LogSet(logPath());
    ASSERT_MEMBER_OK(ticks.LogOpen());
    ticks.LogWrite(u"tick"_s);
    nxApp::AppTerminate();
    EXPECT_FALSE(ticks.IsOpen());
    EXPECT_TRUE(readAll(logPath()).endsWith("tick\r\n\r\n"));          // closed with its empty line
    EXPECT_EQ(nxApp::Sys().GetName(u"C:\\a\\b.txt"_s, false), u"b"_s); // made anew on use
}

TEST_F(LogTest, OpenWritesTitleBetweenRulesAndCloseAddsAnEmptyLine) {
    nxLog log;
    log.LogSet(logPath());
    ASSERT_MEMBER_OK(log.LogOpen(u"Conversione"_s));
    EXPECT_FALSE(log.LogOpen(u"ancora"_s)); // already open: nothing changes
    log.LogWrite(QString());
    log.LogWrite(u"-"_s);
    log.LogClose(u"fine"_s);
    log.LogClose(u"non scritto"_s);
    const QList<QByteArray> lines = readAll(logPath()).split('\n');
    ASSERT_EQ(lines.size(), 8); // seven lines and what follows the last line end
    EXPECT_EQ(lines[0] + '\n', kRule);
    EXPECT_TRUE(kDated.match(QString::fromLatin1(lines[1])).hasMatch());
    EXPECT_TRUE(lines[1].endsWith(" - Conversione\r"));
    EXPECT_EQ(lines[2] + '\n', kRule);
    EXPECT_TRUE(lines[3].endsWith(" - \r")); // an empty text keeps date and time
    EXPECT_EQ(lines[4] + '\n', kRule);
    EXPECT_TRUE(lines[5].endsWith(" - fine\r"));
    EXPECT_EQ(lines[6], "\r");
    EXPECT_EQ(lines[7], "");
}

TEST_F(LogTest, LinesAreWindows1252AndAClosedLogAppends) {
    nxLog log;
    log.LogSet(logPath());
    ASSERT_MEMBER_OK(log.LogOpen());
    log.LogWrite(u"Perché 10 €"_s);
    log.LogClose();
    ASSERT_MEMBER_OK(log.LogOpen());
    log.LogWrite(u"ancora"_s);
    log.LogClose();
    const QByteArray bytes = readAll(logPath());
    EXPECT_TRUE(bytes.contains(" - Perch\xE9 10 \x80\r\n\r\n"));
    EXPECT_TRUE(bytes.endsWith(" - ancora\r\n\r\n"));
}

TEST_F(LogTest, TheListKeepsAMovingWindowOf2000Rows) {
    MemoryList list;
    for (int i = 0; i < nxLog::kListRows; ++i) {
        list.rows.append(QString::number(i));
    }
    nxLog log;
    log.LogSet(logPath());
    ASSERT_MEMBER_OK(log.LogOpen());
    log.LogWrite(u"nuova"_s, &list);
    EXPECT_EQ(list.ListCount(), 2000);
    EXPECT_EQ(list.rows.front(), u"1"_s);
    EXPECT_TRUE(list.rows.back().endsWith(u" - nuova"_s));
    EXPECT_EQ(list.selected, 1999);
    EXPECT_EQ(list.refreshes, 1);
    log.LogClose(QString(), &list);
    EXPECT_EQ(list.rows.back(), QString());
    EXPECT_EQ(list.ListCount(), 2001);
}

TEST_F(LogTest, AFileHeldElsewhereGivesWayToTheNextName) {
    win::LockedFile other;
    ASSERT_TRUE(other.openAppend(logPath()));
    nxLog log;
    log.LogSet(logPath());
    ASSERT_MEMBER_OK(log.LogOpen(u"t"_s));
    EXPECT_EQ(log.LogFile(), logPath(u"x01.log"_s));
    log.LogClose();
    other.close();
    ASSERT_MEMBER_OK(log.LogOpen());
    EXPECT_EQ(log.LogFile(), logPath()); // the configured name first, each time
}

TEST_F(LogTest, AnotherProcessHoldingTheLogIsSeen) {
    const QString flock = QStandardPaths::findExecutable(u"flock"_s);
    if (flock.isEmpty()) {
        GTEST_SKIP() << "no flock(1) to hold the file from another process";
    }
    ASSERT_TRUE(writeFile(logPath(), "x"));
    QProcess holder;
    holder.start(flock, {u"-x"_s, logPath(), u"sleep"_s, u"30"_s});
    ASSERT_TRUE(holder.waitForStarted());
    for (int i = 0; i < 100 && !win::fileHeldElsewhere(logPath()); ++i) {
        QThread::msleep(20);
    }
    nxLog log;
    log.LogSet(logPath());
    ASSERT_MEMBER_OK(log.LogOpen());
    EXPECT_EQ(log.LogFile(), logPath(u"x01.log"_s));
    holder.kill();
    holder.waitForFinished();
}

TEST_F(LogTest, AfterFFTheLogGivesUp) {
    std::list<win::LockedFile> held(256);
    auto it = held.begin();
    ASSERT_TRUE(it->openAppend(logPath()));
    for (int i = 1; i <= 255; ++i) {
        ++it;
        const QString name = u"x"_s + QString::number(i, 16).toUpper().rightJustified(2, u'0');
        ASSERT_TRUE(it->openAppend(logPath(name + u".log"_s)));
    }
    nxLog log;
    log.LogSet(logPath());
    EXPECT_FALSE(log.LogOpen());
    EXPECT_FALSE(log.IsOpen());
    EXPECT_EQ(nxApp::LastError().Number(), 55);
    EXPECT_EQ(nxApp::LastError().Source(), u"nxLog.OpenLog()"_s);
    EXPECT_TRUE(box->shown().empty());
}

TEST_F(LogTest, AFolderThatCannotBeMadeShowsAtOpen) {
    ASSERT_TRUE(writeFile(dir.file(u"file"_s), "not a folder"));
    nxLog log;
    log.LogSet(dir.file(u"file/sub/x.log"_s));
    EXPECT_TRUE(box->shown().empty());
    box->answer(1);
    EXPECT_FALSE(log.LogOpen(u"t"_s));
    EXPECT_EQ(nxApp::LastError().Source(), u"nxLog.OpenLog()"_s);
    EXPECT_EQ(nxApp::LastError().Number(), 76);
    ASSERT_EQ(box->shown().size(), 1u);
    EXPECT_TRUE(box->last().text.contains(u"\r\n\r\nnxLog.OpenLog() (errore 76, 0x4C)"_s));
    EXPECT_FALSE(log.LogOpen(u"t"_s, nullptr, true));
    EXPECT_EQ(box->shown().size(), 1u);
}

TEST_F(LogTest, DefaultNamesComeFromTheProgram) {
    nxSys& sys = nxApp::Sys();
    sys.AppPath(dir.path());
    nxLog plain;
    plain.LogSet();
    EXPECT_EQ(plain.LogFile(), sys.AppPath() + sys.AppExeName() + u".log"_s);
    nxLog dated;
    dated.LogSet(QString(), dir.file(u"logs/"_s), true);
    EXPECT_EQ(dated.LogFile(), dir.file(u"logs/"_s) + sys.AppExeName() + u'/' +
                                   QDate::currentDate().toString(u"yyMMdd"_s) + u".log"_s);
    EXPECT_TRUE(sys.DirExist(dir.file(u"logs/"_s) + sys.AppExeName()));
    nxLog given;
    given.LogSet(dir.file(u"a/b.txt"_s), u"ignored"_s, true); // a given name is never dated
    EXPECT_EQ(given.LogFile(), dir.file(u"a/b.txt"_s));
}

TEST_F(LogTest, LogWriteErrorWritesTheRecord) {
    MemoryList list;
    nxLog log;
    log.LogSet(logPath());
    ASSERT_MEMBER_OK(log.LogOpen());
    nxApp::LastError().Fill(3265, u"nxRs.FldGet"_s, u"Campo inesistente"_s, {}, 0, false);
    log.LogWriteError(&list);
    nxApp::LastError().Fill(0, u"nxTd.FldAdd()"_s, u"Campo doppio"_s, {}, 0, false);
    log.LogWriteError(&list);
    EXPECT_TRUE(list.rows[0].endsWith(u" - Campo inesistente (3265 in nxRs.FldGet)"_s));
    EXPECT_TRUE(list.rows[1].endsWith(u" - Campo doppio (nxTd.FldAdd())"_s));
}

TEST_F(LogTest, ClearKeepsABackupAndStartsAnew) {
    nxLog log;
    log.LogSet(logPath());
    ASSERT_MEMBER_OK(log.LogOpen());
    log.LogWrite(u"vecchio"_s);
    log.LogClear(u"Nuovo"_s, true);
    EXPECT_TRUE(log.IsOpen());
    EXPECT_TRUE(readAll(logPath(u"x.prv"_s)).contains(" - vecchio\r\n"));
    const QByteArray now = readAll(logPath());
    EXPECT_FALSE(now.contains("vecchio"));
    EXPECT_TRUE(now.contains(" - Nuovo\r\n"));
    log.LogClose();
    log.LogClear(QString(), false);
    EXPECT_FALSE(log.IsOpen());
    EXPECT_EQ(readAll(logPath()), "\r\n"); // reopened and closed again
}

TEST_F(LogTest, ViewOpensTheFileAndTheLogStaysOpen) {
    nxLog log;
    log.LogView();
    EXPECT_TRUE(shell->calls.empty()); // not set: nothing to show
    log.LogSet(logPath());
    ASSERT_MEMBER_OK(log.LogOpen());
    log.LogWrite(u"prima"_s);
    log.LogView();
    EXPECT_TRUE(log.IsOpen());
    ASSERT_EQ(shell->calls.size(), 1u);
    EXPECT_EQ(shell->calls[0].verb, u"open"_s);
    if (nxApp::Sys().WindowsPath().isEmpty()) {
        EXPECT_EQ(shell->calls[0].file, logPath());
    } else {
        EXPECT_TRUE(shell->calls[0].arguments.contains(logPath()));
    }
    log.LogWrite(u"dopo"_s);
    log.LogClose();
    EXPECT_TRUE(readAll(logPath()).contains(" - dopo\r\n"));
}

TEST_F(LogTest, NothingHappensBeforeTheStartOrWhileOpen) {
    nxLog log;
    log.LogSet(logPath());
    ASSERT_MEMBER_OK(log.LogOpen());
    log.LogSet(logPath(u"y.log"_s)); // a log cannot change its file while open
    EXPECT_EQ(log.LogFile(), logPath());
    log.LogClose();

    nxApp::ResetForTesting();
    nxLog early;
    early.LogSet(logPath(u"z.log"_s));
    EXPECT_FALSE(early.LogOpen());
    EXPECT_FALSE(QFile::exists(logPath(u"z.log"_s)));
}

} // namespace
