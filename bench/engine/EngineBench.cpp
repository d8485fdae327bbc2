// The conversion's user-table phase over a Solvaria source with 200,000 records in its main
// archive: every archive listed in DB_ELENCO and every DIZ_ dictionary is recreated, indexed and
// copied record by record (TableRecreation, IndexRecreation, TableCopy through nxRsJob) from the
// Jet file read by the built-in Jet provider into a recording "SQLOLEDB". The recording server
// answers at once, so the figures are the engine's: reading the source, composing each insert,
// binding its parameters and handing it over; a real server adds its own time on top.
//
// Prints records per second of the record copy alone (the inserts of every table, from the
// job's first record to its last) and of the whole phase, processor time beside wall time (the
// machine is shared), and the resident memory at its highest. It checks that the server was
// handed one insert per source record, with one parameter per non-null value, and fails when not.
//
//   engine_bench <solvaria-200k.mdb>
#include "engine/IndexRecreation.h"
#include "engine/PhaseContext.h"
#include "engine/TableCopy.h"
#include "engine/TableRecreation.h"

#include "dbaccess/nxConn.h"
#include "dbaccess/nxDb.h"
#include "frame/nxApp.h"
#include "frame/nxError.h"
#include "frame/nxLog.h"
#include "frame/nxStringBuilder.h"
#include "jobs/nxRsJob.h"

#include "platform/ado/Connection.h"
#include "platform/ado/Field.h"
#include "platform/ado/ProviderRegistry.h"
#include "platform/ado/Recordset.h"
#include "platform/ado/SchemaRowsets.h"
#include "platform/ado/recording/RecordingProvider.h"
#include "platform/jetfile/Database.h"
#include "platform/jetfile/RowCursor.h"
#include "platform/win/FileRegistry.h"
#include "platform/win/ScriptedMessageBox.h"

#include "tests/support/ForwardingSession.h"

#include "bench/support/Measure.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <cstdio>
#include <exception>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

const QString kServer = u"SQLOLEDB"_s;
const QString kJet = u"Microsoft.Jet.OLEDB.4.0"_s;

using benchmeasure::cpuSeconds;
using benchmeasure::statusKiB;

// The recording server, counting the inserts and their parameters and forgetting the journal as
// it goes: kept whole it would hold every record and measure itself.
struct Tally {
    long long inserts = 0;
    long long parameters = 0;
    long long others = 0;
};

class CountingSession : public ForwardingSession {
public:
    CountingSession(std::unique_ptr<ado::ProviderSession> inner, ado::recording::Journal& journal,
                    Tally& tally)
        : ForwardingSession(std::move(inner)), m_journal(journal), m_tally(tally) {}

    ado::CommandResult execute(const ado::CommandRequest& request) override {
        if (request.text.startsWith(u"insert into "_s)) {
            ++m_tally.inserts;
            m_tally.parameters += static_cast<long long>(request.parameters.size());
        } else {
            ++m_tally.others;
        }
        ado::CommandResult result = ForwardingSession::execute(request);
        m_journal.clear();
        return result;
    }

private:
    ado::recording::Journal& m_journal;
    Tally& m_tally;
};

class CountingServer : public ado::Provider {
public:
    CountingServer() : m_inner(std::make_shared<ado::recording::RecordingProvider>(kServer)) {}
    ado::recording::Script& script() { return m_inner->script(); }
    const Tally& tally() const { return m_tally; }
    QString name() const override { return kServer; }
    std::unique_ptr<ado::ProviderSession> open(const ado::OpenRequest& request) override {
        return std::make_unique<CountingSession>(m_inner->open(request), m_inner->journal(),
                                                 m_tally);
    }
    void createDatabase(const ado::ConnectionString& cs) override { m_inner->createDatabase(cs); }

private:
    std::shared_ptr<ado::recording::RecordingProvider> m_inner;
    Tally m_tally;
};

// The tables the phase converts, with their records and present values as jetfile counts them:
// the listed archives that are in the file, then the dictionaries.
struct Work {
    QStringList tables;
    long long records = 0;
    long long values = 0;
};

Work readWork(const QString& path) {
    Work work;
    const auto db = jetfile::Database::open(path);
    QStringList listed;
    auto list = db.scan(u"DB_ELENCO");
    const int serial = list.table().columnIndex(u"SYS_SERIALE");
    while (list.next()) {
        listed << list.value(serial).toString();
    }
    for (const QString& name : db.tableNames(false)) {
        if (listed.contains(name) || name.startsWith(u"DIZ_"_s)) {
            work.tables << name;
        }
    }
    for (const QString& table : work.tables) {
        auto cursor = db.scan(table);
        const int columns = static_cast<int>(cursor.table().columns.size());
        while (cursor.next()) {
            ++work.records;
            for (int c = 0; c < columns; ++c) {
                work.values += cursor.value(c).isNull() ? 0 : 1;
            }
        }
    }
    return work;
}

// The destination's bit columns, as a server lists them after the table is made: the boolean
// fix runs for each.
std::vector<ado::Row> bitColumns(const QStringList& tables) {
    std::vector<ado::Row> rows;
    for (const QString& table : tables) {
        rows.push_back(ado::SchemaRow(ado::SchemaEnum::adSchemaColumns)
                           .set(u"TABLE_NAME", table)
                           .set(u"COLUMN_NAME", u"ARCHIVIATO"_s)
                           .set(u"DATA_TYPE", std::int32_t{11})
                           .take());
    }
    return rows;
}

