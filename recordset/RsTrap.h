#pragma once

#include <QString>

namespace rs {

// Records a failure of logic (a missing field, a record not in editing) under `label`: number 0
// and `text`, shown unless `silent`. Always false, for the member to return.
bool Refuse(const QString& label, const QString& text, bool silent);

} // namespace rs
