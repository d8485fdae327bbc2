#pragma once

#include "dbaccess/nxConn.h"
#include "dbaccess/nxDb.h"

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

#include <QFile>
#include <QStringList>

#include <gtest/gtest.h>

#include <memory>

namespace dbtest {

using namespace Qt::StringLiterals;

using ado::recording::Journal;
using ado::recording::RecordingProvider;

inline const QString kServerProvider = QStringLiteral("SQLOLEDB");
inline const QString kJetProvider = QStringLiteral("Microsoft.Jet.OLEDB.4.0");

// A started application object with a scripted message box and a registry of its own, and
// recording providers in place of both back ends.
class DbTest : public testing::Test {
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

    // Opens `db` on the recording server, on database QZ of server SRV01 with a SQL login,
    // and forgets what the open recorded.
    void openServer(nxDb& db, long flags = 9) {
        server->script().schema(ado::SchemaEnum::adSchemaCatalogs, {catalogRow(u"QZ"_s)});
        ASSERT_MEMBER_OK(
            db.DbOpen(u"QZ"_s, flags, true, kServerProvider, u"SRV01"_s, 2, u"sa"_s, u"pw"_s));
        server->journal().clear();
    }
    // Opens `db` on an existing (empty) file through the recording Jet provider.
    void openJet(nxDb& db, long flags = 8) {
        const QString path = dir.file(u"qz.mdb"_s);
        QFile f(path);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.close();
        ASSERT_MEMBER_OK(db.DbOpen(path, flags, true, kJetProvider));
        jet->journal().clear();
    }
    // The journal with the test's folder written as <dir>.
    QStringList lines(Journal& journal) const {
        QStringList result = journal.lines();
        result.replaceInStrings(dir.path(), u"<dir>"_s);
        return result;
    }

    TestDir dir;
    std::shared_ptr<win::ScriptedMessageBox> box = std::make_shared<win::ScriptedMessageBox>();
    std::shared_ptr<CreatingServer> server = std::make_shared<CreatingServer>();
    std::shared_ptr<RecordingProvider> jet = std::make_shared<RecordingProvider>(kJetProvider);
    ado::ScopedProvider serverScope{kServerProvider, server};
    ado::ScopedProvider jetScope{kJetProvider, jet};
};

// Compares `lines` with tests/dbaccess/golden/<name>.sql as exact text; UPSIZER_UPDATE_GOLDEN=1
// rewrites the file instead (review the diff).
void expectGolden(const QString& name, const QStringList& lines);

} // namespace dbtest
