#pragma once

#include <QString>

// Compares `text` with the file at `path` (relative to the source tree) exactly, naming the first
// line that differs. With UPSIZER_UPDATE_GOLDEN set the file is written instead: review the diff
// before committing it.
void expectGoldenText(const QString& path, const QString& text);
