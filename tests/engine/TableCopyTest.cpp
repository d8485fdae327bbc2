#include "engine/TableCopy.h"
#include "engine/TableRecreation.h"

#include "PhaseFixture.h"

#include "jobs/nxRsJob.h"

#include "platform/ado/Error.h"

#include <QRegularExpression>

namespace phasetest {
namespace {

using ado::DataTypeEnum;
using ado::recording::rows;

const vb::Variant kNull{vb::Null{}};

class TableCopyTest : public PhaseTest {
protected:
    void SetUp() override {
        PhaseTest::SetUp();
        openRecordedSource();
        openDest();
        job = std::make_unique<nxRsJob>();
        // The source: an autoincrement ID that the server table has as identity, a yes/no
        // column and a binary one.
        ado::CatalogColumn id;
        id.name = u"ID"_s;
        id.type = DataTypeEnum::adInteger;
        id.properties = {{u"Autoincrement"_s, true, false}};
        ado::CatalogColumn sysRecord;
        sysRecord.name = u"SYS_RECORD"_s;
        sysRecord.type = DataTypeEnum::adInteger;
        sysRecord.properties = {{u"Autoincrement"_s, false, false}};
        jet->script().schema(ado::SchemaEnum::adSchemaTables,
                             {ado::SchemaRow(ado::SchemaEnum::adSchemaTables)
                                  .set(u"TABLE_NAME", u"D_ABC"_s)
                                  .set(u"TABLE_TYPE", u"TABLE"_s)
                                  .take()});
        jet->script().catalogTable(ado::CatalogTable{u"D_ABC"_s, u"TABLE"_s, {}, {}, {}},
                                   {sysRecord, id});
        server->script().onPrefix(
            u"select t1.TABLE_NAME, c1.COLUMN_NAME from INFORMATION_SCHEMA.TABLES"_s,
            ado::recording::Answer::withRows(
                rows({{u"TABLE_NAME"_s, DataTypeEnum::adVarWChar},
                      {u"COLUMN_NAME"_s, DataTypeEnum::adVarWChar}},
                     {{vb::Variant(u"D_ABC"_s), vb::Variant(u"ID"_s)}})));
        server->script().schema(ado::SchemaEnum::adSchemaColumns,
                                {columnRow(u"D_ABC"_s, u"FLAG"_s, 4, 11),
                                 columnRow(u"D_ABC"_s, u"Data ora"_s, 5, 11),
                                 columnRow(u"D_ABC"_s, u"TESTO"_s, 3, 130)});
    }

    void TearDown() override {
        job.reset();
        PhaseTest::TearDown();
    }

    void sourceRows(std::vector<ado::Row> values) {
        jet->script().returns(u"select count(*) from D_ABC"_s,
                              rows({{u"N"_s, DataTypeEnum::adInteger}},
                                   {{vb::Variant(static_cast<std::int32_t>(values.size()))}}));
        jet->script().onPrefix(
            u"select * from D_ABC"_s,
            ado::recording::Answer::withRows(rows({{u"SYS_RECORD"_s, DataTypeEnum::adInteger},
                                                   {u"ID"_s, DataTypeEnum::adInteger},
                                                   {u"TESTO"_s, DataTypeEnum::adVarWChar},
                                                   {u"FLAG"_s, DataTypeEnum::adBoolean},
                                                   {u"Data ora"_s, DataTypeEnum::adBoolean},
                                                   {u"BIN"_s, DataTypeEnum::adVarBinary}},
                                                  std::move(values))));
    }

    // The server's journal without the connections that come and go for metadata questions.
    QStringList serverWork() const {
        QStringList out;
        for (const QString& line : server->journal().lines()) {
            if (line.startsWith(u"execute: "_s) || line.startsWith(u"open: "_s)) {
                out << line;
            }
        }
        return out.filter(
            QRegularExpression(u"^execute: (insert|set|update)"_s));
    }

