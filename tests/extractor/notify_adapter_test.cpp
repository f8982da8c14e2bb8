#include "launcher.h"

#include <QCoreApplication>
#include <QThread>
#include <gtest/gtest.h>
#include <thread>
#include <utility>
#include <vector>

namespace {

// The extractor reports from the worker thread; a receiver on the main
// thread must get each report later, in order, with its own copies.
TEST(NotifyAdapterTest, ReportsFromAnotherThreadArriveQueuedAndInOrder)
{
    Notify_Adapter* relay = Notify_Adapter::GetInstance();
    QObject receiver;
    std::vector<std::pair<int, int>> progress;
    std::vector<QString> texts;
    bool wrong_thread = false;
    QObject::connect(relay, &Notify_Adapter::sigUpdateProgress, &receiver, [&](int total, int current) {
        wrong_thread = wrong_thread || QThread::currentThread() != receiver.thread();
        progress.emplace_back(total, current);
    });
    QObject::connect(relay, &Notify_Adapter::sigUpdateDialogText, &receiver, [&](const QString& text) {
        wrong_thread = wrong_thread || QThread::currentThread() != receiver.thread();
        texts.push_back(text);
    });
    Notify_Adapter* worker_relay = nullptr;
    std::thread worker([&worker_relay] {
        worker_relay = Notify_Adapter::GetInstance();
        QString text = QStringLiteral("unpacking");
        worker_relay->UpdateDialogText(text);
        text.clear();
        worker_relay->UpdateProgress(7, 1);
        worker_relay->UpdateProgress(7, 3);
    });
    worker.join();
    EXPECT_EQ(relay, worker_relay) << "the worker thread got a relay of its own";
    EXPECT_TRUE(progress.empty() && texts.empty())
        << "a report from another thread was delivered on that thread";
    QCoreApplication::sendPostedEvents();
    EXPECT_FALSE(wrong_thread) << "a slot ran outside the receiver's thread";
    EXPECT_EQ((std::vector<std::pair<int, int>>{{7, 1}, {7, 3}}), progress);
    EXPECT_EQ(std::vector<QString>{QStringLiteral("unpacking")}, texts);
}

} // namespace
