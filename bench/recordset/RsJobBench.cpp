// An nxRsJob walk over one table of a Jet file, reading every field of every record through
// nxRs::FldGet, against a bare jetfile scan of the same table that decodes every value, in the
// same run, three times each in turn (the fastest of each counts). Prints records per second of
// both and their ratio, by the clock, by processor time and by user-mode processor cycles and
// instructions (where the kernel's counters are open; instructions hardly move from run to run
// on a shared machine), and the resident memory of the walk at 100,000 records, half-way, at its
// end and at its highest, so that a layer keeping something per record shows as growth. It also
// checks that every walk met every record once, in the file's order (the table's first column
// is an autonumber counting from 1), and that both loops saw the same number of present values.
// A last walk is stopped from another thread, as the job's window stops it, half-way through
// the table: it must end within one record of the stop.
//
//   rsjob_bench <file.mdb> <table> [forward|keyset|server]
//
// forward (the default) opens the table forward-only and read-only, as the record copy does;
// keyset keeps nxRsJob's own defaults (keyset, optimistic, client cursor); server opens
// forward-only and read-only on the server side, where no client cursor keeps the rows' places.
#include "jobs/nxRsJob.h"

#include "recordset/nxRs.h"

#include "dbaccess/nxDb.h"

#include "frame/nxApp.h"
#include "frame/nxError.h"

#include "platform/jetfile/Database.h"
#include "platform/win/FileRegistry.h"
#include "platform/win/ScriptedMessageBox.h"

#include "bench/support/Measure.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <exception>
#include <memory>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

using benchmeasure::anonymousKiB;
using benchmeasure::cpuSeconds;
using benchmeasure::residentKiB;
using benchmeasure::seconds;

// User-mode cycles and instructions, 0 where the counters are not open.
struct Counts {
    double cycles = 0;
    double instructions = 0;
    Counts operator-(const Counts& o) const { return {cycles - o.cycles, instructions - o.instructions}; }
};

constexpr int kRounds = 3;

benchmeasure::UserCounter& cycleCounter() {
    static benchmeasure::UserCounter counter(benchmeasure::UserCounter::Kind::Cycles);
    return counter;
}

benchmeasure::UserCounter& instructionCounter() {
    static benchmeasure::UserCounter counter(benchmeasure::UserCounter::Kind::Instructions);
    return counter;
}

Counts userCounts() { return {cycleCounter().read(), instructionCounter().read()}; }

struct Walk {
    std::int64_t records = 0;
    std::int64_t present = 0;
    std::int64_t outOfOrder = 0;
    double secs = 0;
    double cpu = 0;
    double walkSecs = 0; // the walk alone, from OnBeforeJob to OnAfterJob
    double walkCpu = 0;
    Counts counts;
    Counts walkCounts;
    long rssStart = 0;
    long rssAt100k = 0;
    long rssMiddle = 0;
    long rssEnd = 0;
    long rssPeak = 0;
    long anonStart = 0;
    long anonAt100k = 0;
    long anonMiddle = 0;
    long anonEnd = 0;
    bool ok = true;
};

// No window, no question, no end message; forward-only and read-only as the record copy opens
// its source, or nxRsJob's own defaults.
void makeQuiet(nxRsJob& job, nxDb& db, bool forwardOnly) {
    job.Db(&db);
    job.Job().UseForm(false);
    job.Job().Confirm(false);
    job.Job().EndMessage(false);
    if (forwardOnly) {
        job.CursorType(0);
        job.LockType(1);
    }
}

Walk bareScan(const QString& path, const QString& table) {
    Walk w;
    w.rssStart = residentKiB();
    QElapsedTimer t;
    t.start();
    const double cpuStart = cpuSeconds();
    const Counts countsStart = userCounts();
    const auto db = jetfile::Database::open(path);
    auto cursor = db.scan(table);
    const int columns = static_cast<int>(cursor.table().columns.size());
    while (cursor.next()) {
        ++w.records;
        for (int c = 0; c < columns; ++c) {
            w.present += cursor.value(c).isNull() ? 0 : 1;
        }
    }
    w.secs = seconds(t);
    w.cpu = cpuSeconds() - cpuStart;
    w.counts = userCounts() - countsStart;
    w.rssEnd = residentKiB();
    return w;
}

