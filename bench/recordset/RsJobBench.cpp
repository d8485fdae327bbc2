// An nxRsJob walk over one table of a Jet file, reading every field of every record through
// nxRs::FldGet, against a bare jetfile scan of the same table that decodes every value, in the
// same run. Prints records per second of both, their ratio, and the resident memory of the walk
// at 100,000 records, at its end and at its highest, so that a layer keeping something per
// record shows as growth. It also checks that the walk met every record once, in the file's
// order (the table's first column is an autonumber counting from 1), and that both loops saw the
// same number of present values.
//
//   rsjob_bench <file.mdb> <table> [forward|keyset]
//
// forward (the default) opens the table forward-only and read-only, as the record copy does;
// keyset keeps nxRsJob's own defaults (keyset, optimistic, client cursor).
#include "jobs/nxRsJob.h"

#include "recordset/nxRs.h"

#include "dbaccess/nxDb.h"

#include "frame/nxApp.h"
#include "frame/nxError.h"

#include "platform/jetfile/Database.h"
#include "platform/win/FileRegistry.h"
#include "platform/win/ScriptedMessageBox.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <exception>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

// Resident memory in KiB, from /proc; 0 where there is none.
long residentKiB() {
    QFile f(u"/proc/self/status"_s);
    if (!f.open(QIODevice::ReadOnly)) {
        return 0;
    }
    for (const QByteArray& line : f.readAll().split('\n')) {
        if (line.startsWith("VmRSS:")) {
            return line.mid(6).trimmed().split(' ').front().toLong();
        }
    }
    return 0;
}

double seconds(const QElapsedTimer& t) {
    return static_cast<double>(t.nsecsElapsed()) / 1e9;
}

// Processor time of the process, in seconds: on a machine that others share, the wall clock
// also counts the time the loop waited for a processor.
double cpuSeconds() {
    timespec ts{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &ts);
    return static_cast<double>(ts.tv_sec) + static_cast<double>(ts.tv_nsec) / 1e9;
}

struct Walk {
    std::int64_t records = 0;
    std::int64_t present = 0;
    std::int64_t outOfOrder = 0;
    double secs = 0;
    double cpu = 0;
    double walkSecs = 0; // the walk alone, from OnBeforeJob to OnAfterJob
    double walkCpu = 0;
    long rssStart = 0;
    long rssAt100k = 0;
    long rssEnd = 0;
    long rssPeak = 0;
    bool ok = true;
};

Walk bareScan(const QString& path, const QString& table) {
    Walk w;
    w.rssStart = residentKiB();
    QElapsedTimer t;
    t.start();
    const double cpuStart = cpuSeconds();
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
    w.rssEnd = residentKiB();
    return w;
}

Walk jobWalk(nxDb& db, const QString& table, bool forwardOnly) {
    Walk w;
    nxRsJob job;
    job.Db(&db);
    job.Job().UseForm(false);
    job.Job().Confirm(false);
    job.Job().EndMessage(false);
    if (forwardOnly) {
        job.CursorType(0);
        job.LockType(1);
    }
    int columns = 0;
    QElapsedTimer walk;
    double walkCpuStart = 0;
    job.OnBeforeJob = [&](nxRs& rs, bool&, bool) {
        columns = rs.FldCount();
        walk.start();
        walkCpuStart = cpuSeconds();
    };
    job.OnAfterJob = [&](nxRs&, bool&, bool) {
        w.walkSecs = seconds(walk);
        w.walkCpu = cpuSeconds() - walkCpuStart;
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
        }
    };
    w.rssStart = residentKiB();
    QElapsedTimer t;
    t.start();
    const double cpuStart = cpuSeconds();
    if (!job.RsOpen(table, true)) {
        std::fprintf(stderr, "the recordset did not open: %s\n",
                     qPrintable(nxApp::LastError().Description()));
        w.ok = false;
        return w;
    }
    w.ok = job.Start();
    w.secs = seconds(t);
    w.cpu = cpuSeconds() - cpuStart;
    w.rssEnd = residentKiB();
    w.rssPeak = std::max(w.rssPeak, w.rssEnd);
    job.RsClose();
    return w;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    if (argc < 3) {
        std::fprintf(stderr, "usage: rsjob_bench <file.mdb> <table> [forward|keyset]\n");
        return 2;
    }
    const QString path = QString::fromLocal8Bit(argv[1]);
    const QString table = QString::fromLocal8Bit(argv[2]);
    const bool forwardOnly = argc < 4 || QByteArray(argv[3]) != "keyset";
    QTemporaryDir dir;
    nxApp::SetMessageBox(std::make_shared<win::ScriptedMessageBox>());
    nxApp::SetRegistry(std::make_shared<win::FileRegistry>(dir.filePath(u"registry"_s)));
    if (!nxApp::AppInitialize(vb::Variant(), QString())) {
        std::fprintf(stderr, "the library did not start\n");
        return 1;
    }
    Walk bare;
    try {
        static_cast<void>(bareScan(path, table)); // the page cache is warm for both loops
        bare = bareScan(path, table);
    } catch (const std::exception& e) {
        std::fprintf(stderr, "%s\n", e.what());
        return 1;
    }
    nxDb db;
    if (!db.DbOpen(path, 1, true, u"Microsoft.Jet.OLEDB.4.0"_s)) {
        std::fprintf(stderr, "the database did not open: %s\n",
                     qPrintable(nxApp::LastError().Description()));
        return 1;
    }
    const Walk job = jobWalk(db, table, forwardOnly);
    db.DbClose();

    std::printf("%s, table %s, %s cursor\n", argv[1], argv[2],
                forwardOnly ? "forward-only read-only" : "keyset optimistic client");
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
    std::printf("walk resident memory: %ld KiB before, %ld KiB at 100,000 records, %ld KiB at the "
                "end, %ld KiB at most\n",
                job.rssStart, job.rssAt100k, job.rssEnd, job.rssPeak);
    const bool agree =
        job.ok && job.records == bare.records && job.present == bare.present && job.outOfOrder == 0;
    if (!agree) {
        std::fprintf(stderr, "the walk and the bare scan disagree\n");
    }
    return agree ? 0 : 1;
}
