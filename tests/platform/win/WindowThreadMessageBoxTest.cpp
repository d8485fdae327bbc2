#include "platform/win/WindowThreadMessageBox.h"

#include "platform/win/Error.h"
#include "platform/win/ScriptedMessageBox.h"

#include "tests/support/Printers.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

// The scripted box, noting on which thread each box was shown.
class ThreadNotingBox : public win::ScriptedMessageBox {
public:
    long show(const win::MessageBoxRequest& request) override {
        threads.push_back(QThread::currentThread());
        return win::ScriptedMessageBox::show(request);
    }
    std::vector<QThread*> threads;
};

win::MessageBoxRequest box(const QString& text, long flags) {
    win::MessageBoxRequest request;
    request.text = text;
    request.flags = flags;
    return request;
}

// Runs `work` on a thread of its own while this thread keeps taking its events, as the window
// does during a run; gives up after five seconds.
template <class Work> bool runBeside(Work&& work) {
    std::atomic<bool> done{false};
    std::thread worker([&] {
        work();
        done = true;
    });
    const QDeadlineTimer deadline(5000);
    while (!done && !deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    }
    const bool finished = done.load();
    worker.join();
    return finished;
}

TEST(WindowThreadMessageBox, AWorkersQuestionIsShownOnTheWindowThreadAndWaitsForItsAnswer) {
    auto inner = std::make_shared<ThreadNotingBox>();
    inner->answer({win::id::kNo, win::id::kOk});
    win::WindowThreadMessageBox boxes(inner);
    long first = 0;
    long second = 0;
    QThread* asker = nullptr;
    ASSERT_TRUE(runBeside([&] {
        asker = QThread::currentThread();
        first = boxes.show(box(u"Visualizzare il log ora?"_s, 36));
        second = boxes.show(box(u"Importazione fallita."_s, 0));
    }));
    EXPECT_EQ(first, win::id::kNo);
    EXPECT_EQ(second, win::id::kOk);
    ASSERT_EQ(inner->shown().size(), 2U);
    EXPECT_EQ(inner->shown()[0].text, u"Visualizzare il log ora?"_s);
    EXPECT_EQ(inner->shown()[1].flags, 0);
    for (QThread* shownOn : inner->threads) {
        EXPECT_EQ(shownOn, QCoreApplication::instance()->thread());
        EXPECT_NE(shownOn, asker);
    }
}

TEST(WindowThreadMessageBox, OnTheWindowThreadTheBoxIsShownAtOnce) {
    auto inner = std::make_shared<ThreadNotingBox>();
    inner->answer(win::id::kYes);
    win::WindowThreadMessageBox boxes(inner);
    // No event loop turns here: a queued call would never come back.
    EXPECT_EQ(boxes.show(box(u"x"_s, 4)), win::id::kYes);
    ASSERT_EQ(inner->threads.size(), 1U);
    EXPECT_EQ(inner->threads[0], QThread::currentThread());
}

TEST(WindowThreadMessageBox, AFailingBoxFailsOnTheThreadThatAsked) {
    auto inner = std::make_shared<ThreadNotingBox>(); // an empty script refuses every box
    win::WindowThreadMessageBox boxes(inner);
    QString failure;
    ASSERT_TRUE(runBeside([&] {
        try {
            boxes.show(box(u"Connessione riuscita."_s, 64));
        } catch (const win::Error& e) {
            failure = e.message();
        }
    }));
    EXPECT_TRUE(failure.contains(u"Connessione riuscita."_s)) << failure.toStdString();
    EXPECT_THROW(win::WindowThreadMessageBox(nullptr), win::Error);
}

} // namespace
