#include "jobs/nxJob.h"

#include "frame/nxApp.h"
#include "frame/nxError.h"
#include "frame/nxLog.h"
#include "frame/nxSys.h"

#include "platform/win/MessageBox.h"
#include "platform/win/MousePointer.h"

#include <cmath>
#include <ctime>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

// A text loses characters from its end until it fits its control less this margin (120 twips,
// 8 pixels at the usual 15 twips a pixel).
constexpr int kLabelMargin = 8;
constexpr std::int32_t kFirstEstimateAfter = 5000; // ms of work before the first estimate
constexpr std::int32_t kEstimateEvery = 2000;
constexpr std::int32_t kCountEvery = 500;
constexpr std::int32_t kPumpEvery = 250;

// The estimate of the first seconds, one string for every job: asked at every record of those
// seconds whether it is shown, the job recognises it by sharing instead of comparing texts. Made
// on the heap, since a string literal's data is shared with nothing.
const QString& calculatingText() {
    static const QString text = QString::fromUtf16(u"Calcolo tempo rimanente");
    return text;
}

// CLng: rounds half to even, and saturates where the run time would overflow.
std::int32_t toLong(double value) {
    const double r = std::nearbyint(value);
    if (r >= static_cast<double>(std::numeric_limits<std::int32_t>::max())) {
        return std::numeric_limits<std::int32_t>::max();
    }
    if (r <= static_cast<double>(std::numeric_limits<std::int32_t>::min())) {
        return std::numeric_limits<std::int32_t>::min();
    }
    return static_cast<std::int32_t>(r);
}

// Restores IsRunning when the owner's event throws: the job can be started again.
class RunningFlag {
public:
    explicit RunningFlag(bool& flag) : m_flag(flag) { m_flag = true; }
    RunningFlag(const RunningFlag&) = delete;
    RunningFlag& operator=(const RunningFlag&) = delete;
    ~RunningFlag() { m_flag = false; }

private:
    bool& m_flag;
};

// The job reads the time at every Status, that is at every record of a walk: a clock that the
// kernel only moves every few milliseconds answers several times faster than the precise one,
// and a job needs no more than the 250 ms of its pump and the seconds of its estimate.
std::int32_t coarseTick() {
#ifdef CLOCK_MONOTONIC_COARSE
    timespec now{};
    if (clock_gettime(CLOCK_MONOTONIC_COARSE, &now) == 0) {
        const auto ms = static_cast<std::uint64_t>(now.tv_sec) * 1000u +
                        static_cast<std::uint64_t>(now.tv_nsec) / 1000000u;
        return static_cast<std::int32_t>(static_cast<std::uint32_t>(ms));
    }
#endif
    return nxApp::Sys().TickCount();
}

// Written at start-up, before any job runs, and only read afterwards.
nxJob::FormFactory& defaultFormFactory() {
    static nxJob::FormFactory factory;
    return factory;
}

} // namespace

void nxJob::SetDefaultFormFactory(FormFactory factory) {
    defaultFormFactory() = std::move(factory);
}

nxJob::nxJob()
    : m_title(u"Attendere..."_s), m_logPath(nxApp::IsInit() ? nxApp::Sys().AppPath() : QString()),
      m_counter(&coarseTick) {}

nxJob::~nxJob() = default;

void nxJob::Percent(bool value) noexcept {
    m_percent = value;
    if (value) {
        m_maxCount = 100;
    }
}

void nxJob::MaxCount(std::int32_t value) noexcept {
    m_percent = false;
    if (value > 0) {
        m_maxCount = value;
    }
}

void nxJob::SetClock(nxTickCounter::Clock clock) {
    m_clock = std::move(clock);
    m_counter = nxTickCounter(m_clock);
}

nxLog& nxJob::Log() {
    if (!m_log) {
        m_log = std::make_unique<nxLog>();
    }
    return *m_log;
}

bool nxJob::LogOpen() {
    if (!m_useLog) {
        return false;
    }
    Log().LogSet(m_logFile, m_logPath, true);
    // A log that cannot open is no failure of the job: it goes on without one.
    return Log().LogOpen(m_logTitle.isEmpty() ? m_title : m_logTitle, nullptr, true);
}