// `expected` is the bare scan's count of records: the memory is also read half-way through.
Walk jobWalk(nxDb& db, const QString& table, bool forwardOnly, bool serverSide,
             std::int64_t expected) {
    Walk w;
    nxRsJob job;
    makeQuiet(job, db, forwardOnly);
    if (serverSide) {
        job.CursorLocation(2);
    }
    int columns = 0;
    QElapsedTimer walk;
    double walkCpuStart = 0;
    Counts walkCountsStart;
    job.OnBeforeJob = [&](nxRs& rs, bool&, bool) {
        columns = rs.FldCount();
        walk.start();
        walkCpuStart = cpuSeconds();
        walkCountsStart = userCounts();
    };
    job.OnAfterJob = [&](nxRs&, bool&, bool) {
        w.walkSecs = seconds(walk);
        w.walkCpu = cpuSeconds() - walkCpuStart;
        w.walkCounts = userCounts() - walkCountsStart;
    };
    job.OnRecord = [&](nxRs& rs, bool&, bool) {
        ++w.records;
        for (int c = 0; c < columns; ++c) {
            const vb::Variant value = rs.FldGet(c, vb::Null{});
            w.present += value.isNull() ? 0 : 1;
            if (c == 0) {
                w.outOfOrder += value.toLong().value_or(-1) != w.records;
            }
        }
        if ((w.records & 0xFFFF) == 0) {
            w.rssPeak = std::max(w.rssPeak, residentKiB());
        }
        if (w.records == 100000) {
            w.rssAt100k = residentKiB();
            w.anonAt100k = anonymousKiB();
        }
        if (w.records == std::max<std::int64_t>(expected / 2, 1)) {
            w.rssMiddle = residentKiB();
            w.anonMiddle = anonymousKiB();
        }
    };
    w.rssStart = residentKiB();
    w.anonStart = anonymousKiB();
    QElapsedTimer t;
    t.start();
    const double cpuStart = cpuSeconds();
    const Counts countsStart = userCounts();
    if (!job.RsOpen(table, true)) {
        std::fprintf(stderr, "the recordset did not open: %s\n",
                     qPrintable(nxApp::LastError().Description()));
        w.ok = false;
        return w;
    }
    w.ok = job.Start();
    w.secs = seconds(t);
    w.cpu = cpuSeconds() - cpuStart;
    w.counts = userCounts() - countsStart;
    w.rssEnd = residentKiB();
    w.anonEnd = anonymousKiB();
    w.rssPeak = std::max(w.rssPeak, w.rssEnd);
    job.RsClose();
    return w;
}

struct StopRun {
    std::int64_t atStop = -1; // records met when StopJob had returned
    std::int64_t records = 0; // records met in all
    bool result = true;
};

