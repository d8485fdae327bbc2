#pragma once

#include "platform/win/MessageBox.h"

#include <deque>
#include <initializer_list>
#include <optional>
#include <vector>

namespace win {

// A message box for tests and the command line: it records every box and answers from a script,
// a queue of results taken one per box. A script entry of id::kHelp presses the Help button
// first (running the box's callback) and the box then takes the next entry.
//
// When the script has run dry the box answers the fallback if one is set (the command line
// answers every question the same way); otherwise it throws win::Error naming the box, so a
// test that meets a box it did not expect fails loudly instead of hanging or guessing.
class ScriptedMessageBox : public MessageBoxService {
public:
    struct Shown {
        QString text;
        QString title;
        long flags = 0;
        QStringList captions;
        bool beep = false;
        int helpPresses = 0;
        long result = 0;
    };

    ScriptedMessageBox() = default;
    explicit ScriptedMessageBox(std::initializer_list<long> answers) : m_script(answers) {}

    void answer(long result) { m_script.push_back(result); }
    void answer(std::initializer_list<long> results) {
        m_script.insert(m_script.end(), results.begin(), results.end());
    }
    // The answer once the script is empty; id::kHelp cannot be one (it would never close a box).
    void setFallback(std::optional<long> result);

    long show(const MessageBoxRequest& request) override;

    const std::vector<Shown>& shown() const noexcept { return m_shown; }
    const Shown& last() const;
    std::size_t pending() const noexcept { return m_script.size(); }
    void clear() {
        m_shown.clear();
        m_script.clear();
    }

private:
    std::deque<long> m_script;
    std::optional<long> m_fallback;
    std::vector<Shown> m_shown;
};

} // namespace win