// Status(kPumpOnly) without making its arguments: a walk asks at every record.
bool nxJob::Stopped() {
    if (m_running) {
        pumpIfDue(m_counter.Check());
    }
    return m_stopped;
}

void nxJob::StopJob(bool ask) {
    if (m_stopped || !m_annullable) {
        return;
    }
    if (ask && nxApp::MsgBox(u"Annullare l'operazione?"_s, 292) != win::id::kYes) {
        return;
    }
    m_stopped = true;
}

void nxJob::RaiseJob() {
    std::unique_ptr<nxTickCounter> timer;
    if (m_debugTime) {
        timer = std::make_unique<nxTickCounter>(m_clock);
        timer->Init(u"nxJob.OnJob()"_s, false);
    }
    bool result = true;
    if (OnJob) {
        OnJob(result, m_param);
    }
    m_gotError = !result;
    if (timer) {
        timer->Check(m_title);
    }
}

bool nxJob::Start(const QString& statusText, bool param) {
    if (!nxApp::IsInit() || m_running) {
        return false;
    }
    if (m_confirm &&
        nxApp::MsgBox(m_confirmText.isEmpty() ? u"Confermi l'operazione?"_s : m_confirmText, 36) !=
            win::id::kYes) {
        return false;
    }
    m_param = param;
    const RunningFlag running(m_running);
    m_stopped = false;

    m_counter.Init();
    m_statusText.clear();
    m_subStatusText = u"..."_s;
    m_subStatusChanged = false;
    m_lastETA.clear();
    m_lastETATick = m_lastCountTick = m_lastPumpTick = 0;
    m_lastCount = 0;
    LogOpen();

    if (m_useForm) {
        const FormFactory& factory = m_formFactory ? m_formFactory : defaultFormFactory();
        if (factory) {
            m_form = factory();
        }
    }
    SubStatus(QString());
    Status(kNoCountYet, statusText.isEmpty() ? m_title : statusText, false);
    moveBar(kNoCountYet);

    if (m_form) {
        runModal();
    } else {
        RaiseJob();
    }
    m_form.reset();
    const bool result = !m_gotError;
    if (!m_stopped) {
        endMessage();
        if (m_logEndView) {
            Log().LogView(false);
        }
    }
    Log().LogClose();
    return result;
}

void nxJob::runModal() {
    const std::int32_t pointer = nxApp::SetMousePointer(win::pointer::kDefault);
    m_form->SetCaption(m_title);
    m_form->ShowCancel(m_annullable);
    m_form->ShowModal(*this);
    nxApp::SetMousePointer(pointer);
}

void nxJob::endMessage() {
    if (!m_endMessage) {
        return;
    }
    if (!m_gotError) {
        nxApp::MsgBox(m_endMessageOk.isEmpty() ? u"Operazione completata con successo."_s
                                               : m_endMessageOk,
                      64);
    } else {
        const QString text =
            m_endMessageErr.isEmpty() ? u"Operazione completata con errori."_s : m_endMessageErr;
        nxApp::MsgBox(text + u"\r\n("_s + nxApp::LastError().Description() + u')', 48);
    }
}

void nxJob::SubStatus(const QString& text) {
    if (text != m_subStatusText) {
        m_subStatusText = text;
        m_subStatusChanged = true;
    }
    Status(vb::Missing{}, QString(), false);
}

void nxJob::Status(const vb::Variant& count, const QString& text, bool cycle) {
    if (!m_running) {
        return;
    }
    if (cycle) {
        m_showETA = false;
        m_percent = false;
    }
    const std::int32_t tick = m_counter.Check();
    const bool countGiven = !count.isMissing() && !count.isEmpty();
    // A walk gives its position, a Long, at every record.
    const std::int32_t* position = count.get<std::int32_t>();
    const double value = position != nullptr ? *position
                         : countGiven        ? count.toDouble().value_or(0)
                                             : m_lastCount;
    if (value != kPumpOnly) {
        updateStatusText(text);
        updateEstimate(toLong(value), tick);
        if (countGiven) {
            updateCount(value, cycle, tick);
        }
    }
    pumpIfDue(tick);
}

