#pragma once

#include "dbaccess/nxConn.h"
#include "dbaccess/nxDb.h"
#include "dbaccess/nxTd.h"

#include "frame/nxSys.h"

#include "platform/ado/SchemaRowsets.h"

#include "tests/support/AppFixture.h"
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

using apptest::kJetProvider;
using apptest::kServerProvider;

// A started application object (tests/support/AppFixture.h) with recording providers in place of
// both back ends, and the ways to open a handle on them.
class DbTest : public apptest::RecordingAppTest {
protected:
    // Opens `db` on the recording server, on database QZ of server SRV01 with a SQL login,
    // and forgets what the open recorded.
    void openServer(nxDb& db, long flags = 9) {
        server->script().schema(ado::SchemaEnum::adSchemaCatalogs, {catalogRow(u"QZ"_s)});
        ASSERT_MEMBER_OK(
            db.DbOpen(u"QZ"_s, flags, true, kServerProvider, u"SRV01"_s, 2, u"sa"_s, u"pw"_s));
        server->journal().clear();
    }
    // Opens `db` on the recording server and `td` on its table `name`.
    void openServerTable(nxDb& db, nxTd& td, const QString& name) {
        ASSERT_NO_FATAL_FAILURE(openServer(db));
        td.Db(&db);
        ASSERT_MEMBER_OK(td.TdOpen(name));
    }
    // Opens `db` on an existing (empty) file through the recording Jet provider.
    void openJet(nxDb& db, long flags = 8) {
        ASSERT_NO_FATAL_FAILURE(openJetFile(db, u"qz.mdb"_s, false, flags));
    }
    // The same on a file marked read-only, so that the handle opens read-only.
    void openReadOnlyJet(nxDb& db) {
        ASSERT_NO_FATAL_FAILURE(openJetFile(db, u"ro.mdb"_s, true, 8));
        ASSERT_TRUE(db.IsReadOnly());
    }
    void openJetFile(nxDb& db, const QString& name, bool readOnly, long flags) {
        const QString path = dir.file(name);
        QFile f(path);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.close();
        if (readOnly) {
            ASSERT_TRUE(nxApp::Sys().SetAttr(path, 1, true));
        }
        ASSERT_MEMBER_OK(db.DbOpen(path, flags, true, kJetProvider));
        jet->journal().clear();
    }
    // The journal with the test's folder written as <dir>.
    QStringList lines(Journal& journal) const {
        QStringList result = journal.lines();
        result.replaceInStrings(dir.path(), u"<dir>"_s);
        return result;
    }
};

// Compares `lines` with tests/dbaccess/golden/<name>.sql as exact text; UPSIZER_UPDATE_GOLDEN=1
// rewrites the file instead (review the diff).
void expectGolden(const QString& name, const QStringList& lines);

} // namespace dbtest
