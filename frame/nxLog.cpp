#include "frame/nxLog.h"

#include "frame/Edge.h"
#include "frame/ListControl.h"
#include "frame/Paths.h"
#include "frame/nxApp.h"
#include "frame/nxError.h"
#include "frame/nxMisc.h"
#include "frame/nxSys.h"

#include "platform/vb/Err.h"
#include "platform/win/Cp1252.h"

#include <QDate>
#include <QDateTime>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMaxSuffix = 255;
constexpr int kShowNormal = 1;
constexpr int kOpen = 1;

QString ruleLine() {
    return QString(80, u'-');
}

} // namespace

nxLog::~nxLog() {
    LogClose();
}

void nxLog::LogSet(const QString& file, const QString& path, bool dated) {
    if (!nxApp::IsInit() || IsOpen()) {
        return;
    }
    nxSys& sys = nxApp::Sys();
    QString name = file;
    if (name.isEmpty()) {
        name = (path.isEmpty() ? sys.AppPath() : path) + sys.AppExeName();
        if (dated) {
            // The program's name becomes a folder, with one file a day in it.
            name = sys.AddBkSlash(name) + QDate::currentDate().toString(u"yyMMdd"_s);
        }
        name += u".log"_s;
    }
    sys.DirMake(sys.GetDir(name, true), true);
    m_configured = name;
    m_logFile = name;
    m_set = true;
}

bool nxLog::LogOpen(const QString& title, ListControl* list, bool silent) {
    if (!m_set || IsOpen()) {
        return false;
    }
    return Edge(u"nxLog.OpenLog()", silent, false, [&] {
        nxSys& sys = nxApp::Sys();
        m_logFile = m_configured;
        const QString folder = m_logFile.left(frame::lastSeparator(m_logFile) + 1);
        const QString stem = sys.GetName(m_logFile, false);
        const QString ext =
            sys.GetExt(m_logFile).isEmpty() ? QString() : u'.' + sys.GetExt(m_logFile);
        // Another process has the file: the next name, x01.log, x02.log... up to xFF.log.
        for (int suffix = 1; sys.FileInUse(m_logFile); ++suffix) {
            if (suffix > kMaxSuffix) {
                nxApp::LastError().Fill(vb::errors::kFileAlreadyOpen, u"nxLog.OpenLog()"_s,
                                        vb::ErrorText(vb::errors::kFileAlreadyOpen) + u" ("_s +
                                            m_configured + u')',
                                        {}, 0, false);
                m_logFile = m_configured;
                return false;
            }
            m_logFile = folder + stem + nxApp::Misc().Hex(suffix, 2) + ext;
        }
        long code = 0;
        if (!m_file.openAppend(frame::fsPath(m_logFile), &code)) {
            const bool folderMissing = !sys.DirExist(sys.GetDir(m_logFile, true));
            vb::Raise(folderMissing ? vb::errors::kPathNotFound : vb::errors::kPathFileAccessError,
                      u"nxLog"_s,
                      vb::ErrorText(folderMissing ? vb::errors::kPathNotFound
                                                  : vb::errors::kPathFileAccessError) +
                          u" ("_s + m_logFile + u')');
        }
        if (!title.isEmpty()) {
            LogWrite(u"-"_s, list);
            LogWrite(title, list);
            LogWrite(u"-"_s, list);
        }
        return true;
    });
}

void nxLog::LogWrite(const QString& text, ListControl* list) {
    if (!IsOpen()) {
        return;
    }
    // A failed write loses the line and nothing else: the job goes on.
    IgnoreErrors([&] {
        const QDateTime now = QDateTime::currentDateTime();
        const QString line = text == u"-"_s ? ruleLine()
                                            : now.toString(u"dd/MM/yyyy"_s) + u" - "_s +
                                                  now.toString(u"HH:mm"_s) + u" - "_s + text;
        m_file.write(win::toCp1252(line + u"\r\n"_s));
        if (list != nullptr) {
            if (list->ListCount() >= kListRows) {
                list->RemoveItem(0);
            }
            list->AddItem(line);
            list->ListIndex(list->NewIndex());
            list->Refresh();
        }
    });
}

void nxLog::LogClose(const QString& text, ListControl* list) {
    if (!IsOpen()) {
        return;
    }
    IgnoreErrors([&] {
        if (!text.isEmpty()) {
            LogWrite(text, list);
        }
        // An empty line keeps consecutive runs in one file apart.
        m_file.write("\r\n");
        if (list != nullptr) {
            list->AddItem(QString());
            list->Refresh();
        }
    });
    m_file.close();
}

void nxLog::LogWriteError(ListControl* list) {
    if (!IsOpen()) {
        return;
    }
    const nxError& e = nxApp::LastError();
    QString text = e.Description() + u" ("_s;
    if (e.Number() != 0) {
        text += QString::number(e.Number()) + u" in "_s;
    }
    LogWrite(text + e.Source() + u')', list);
}

void nxLog::LogClear(const QString& title, bool backup, const QString& backupFile,
                     ListControl* list, bool silent) {
    if (!m_set) {
        return;
    }
    nxSys& sys = nxApp::Sys();
    const bool wasOpen = IsOpen();
    LogClose();
    if (backup) {
        const QString target = backupFile.isEmpty()
                                   ? m_logFile.left(frame::lastSeparator(m_logFile) + 1) +
                                         sys.GetName(m_logFile, false) + u".prv"_s
                                   : backupFile;
        sys.FileCopy(m_logFile, target, silent, false);
    }
    sys.FileRemove(m_logFile, silent);
    LogOpen(title, list, silent);
    if (!wasOpen) {
        LogClose();
    }
}

void nxLog::LogView(bool silent) {
    if (!m_set) {
        return;
    }
    nxSys& sys = nxApp::Sys();
    if (IsOpen()) {
        // What was written is on disk and free for reading; the log stays open.
        m_file.close();
        m_file.openAppend(frame::fsPath(m_logFile));
    }
    const QString windows = sys.WindowsPath();
    if (windows.isEmpty()) {
        // No Notepad here: the file opens with the program the desktop associates with it.
        sys.Shell({}, {}, m_logFile, {}, kOpen, kShowNormal, {}, silent);
        return;
    }
    QString notepad = windows + u"NOTEPAD.EXE"_s;
    if (!sys.FileExist(notepad)) {
        notepad = sys.SystemPath() + u"NOTEPAD.EXE"_s;
    }
    sys.Shell(notepad, {}, m_logFile, {}, kOpen, kShowNormal, {}, silent);
}
