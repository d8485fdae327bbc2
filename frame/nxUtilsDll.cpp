#include "frame/nxUtilsDll.h"

#include "frame/Edge.h"
#include "frame/Paths.h"
#include "frame/nxApp.h"

#include <QFileInfo>

nxUtilsDll::nxUtilsDll() : m_ready(nxApp::IsInit()) {}

bool nxUtilsDll::FileExists(const QString& path) const {
    if (!m_ready || path.isEmpty()) {
        return false;
    }
    return IgnoreErrors(false, [&] {
        const QFileInfo info(frame::fsPath(path));
        return info.exists() && !info.isDir();
    });
}

bool nxUtilsDll::DirExists(const QString& path) const {
    if (!m_ready || path.isEmpty()) {
        return false;
    }
    return IgnoreErrors(false, [&] { return QFileInfo(frame::fsPath(path)).isDir(); });
}
