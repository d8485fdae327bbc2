#pragma once

// The application object as the library's tests start it. Header-only, so that the support
// library itself needs no frame: a test target that includes this links frame through what it
// tests (dbaccess, schema, recordset).

#include "frame/nxApp.h"
#include "frame/nxError.h"

#include "platform/ado/ProviderRegistry.h"
#include "platform/ado/recording/RecordingProvider.h"
#include "platform/vb/Err.h"
#include "platform/win/FileRegistry.h"
#include "platform/win/ScriptedMessageBox.h"

#include "tests/support/CreatingServer.h"
#include "tests/support/TestFiles.h"

#include <QString>

#include <gtest/gtest.h>

#include <memory>

namespace apptest {

inline const QString kServerProvider = QStringLiteral("SQLOLEDB");
inline const QString kJetProvider = QStringLiteral("Microsoft.Jet.OLEDB.4.0");

// A fresh application object for every test, started, with a scripted message box and a registry
// of its own in a temporary folder; reset again when the test ends.
class AppTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(dir.isValid());
        nxApp::ResetForTesting();
        vb::Err().Clear();
        nxApp::SetMessageBox(box);
        nxApp::SetRegistry(
            std::make_shared<win::FileRegistry>(dir.file(QStringLiteral("registry"))));
        ASSERT_TRUE(nxApp::AppInitialize(vb::Variant(), QString()));
    }
    void TearDown() override {
        nxApp::ResetForTesting();
        vb::Err().Clear();
    }

    TestDir dir;
    std::shared_ptr<win::ScriptedMessageBox> box = std::make_shared<win::ScriptedMessageBox>();
};

// The same with recording providers in place of both back ends: a server on which "create
// database" makes the database appear, and a Jet provider; both give way to the registered ones
// when the test ends.
class RecordingAppTest : public AppTest {
protected:
    std::shared_ptr<CreatingServer> server = std::make_shared<CreatingServer>();
    std::shared_ptr<ado::recording::RecordingProvider> jet =
        std::make_shared<ado::recording::RecordingProvider>(kJetProvider);
    ado::ScopedProvider serverScope{kServerProvider, server};
    ado::ScopedProvider jetScope{kJetProvider, jet};
};

} // namespace apptest
