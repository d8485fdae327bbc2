// A forward-only scan of one table through the Jet provider and ADO's Recordset, against a bare
// jetfile scan of the same table, in the same run; both read every column of every row. Prints
// rows per second, the ratio, and the resident memory before and after each scan (a streaming
// scan keeps it flat).
//
// ado_bench <file.mdb> <table>
#include "platform/ado/Connection.h"
#include "platform/ado/Error.h"
#include "platform/ado/Recordset.h"
#include "platform/jetfile/Database.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>

#include <cstdio>
#include <exception>

using namespace Qt::Literals::StringLiterals;

namespace {

// Resident set size in KiB, from /proc (0 where there is none).
long residentKiB() {
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly)) {
        return 0;
    }
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:")) {
            return line.mid(6).trimmed().split(' ').value(0).toLong();
        }
    }
    return 0;
}

double seconds(const QElapsedTimer& t) { return static_cast<double>(t.nsecsElapsed()) / 1e9; }

struct Result {
    std::uint64_t rows = 0;
    std::uint64_t present = 0;
    double secs = 0;
    long rssBefore = 0;
    long rssPeak = 0;
};

Result bareScan(const QString& path, const QString& table) {
    Result r;
    r.rssBefore = residentKiB();
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
            r.rssPeak = std::max(r.rssPeak, residentKiB());
        }
    }
    r.secs = seconds(t);
    return r;
}

Result adoScan(const QString& path, const QString& table) {
    Result r;
    r.rssBefore = residentKiB();
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
            r.rssPeak = std::max(r.rssPeak, residentKiB());
        }
        rs->MoveNext();
    }
    rs->Close();
    cn->Close();
    r.secs = seconds(t);
    return r;
}

void report(const char* what, const Result& r) {
    std::printf("%-28s %10.3f s %12.0f rows/s  rows %llu  values %llu  RSS %ld -> peak %ld KiB\n",
                what, r.secs, static_cast<double>(r.rows) / r.secs,
                static_cast<unsigned long long>(r.rows), static_cast<unsigned long long>(r.present),
                r.rssBefore, r.rssPeak);
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
    try {
        // Warm the page cache once so that neither scan pays the first read of the file.
        (void)bareScan(path, table);
        const Result bare = bareScan(path, table);
        const Result viaAdo = adoScan(path, table);
        report("jetfile, every column", bare);
        report("ADO forward-only, every col", viaAdo);
        std::printf("ratio ADO/jetfile: %.2f\n", bare.secs / viaAdo.secs);
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
