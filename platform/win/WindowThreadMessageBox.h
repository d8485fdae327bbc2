#pragma once

#include "platform/win/MessageBox.h"

#include <memory>

namespace win {

// Boxes asked for on a worker thread go to the window thread and wait there for their answer:
// a conversion runs on a thread of its own, while a box (a widget) may only live on the thread
// of the application object. The worker stays blocked until the box is answered, so the
// question holds the run exactly as a box on the window's own thread would; the window itself
// keeps painting and answering meanwhile. On the window thread the box is shown at once.
//
// The window thread must not itself wait for the worker while a box may be asked for, or both
// stand still; the console only ever waits for a run by its finished signal.
class WindowThreadMessageBox : public MessageBoxService {
public:
    explicit WindowThreadMessageBox(std::shared_ptr<MessageBoxService> boxes);

    long show(const MessageBoxRequest& request) override;

    MessageBoxService& inner() const noexcept { return *m_boxes; }

private:
    std::shared_ptr<MessageBoxService> m_boxes;
};

} // namespace win