    std::unique_ptr<nxRsJob> job;
};

TEST_F(TableCopyTest, EachRecordIsOneInsertOfItsNonNullFields) {
    sourceRows({
        {vb::Variant(std::int32_t{1}), vb::Variant(std::int32_t{10}), vb::Variant(u"l'uno"_s),
         vb::Variant(true), vb::Variant(false), vb::Variant(QByteArray("\x01\x02", 2))},
        {vb::Variant(std::int32_t{2}), kNull, vb::Variant(u"due"_s), kNull, kNull, kNull},
    });
    engine::TableRecreation names(run->context());
    engine::TableCopy phase(run->context(), names, *job);
    EXPECT_TRUE(phase.CopyTableData(u"D_ABC"_s));
    EXPECT_EQ(phase.RecordCount(), 2);
    EXPECT_EQ(run->events.lines, (QStringList{u"TableImportStart 2"_s, u"TableImportEnd"_s}));
    const QStringList work = serverWork();
    ASSERT_EQ(work.size(), 4) << work.join(u'\n').toStdString();
    // The identity value is kept; yes/no travels as 1 or 0; the binary field has no value.
    EXPECT_EQ(work.at(0),
              u"execute: set identity_insert D_ABC on; insert into D_ABC (SYS_RECORD, ID, TESTO, "
              u"FLAG, [Data ora], BIN) values (?, ?, ?, ?, ?, ?); set identity_insert D_ABC off "
              u"[SYS_RECORD adInteger(3) size 0 = 1, ID adInteger(3) size 0 = 10, "
              u"TESTO adVarWChar(202) size 0 = 'l'uno', FLAG adBoolean(11) size 0 = 1, "
              u"Data ora adBoolean(11) size 0 = 0, BIN adVarBinary(204) size 0 = Empty]"_s);
    // A null autoincrement value is left out, and with it the wrap.
    EXPECT_EQ(work.at(1),
              u"execute: insert into D_ABC (SYS_RECORD, TESTO) values (?, ?) "
              u"[SYS_RECORD adInteger(3) size 0 = 2, TESTO adVarWChar(202) size 0 = 'due']"_s);
    EXPECT_EQ(work.at(2), u"execute: update D_ABC set FLAG=0 where FLAG is null"_s);
    EXPECT_EQ(work.at(3), u"execute: update D_ABC set [Data ora]=0 where [Data ora] is null"_s);
}

// The text of an insert is kept per pattern of nulls; the values are each record's own.
TEST_F(TableCopyTest, RecordsOfOnePatternShareTheTextButNotTheValues) {
    sourceRows({
        {vb::Variant(std::int32_t{1}), kNull, vb::Variant(u"uno"_s), kNull, kNull, kNull},
        {vb::Variant(std::int32_t{2}), kNull, kNull, vb::Variant(true), kNull, kNull},
        {vb::Variant(std::int32_t{3}), kNull, vb::Variant(u"tre"_s), kNull, kNull, kNull},
        {vb::Variant(std::int32_t{4}), vb::Variant(std::int32_t{40}), vb::Variant(u"quattro"_s),
         kNull, kNull, kNull},
        {vb::Variant(std::int32_t{5}), kNull, kNull, vb::Variant(false), kNull, kNull},
    });
    engine::TableRecreation names(run->context());
    engine::TableCopy phase(run->context(), names, *job);
    EXPECT_TRUE(phase.CopyTableData(u"D_ABC"_s));
    const QStringList work = serverWork();
    ASSERT_EQ(work.size(), 7) << work.join(u'\n').toStdString();
    EXPECT_EQ(work.mid(0, 5),
              (QStringList{
                  u"execute: insert into D_ABC (SYS_RECORD, TESTO) values (?, ?) "
                  u"[SYS_RECORD adInteger(3) size 0 = 1, TESTO adVarWChar(202) size 0 = 'uno']"_s,
                  u"execute: insert into D_ABC (SYS_RECORD, FLAG) values (?, ?) "
                  u"[SYS_RECORD adInteger(3) size 0 = 2, FLAG adBoolean(11) size 0 = 1]"_s,
                  u"execute: insert into D_ABC (SYS_RECORD, TESTO) values (?, ?) "
                  u"[SYS_RECORD adInteger(3) size 0 = 3, TESTO adVarWChar(202) size 0 = 'tre']"_s,
                  u"execute: set identity_insert D_ABC on; insert into D_ABC (SYS_RECORD, ID, "
                  u"TESTO) values (?, ?, ?); set identity_insert D_ABC off "
                  u"[SYS_RECORD adInteger(3) size 0 = 4, ID adInteger(3) size 0 = 40, "
                  u"TESTO adVarWChar(202) size 0 = 'quattro']"_s,
                  u"execute: insert into D_ABC (SYS_RECORD, FLAG) values (?, ?) "
                  u"[SYS_RECORD adInteger(3) size 0 = 5, FLAG adBoolean(11) size 0 = 0]"_s,
              }));
}

TEST_F(TableCopyTest, ARefusedRecordEndsItsTableButNotTheRun) {
    sourceRows({
        {vb::Variant(std::int32_t{1}), kNull, vb::Variant(u"uno"_s), kNull, kNull, kNull},
        {vb::Variant(std::int32_t{2}), kNull, vb::Variant(u"due"_s), kNull, kNull, kNull},
        {vb::Variant(std::int32_t{3}), kNull, vb::Variant(u"tre"_s), kNull, kNull, kNull},
    });
    // The first insert passes (an answer used up after once), the next ones are refused.
    server->script().onPrefix(u"insert into D_ABC (SYS_RECORD, TESTO)"_s,
                              ado::recording::Answer::affecting(1), 1);
    server->script().onPrefix(
        u"insert into D_ABC (SYS_RECORD, TESTO)"_s,
        ado::recording::Answer::failing(ado::Error(ado::HResult::DB_E_INTEGRITYVIOLATION,
                                                   u"Violation of PRIMARY KEY constraint"_s,
                                                   u"Microsoft OLE DB Provider for SQL Server"_s)),
        -1);
    engine::TableRecreation names(run->context());
    engine::TableCopy phase(run->context(), names, *job);
    EXPECT_TRUE(phase.CopyTableData(u"D_ABC"_s));
    const QStringList inserts = serverWork().filter(u"execute: insert"_s);
    EXPECT_EQ(inserts.size(), 2) << inserts.join(u'\n').toStdString(); // the third never ran
    EXPECT_EQ(run->events.lines,
              (QStringList{u"TableImportStart 3"_s,
                           u"Error 3 -2147217873: Violation of PRIMARY KEY constraint"_s,
                           u"TableImportEnd"_s}));
    // The bit columns are still set to 0 after the failed table.
    EXPECT_EQ(serverWork().filter(u"execute: update"_s).size(), 2);

    // A system table in the same state gives the job's answer.
    run->events.lines.clear();
    EXPECT_FALSE(phase.CopySystemTable(u"D_ABC"_s));
}

TEST_F(TableCopyTest, AnEmptyTableRunsBeforeAndAfterWithoutInserts) {
    sourceRows({});
    engine::TableRecreation names(run->context());
    engine::TableCopy phase(run->context(), names, *job);
    EXPECT_TRUE(phase.CopySystemTable(u"D_ABC"_s));
    const QStringList work = serverWork();
    EXPECT_TRUE(work.filter(u"execute: insert"_s).isEmpty());
    EXPECT_EQ(work.filter(u"execute: update"_s).size(), 2);
    EXPECT_EQ(run->events.lines, (QStringList{u"TableImportStart 0"_s, u"TableImportEnd"_s}));
}

TEST_F(TableCopyTest, ATableTheSourceCannotOpenIsNoCopy) {
    jet->script().strict();
    box->setFallback(1);
    engine::TableRecreation names(run->context());
    engine::TableCopy phase(run->context(), names, *job);
    EXPECT_FALSE(phase.CopySystemTable(u"D_MANCA"_s));
    EXPECT_TRUE(serverWork().filter(u"execute: insert"_s).isEmpty());
    // A user table that cannot be opened is no failure of the run: its copy simply did not run->
    EXPECT_TRUE(phase.CopyTableData(u"D_MANCA"_s));
}

TEST_F(TableCopyTest, AFailureOfTheCopyItselfIsToldWithTheTableAndGivesTheJobsState) {
    sourceRows({{vb::Variant(std::int32_t{1}), kNull, vb::Variant(u"uno"_s), kNull, kNull, kNull}});
    run->destConn.Connection(nullptr); // no destination to give the inserts a connection
    engine::TableRecreation names(run->context());
    engine::TableCopy phase(run->context(), names, *job);
    // The table was open, so a user table answers the job's readiness.
    EXPECT_TRUE(phase.CopyTableData(u"D_ABC"_s));
    ASSERT_EQ(run->events.lines.size(), 2) << run->events.lines.join(u'\n').toStdString();
    EXPECT_EQ(run->events.lines.at(0), u"TableImportStart 1"_s);
    EXPECT_TRUE(run->events.lines.at(1).startsWith(u"Error 3 (D_ABC) 424: "_s))
        << run->events.lines.at(1).toStdString();
    EXPECT_TRUE(serverWork().filter(u"execute: insert"_s).isEmpty());
    // The job is free again: the next table is copied.
    run->destConn.Connection(run->dest.ConnUtils()->CloneConnection());
    run->events.lines.clear();
    EXPECT_TRUE(phase.CopySystemTable(u"D_ABC"_s));
    EXPECT_EQ(serverWork().filter(u"execute: insert"_s).size(), 1);
}

TEST_F(TableCopyTest, TheSinksLeaveTheJobWithTheObject) {
    {
        engine::TableRecreation names(run->context());
        engine::TableCopy phase(run->context(), names, *job);
        EXPECT_TRUE(job->OnRecord != nullptr);
    }
    EXPECT_TRUE(job->OnBeforeJob == nullptr);
    EXPECT_TRUE(job->OnRecord == nullptr);
    EXPECT_TRUE(job->OnAfterJob == nullptr);
}

} // namespace
} // namespace phasetest
