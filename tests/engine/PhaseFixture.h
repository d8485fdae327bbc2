#pragma once

#include "engine/DbImportEvents.h"
#include "engine/PhaseContext.h"

#include "dbaccess/nxConn.h"
#include "dbaccess/nxDb.h"
#include "frame/nxApp.h"
#include "frame/nxLog.h"
#include "frame/nxStringBuilder.h"

#include "platform/ado/Connection.h"
#include "platform/ado/ProviderRegistry.h"
#include "platform/ado/SchemaRowsets.h"
#include "platform/ado/recording/RecordingProvider.h"
#include "platform/vb/Err.h"
#include "platform/win/FileRegistry.h"
#include "platform/win/ScriptedMessageBox.h"

#include "tests/support/AppFixture.h"
#include "tests/support/MemberOk.h"
#include "tests/support/Printers.h"
#include "tests/support/TestFiles.h"

#include <QFile>
#include <QStringList>

#include <gtest/gtest.h>

#include <memory>
#include <optional>

namespace phasetest {

using namespace Qt::StringLiterals;
using ado::recording::RecordingProvider;

inline const QString& kServer = apptest::kServerProvider;
inline const QString& kJet = apptest::kJetProvider;

// The events a phase raised, one line each: "TableImportStart 12", "Error 4 (T) 5: text".
class RecordedEvents : public DbImportEvents {
public:
    QStringList lines;

    void EVTImportStart() override { lines << u"ImportStart"_s; }
    void EVTImportEnd() override { lines << u"ImportEnd"_s; }
    void EVTSysTableImportStart(std::int16_t n) override {
        lines << u"SysTableImportStart %1"_s.arg(n);
    }
    void EVTTableImportStart(std::int32_t n) override { lines << u"TableImportStart %1"_s.arg(n); }
    void EVTTableImportEnd() override { lines << u"TableImportEnd"_s; }
    void EVTSysTableImporting(std::int16_t i, const QString& t) override {
        lines << u"SysTableImporting %1 %2"_s.arg(i).arg(t);
    }
    void EVTUserTableImportStart(std::int16_t n) override {
        lines << u"UserTableImportStart %1"_s.arg(n);
    }
    void EVTUserTableImporting(std::int16_t, const QString& t, const vb::Variant&) override {
        lines << u"UserTableImporting "_s + t;
    }
    void EVTUserTableCreating(const QString& t, const vb::Variant&) override {
        lines << u"UserTableCreating "_s + t;
    }
    void EVTUserTableDataCopy(const QString& t, const vb::Variant&) override {
        lines << u"UserTableDataCopy "_s + t;
    }
    void EVTUserTableIndexCreating(const QString& t, const vb::Variant&) override {
        lines << u"UserTableIndexCreating "_s + t;
    }
    void EVTUserTableNotExisting(const QString& t, const vb::Variant&) override {
        lines << u"UserTableNotExisting "_s + t;
    }
    void EVTDictionayImportStart(std::int16_t n) override {
        lines << u"DictionaryImportStart %1"_s.arg(n);
    }
    void EVTDictionaryImporting(std::int16_t, const QString& t) override {
        lines << u"DictionaryImporting "_s + t;
    }
    void EVTDictionaryCreating(const QString& t, std::int16_t s) override {
        lines << u"DictionaryCreating %1 %2"_s.arg(t).arg(s);
    }
    void EVTDictionaryNotExisting(const QString& t) override {
        lines << u"DictionaryNotExisting "_s + t;
    }
    void EVTRecordImporting(std::int32_t c, std::int32_t t) override {
        lines << u"RecordImporting %1 %2"_s.arg(c).arg(t);
    }
    void EVTError(std::int32_t kind, const QString& text, bool ask) override {
        lines << u"Error %1 %2%3"_s.arg(kind).arg(text, ask ? u" (log)"_s : QString());
    }
};

// The members of a run that the phases share, before anything is opened.
struct RunMembers {
    nxDb src;
    nxDb dest;
    nxConn srcConn;
    nxConn destConn;
    nxConn masterConn;
    nxStringBuilder sb1;
    nxStringBuilder sb2;
    RecordedEvents events;
    nxLog log;

