#include "platform/win/WindowThreadMessageBox.h"

#include "platform/win/Error.h"

#include <QCoreApplication>
#include <QThread>

#include <exception>
#include <utility>

using namespace Qt::StringLiterals;

namespace win {

WindowThreadMessageBox::WindowThreadMessageBox(std::shared_ptr<MessageBoxService> boxes)
    : m_boxes(std::move(boxes)) {
    if (!m_boxes) {
        throw Error(u"message box: no box to hand the questions to"_s);
    }
}

long WindowThreadMessageBox::show(const MessageBoxRequest& request) {
    QCoreApplication* app = QCoreApplication::instance();
    if (app == nullptr || QThread::currentThread() == app->thread()) {
        return m_boxes->show(request);
    }
    // A failure of the box travels back to the thread that asked, as it would have reached it
    // had the box been shown there.
    long result = 0;
    std::exception_ptr failure;
    const bool delivered = QMetaObject::invokeMethod(
        app,
        [&] {
            try {
                result = m_boxes->show(request);
            } catch (...) {
                failure = std::current_exception();
            }
        },
        Qt::BlockingQueuedConnection);
    if (!delivered) {
        throw Error(u"message box: the window thread did not take \"%1\""_s.arg(request.text));
    }
    if (failure) {
        std::rethrow_exception(failure);
    }
    return result;
}

} // namespace win
