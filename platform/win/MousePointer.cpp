#include "platform/win/MousePointer.h"

#include <QCursor>
#include <QGuiApplication>
#include <QThread>

namespace win {
namespace {

Qt::CursorShape shapeFor(int pointer) {
    switch (pointer) {
    case 2:
        return Qt::CrossCursor;
    case 3:
        return Qt::IBeamCursor;
    case 5:
    case 15:
        return Qt::SizeAllCursor;
    case 6:
        return Qt::SizeBDiagCursor;
    case 7:
        return Qt::SizeVerCursor;
    case 8:
        return Qt::SizeFDiagCursor;
    case 9:
        return Qt::SizeHorCursor;
    case 10:
        return Qt::UpArrowCursor;
    case pointer::kHourglass:
        return Qt::WaitCursor;
    case 12:
        return Qt::ForbiddenCursor;
    case 13:
        return Qt::BusyCursor;
    case 14:
        return Qt::WhatsThisCursor;
    default:
        return Qt::ArrowCursor;
    }
}

// Puts the pointer on the screen as the application's one override cursor, none for the default.
void apply(int pointer) {
    while (QGuiApplication::overrideCursor() != nullptr) {
        QGuiApplication::restoreOverrideCursor();
    }
    if (pointer != pointer::kDefault) {
        QGuiApplication::setOverrideCursor(QCursor(shapeFor(pointer)));
    }
}

} // namespace

void ScreenPointer::set(int pointer) {
    m_pointer.store(pointer);
    auto* app = qobject_cast<QGuiApplication*>(QCoreApplication::instance());
    if (app == nullptr) {
        return;
    }
    if (QThread::currentThread() == app->thread()) {
        apply(pointer);
    } else {
        QMetaObject::invokeMethod(
            app, [pointer] { apply(pointer); }, Qt::QueuedConnection);
    }
}

} // namespace win
