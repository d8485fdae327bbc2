#pragma once

#include "console/ImportRun.h"

// The window's run: the engine's DbImport, with the Jet provider and the window as owner of the
// run's questions.
ImportRunFactory dbImportRuns();
