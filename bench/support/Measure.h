#pragma once

// What the benchmarks measure besides their own counts: the process's memory from /proc and its
// processor time. On a machine that others share, the wall clock also counts the time a loop
// waited for a processor, so the figures are printed beside it.

#include <QByteArray>
#include <QElapsedTimer>
#include <QFile>
#include <QString>

#include <ctime>

#if defined(__linux__)
#include <linux/perf_event.h>
#include <sys/syscall.h>
#include <unistd.h>
#endif

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

inline double seconds(const QElapsedTimer& t) {
    return static_cast<double>(t.nsecsElapsed()) / 1e9;
}

// What this thread does in user mode, from the kernel's performance counters: processor cycles
// or instructions retired. Unlike processor time, they leave out the kernel's work (page faults
// of a mapped file) and the time slices' bookkeeping; instructions also leave out what other
// programs on a shared machine do to the caches, so they hardly move from run to run. valid() is
// false where the counters are not open to the process (no Linux, or a kernel that refuses
// them); read() then gives 0.
class UserCounter {
public:
    enum class Kind { Cycles, Instructions };
    explicit UserCounter(Kind kind) {
#if defined(__linux__)
        perf_event_attr attr{};
        attr.type = PERF_TYPE_HARDWARE;
        attr.size = sizeof(attr);
        attr.config = kind == Kind::Cycles ? PERF_COUNT_HW_CPU_CYCLES : PERF_COUNT_HW_INSTRUCTIONS;
        attr.exclude_kernel = 1;
        attr.exclude_hv = 1;
        m_fd = static_cast<int>(syscall(SYS_perf_event_open, &attr, 0, -1, -1, 0));
#else
        static_cast<void>(kind);
#endif
    }
    ~UserCounter() {
#if defined(__linux__)
        if (m_fd >= 0) {
            close(m_fd);
        }
#endif
    }
    UserCounter(const UserCounter&) = delete;
    UserCounter& operator=(const UserCounter&) = delete;

    bool valid() const { return m_fd >= 0; }
    double read() const {
        long long value = 0;
#if defined(__linux__)
        if (m_fd >= 0 && ::read(m_fd, &value, sizeof(value)) != sizeof(value)) {
            value = 0;
        }
#endif
        return static_cast<double>(value);
    }

private:
    int m_fd = -1;
};

} // namespace benchmeasure
