#include "platform/win/Forms.h"

#include <QApplication>
#include <QGuiApplication>
#include <QWindow>

namespace win {

void closeAllForms() noexcept {
    try {
        if (qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr) {
            QApplication::closeAllWindows();
            return;
        }
        if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr) {
            for (QWindow* window : QGuiApplication::topLevelWindows()) {
                window->close();
            }
        }
    } catch (...) { // NOLINT(bugprone-empty-catch): a window that fails to close stays open
    }
}

} // namespace win
