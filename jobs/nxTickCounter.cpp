#include "jobs/nxTickCounter.h"

#include "frame/nxApp.h"
#include "frame/nxLog.h"
#include "frame/nxSys.h"

#include "platform/vb/Err.h"

#include <cmath>
#include <cstdint>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

// The text of a log line stands left-aligned in a column of this width.
constexpr qsizetype kTextColumn = 44;

// Total and delta are 32-bit in the system: a tick that wrapped since the start overflows.
std::int32_t elapsed(std::int32_t now, std::int32_t since) {
    const std::int64_t span = static_cast<std::int64_t>(now) - since;
    if (span < std::numeric_limits<std::int32_t>::min() ||
        span > std::numeric_limits<std::int32_t>::max()) {
        vb::Raise(vb::errors::kOverflow, u"nxTickCounter"_s, vb::ErrorText(vb::errors::kOverflow));
    }
    return static_cast<std::int32_t>(span);
}

QString twoDigits(std::int64_t value) {
    return QString::number(value).rightJustified(value < 0 ? 3 : 2, u'0');
}

} // namespace

QString FormatThousands(double value) {
    const double whole = std::nearbyint(value); // the default rounding mode: half to even
    QString digits = QString::number(std::fabs(whole), 'f', 0);
    for (qsizetype at = digits.size() - 3; at > 0; at -= 3) {
        digits.insert(at, u'.');
    }
    return whole < 0 ? u"-"_s + digits : digits;
}

nxTickCounter::nxTickCounter() : nxTickCounter(Clock{}) {}

nxTickCounter::nxTickCounter(Clock clock) : m_clock(std::move(clock)), m_enabled(nxApp::IsInit()) {
    Init();
}

std::int32_t nxTickCounter::Current() const {
    if (!m_enabled) {
        return 0;
    }
    return m_clock ? m_clock() : nxApp::Sys().TickCount();
}

void nxTickCounter::Init(const QString& title, bool useLog) {
    if (!m_enabled) {
        return;
    }
    m_start = m_last = Current();
    m_title = title;
    m_checks = 0;
    if (useLog) {
        nxLog& log = nxApp::TickLog();
        log.LogSet(nxApp::Sys().AppPath() + u"TickCounter.log"_s);
        // A log already open stays as it is: the second open fails without a word.
        log.LogOpen(u"TickCounter"_s, nullptr, false);
        if (!title.isEmpty()) {
            writeLine(u"        (Init)"_s, title);
        }
    }
}

std::int32_t nxTickCounter::Check(const QString& label) {
    if (!m_enabled) {
        return 0;
    }
    const std::int32_t now = Current();
    const std::int32_t total = elapsed(now, m_start);
    const std::int32_t delta = elapsed(now, m_last);
    if (!label.isEmpty() || !m_title.isEmpty()) {
        logCheck(delta, total, label);
    }
    m_last = now;
    ++m_checks;
    return total;
}

void nxTickCounter::logCheck(std::int32_t delta, std::int32_t total, const QString& label) const {
    const QString text =
        FormatTick(delta, true) + u" ("_s + FormatTick(total, true) + u" totali)"_s;
    QString right = twoDigits(m_checks);
    if (!m_title.isEmpty()) {
        right += u'|' + m_title;
    }
    if (!label.isEmpty()) {
        right += u'|' + label;
    }
    writeLine(text, right);
}

void nxTickCounter::writeLine(const QString& text, const QString& right) const {
    nxApp::TickLog().LogWrite(text.leftJustified(kTextColumn, u' ') + u' ' + right);
}

QString nxTickCounter::FormatTick(std::int32_t ticks, bool exact) const {
    if (!m_enabled) {
        return {};
    }
    // The ladder of units: each step divides by the size of the next unit and keeps what is
    // left over as the smaller unit behind the separator.
    double value = ticks;
    std::int64_t divisor = 1000;
    QString separator;
    QString stem = u"millisecond"_s;
    std::int64_t remainder = 0;
    int step = 0;
    bool feminine = false;
    while (!((value < static_cast<double>(divisor) || step >= 4) && (step != 0 || exact))) {
        remainder = static_cast<std::int64_t>(value) % divisor; // the sign of the dividend
        value /= static_cast<double>(divisor);
        ++step;
        switch (step) {
        case 1:
            divisor = 60;
            separator = u","_s;
            stem = u"second"_s;
            remainder = static_cast<std::int64_t>(std::floor(static_cast<double>(remainder) / 100));
            break;
        case 2:
            divisor = 60;
            separator = u":"_s;
            stem = u"minut"_s;
            break;
        case 3:
            divisor = 24;
            separator = u":"_s;
            stem = u"or"_s;
            feminine = true;
            break;
        default:
            // Tenths of a day; the divisor and the feminine ending stay from the hours.
            separator = u","_s;
            stem = u"giorn"_s;
            remainder =
                static_cast<std::int64_t>(std::nearbyint(static_cast<double>(remainder) / 24 * 10));
            break;
        }
        value = std::floor(value);
    }

    QString text = FormatThousands(value);
    if (remainder > 0 && (stem != u"second" || exact)) {
        text += separator + (separator == u":" ? twoDigits(remainder) : QString::number(remainder));
    }
    text += u' ' + stem;
    // The ending counts the remainder even where it is not shown: 1500 ms give "1 secondi".
    const bool singular = value == 1 && remainder == 0;
    if (feminine) {
        text += singular ? u'a' : u'e';
    } else {
        text += singular ? u'o' : u'i';
    }
    return text;
}
