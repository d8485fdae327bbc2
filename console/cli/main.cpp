#include "console/DbImportRun.h"
#include "console/cli/Cli.h"

#include <QCoreApplication>

// The scripted entry: one conversion from the command line, with no window.
int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    QTextStream err(stderr);
    return cli::main(QCoreApplication::arguments().mid(1), QProcessEnvironment::systemEnvironment(),
                     dbImportRuns(), out, err);
}
