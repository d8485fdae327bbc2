#pragma once

#include <QCoreApplication>
#include <QMetaObject>
#include <QObject>
#include <QThread>

#include <type_traits>
#include <utility>

// Runs `call` on the thread `context` lives on and returns its result. From another thread the
// call is queued there and the caller waits for it (a blocking queued call), so calls from a
// worker arrive in the order they were made and each has finished before the worker goes on.
// The thread of `context` must be taking its events.
template <class Call> auto onThreadOf(QObject* context, Call&& call) -> std::invoke_result_t<Call> {
    using Result = std::invoke_result_t<Call>;
    if (QThread::currentThread() == context->thread()) {
        return std::forward<Call>(call)();
    }
    if constexpr (std::is_void_v<Result>) {
        QMetaObject::invokeMethod(
            context, [&] { call(); }, Qt::BlockingQueuedConnection);
    } else {
        Result result{};
        QMetaObject::invokeMethod(
            context, [&] { result = call(); }, Qt::BlockingQueuedConnection);
        return result;
    }
}
