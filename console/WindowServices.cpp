#include "console/WindowServices.h"

#include "console/JobWidgets.h"

#include "frame/nxApp.h"
#include "jobs/nxJob.h"

#include <QCoreApplication>
#include <QLabel>
#include <QProgressBar>

void InstallWindowServices() {
    nxApp::SetDoEvents([] { QCoreApplication::processEvents(); });
    nxJob::SetDefaultFormFactory(&frmJob::Create);
}
