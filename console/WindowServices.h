#pragma once

// What the window program gives the library at start-up, before any job or run starts: the
// message pump that the library's waits turn (nxApp::DoEvents), and frmJob as the window of
// every job that has none of its own. The scripted entry installs neither: it has no windows.
void InstallWindowServices();
