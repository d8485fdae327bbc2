#pragma once

#include "console/ImportRun.h"

#include <QProcessEnvironment>
#include <QStringList>
#include <QTextStream>

#include <optional>

// The scripted entry: one conversion from the command line, without a window.
//   upsizer-cli --source PATH --server NAME --database NAME [--description TEXT] [--user NAME]
//               [--password-env VAR] [--continue-on-index-warnings]
// The password is read from the environment variable VAR, so that it never stands on a command
// line (which other users of the machine can read); it is never printed.
namespace cli {

struct Options {
    QString source;
    QString server;
    QString database;
    QString description;
    QString user;
    QString password;
    bool continueOnIndexWarnings = false;
};

// The options, or nothing with the reason in `error` (`error` empty: help was asked and printed).
std::optional<Options> parse(const QStringList& arguments, const QProcessEnvironment& environment,
                             QString& error, QTextStream& out);

// The exit codes.
inline constexpr int kDone = 0;
inline constexpr int kFailed = 1;
inline constexpr int kBadArguments = 2;
inline constexpr int kNoLibrary = 3;

// Runs the conversion on this thread: prints each activity line and each message of the run to
// `out`, answers the run's questions from the options, and ends with kDone, or another code and
// a line on `err` that gives the reason. The library (nxApp) must be started.
int run(const Options& options, const ImportRunFactory& runs, QTextStream& out, QTextStream& err);

// The whole of the program: arguments to exit code.
int main(const QStringList& arguments, const QProcessEnvironment& environment,
         const ImportRunFactory& runs, QTextStream& out, QTextStream& err);

} // namespace cli
