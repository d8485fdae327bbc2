#include "frame/nxWaitCursor.h"

#include "frame/Edge.h"
#include "frame/nxApp.h"

#include "platform/win/MousePointer.h"

nxWaitCursor::nxWaitCursor() : m_enabled(nxApp::IsInit()) {}

nxWaitCursor::~nxWaitCursor() {
    Show(false);
}

void nxWaitCursor::Show(bool on) noexcept {
    if (!m_enabled || on == m_shown) {
        return;
    }
    IgnoreErrors([&] {
        if (on) {
            m_saved = nxApp::SetMousePointer(win::pointer::kHourglass);
        } else {
            nxApp::SetMousePointer(m_saved);
        }
        m_shown = on;
    });
}
