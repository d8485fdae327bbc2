#pragma once

#include <QString>

// Compares text with tests/platform/sqlserver/golden/<name>, exactly. With
// UPSIZER_UPDATE_GOLDEN=1 the file is rewritten instead (review the diff before committing).
void expectGolden(const QString& name, const QString& text);
