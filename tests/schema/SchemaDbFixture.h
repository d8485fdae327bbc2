#pragma once

#include "platform/ado/SchemaRowsets.h"

#include "tests/support/AppFixture.h"
#include "tests/support/MemberOk.h"
#include "tests/support/Printers.h"
#include "tests/support/TestFiles.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace schematest {

using apptest::AppTest;
using apptest::kJetProvider;
using apptest::kServerProvider;

// A started application object with recording providers in place of both back ends.
class SchemaDbTest : public apptest::RecordingAppTest {
protected:
    // An empty file for the recording Jet provider to open; returns its path.
    QString jetFile(const QString& name);
};

// Compares `lines` with tests/schema/golden/<name>.sql as exact text; UPSIZER_UPDATE_GOLDEN=1
// rewrites the file instead (then review the diff).
void expectGolden(const QString& name, const QStringList& lines);

} // namespace schematest
