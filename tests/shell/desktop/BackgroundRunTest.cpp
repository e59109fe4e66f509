// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/desktop/BackgroundRun.h"

#include "support/Events.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThread>

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

namespace quorvin {

namespace {

using namespace std::chrono_literals;

/// Work that goes on until it is stopped.
int untilStopped(const RunControl &control)
{
    while (!control.isStopped())
        std::this_thread::sleep_for(1ms);
    return 1;
}

struct BackgroundRunTest : testing::Test {
    int starts = 0;
    int ends = 0;
    int results = 0;

    void watch(BackgroundRunBase &run)
    {
        QObject::connect(&run, &BackgroundRunBase::started, [this] { ++starts; });
        QObject::connect(&run, &BackgroundRunBase::ended, [this] { ++ends; });
    }
    std::function<void(int)> count()
    {
        return [this](int result) { results += result; };
    }
    void TearDown() override { EXPECT_TRUE(BackgroundRunBase::awaitThreads(30s)) << "nobody stopped it"; }
};

} // namespace

TEST_F(BackgroundRunTest, BringsItsResultToThisThreadAndTellsHowFarItIs)
{
    BackgroundRun<std::unique_ptr<int>> run;
    watch(run);
    std::vector<std::pair<int, int>> told;
    QObject::connect(&run, &BackgroundRunBase::progressed,
                     [&](int done, int total) { told.emplace_back(done, total); });
    std::atomic<Qt::HANDLE> worker = nullptr;
    Qt::HANDLE user = nullptr;
    int value = 0;
    run.start(
        "Test",
        [&worker](const RunControl &control) {
            worker = QThread::currentThreadId();
            for (int i = 1; i <= 1000; ++i)
                control.report(i, 1000);
            return std::make_unique<int>(42);
        },
        [&](std::unique_ptr<int> result) {
            user = QThread::currentThreadId();
            value = *result;
            EXPECT_EQ(ends, 1) << "what waits for the end may start the next";
        });
    EXPECT_TRUE(run.isUnderWay());
    ASSERT_TRUE(test::spinUntil([&] { return value != 0; }));
    EXPECT_EQ(value, 42);
    EXPECT_EQ(user, QThread::currentThreadId());
    EXPECT_NE(worker, user);
    ASSERT_FALSE(told.empty());
    EXPECT_EQ(told.back(), std::pair(1000, 1000));
    EXPECT_LT(told.size(), 100U) << "a step is no event";
    EXPECT_EQ(starts, 1);
    EXPECT_FALSE(run.isUnderWay());
}

TEST_F(BackgroundRunTest, CancelEndsItAtOnceAndThrowsTheResultAway)
{
    BackgroundRun<int> run;
    watch(run);
    run.start("Test", untilStopped, count());
    run.cancel();
    EXPECT_FALSE(run.isUnderWay());
    EXPECT_EQ(ends, 1);
    run.cancel();
    EXPECT_EQ(ends, 1) << "there is nothing to cancel";
    ASSERT_TRUE(BackgroundRunBase::awaitThreads(30s));

    run.start("Test", untilStopped, count());
    run.start(
        "Test", [](const RunControl &) { return 10; }, count());
    EXPECT_EQ(ends, 2) << "a newer run cancels the older";
    ASSERT_TRUE(test::spinUntil([this] { return ends == 3; }));
    EXPECT_EQ(results, 10);
    EXPECT_EQ(starts, 3);
}

TEST_F(BackgroundRunTest, DeliversNothingToAContextThatIsGone)
{
    auto context = std::make_unique<QObject>();
    const QPointer<BackgroundRunBase> first = runInBackground(context.get(), "Test", untilStopped, count());
    const QPointer<BackgroundRunBase> second = runInBackground(
        context.get(), "Test", [](const RunControl &) { return 5; }, count());
    ASSERT_TRUE(test::spinUntil([&] { return second.isNull(); })) << "it goes when it has ended";
    EXPECT_EQ(results, 5);
    runInBackground(
        context.get(), "Test", [](const RunControl &) { return 7; }, count());
    context.reset();
    EXPECT_TRUE(first.isNull());
    ASSERT_TRUE(BackgroundRunBase::awaitThreads(30s));
    QCoreApplication::processEvents();
    EXPECT_EQ(results, 5);
}

TEST_F(BackgroundRunTest, NobodyWaitsForWorkThatDoesNotListen)
{
    auto goOn = std::make_shared<std::atomic<bool>>(false);
    {
        BackgroundRun<int> run;
        run.start(
            "Test",
            [goOn](const RunControl &) {
                goOn->wait(false);
                return 1;
            },
            count());
    }
    EXPECT_FALSE(BackgroundRunBase::awaitThreads(0ms));
    *goOn = true;
    goOn->notify_all();
}

} // namespace quorvin
