#pragma once

#include <QString>

#include <vector>

namespace win {

// Starting programs and opening files with the program associated with them, as ShellExecute
// and FindExecutable do. Results follow the system's rule: above 32 is success, 32 or less the
// reason of the failure (2 file not found, 31 no association...).
class Shell {
public:
    virtual ~Shell() = default;
    // Runs `file` with `verb` ("open", "print"...): a program with `arguments`, or a document
    // with its associated program. `show` is the window state the system's call takes.
    virtual long execute(const QString& verb, const QString& file, const QString& arguments,
                         const QString& workDir, int show) = 0;
    // The program associated with `file`, or an empty text and a result of 32 or less.
    virtual long findExecutable(const QString& file, const QString& workDir, QString* program) = 0;
};

namespace shell {
inline constexpr long kFileNotFound = 2;
inline constexpr long kNoAssociation = 31;
inline constexpr long kOk = 42; // any value above 32 means success
} // namespace shell

// The desktop's own: ShellExecute on Windows; elsewhere a document goes to QDesktopServices
// (xdg-open, open) and a program is started detached.
class DesktopShell : public Shell {
public:
    long execute(const QString& verb, const QString& file, const QString& arguments,
                 const QString& workDir, int show) override;
    long findExecutable(const QString& file, const QString& workDir, QString* program) override;
};

// A shell for tests: records every call and starts nothing.
class RecordingShell : public Shell {
public:
    struct Call {
        QString verb;
        QString file;
        QString arguments;
        QString workDir;
        int show = 0;
    };
    long execute(const QString& verb, const QString& file, const QString& arguments,
                 const QString& workDir, int show) override;
    long findExecutable(const QString& file, const QString& workDir, QString* program) override;

    std::vector<Call> calls;
    long result = shell::kOk;  // what execute answers
    QString associatedProgram; // what findExecutable finds; empty for none
};

} // namespace win
