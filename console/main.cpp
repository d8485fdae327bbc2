#include "console/DbImportRun.h"
#include "console/WindowServices.h"
#include "console/frmMain.h"

#include "frame/nxApp.h"

#include <QApplication>
#include <QStringList>

// Starts the library and shows the window; when the library cannot be used nothing is shown
// and the program ends at once. Two copies may run side by side.
int main(int argc, char** argv) {
    QApplication app(argc, argv);
    const QString commandLine = QCoreApplication::arguments().mid(1).join(u' ');
    if (!nxApp::AppInitialize(vb::Variant(), commandLine)) {
        return 1;
    }
    InstallWindowServices();
    frmMain window(networkServerDirectory(), std::make_unique<QtFileOpenDialog>(), dbImportRuns());
    window.Form_Load();
    window.show();
    return QApplication::exec();
}
