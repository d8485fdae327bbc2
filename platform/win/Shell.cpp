#include "platform/win/Shell.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QGuiApplication>
#include <QProcess>
#include <QUrl>

#ifdef _WIN32
#include <shellapi.h>
#include <windows.h>
#endif

using namespace Qt::StringLiterals;

namespace win {

#ifdef _WIN32

long DesktopShell::execute(const QString& verb, const QString& file, const QString& arguments,
                           const QString& workDir, int show) {
    const auto result = reinterpret_cast<INT_PTR>(ShellExecuteW(
        nullptr, reinterpret_cast<LPCWSTR>(verb.utf16()), reinterpret_cast<LPCWSTR>(file.utf16()),
        arguments.isEmpty() ? nullptr : reinterpret_cast<LPCWSTR>(arguments.utf16()),
        workDir.isEmpty() ? nullptr : reinterpret_cast<LPCWSTR>(workDir.utf16()), show));
    return static_cast<long>(result);
}

long DesktopShell::findExecutable(const QString& file, const QString& workDir, QString* program) {
    wchar_t buffer[MAX_PATH] = {};
    const auto result = reinterpret_cast<INT_PTR>(FindExecutableW(
        reinterpret_cast<LPCWSTR>(file.utf16()),
        workDir.isEmpty() ? nullptr : reinterpret_cast<LPCWSTR>(workDir.utf16()), buffer));
    *program = result > 32 ? QString::fromWCharArray(buffer) : QString();
    return static_cast<long>(result);
}

#else

long DesktopShell::execute(const QString& verb, const QString& file, const QString& arguments,
                           const QString& workDir, int show) {
    Q_UNUSED(verb);
    Q_UNUSED(show);
    const QFileInfo info(workDir.isEmpty() || QFileInfo(file).isAbsolute() ? file
                                                                           : workDir + u'/' + file);
    if (!info.exists()) {
        return shell::kFileNotFound;
    }
    if (info.isExecutable() && info.isFile()) {
        const QStringList args = QProcess::splitCommand(arguments);
        return QProcess::startDetached(info.absoluteFilePath(), args, workDir)
                   ? shell::kOk
                   : shell::kFileNotFound;
    }
    const QUrl url = QUrl::fromLocalFile(info.absoluteFilePath());
    if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr) {
        return QDesktopServices::openUrl(url) ? shell::kOk : shell::kNoAssociation;
    }
#ifdef __APPLE__
    const QString opener = u"open"_s;
#else
    const QString opener = u"xdg-open"_s;
#endif
    return QProcess::startDetached(opener, {url.toLocalFile()}, workDir) ? shell::kOk
                                                                         : shell::kNoAssociation;
}

long DesktopShell::findExecutable(const QString& file, const QString& workDir, QString* program) {
    // The desktop's associations name applications, not program files: there is none to compare
    // with, so the caller runs its own program on the file.
    Q_UNUSED(workDir);
    program->clear();
    return QFileInfo::exists(file) ? shell::kNoAssociation : shell::kFileNotFound;
}

#endif

long RecordingShell::execute(const QString& verb, const QString& file, const QString& arguments,
                             const QString& workDir, int show) {
    calls.push_back({verb, file, arguments, workDir, show});
    return result;
}

long RecordingShell::findExecutable(const QString& file, const QString& workDir, QString* program) {
    Q_UNUSED(file);
    Q_UNUSED(workDir);
    *program = associatedProgram;
    return associatedProgram.isEmpty() ? shell::kNoAssociation : shell::kOk;
}

} // namespace win
