#pragma once

#include <QString>

#include <cstdint>
#include <functional>

// A millisecond stopwatch. It feeds a job with the time gone since its start, turns a span of
// milliseconds into the Italian text of an estimate ("circa 1:30 minuti al termine"), and with
// the log switched on writes timing lines to TickCounter.log in the program's folder.
//
// A new object is a running stopwatch; Init restarts it. While the library is not started (as
// when the object was made), Current answers 0, FormatTick an empty text, and Init and Check do
// nothing.
class nxTickCounter {
public:
    // The system's tick: milliseconds since some fixed moment, in 32 bits that wrap.
    using Clock = std::function<std::int32_t()>;

    nxTickCounter();
    // With a clock of the caller's own in place of the system's tick (tests, the job's own).
    explicit nxTickCounter(Clock clock);

    // "1,5 secondi", "1:30 minuti", "1 ora"...: the span in the largest unit it reaches, with
    // the next smaller one behind a separator. Without `exact` milliseconds and tenths of a
    // second are never shown.
    QString FormatTick(std::int32_t ticks, bool exact) const;
    std::int32_t Current() const;
    void Init(const QString& title = {}, bool useLog = false);
    // Milliseconds since Init; writes a line "delta (total totali)" to the log when there is a
    // title or a label. A tick that has wrapped since Init raises the overflow error (6).
    std::int32_t Check(const QString& label = {});

private:
    void writeLine(const QString& text, const QString& right) const;
    void logCheck(std::int32_t delta, std::int32_t total, const QString& label) const;

    Clock m_clock;
    bool m_enabled = false;
    std::int32_t m_start = 0;
    std::int32_t m_last = 0;
    QString m_title;
    std::int32_t m_checks = 0;
};

// "#,##0" under the Italian regional settings: thousands grouped by ".", the value rounded to a
// whole number half to even, as the run time's Format does.
QString FormatThousands(double value);
