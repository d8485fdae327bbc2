// Scans one table three ways and prints rows per second for each, in the same run:
//   - reading the file's bytes (cat), the floor any reader pays;
//   - jetfile, decoding every column of every row (Memo included), then only two columns;
//   - mdb-export (mdbtools) writing the table as CSV to /dev/null.
//
// jetfile_bench <file.mdb> <table>
#include "platform/jetfile/Database.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace {

double seconds(const QElapsedTimer& t) {
    return static_cast<double>(t.nsecsElapsed()) / 1e9;
}

void report(const char* what, std::uint64_t rows, double secs) {
    std::printf("%-34s %10.3f s %14.0f rows/s\n", what, secs, static_cast<double>(rows) / secs);
}

std::uint64_t scan(const jetfile::Database& db, const QString& table, int columnLimit) {
    auto cursor = db.scan(table);
    const int columns = std::min<int>(columnLimit, static_cast<int>(cursor.table().columns.size()));
    std::uint64_t rows = 0;
    std::uint64_t nonNull = 0;
    while (cursor.next()) {
        ++rows;
        for (int c = 0; c < columns; ++c) {
            nonNull += cursor.value(c).isNull() ? 0 : 1;
        }
    }
    std::printf("  (%llu values present)\n", static_cast<unsigned long long>(nonNull));
    return rows;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    if (argc < 3) {
        std::fprintf(stderr, "usage: jetfile_bench <file.mdb> <table>\n");
        return 2;
    }
    const QString path = QString::fromLocal8Bit(argv[1]);
    const QString table = QString::fromLocal8Bit(argv[2]);
    try {
        QElapsedTimer t;
        t.start();
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            std::fprintf(stderr, "cannot read %s\n", argv[1]);
            return 1;
        }
        qint64 bytes = 0;
        QByteArray chunk;
        while (!(chunk = file.read(1 << 20)).isEmpty()) {
            bytes += chunk.size();
        }
        const double catSecs = seconds(t);

        t.restart();
        const auto db = jetfile::Database::open(path);
        const std::uint64_t rows = scan(db, table, 1 << 16);
        const double allSecs = seconds(t);
        t.restart();
        scan(db, table, 2);
        const double twoSecs = seconds(t);

        std::printf("%s, table %s: %llu rows, %.1f MB\n", argv[1], argv[2],
                    static_cast<unsigned long long>(rows), static_cast<double>(bytes) / 1e6);
        report("cat (read the file's bytes)", rows, catSecs);
        report("jetfile, every column", rows, allSecs);
        report("jetfile, first two columns", rows, twoSecs);

        const QString exporter = QStandardPaths::findExecutable(u"mdb-export"_s);
        if (exporter.isEmpty()) {
            std::printf("mdb-export: not installed (Debian package mdbtools), not measured\n");
            return 0;
        }
        QProcess p;
        p.setStandardOutputFile(QProcess::nullDevice());
        t.restart();
        p.start(exporter, {path, table});
        p.waitForFinished(-1);
        const double exportSecs = seconds(t);
        report("mdb-export > /dev/null", rows, exportSecs);
        std::printf("jetfile (every column) is %.1fx as fast as mdb-export\n",
                    exportSecs / allSecs);
    } catch (const std::exception& e) {
        std::fprintf(stderr, "%s\n", e.what());
        return 1;
    }
    return 0;
}
