#pragma once

#include "frame/nxApp.h"
#include "frame/nxError.h"

#include "platform/ado/ProviderRegistry.h"
#include "platform/ado/SchemaRowsets.h"
#include "platform/ado/recording/RecordingProvider.h"
#include "platform/vb/Err.h"
#include "platform/win/FileRegistry.h"
#include "platform/win/ScriptedMessageBox.h"

#include "tests/support/CreatingServer.h"
#include "tests/support/MemberOk.h"
#include "tests/support/Printers.h"
#include "tests/support/TestFiles.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <memory>

namespace schematest {

inline const QString kServerProvider = QStringLiteral("SQLOLEDB");
inline const QString kJetProvider = QStringLiteral("Microsoft.Jet.OLEDB.4.0");

// A started application object with a scripted message box and a registry of its own.
class AppTest : public testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    TestDir dir;
    std::shared_ptr<win::ScriptedMessageBox> box = std::make_shared<win::ScriptedMessageBox>();
};

// The same with recording providers in place of both back ends.
class SchemaDbTest : public AppTest {
protected:
    // An empty file for the recording Jet provider to open; returns its path.
    QString jetFile(const QString& name);

    std::shared_ptr<CreatingServer> server = std::make_shared<CreatingServer>();
    std::shared_ptr<ado::recording::RecordingProvider> jet =
        std::make_shared<ado::recording::RecordingProvider>(kJetProvider);
    ado::ScopedProvider serverScope{kServerProvider, server};
    ado::ScopedProvider jetScope{kJetProvider, jet};
};

// Compares `lines` with tests/schema/golden/<name>.sql as exact text; UPSIZER_UPDATE_GOLDEN=1
// rewrites the file instead (then review the diff).
void expectGolden(const QString& name, const QStringList& lines);

} // namespace schematest