void nxJob::pumpIfDue(std::int32_t tick) {
    if (tick > m_lastPumpTick + kPumpEvery) {
        nxApp::DoEvents();
        m_lastPumpTick = tick;
    }
}

void nxJob::updateStatusText(const QString& text) {
    // A walk passes the same string at every record: a shared one needs no comparison.
    if (!text.isEmpty() && !text.isSharedWith(m_statusText) && text != m_statusText) {
        showText(kStatusSlot, text);
        m_statusText = text;
    }
    if (m_subStatusChanged) {
        showText(kSubStatusSlot, m_subStatusText);
        m_subStatusChanged = false;
    }
}

// A straight line through the time gone: recomputed at most every 2 seconds, not at all in
// the first 5. Shown only when its text changes; the common call, between two recomputations,
// touches no text at all.
void nxJob::updateEstimate(std::int32_t count, std::int32_t tick) {
    if (count < 0) {
        setEstimate(u"Attendere"_s);
        return;
    }
    if (!m_showETA) {
        return;
    }
    if (tick <= kFirstEstimateAfter) {
        if (!m_lastETA.isSharedWith(calculatingText())) {
            setEstimate(calculatingText());
        }
        return;
    }
    if (tick <= m_lastETATick + kEstimateEvery) {
        return;
    }
    m_lastETATick = tick;
    if (count > 0) {
        const double done = std::min(count, m_maxCount);
        const double left =
            std::min(static_cast<double>(tick) / done * (m_maxCount - done), 2147483647.0);
        QString text = u"circa "_s + m_counter.FormatTick(static_cast<std::int32_t>(left), false) +
                       u" al termine"_s;
        if (text != m_lastETA) {
            setEstimate(std::move(text));
        }
    }
}

void nxJob::setEstimate(QString text) {
    showText(kETASlot, text + u"..."_s);
    m_lastETA = std::move(text);
}

void nxJob::updateCount(double count, bool cycle, std::int32_t tick) {
    double shown = m_lastCount;
    if (count >= 0 && (tick > m_lastCountTick + kCountEvery || count == m_maxCount)) {
        shown = count;
        if (shown > m_maxCount) {
            shown = cycle ? std::fmod(shown, static_cast<double>(m_maxCount))
                          : static_cast<double>(m_maxCount);
        }
        m_lastCountTick = tick;
    }
    if (shown == m_lastCount && count >= 0) {
        return;
    }
    if (count < 0) {
        shown = 0;
    }
    QString text;
    if (count >= 1) {
        text = FormatThousands(count);
        if (m_percent) {
            text += u" %"_s;
        } else {
            if (!cycle) {
                text += u" di "_s + FormatThousands(m_maxCount);
            }
            if (!m_countUnit.isEmpty()) {
                text += u' ' + m_countUnit;
            }
        }
    }
    showText(kCountSlot, text);
    moveBar(count < 0 ? count : shown);
    m_lastCount = shown;
    if (OnStatus) {
        OnStatus(toLong(count));
    }
}

void nxJob::moveBar(double count) {
    JobProgress* bar = progress();
    if (bar == nullptr) {
        return;
    }
    if (count < 0) {
        bar->SetMax(kBarSteps);
        bar->SetValue(0);
        return;
    }
    bar->SetValue(
        static_cast<int>(std::floor(static_cast<double>(kBarSteps) / m_maxCount * count)));
    bar->Refresh();
}

JobLabel* nxJob::label(int slot) const {
    if (m_useForm) {
        return m_form ? m_form->Label(slot) : nullptr;
    }
    return m_lent[slot];
}

JobProgress* nxJob::progress() const {
    if (m_useForm) {
        return m_form ? m_form->Progress() : nullptr;
    }
    return m_progress;
}

void nxJob::showText(int slot, QString text) {
    JobLabel* control = label(slot);
    if (control == nullptr) {
        return;
    }
    if (control->OnForm()) {
        const int limit = control->Width() - kLabelMargin;
        while (text.size() > 4 && control->TextWidth(text) > limit) {
            text = text.left(text.size() - 4) + u"..."_s;
        }
    }
    control->SetCaption(text);
    control->Refresh();
}
