// Opens randomly damaged copies of the Access-written fixtures and reads everything in them.
// Each copy must either read or fail with a jetfile::Error: a crash, a sanitizer report, a
// copy that takes longer than the time limit (the watchdog ends the run) or memory beyond the
// limit (the address-space limit, or the sanitizer's RSS limit) fails the run. The fixtures are
// checked to be unchanged at the end.
//
// jetfile_fuzz [cases] [seed]
#include "platform/jetfile/Database.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <random>
#include <thread>

#if defined(__SANITIZE_ADDRESS__)
#define JETFILE_FUZZ_ASAN 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define JETFILE_FUZZ_ASAN 1
#endif
#endif

#ifdef JETFILE_FUZZ_ASAN
// The RSS limit stands in for the address-space limit, which the sanitizer's shadow memory needs.
extern "C" const char* __asan_default_options() {
    return "hard_rss_limit_mb=1024";
}
#else
#include <sys/resource.h>
#endif

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto kTimeLimit = std::chrono::seconds(10);
const char* const kBases[] = {"indexTestV2000.mdb",        "test2V2000.mdb",
                              "overflowTestV2000.mdb",     "delColTestV2000.mdb",
                              "encodedV2000.mdb",          "testUnicodeCompV2003.mdb",
                              "fixedNumericTestV2000.mdb", "testIndexPropertiesV2000.mdb"};

std::atomic<std::int64_t> g_deadline{0}; // steady-clock milliseconds; 0 when idle
std::atomic<int> g_case{-1};

std::int64_t nowMs() {
    return std::chrono::duration_cast<std::chrono::milliseconds>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

void watchdog() {
    for (;;) {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        const std::int64_t deadline = g_deadline.load();
        if (deadline != 0 && nowMs() > deadline) {
            std::fprintf(stderr, "FAIL: case %d ran past the time limit\n", g_case.load());
            std::fflush(stderr);
            std::_Exit(3);
        }
    }
}

QByteArray md5Of(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly)
               ? QCryptographicHash::hash(f.readAll(), QCryptographicHash::Md5)
               : QByteArray();
}

QString mutate(QByteArray& bytes, std::mt19937_64& rng) {
    const auto pages = static_cast<std::uint64_t>(bytes.size() / 4096);
    auto any = [&](std::uint64_t n) {
        return std::uniform_int_distribution<std::uint64_t>(0, n - 1)(rng);
    };
    auto offsetIn = [&](std::uint64_t page) {
        return static_cast<qsizetype>(page * 4096 + any(4096));
    };
    const std::uint64_t kind = any(6);
    switch (kind) {
    case 0: { // scattered random bytes anywhere after the header
        const std::uint64_t n = 1 + any(16);
        for (std::uint64_t i = 0; i < n; ++i) {
            bytes[offsetIn(1 + any(pages - 1))] = static_cast<char>(any(256));
        }
        return u"%1 random bytes"_s.arg(n);
    }
    case 1: { // a 16- or 32-bit field set to an extreme
        static const std::uint32_t extremes[] = {
            0, 1, 0x7FFF, 0x8000, 0xFFFF, 0x7FFFFFFF, 0x80000000u, 0xFFFFFFFFu, 4096, 4095};
        const qsizetype at = offsetIn(1 + any(pages - 1)) & ~qsizetype(1);
        const std::uint32_t v = extremes[any(10)];
        for (int k = 0; k < 4 && at + k < bytes.size(); ++k) {
            bytes[at + k] = static_cast<char>(v >> (8 * k));
        }
        return u"extreme value at %1"_s.arg(at);
    }
    case 2: { // a zeroed run
        const qsizetype at = offsetIn(1 + any(pages - 1));
        for (qsizetype k = at; k < std::min(bytes.size(), at + 64); ++k) {
            bytes[k] = 0;
        }
        return u"zeroed run at %1"_s.arg(at);
    }
    case 3: { // cut at a page boundary
        const auto keep = static_cast<qsizetype>((1 + any(pages - 1)) * 4096);
        bytes.truncate(keep);
        return u"cut to %1 bytes"_s.arg(keep);
    }
    default: { // damage where it hurts most: the catalog definition and the usage map pages
        const std::uint64_t page = kind == 4 ? 2 : 1;
        const std::uint64_t n = 1 + any(8);
        for (std::uint64_t i = 0; i < n; ++i) {
            bytes[offsetIn(page)] = static_cast<char>(any(256));
        }
        return u"%1 random bytes in page %2"_s.arg(QString::number(n), QString::number(page));
    }
    }
}

// Everything a provider could ask of a file.
void readEverything(const QString& path) {
    const auto db = jetfile::Database::open(path);
    for (const auto& entry : db.catalog()) {
        (void)db.properties(entry.name);
    }
    (void)db.relations();
    for (const auto& name : db.tableNames(true)) {
        auto cursor = db.scan(name);
        while (cursor.next()) {
            for (int c = 0; c < static_cast<int>(cursor.table().columns.size()); ++c) {
                (void)cursor.value(c);
            }
        }
    }
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const int cases = argc > 1 ? std::atoi(argv[1]) : 500;
    const auto seed = static_cast<std::uint64_t>(argc > 2 ? std::atoll(argv[2]) : 20241123);
#ifndef JETFILE_FUZZ_ASAN
    const rlimit limit{2048ull << 20, 2048ull << 20};
    setrlimit(RLIMIT_AS, &limit);
#endif
    const QString fixtures = QString::fromUtf8(UPSIZER_FIXTURES_DIR);
    std::vector<QByteArray> bases;
    std::vector<QByteArray> sums;
    for (const char* name : kBases) {
        const QString path = fixtures + u'/' + QString::fromUtf8(name);
        QFile f(path);
        if (!f.open(QIODevice::ReadOnly)) {
            std::fprintf(stderr, "FAIL: cannot read %s\n", qPrintable(path));
            return 1;
        }
        bases.push_back(f.readAll());
        sums.push_back(QCryptographicHash::hash(bases.back(), QCryptographicHash::Md5));
    }
    QTemporaryDir dir;
    std::thread(watchdog).detach();
    std::mt19937_64 rng(seed);
    int read = 0;
    int refused = 0;
    for (int i = 0; i < cases; ++i) {
        const std::size_t base =
            std::uniform_int_distribution<std::size_t>(0, bases.size() - 1)(rng);
        QByteArray bytes = bases[base];
        const QString what = mutate(bytes, rng);
        const QString path = dir.filePath(u"case.mdb"_s);
        {
            QFile out(path);
            if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate) ||
                out.write(bytes) != bytes.size()) {
                std::fprintf(stderr, "FAIL: cannot write %s\n", qPrintable(path));
                return 1;
            }
        }
        g_case = i;
        g_deadline =
            nowMs() + std::chrono::duration_cast<std::chrono::milliseconds>(kTimeLimit).count();
        try {
            readEverything(path);
            ++read;
        } catch (const jetfile::Error&) {
            ++refused;
        } catch (const std::exception& e) {
            std::fprintf(stderr, "FAIL: case %d (%s, %s): unexpected %s\n", i, kBases[base],
                         qPrintable(what), e.what());
            return 1;
        }
        g_deadline = 0;
    }
    for (std::size_t k = 0; k < bases.size(); ++k) {
        if (md5Of(fixtures + u'/' + QString::fromUtf8(kBases[k])) != sums[k]) {
            std::fprintf(stderr, "FAIL: fixture %s changed\n", kBases[k]);
            return 1;
        }
    }
    std::printf("%d damaged copies: %d read, %d refused with an error, none crashed or hung\n",
                cases, read, refused);
    return 0;
}
