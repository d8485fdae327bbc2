#pragma once

#include <cstdint>

// A scoped hourglass: Show(true) sets it and keeps the pointer that stood before, Show(false) or
// the object's end puts that back.
class nxWaitCursor {
public:
    nxWaitCursor();
    nxWaitCursor(const nxWaitCursor&) = delete;
    nxWaitCursor& operator=(const nxWaitCursor&) = delete;
    nxWaitCursor(nxWaitCursor&&) = delete;
    nxWaitCursor& operator=(nxWaitCursor&&) = delete;
    ~nxWaitCursor();

    void Show(bool on) noexcept;
    bool Shown() const noexcept { return m_shown; }

private:
    bool m_enabled = false;
    bool m_shown = false;
    std::int32_t m_saved = 0;
};
