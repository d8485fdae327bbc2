// nxSys: making folders and copying, removing and renaming files.
#include "frame/Edge.h"
#include "frame/Paths.h"
#include "frame/nxApp.h"
#include "frame/nxError.h"
#include "frame/nxSys.h"

#include "platform/vb/Err.h"
#include "platform/win/FileSystem.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;
using frame::fsPath;
using frame::isSeparator;

namespace {

constexpr std::int32_t kFileAlreadyExists = 58;
// A copy keeps these of the source's attributes: read-only, hidden, system, directory, archive.
constexpr std::uint32_t kCopiedAttributes = 55;

// The run time's error for a failed file operation, naming the path it failed on.
[[noreturn]] void raiseFor(std::int32_t number, const QString& path, const QString& text = {}) {
    vb::Raise(number, u"nxSys"_s,
              (text.isEmpty() ? vb::ErrorText(number) : text) + u" ("_s + path + u')');
}

} // namespace

bool nxSys::DirMake(const QString& path, bool silent) const {
    if (!m_enabled) {
        return false;
    }
    const QString p = path.trimmed();
    if (p.isEmpty() || DirExist(p)) {
        return true;
    }
    return Edge(u"nxSys.DirMake()", silent, false, [&] {
        // From the unit on, one folder at a time: a share's server is never made.
        const QString unit = frame::unitOf(p);
        const QString rest = p.mid(unit.size());
        QString built = unit;
        qsizetype i = 0;
        while (i < rest.size()) {
            while (i < rest.size() && isSeparator(rest[i])) {
                built += rest[i++];
            }
            const qsizetype start = i;
            while (i < rest.size() && !isSeparator(rest[i])) {
                ++i;
            }
            if (i == start) {
                break;
            }
            built += rest.mid(start, i - start);
            if (!DirExist(built) && !QDir().mkdir(fsPath(built))) {
                raiseFor(vb::errors::kPathFileAccessError, built);
            }
        }
        return true;
    });
}

bool nxSys::FileInUse(const QString& path) const {
    if (!m_enabled || !FileExist(path)) {
        return false;
    }
    return IgnoreErrors(true, [&] { return win::fileHeldElsewhere(fsPath(path)); });
}

bool nxSys::FileCopy(const QString& source, const QString& dest, bool silent, bool copyAttr) const {
    const QString from = source.trimmed();
    const QString to = dest.trimmed();
    if (!m_enabled || from.isEmpty() || to.isEmpty()) {
        return false;
    }
    return Edge(u"nxSys.FileCopy()", silent, false, [&] {
        DirMake(GetDir(to, true), silent);
        long code = 0;
        const bool copied = win::copyFile(fsPath(from), fsPath(to), &code);
        const QString reason = copied ? QString() : SystemErrorText(code);
        SetAttr(to, win::attr::kReadOnly, false);
        if (copied && copyAttr) {
            if (const auto attributes = win::fileAttributes(fsPath(from))) {
                win::setFileAttributes(fsPath(to), *attributes & kCopiedAttributes);
            }
        }
        if (!copied) {
            const QString text = u"nxSys.FileCopy - Errore: "_s + reason;
            nxApp::LastError().Fill(0, u"nxSys.FileCopy()"_s, text, {}, 0, false);
            if (!silent) {
                nxApp::MsgBox(text, 16);
            }
        }
        return copied;
    });
}

bool nxSys::FileRemove(const QString& path, bool silent) const {
    const QString p = path.trimmed();
    const QString pattern = GetName(p, true);
    if (!m_enabled || pattern.isEmpty()) {
        return false;
    }
    return Edge(u"nxSys.FileRemove()", silent, false, [&] {
        const qsizetype cut = frame::lastSeparator(p);
        const QDir folder(cut < 0 ? u"."_s : fsPath(p.left(cut + 1)));
        QDir::Filters filters = QDir::Files | QDir::Hidden | QDir::System;
#ifndef _WIN32
        filters |= QDir::CaseSensitive;
#endif
        for (const QFileInfo& match : folder.entryInfoList({pattern}, filters)) {
            const QString file = match.filePath();
            if (const auto attributes = win::fileAttributes(file)) {
                win::setFileAttributes(file,
                                       *attributes & ~(win::attr::kReadOnly | win::attr::kHidden));
            }
            if (!QFile::remove(file)) {
                raiseFor(vb::errors::kPathFileAccessError, QDir::toNativeSeparators(file));
            }
        }
        return true;
    });
}

bool nxSys::FileRename(const QString& oldPath, const QString& newPath, bool silent) const {
    const QString from = oldPath.trimmed();
    const QString to = newPath.trimmed();
    if (!m_enabled || from.isEmpty() || to.isEmpty()) {
        return false;
    }
    return Edge(u"nxSys.FileRename()", silent, false, [&] {
        DirMake(GetDir(to, true), silent);
        if (!QFileInfo::exists(fsPath(from))) {
            raiseFor(vb::errors::kFileNotFound, from);
        }
        if (QFileInfo::exists(fsPath(to))) {
            raiseFor(kFileAlreadyExists, to, u"File già esistente"_s);
        }
        if (!QDir().rename(fsPath(from), fsPath(to))) {
            raiseFor(vb::errors::kPathFileAccessError, from);
        }
        return true;
    });
}

QString nxSys::GetShortPath(const QString& path) const {
    if (!m_enabled) {
        return {};
    }
    return IgnoreErrors(path, [&] {
        const auto shortPath = win::shortPathName(fsPath(path));
        return shortPath ? shortPath->toUpper() : path;
    });
}