// StopJob from another thread once the walk has met `stopAt` records.
StopRun stoppedWalk(nxDb& db, const QString& table, std::int64_t stopAt) {
    StopRun run;
    nxRsJob job;
    makeQuiet(job, db, true);
    std::atomic<std::int64_t> seen{0};
    std::atomic<std::int64_t> atStop{-1};
    job.OnRecord = [&](nxRs&, bool&, bool) { seen.fetch_add(1); };
    if (!job.RsOpen(table, true)) {
        run.result = false;
        return run;
    }
    std::thread stopper([&] {
        while (seen.load() < stopAt && atStop.load() == -1) {
            std::this_thread::sleep_for(std::chrono::microseconds(200));
        }
        job.Job().StopJob(false);
        atStop = seen.load();
    });
    run.result = job.Start();
    if (atStop.load() == -1) {
        atStop = -2; // the walk ended first: the stopper must not wait for ever
    }
    stopper.join();
    run.atStop = atStop.load();
    run.records = seen.load();
    job.RsClose();
    return run;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    if (argc < 3) {
        std::fprintf(stderr, "usage: rsjob_bench <file.mdb> <table> [forward|keyset|server]\n");
        return 2;
    }
    const QString path = QString::fromLocal8Bit(argv[1]);
    const QString table = QString::fromLocal8Bit(argv[2]);
    const QByteArray mode = argc < 4 ? QByteArray("forward") : QByteArray(argv[3]);
    const bool forwardOnly = mode != "keyset";
    const bool serverSide = mode == "server";
    QTemporaryDir dir;
    nxApp::SetMessageBox(std::make_shared<win::ScriptedMessageBox>());
    nxApp::SetRegistry(std::make_shared<win::FileRegistry>(dir.filePath(u"registry"_s)));
    if (!nxApp::AppInitialize(vb::Variant(), QString())) {
        std::fprintf(stderr, "the library did not start\n");
        return 1;
    }
    nxDb db;
    if (!db.DbOpen(path, 1, true, u"Microsoft.Jet.OLEDB.4.0"_s)) {
        std::fprintf(stderr, "the database did not open: %s\n",
                     qPrintable(nxApp::LastError().Description()));
        return 1;
    }
    // On a shared machine a neighbour's burst slows whichever loop it meets: the two loops run
    // in turn, kRounds times each, and the fastest run of each by processor time is compared.
    // Every walk must agree with its bare scan.
    Walk bare;
    Walk job;
    bool agree = true;
    try {
        static_cast<void>(bareScan(path, table)); // the page cache is warm for both loops
        for (int round = 0; round < kRounds; ++round) {
            const Walk b = bareScan(path, table);
            const Walk j = jobWalk(db, table, forwardOnly, serverSide, b.records);
            agree = agree && j.ok && j.records == b.records && j.present == b.present &&
                    j.outOfOrder == 0;
            if (round == 0 || b.cpu < bare.cpu) {
                bare = b;
            }
            if (round == 0 || j.walkCpu < job.walkCpu) {
                job = j;
            }
        }
    } catch (const std::exception& e) {
        std::fprintf(stderr, "%s\n", e.what());
        return 1;
    }
    const StopRun stop = stoppedWalk(db, table, job.records / 2);
    db.DbClose();

    std::printf("%s, table %s, %s cursor; the fastest of %d runs of each loop, in turn\n",
                argv[1], argv[2],
                serverSide    ? "forward-only read-only server-side"
                : forwardOnly ? "forward-only read-only client"
                              : "keyset optimistic client",
                kRounds);
    const auto rate = [](const Walk& w, double secs) {
        return static_cast<double>(w.records) / secs;
    };
    std::printf("bare jetfile scan: %10.0f records/s  (%.2f s; processor %.2f s, %.0f records/s)  "
                "records %lld  values %lld\n",
                rate(bare, bare.secs), bare.secs, bare.cpu, rate(bare, bare.cpu),
                static_cast<long long>(bare.records), static_cast<long long>(bare.present));
    std::printf("nxRsJob walk:      %10.0f records/s  (%.2f s; processor %.2f s, %.0f records/s)  "
                "records %lld  values %lld  out of order %lld  job %s\n",
                rate(job, job.secs), job.secs, job.cpu, rate(job, job.cpu),
                static_cast<long long>(job.records), static_cast<long long>(job.present),
                static_cast<long long>(job.outOfOrder), job.ok ? "ok" : "failed");
    std::printf("  of which the walk: %.2f s (processor %.2f s, %.0f records/s); opening and "
                "counting the rest\n",
                job.walkSecs, job.walkCpu, rate(job, job.walkCpu));
    std::printf("ratio nxRsJob/bare: %.3f by the clock, %.3f by processor time; the walk alone "
                "%.3f by processor time\n",
                bare.secs / job.secs, bare.cpu / job.cpu, bare.cpu / job.walkCpu);
    const auto perRecord = [](double count, const Walk& w) {
        return count / static_cast<double>(w.records);
    };
    if (cycleCounter().valid() && job.counts.cycles > 0 && job.walkCounts.cycles > 0) {
        std::printf("ratio by user-mode cycles: %.3f, the walk alone %.3f (bare %.0f, walk %.0f "
                    "cycles a record)\n",
                    bare.counts.cycles / job.counts.cycles,
                    bare.counts.cycles / job.walkCounts.cycles, perRecord(bare.counts.cycles, bare),
                    perRecord(job.walkCounts.cycles, job));
    }
    if (instructionCounter().valid() && job.counts.instructions > 0 &&
        job.walkCounts.instructions > 0) {
        std::printf("ratio by user-mode instructions: %.3f, the walk alone %.3f (bare %.0f, walk "
                    "%.0f instructions a record)\n",
                    bare.counts.instructions / job.counts.instructions,
                    bare.counts.instructions / job.walkCounts.instructions,
                    perRecord(bare.counts.instructions, bare),
                    perRecord(job.walkCounts.instructions, job));
    }
    std::printf("walk resident memory: %ld KiB before, %ld KiB at 100,000 records, %ld KiB "
                "half-way, %ld KiB at the end, %ld KiB at most\n",
                job.rssStart, job.rssAt100k, job.rssMiddle, job.rssEnd, job.rssPeak);
    std::printf("walk anonymous memory: %ld KiB before, %ld KiB at 100,000 records, %ld KiB "
                "half-way, %ld KiB at the end\n",
                job.anonStart, job.anonAt100k, job.anonMiddle, job.anonEnd);
    const std::int64_t afterStop = stop.records - stop.atStop;
    std::printf("stopped walk: StopJob from another thread after %lld records; %lld met in all, "
                "%lld after the stop; job %s\n",
                static_cast<long long>(stop.atStop), static_cast<long long>(stop.records),
                static_cast<long long>(afterStop), stop.result ? "ok" : "failed, as a stop makes it");
    if (!agree) {
        std::fprintf(stderr, "the walk and the bare scan disagree\n");
    }
    const bool stoppedInTime = stop.atStop >= 0 && afterStop <= 1 && !stop.result;
    if (!stoppedInTime) {
        std::fprintf(stderr, "the stopped walk did not end within one record of StopJob\n");
    }
    return agree && stoppedInTime ? 0 : 1;
}
