// nxSys: starting programs, the system's error texts and its clock.
#include "frame/Edge.h"
#include "frame/nxApp.h"
#include "frame/nxError.h"
#include "frame/nxSys.h"
#include "frame/nxWaitCursor.h"

#include "platform/win/FileSystem.h"
#include "platform/win/Shell.h"

using namespace Qt::StringLiterals;

namespace {

QString verbFor(int action) {
    switch (action) {
    case 0:
        return u"view"_s;
    case 1:
        return u"open"_s;
    case 2:
        return u"print"_s;
    case 3:
        return u"explore"_s;
    case 4:
        return u"runas"_s;
    default:
        return {}; // the file's default action
    }
}

} // namespace

bool nxSys::Shell(const QString& application, const QString& before, const QString& file,
                  const QString& after, int action, int show, const QString& workDir,
                  bool silent) const {
    if (!m_enabled) {
        return false;
    }
    nxWaitCursor wait;
    wait.Show(true);
    const QString program = application.trimmed();
    const QString document = file.trimmed();
    QString message;
    const bool done = Edge(u"nxSys.Shell()", silent, false, [&] {
        if (program.isEmpty() && document.isEmpty()) {
            message = u"Specificare un applicativo e/o un file."_s;
            return false;
        }
        if (!program.isEmpty() && !FileExist(program)) {
            message = u"Applicativo '"_s + program + u"' non trovato."_s;
            return false;
        }
        win::Shell& shell = nxApp::ShellService();
        QString target = document;
        QString arguments;
        if (!program.isEmpty()) {
            // The program is what the file opens with anyway: let the system open the file.
            QString associated;
            const bool sameProgram = shell.findExecutable(document, workDir, &associated) > 32 &&
                                     GetShortPath(associated) == GetShortPath(program);
            if (!sameProgram) {
                target = program;
                arguments = before + u' ' + document + u' ' + after;
            }
        }
        if (shell.execute(verbFor(action), target, arguments, workDir, show) <= 32) {
            message = u"Impossibile eseguire il programma associato al file '"_s + target + u' ' +
                      arguments + u"'."_s;
            return false;
        }
        return true;
    });
    if (!message.isEmpty()) {
        nxApp::LastError().Fill(0, u"nxSys.Shell()"_s, message, {}, 0, false);
        if (!silent) {
            nxApp::MsgBox(message, 48);
        }
    }
    return done;
}

QString nxSys::SystemErrorText(long code) const {
    if (!m_enabled) {
        return {};
    }
    const QString text = IgnoreErrors(QString(), [&] { return win::systemErrorText(code); });
    return text.isEmpty() ? u"sconosciuto."_s : text;
}

std::int32_t nxSys::TickCount() const {
    return m_enabled ? static_cast<std::int32_t>(win::tickCount()) : 0;
}
