#include "frame/nxSys.h"

#include "frame/Edge.h"
#include "frame/ListControl.h"
#include "frame/Paths.h"
#include "frame/nxApp.h"
#include "frame/nxMisc.h"
#include "frame/nxUtilsDll.h"

#include "platform/win/FileSystem.h"

#include <QDir>

using namespace Qt::StringLiterals;
using frame::isSeparator;

namespace {

QString currentDirectory() {
    return QDir::toNativeSeparators(QDir::currentPath());
}

} // namespace

nxSys::nxSys() : m_enabled(nxApp::IsInit()) {
    AppPath(QString());
}

QString nxSys::ComputerName() {
    if (!m_enabled) {
        return {};
    }
    QString name = win::computerName();
    if (name.isEmpty()) {
        name = nxApp::GetSetting(u"System"_s, u"ComputerName"_s, {}, {}, win::kHKeyLocalMachine)
                   .toString();
    }
    if (name.isEmpty()) {
        name = nxApp::Misc().NewID(16);
        nxApp::SaveSetting(u"System"_s, u"ComputerName"_s, name, {}, win::kHKeyLocalMachine);
    }
    return name;
}

QString nxSys::WindowsPath() const {
    const QString folder = m_enabled ? win::windowsFolder().trimmed() : QString();
    return folder.isEmpty() ? QString() : AddBkSlash(folder);
}

QString nxSys::SystemPath() const {
    const QString folder = m_enabled ? win::systemFolder().trimmed() : QString();
    return folder.isEmpty() ? QString() : AddBkSlash(folder);
}

QString nxSys::AppExeName() const {
    return GetName(m_appFullName, false);
}

QString nxSys::AppPath() const {
    return m_enabled ? GetDir(m_appFullName, true) : QString();
}

void nxSys::AppPath(const QString& path) {
    if (!m_enabled) {
        return;
    }
    m_appFullName = GetPIDFullName(nxApp::AppInstance());
    const QString folder = path.trimmed();
    if (!folder.isEmpty() && DirExist(folder)) {
        m_appFullName = AddBkSlash(folder) + GetName(m_appFullName, true);
    }
}

void nxSys::SetListBoxHScrollbar(ListControl* list) {
    if (!m_enabled || list == nullptr) {
        return;
    }
    Edge(u"nxSys.SetListBoxHScrollbar()", false, [&] {
        int widest = 0;
        for (int i = 0; i < list->ListCount(); ++i) {
            widest = std::max(widest, list->TextWidth(list->List(i)));
        }
        list->SetHorizontalExtent(widest);
    });
}

QString nxSys::AddBkSlash(const QString& path, bool atEnd) const {
    if (!m_enabled) {
        return {};
    }
    if (path.isEmpty()) {
        return QString(frame::nativeSeparator());
    }
    if (atEnd) {
        return isSeparator(path.back()) ? path : path + frame::separatorFor(path);
    }
    return isSeparator(path.front()) ? path : frame::separatorFor(path) + path;
}

QString nxSys::DelBkSlash(const QString& path, bool atEnd) const {
    if (!m_enabled) {
        return {};
    }
    QString result = path;
    if (atEnd) {
        while (!result.isEmpty() && isSeparator(result.back())) {
            result.chop(1);
        }
    } else {
        while (!result.isEmpty() && isSeparator(result.front())) {
            result.remove(0, 1);
        }
    }
    return result;
}

bool nxSys::IsUNC(const QString& path) const {
    return m_enabled && path.size() >= 2 && isSeparator(path[0]) && isSeparator(path[1]);
}

QString nxSys::GetUnit(const QString& path) const {
    if (!m_enabled) {
        return {};
    }
    const QString unit = frame::unitOf(path.trimmed());
    return unit.isEmpty() ? frame::unitOf(currentDirectory()) : unit;
}

QString nxSys::GetDir(const QString& path, bool withUnit) const {
    if (!m_enabled) {
        return {};
    }
    if (path.isEmpty()) {
        return AddBkSlash(currentDirectory());
    }
    QString dir = path.left(frame::lastSeparator(path) + 1);
    if (!withUnit) {
        const QString unit = frame::unitOf(dir);
        dir.remove(0, unit.size());
    }
    return AddBkSlash(dir);
}

QString nxSys::GetName(const QString& path, bool withExt, const QString& separator) const {
    if (!m_enabled) {
        return {};
    }
    const QString p = path.trimmed();
    const qsizetype at =
        separator.isEmpty() ? frame::lastSeparator(p) : p.lastIndexOf(separator.front());
    QString name = p.mid(at + 1).trimmed();
    if (!withExt) {
        const qsizetype dot = name.lastIndexOf(u'.');
        if (dot >= 0) {
            name.truncate(dot);
        }
    }
    return name;
}

QString nxSys::GetExt(const QString& path) const {
    const QString name = GetName(path, true);
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot < 0 ? QString() : name.mid(dot + 1);
}

QString nxSys::GetPIDFullName(std::int32_t instance) const {
    if (!m_enabled) {
        return {};
    }
    return QDir::toNativeSeparators(win::moduleFileName(instance)).trimmed();
}

bool nxSys::DirExist(const QString& path) const {
    return m_enabled && nxApp::Utils().DirExists(path);
}

bool nxSys::FileExist(const QString& path) const {
    return m_enabled && nxApp::Utils().FileExists(path);
}

bool nxSys::GetAttr(const QString& path, std::uint32_t mask) const {
    if (!m_enabled) {
        return false;
    }
    return IgnoreErrors(false, [&] {
        const auto attributes = win::fileAttributes(frame::fsPath(path));
        return attributes && (*attributes & mask) != 0;
    });
}

bool nxSys::SetAttr(const QString& path, std::uint32_t mask, bool on) const {
    if (!m_enabled) {
        return false;
    }
    return IgnoreErrors(false, [&] {
        auto attributes = win::fileAttributes(frame::fsPath(path));
        if (!attributes) {
            return false;
        }
        std::uint32_t a = *attributes & ~win::attr::kCompressed;
        a = on ? (a | mask) : (a & ~mask);
        return win::setFileAttributes(frame::fsPath(path), a);
    });
}
