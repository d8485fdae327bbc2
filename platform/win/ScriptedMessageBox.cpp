#include "platform/win/ScriptedMessageBox.h"

#include "platform/win/Error.h"

using namespace Qt::StringLiterals;

namespace win {

long ScriptedMessageBox::show(const MessageBoxRequest& request) {
    Shown box{request.text, request.title, request.flags, request.captions, request.beep, 0, 0};
    for (;;) {
        long result = 0;
        if (!m_script.empty()) {
            result = m_script.front();
            m_script.pop_front();
        } else if (m_fallback) {
            result = *m_fallback;
        } else {
            m_shown.push_back(box);
            throw Error(u"scripted message box: no answer left for \"%1\" (%2)"_s.arg(
                request.text, request.title));
        }
        if (result == id::kHelp && request.help && (request.flags & mb::kHelp) != 0) {
            ++box.helpPresses;
            request.help();
            if (!m_script.empty() || m_fallback) {
                continue;
            }
            m_shown.push_back(box);
            throw Error(
                u"scripted message box: no answer after Help for \"%1\""_s.arg(request.text));
        }
        box.result = result;
        m_shown.push_back(box);
        return result;
    }
}

void ScriptedMessageBox::setFallback(std::optional<long> result) {
    if (result == id::kHelp) {
        throw Error(u"scripted message box: the Help button cannot answer every box"_s);
    }
    m_fallback = result;
}

const ScriptedMessageBox::Shown& ScriptedMessageBox::last() const {
    if (m_shown.empty()) {
        throw Error(u"scripted message box: no box was shown"_s);
    }
    return m_shown.back();
}

} // namespace win
