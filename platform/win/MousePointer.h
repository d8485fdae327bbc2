#pragma once

#include <atomic>

namespace win {

// The screen's mouse pointer, by the system's numbers: 0 the default, 11 the hourglass, 13 the
// arrow with hourglass...
namespace pointer {
inline constexpr int kDefault = 0;
inline constexpr int kHourglass = 11;
} // namespace pointer

class MousePointer {
public:
    virtual ~MousePointer() = default;
    virtual int get() const = 0;
    virtual void set(int pointer) = 0;
};

// The application's override cursor when there is a QGuiApplication (changed on its thread,
// also when asked from another), and otherwise just the number, for a run without a screen.
class ScreenPointer : public MousePointer {
public:
    int get() const override { return m_pointer.load(); }
    void set(int pointer) override;

private:
    std::atomic<int> m_pointer{pointer::kDefault};
};

} // namespace win
