#pragma once

#include "platform/vb/Err.h"

// Inside a catch block: the number, source and description of the failure in flight, as the run
// time would have left them in Err, without showing or recording anything. The engine's traps
// read a failure this way when they report it in a text of their own ("(<table>) <number>:
// <description>", "Errore <number> (<description>) - ...") rather than through nxApp::ErrorBox.
namespace engine {

vb::ErrRecord CaughtError() noexcept;

} // namespace engine