    engine::PhaseContext context() {
        return {src, dest, srcConn, destConn, masterConn, sb1, sb2, &events, log};
    }
};

// A started application object with a scripted message box, a registry of its own and a
// recording server in place of SQLOLEDB.
class PhaseTest : public apptest::AppTest {
protected:
    void SetUp() override {
        AppTest::SetUp();
        if (!HasFatalFailure()) {
            run = std::make_unique<RunMembers>();
        }
    }
    void TearDown() override {
        run.reset();
        AppTest::TearDown();
    }

    // Opens `db` on database QZ of the recording server SRV01, reporting `version`, binds the
    // destination metadata object to a clone, and forgets what the open recorded.
    void openDest(const QString& version = u"09.00.5000"_s) {
        server->script().property(u"DBMS Version"_s, version);
        server->script().schema(
            ado::SchemaEnum::adSchemaCatalogs,
            {ado::SchemaRow(ado::SchemaEnum::adSchemaCatalogs).set(u"CATALOG_NAME", u"QZ"_s).take()});
        ASSERT_MEMBER_OK(run->dest.DbOpen(u"QZ"_s, 8, true, kServer, u"SRV01"_s, 2, u"sa"_s, u"pw"_s));
        run->destConn.Connection(run->dest.ConnUtils()->CloneConnection());
        server->journal().clear();
    }

    // Opens the source handle on an empty file through the recording Jet provider and binds
    // the source metadata object to a clone; the master metadata object goes to the server.
    void openRecordedSource() {
        const QString path = dir.file(u"QZSystem.mdb"_s);
        QFile f(path);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.close();
        ASSERT_MEMBER_OK(run->src.DbOpen(path, 9, true, kJet, {}, 2));
        run->srcConn.Connection(run->src.ConnUtils()->CloneConnection());
        auto master = ado::Connection::create();
        master->Open(u"Provider=SQLOLEDB;Data Source=SRV01;User ID=sa;Password=pw"_s);
        run->masterConn.Connection(master);
        jet->journal().clear();
        server->journal().clear();
    }

    QStringList statements() const { return server->journal().statements(); }

    // Made once the application object is started: the library classes do nothing before.
    std::unique_ptr<RunMembers> run;
    std::shared_ptr<RecordingProvider> server = std::make_shared<RecordingProvider>(kServer);
    // Reset by tests that reach the real server.
    std::optional<ado::ScopedProvider> serverScope{std::in_place, kServer, server};
    std::shared_ptr<RecordingProvider> jet = std::make_shared<RecordingProvider>(kJet);
    // Reset by tests that read a real Jet file through the built-in provider.
    std::optional<ado::ScopedProvider> jetScope{std::in_place, kJet, jet};
};

// One row of the columns schema of a Jet source.
inline ado::Row columnRow(const QString& table, const QString& name, std::int32_t ordinal,
                          std::int32_t type, const vb::Variant& length = vb::Variant(vb::Null{}),
                          bool nullable = true, const vb::Variant& defaultText = vb::Variant(vb::Null{})) {
    return ado::SchemaRow(ado::SchemaEnum::adSchemaColumns)
        .set(u"TABLE_NAME", table)
        .set(u"COLUMN_NAME", name)
        .set(u"ORDINAL_POSITION", ordinal)
        .set(u"DATA_TYPE", type)
        .set(u"CHARACTER_MAXIMUM_LENGTH", length)
        .set(u"IS_NULLABLE", nullable)
        .set(u"COLUMN_HASDEFAULT", !defaultText.isNull())
        .set(u"COLUMN_DEFAULT", defaultText)
        .take();
}

} // namespace phasetest