struct Members {
    nxDb src;
    nxDb dest;
    nxConn srcConn;
    nxConn destConn;
    nxConn masterConn;
    nxStringBuilder sb1;
    nxStringBuilder sb2;
    nxLog log;
    engine::PhaseContext context() {
        return {src, dest, srcConn, destConn, masterConn, sb1, sb2, nullptr, log};
    }
};

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: engine_bench <solvaria-200k.mdb>\n");
        return 2;
    }
    const QString path = QString::fromLocal8Bit(argv[1]);
    QTemporaryDir dir;
    nxApp::SetMessageBox(std::make_shared<win::ScriptedMessageBox>());
    nxApp::SetRegistry(std::make_shared<win::FileRegistry>(dir.filePath(u"registry"_s)));
    if (!nxApp::AppInitialize(vb::Variant(), QString())) {
        std::fprintf(stderr, "the library did not start\n");
        return 1;
    }
    Work work;
    try {
        work = readWork(path);
    } catch (const std::exception& e) {
        std::fprintf(stderr, "%s\n", e.what());
        return 1;
    }

    auto server = std::make_shared<CountingServer>();
    ado::ScopedProvider scope(kServer, server);
    server->script().property(u"DBMS Version"_s, u"09.00.5000"_s);
    server->script().schema(ado::SchemaEnum::adSchemaCatalogs,
                            {ado::SchemaRow(ado::SchemaEnum::adSchemaCatalogs)
                                 .set(u"CATALOG_NAME", u"QZ"_s)
                                 .take()});
    server->script().schema(ado::SchemaEnum::adSchemaColumns, bitColumns(work.tables));

    const long rssStart = statusKiB("VmRSS:");
    auto run = std::make_unique<Members>();
    if (!run->src.DbOpen(path, 9, true, kJet, {}, 2) ||
        !run->dest.DbOpen(u"QZ"_s, 8, true, kServer, u"SRV01"_s, 2, u"sa"_s, u"pw"_s)) {
        std::fprintf(stderr, "a database did not open: %s\n",
                     qPrintable(nxApp::LastError().Description()));
        return 1;
    }
    run->srcConn.Connection(run->src.ConnUtils()->CloneConnection());
    run->destConn.Connection(run->dest.ConnUtils()->CloneConnection());
    auto master = ado::Connection::create();
    master->Open(u"Provider=SQLOLEDB;Data Source=SRV01;User ID=sa;Password=pw"_s);
    run->masterConn.Connection(master);

    engine::TableRecreation tables(run->context());
    engine::IndexRecreation indexes(run->context(), tables);
    nxRsJob job;
    engine::TableCopy copy(run->context(), tables, job);
    // The record copy's own time: from each job's first record to its last.
    QElapsedTimer copyClock;
    double copyWall = 0;
    double copyCpu = 0;
    double cpuMark = 0;
    auto before = job.OnBeforeJob;
    auto after = job.OnAfterJob;
    job.OnBeforeJob = [&](nxRs& rs, bool& result, bool flag) {
        before(rs, result, flag);
        copyClock.start();
        cpuMark = cpuSeconds();
    };
    job.OnAfterJob = [&](nxRs& rs, bool& result, bool flag) {
        copyWall += static_cast<double>(copyClock.nsecsElapsed()) / 1e9;
        copyCpu += cpuSeconds() - cpuMark;
        after(rs, result, flag);
    };

    bool ok = true;
    QElapsedTimer wall;
    wall.start();
    const double cpuStart = cpuSeconds();
    for (QString table : work.tables) {
        ok = run->dest.Execute(tables.GetCreateTableSql(table, run->srcConn.Connection()), true,
                               128) &&
             indexes.CreateTableIndexes(table) && copy.CopyTableData(table) && ok;
    }
    const double phaseWall = static_cast<double>(wall.nsecsElapsed()) / 1e9;
    const double phaseCpu = cpuSeconds() - cpuStart;
    const long rssEnd = statusKiB("VmRSS:");
    const long rssPeak = statusKiB("VmHWM:");
    const long rssAnon = statusKiB("RssAnon:");
    const long rssFile = statusKiB("RssFile:");
    const Tally& tally = server->tally();
    const auto rate = [](long long n, double secs) { return static_cast<double>(n) / secs; };
    std::printf("%s: %lld tables, %lld records, %lld present values\n", argv[1],
                static_cast<long long>(work.tables.size()), work.records, work.values);
    std::printf("record copy:    %9.0f records/s  (%.2f s; processor %.2f s, %.0f records/s)\n",
                rate(work.records, copyWall), copyWall, copyCpu, rate(work.records, copyCpu));
    std::printf("user tables:    %9.0f records/s  (%.2f s; processor %.2f s, %.0f records/s): "
                "create, indexes, count, copy and boolean fix of every table\n",
                rate(work.records, phaseWall), phaseWall, phaseCpu,
                rate(work.records, phaseCpu));
    std::printf("resident memory: %ld KiB before, %ld KiB after (%ld KiB anonymous, %ld KiB of "
                "mapped files), %ld KiB at most\n",
                rssStart, rssEnd, rssAnon, rssFile, rssPeak);
    std::printf("server handed %lld inserts with %lld parameters, %lld other statements\n",
                tally.inserts, tally.parameters, tally.others);
    if (!ok || tally.inserts != work.records || tally.parameters != work.values) {
        std::fprintf(stderr, "the server was not handed every record and value of the source%s\n",
                     ok ? "" : " (a table failed)");
        return 1;
    }
    return 0;
}
