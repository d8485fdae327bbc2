#pragma once

// What the benchmarks measure besides their own counts: the process's memory from /proc and its
// processor time. On a machine that others share, the wall clock also counts the time a loop
// waited for a processor, so the figures are printed beside it.

#include <QByteArray>
#include <QElapsedTimer>
#include <QFile>
#include <QString>

#include <ctime>

namespace benchmeasure {

// A field of /proc/self/status in KiB ("VmRSS:", "VmHWM:", "RssAnon:", "RssFile:"); 0 where
// there is none. The file's pages, mapped and read, are part of VmRSS; RssAnon is the memory the
// process made.
inline long statusKiB(const QByteArray& key) {
    QFile f(QStringLiteral("/proc/self/status"));
    if (!f.open(QIODevice::ReadOnly)) {
        return 0;
    }
    for (const QByteArray& line : f.readAll().split('\n')) {
        if (line.startsWith(key)) {
            return line.mid(key.size()).trimmed().split(' ').front().toLong();
        }
    }
    return 0;
}

inline long residentKiB() { return statusKiB("VmRSS:"); }
inline long anonymousKiB() { return statusKiB("RssAnon:"); }

// Processor time of the process, in seconds.
inline double cpuSeconds() {
    timespec ts{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &ts);
    return static_cast<double>(ts.tv_sec) + static_cast<double>(ts.tv_nsec) / 1e9;
}

inline double seconds(const QElapsedTimer& t) { return static_cast<double>(t.nsecsElapsed()) / 1e9; }

} // namespace benchmeasure
