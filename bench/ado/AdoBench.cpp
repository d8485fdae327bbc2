// A forward-only scan of one table through the Jet provider and ADO's Recordset, against a bare
// jetfile scan of the same table, in the same run; both read every column of every row. Each
// scan runs three times, alternating, and the best of each counts. Prints wall-clock and CPU
// time, rows per second and the ratio of the two (the CPU ratio is the one that holds on a
// machine shared with other work), and the memory before and at the peak of each scan: the
// whole resident set, which includes the pages of the memory-mapped file, and the anonymous
// part (the heap), which a streaming scan keeps flat.
//
// ado_bench <file.mdb> <table> [runs]
#include "platform/ado/Connection.h"
#include "platform/ado/Error.h"
#include "platform/ado/Recordset.h"
#include "platform/jetfile/Database.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <exception>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Memory {
    long resident = 0;  // VmRSS, KiB
    long anonymous = 0; // RssAnon, KiB: what the process allocated, not the mapped file
};

// From /proc (zeros where there is none).
Memory memory() {
    Memory m;
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly)) {
        return m;
    }
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:")) {
            m.resident = line.mid(6).trimmed().split(' ').value(0).toLong();
        } else if (line.startsWith("RssAnon:")) {
            m.anonymous = line.mid(8).trimmed().split(' ').value(0).toLong();
        }
    }
    return m;
}

double cpuSeconds() {
    timespec t{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
    return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_nsec) / 1e9;
}

double seconds(const QElapsedTimer& t) { return static_cast<double>(t.nsecsElapsed()) / 1e9; }

struct Result {
    std::uint64_t rows = 0;
    std::uint64_t present = 0;
    double secs = 0;
    double cpu = 0;
    Memory before;
    Memory peak;

    void start() {
        before = memory();
        peak = before;
        cpu = cpuSeconds();
    }
    void sample() {
        const Memory now = memory();
        peak.resident = std::max(peak.resident, now.resident);
        peak.anonymous = std::max(peak.anonymous, now.anonymous);
    }
    void stop(const QElapsedTimer& t) {
        sample();
        secs = seconds(t);
        cpu = cpuSeconds() - cpu;
    }
};

// The faster of two runs of the same scan, keeping the higher memory peak.
Result best(const Result& a, const Result& b) {
    Result r = a.cpu <= b.cpu ? a : b;
    r.secs = std::min(a.secs, b.secs);
    r.peak.resident = std::max(a.peak.resident, b.peak.resident);
    r.peak.anonymous = std::max(a.peak.anonymous, b.peak.anonymous);
    return r;
}

Result bareScan(const QString& path, const QString& table) {
    Result r;
    r.start();
    QElapsedTimer t;
    t.start();
    const auto db = jetfile::Database::open(path);
    auto cursor = db.scan(table);
    const int columns = static_cast<int>(cursor.table().columns.size());
    while (cursor.next()) {
        ++r.rows;
        for (int c = 0; c < columns; ++c) {
            r.present += cursor.value(c).isNull() ? 0 : 1;
        }
        if ((r.rows & 0xFFFF) == 0) {
            r.sample();
        }
    }
    r.stop(t);
    return r;
}

Result adoScan(const QString& path, const QString& table) {
    Result r;
    r.start();
    QElapsedTimer t;
    t.start();
    auto cn = ado::Connection::create();
    cn->Open(u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source="_s + path);
    auto rs = std::make_shared<ado::Recordset>();
    rs->Open(table, cn, ado::CursorTypeEnum::adOpenForwardOnly, ado::LockTypeEnum::adLockReadOnly,
             static_cast<long>(ado::CommandTypeEnum::adCmdTable));
    auto& fields = rs->Fields();
    const long columns = fields.Count();
    while (!rs->Eof()) {
        ++r.rows;
        for (long c = 0; c < columns; ++c) {
            r.present += fields.Item(c).Value().isNull() ? 0 : 1;
        }
        if ((r.rows & 0xFFFF) == 0) {
            r.sample();
        }
        rs->MoveNext();
    }
    rs->Close();
    cn->Close();
    r.stop(t);
    return r;
}

void report(const char* what, const Result& r) {
    std::printf("%-28s wall %7.3f s  cpu %7.3f s  %10.0f rows/cpu-s  rows %llu  values %llu\n"
                "%-28s RSS %ld -> peak %ld KiB, of it anonymous %ld -> peak %ld KiB\n",
                what, r.secs, r.cpu, static_cast<double>(r.rows) / r.cpu,
                static_cast<unsigned long long>(r.rows), static_cast<unsigned long long>(r.present),
                "", r.before.resident, r.peak.resident, r.before.anonymous, r.peak.anonymous);
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    if (argc < 3) {
        std::fprintf(stderr, "usage: ado_bench <file.mdb> <table>\n");
        return 2;
    }
    const QString path = QString::fromLocal8Bit(argv[1]);
    const QString table = QString::fromLocal8Bit(argv[2]);
    const int runs = argc > 3 ? std::max(1, std::atoi(argv[3])) : 3;
    try {
        // Warm the page cache once so that neither scan pays the first read of the file.
        (void)bareScan(path, table);
        Result bare = bareScan(path, table);
        Result viaAdo = adoScan(path, table);
        for (int i = 1; i < runs; ++i) {
            bare = best(bare, bareScan(path, table));
            viaAdo = best(viaAdo, adoScan(path, table));
        }
        report("jetfile, every column", bare);
        report("ADO forward-only, every col", viaAdo);
        std::printf("ratio ADO/jetfile: cpu %.2f, wall %.2f (best of %d each)\n", bare.cpu / viaAdo.cpu,
                    bare.secs / viaAdo.secs, runs);
        if (bare.rows != viaAdo.rows || bare.present != viaAdo.present) {
            std::fprintf(stderr, "the two scans disagree\n");
            return 1;
        }
    } catch (const std::exception& e) {
        std::fprintf(stderr, "%s\n", e.what());
        return 1;
    }
    return 0;
}
