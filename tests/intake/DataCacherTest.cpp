// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "intake/DataCacherShared.h"
#include "support/PoolBench.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <map>
#include <random>
#include <thread>

namespace quorvin {

using test::filesNamed;
using test::PoolBench;
using test::spinUntil;

TEST(DataCacher, ThreadsByModeCoresAndFiles)
{
    const auto threads = DataCacher::numberOfThreadsToWorkWithFilesCount;
    EXPECT_EQ(threads(1000, 1, 8), 1);
    EXPECT_EQ(threads(10, 8, 8), 1);
    EXPECT_EQ(threads(11, 8, 8), 2);
    EXPECT_EQ(threads(21, 4, 4), 3);
    EXPECT_EQ(threads(100, 4, 4), 4);
    EXPECT_EQ(threads(100, 2, 1), 1);
    EXPECT_EQ(threads(100, 8, 4), 4);
    EXPECT_EQ(threads(100, 256, 8), 8);
    EXPECT_EQ(threads(21, 256, 8), 3);
    PoolBench bench;
    for (const int mode : {3, 0, 16, 257, 8})
        bench.pool->setMTMode(mode);
    EXPECT_EQ(bench.pool->mode(), 8);
    bench.pool->setMTMode(5);
    EXPECT_EQ(bench.pool->mode(), 1);
}

TEST(DataCacher, FilesComeInOrderAndFailWithTheirReason)
{
    PoolBench bench;
    const auto list = filesNamed({"a", "bad", "c"});
    bench.pool->processFiles(list);
    ASSERT_TRUE(bench.await(3));
    EXPECT_EQ(bench.log(), QStringLiteral("a 1+|bad 1|c 1+"));
    EXPECT_TRUE(list[1]->isDone() && list[1]->isFailed() && !list[1]->quorvinData());
    EXPECT_EQ(list[1]->failureReason(), QStringLiteral("it is bad"));
    EXPECT_TRUE(list[2]->isDone() && !list[2]->isFailed() && list[2]->quorvinData());
    bench.pool->processFiles({});
    bench.pool->processFiles(filesNamed({"later"}));
    EXPECT_TRUE(bench.await(4));
}

TEST(DataCacher, ForcedFileIsNextAndItsOldPlaceRepeats)
{
    PoolBench bench;
    const auto list = filesNamed({"gate", "b", "c", "d"});
    bench.pool->processFiles(list);
    bench.gate->awaitWaiting(1);
    bench.pool->processFileFirstly(list[2]);
    bench.pool->processFileFirstly(list[3]);
    bench.gate->open();
    ASSERT_TRUE(bench.await(6));
    EXPECT_EQ(bench.log(), QStringLiteral("gate 1+|d 1+|c 1+|b 1+|c 2|d 2"));
}

TEST(DataCacher, RequestForAFileInWorkIsAnsweredWithIt)
{
    PoolBench bench;
    bench.pool->setThreadCount(2);
    const auto list = filesNamed({"gate", "gate 2", "c"});
    bench.pool->processFiles(list);
    bench.gate->awaitWaiting(2);
    bench.pool->processFileFirstly(list[0]);
    bench.gate->open();
    ASSERT_TRUE(bench.await(4));
    // Answered with its record by the thread that had it, or without one by a thread that found it done.
    EXPECT_EQ(bench.log().count(QStringLiteral("gate 1+")), 1);
    EXPECT_EQ(std::ranges::count(bench.deliveries, DataCacherDelivery::Repeat, &DataCacherDelivery::status),
              1);
}

TEST(DataCacher, CancelledFileIsDoneWithoutRecordOrDelivery)
{
    PoolBench bench;
    const auto list = filesNamed({"gate", "b"});
    bench.pool->processFiles(list);
    bench.gate->awaitWaiting(1);
    bench.pool->cancelThreadsAndWait();
    EXPECT_TRUE(bench.await(0));
    EXPECT_TRUE(list[0]->isDone() && !list[0]->isFailed() && !list[0]->quorvinData());
    EXPECT_FALSE(list[1]->isDone());
    bench.pool->processFiles(filesNamed({"c"}));
    ASSERT_TRUE(bench.await(2));
    EXPECT_EQ(bench.log(), QStringLiteral("b 1+|c 1+"));
}

TEST(DataCacher, ReplacedPoolDeliversNothing)
{
    PoolBench bench;
    const auto old = filesNamed({"a", "gate", "b"});
    bench.pool->processFiles(old);
    bench.gate->awaitWaiting(1);
    bench.pool->cancelThreads();
    bench.pool->setDelegate(nullptr);
    bench.pool = bench.makePool();
    bench.pool->processFiles(filesNamed({"new"}));
    bench.gate->open();
    ASSERT_TRUE(bench.await(1));
    EXPECT_EQ(bench.log(), QStringLiteral("new 1+"));
}

TEST(DataCacher, ReadsNotFarAheadOfItsDelegate)
{
    const auto doneWhileNobodyTakes = [](PoolBench &bench, const QString &name, std::size_t least) {
        std::vector<FilelistItemPtr> list;
        for (int i = 0; i < 2000; ++i)
            list.push_back(FilelistItem::itemWithFilename(name, name));
        bench.pool->setThreadCount(2);
        bench.pool->processFiles(list);
        const auto done
            = [&] { return static_cast<std::size_t>(std::ranges::count_if(list, &FilelistItem::isDone)); };
        while (done() < least)
            std::this_thread::yield();
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        return done();
    };
    PoolBench bench;
    EXPECT_LT(doneWhileNobodyTakes(bench, QStringLiteral("small"), 512), 520U);
    EXPECT_TRUE(bench.await(2000));
    PoolBench large;
    EXPECT_LT(doneWhileNobodyTakes(large, QStringLiteral("large"), 32), 40U);
    large.pool->cancelThreadsAndWait();
}

TEST(DataCacher, ThreadThatGoesOnIsInReachOfACancelAllTheTime)
{
    DataCacherShared shared;
    shared.fileQueue.addFilesToEnd(filesNamed({"a"}));
    std::stop_source source;
    shared.threads.emplace(1, source);
    std::atomic<bool> isOver = false;
    const std::jthread thread([&] {
        for (int i = 0; i < 50'000; ++i)
            EXPECT_FALSE(shared.leave(1, source.get_token()));
        isOver = true;
    });
    int missed = 0;
    while (!isOver) {
        const std::lock_guard guard(shared.safeLock);
        missed += shared.threads.contains(1) ? 0 : 1;
    }
    EXPECT_EQ(missed, 0);
}

TEST(DataCacher, RemovedFilesAreNotRead)
{
    PoolBench bench;
    const auto list = filesNamed({"gate", "b", "c", "d"});
    bench.pool->processFiles(list);
    bench.gate->awaitWaiting(1);
    bench.pool->processFileFirstly(list[2]);
    bench.pool->removeFiles({list[1], list[2]});
    bench.gate->open();
    ASSERT_TRUE(bench.await(2));
    EXPECT_EQ(bench.log(), QStringLiteral("gate 1+|d 1+"));
}

TEST(DataCacher, SelectionStormLosesAndDoublesNothing)
{
    constexpr std::size_t kFiles = 5000;
    PoolBench bench;
    bench.gate->open();
    bench.pool->setThreadCount(8);
    std::vector<FilelistItemPtr> list;
    for (std::size_t i = 0; i < kFiles; ++i)
        list.push_back(FilelistItem::itemWithFilename(QString::number(i), QString()));
    std::mt19937 random(1);
    std::size_t forced = 0;
    bench.whenDelivered = [&] {
        if (forced < kFiles && random() % 2 == 0) {
            ++forced;
            bench.pool->processFileFirstly(list[random() % kFiles]);
        }
    };
    bench.pool->processFiles(list);
    std::map<FilelistItemPtr, int> fresh;
    spinUntil([&] {
        return std::ranges::all_of(list, &FilelistItem::isDone) && bench.deliveries.size() >= kFiles + forced;
    });
    bench.pool->cancelThreadsAndWait();
    QCoreApplication::processEvents();
    for (const auto &delivery : bench.deliveries)
        fresh[delivery.file] += delivery.status == DataCacherDelivery::Fresh;
    EXPECT_EQ(fresh.size(), kFiles);
    EXPECT_TRUE(std::ranges::all_of(fresh, [](const auto &entry) { return entry.second == 1; }));
    // A file asked for twice while in work is answered once more than it was asked for; that can't be here
    // less.
    EXPECT_GE(bench.deliveries.size(), kFiles + forced);
}

} // namespace quorvin
