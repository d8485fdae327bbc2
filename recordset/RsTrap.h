#pragma once

#include <QString>

namespace rs {

// Inside a catch block: leaves the failure in flight in the ambient error (vb::Err()), as the
// run time would have, so that a member can adjust it before it reaches nxApp::ErrorBox.
void LoadAmbientError();

// Records a failure of logic (a missing field, a record not in editing) under `label`: number 0
// and `text`, shown unless `silent`. Always false, for the member to return.
bool Refuse(const QString& label, const QString& text, bool silent);

} // namespace rs
