// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/FailureKind.h"
#include "support/PoolBench.h"

#include <pthread.h>

#include <algorithm>

namespace quorvin {

using test::filesNamed;
using test::hasRecord;
using test::PoolBench;
using test::poolThreads;
using test::spinUntil;

TEST(DataCacher, FilesOfAThreadWithoutReaderGoToTheOthers)
{
    PoolBench bench;
    *bench.readers = 1;
    bench.pool->setThreadCount(4);
    std::vector<FilelistItemPtr> list = filesNamed({"gate"});
    for (int i = 0; i < 200; ++i)
        list.push_back(FilelistItem::itemWithFilename(QString::number(i), {}));
    bench.pool->processFiles(list);
    bench.gate->awaitWaiting(1);
    // Threads have their names a moment after they are there: it may be so for that moment alone.
    bool wasAlone = false;
    ASSERT_TRUE(spinUntil([&wasAlone] { return wasAlone = wasAlone || poolThreads() == 1; }))
        << "the others have left";
    bench.gate->open();
    ASSERT_TRUE(bench.await(list.size()));
    EXPECT_TRUE(std::ranges::none_of(list, &FilelistItem::isFailed));
}

TEST(DataCacher, WithoutAnyReaderOrThreadFilesFailWithTheReason)
{
    PoolBench bench;
    *bench.readers = 0;
    bench.pool->setThreadCount(3);
    bench.pool->processFiles(filesNamed({"a", "b", "c", "d"}));
    ASSERT_TRUE(bench.await(4));
    EXPECT_EQ(bench.log().count(u'+'), 0);
    EXPECT_EQ(bench.deliveries[3].file->failureReason(), wordsOf(FailureKind::NoReader));
    bench.pool->cancelThreadsAndWait();

    pthread_attr_t usual;
    pthread_attr_t huge;
    pthread_getattr_default_np(&usual);
    pthread_attr_init(&huge);
    // No address space has room for such a stack.
    pthread_attr_setstacksize(&huge, std::size_t{1} << 47U);
    pthread_setattr_default_np(&huge);
    const auto list = filesNamed({"e", "f"});
    bench.pool->processFiles(list);
    pthread_setattr_default_np(&usual);
    ASSERT_TRUE(bench.await(6));
    EXPECT_TRUE(list[1]->isFailed() && list[1]->isDone());
    EXPECT_FALSE(list[1]->failureReason().isEmpty());
}

TEST(DataCacher, SlowFilesLeaveTheirLaneAndAThirdOneWaits)
{
    PoolBench bench;
    const auto list = filesNamed({"slow 1", "slow 2", "a", "slow 3", "b", "slow 4", "c"});
    bench.pool->processFiles(list);
    ASSERT_TRUE(bench.await(3)) << "one lane reads all others";
    EXPECT_EQ(bench.log(), QStringLiteral("a 1+|b 1+|c 1+"));
    bench.gate->awaitWaiting(2);
    // The lane has ended; what comes now needs a new one.
    bench.pool->processFiles(filesNamed({"d"}));
    ASSERT_TRUE(bench.await(4));
    bench.gate->open();
    ASSERT_TRUE(bench.await(8));
    EXPECT_TRUE(std::ranges::none_of(list, &FilelistItem::isFailed));
    bench.pool->processFiles(filesNamed({"e"}));
    EXPECT_TRUE(bench.await(9));
}

TEST(DataCacher, DigestsThatAdvanceAreNotBegunAgain)
{
    PoolBench bench;
    const auto list = filesNamed({"slow 1", "slow 2", "slow 3 advances", "a"});
    bench.pool->processFiles(list);
    bench.gate->awaitWaiting(3);
    EXPECT_FALSE(list[3]->isDone()) << "there is no other lane";
    EXPECT_EQ(list[2]->digestProgress(), (DigestProgress{1, 2}));
    bench.gate->open();
    EXPECT_TRUE(bench.await(4));
    EXPECT_EQ(list[2]->digestProgress(), std::nullopt);
}

TEST(DataCacher, CancelEndsSlowFilesToo)
{
    PoolBench bench;
    const auto list = filesNamed({"slow 1", "slow 2", "slow 3", "a"});
    bench.pool->processFiles(list);
    ASSERT_TRUE(bench.await(1));
    bench.gate->awaitWaiting(2);
    bench.pool->cancelThreadsAndWait();
    EXPECT_TRUE(bench.await(1));
    EXPECT_TRUE(std::ranges::all_of(list, &FilelistItem::isDone));
    bench.gate->open();
    bench.pool->processFiles(filesNamed({"slow 5"}));
    EXPECT_TRUE(bench.await(2));
}

TEST(DataCacher, SelectedFileHasAReaderOfItsOwnWhileOthersAreStuck)
{
    PoolBench bench;
    const auto list = filesNamed({"gate 1", "gate 2", "a", "b"});
    bench.pool->processFiles({list[0], list[2], list[3]});
    bench.gate->awaitWaiting(1);
    bench.pool->processFileFirstly(list[3]);
    ASSERT_TRUE(bench.await(1));
    EXPECT_EQ(bench.log(), QStringLiteral("b 1+"));
    bench.pool->processFileFirstly(list[1]);
    ASSERT_TRUE(spinUntil([&] { return list[1]->isInProcess(); }));
    bench.pool->processFileFirstly(list[2]);
    ASSERT_TRUE(bench.await(2)) << "nor does it wait for the one that was selected before";
    EXPECT_EQ(bench.log(), QStringLiteral("b 1+|a 1+"));
    EXPECT_FALSE(list[1]->isDone() || list[1]->isInProcess());
    bench.gate->open();
    ASSERT_TRUE(bench.await(6));
    EXPECT_TRUE(std::ranges::all_of(list, hasRecord));
}

TEST(DataCacher, SkippedFilesFailAtOnceAndTheirThreadsGoOn)
{
    PoolBench bench;
    const auto list = filesNamed({"gate", "slow 1", "slow 2", "slow 3", "a", "b"});
    bench.pool->processFiles(list);
    bench.gate->awaitWaiting(1);
    bench.pool->skipFile(list[5]);
    bench.pool->skipFile(list[0]);
    ASSERT_TRUE(bench.await(3));
    EXPECT_EQ(bench.log(), QStringLiteral("b 1|gate 1|a 1+"));
    EXPECT_EQ(list[0]->failureReason(), QStringLiteral("skipped"));
    bench.gate->awaitWaiting(2);
    bench.pool->skipFile(list[3]);
    bench.pool->skipFile(list[1]);
    bench.pool->skipFile(list[4]);
    ASSERT_TRUE(bench.await(5));
    EXPECT_TRUE(list[4]->quorvinData()) << "it was done";
    bench.gate->open();
    ASSERT_TRUE(bench.await(6));
    EXPECT_TRUE(list[2]->quorvinData());
}

TEST(DataCacher, StoppedReadingLeavesFilesAsTheyWereAndGoesOn)
{
    PoolBench bench;
    const auto list = filesNamed({"a", "gate", "slow 1", "slow 2", "slow 3", "b"});
    bench.pool->processFiles(list);
    bench.gate->awaitWaiting(1);
    bench.pool->stopReading();
    ASSERT_TRUE(bench.await(1));
    bench.gate->open();
    ASSERT_TRUE(spinUntil([] { return poolThreads() == 0; }));
    EXPECT_EQ(std::ranges::count_if(list, &FilelistItem::isDone), 1);
    EXPECT_TRUE(std::ranges::none_of(list, &FilelistItem::isInProcess));
    bench.pool->processFilesFirstly(list);
    ASSERT_TRUE(bench.await(7));
    EXPECT_TRUE(std::ranges::all_of(list, hasRecord));
}

} // namespace quorvin
