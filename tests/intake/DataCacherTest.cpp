// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "intake/DataCacher.h"

#include "support/Events.h"
#include "support/TestFolder.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <map>
#include <mutex>
#include <random>
#include <thread>

namespace quorvin {

namespace {

/// Lets jobs through while it is open.
class Gate {
public:
    void open()
    {
        const std::lock_guard guard(_lock);
        _isOpen = true;
        _changed.notify_all();
    }
    void pass(const std::stop_token &stop)
    {
        std::unique_lock lock(_lock);
        ++_waiting;
        _changed.notify_all();
        _changed.wait(lock, stop, [this] { return _isOpen; });
        --_waiting;
    }
    void awaitWaiting(int count)
    {
        std::unique_lock lock(_lock);
        _changed.wait(lock, [&] { return _waiting >= count; });
    }

private:
    std::mutex _lock;
    std::condition_variable_any _changed;
    bool _isOpen = false;
    int _waiting = 0;
};

/// Makes an empty record of every file, or fails it when its name begins with "bad"; "gate" waits at the
/// gate.
class FakeRunner final : public JobRunner {
public:
    explicit FakeRunner(Gate &gate) : _gate(gate) { }

    void begin(const Job &job) override { _path = std::get<RecordRequest>(job.request).path; }
    bool await(const std::stop_token &stop) override
    {
        _done = _path;
        if (_done.startsWith(QStringLiteral("gate")))
            _gate.pass(stop);
        return !stop.stop_requested();
    }
    JobResult take(const std::stop_token &) override
    {
        if (_done.startsWith(QStringLiteral("bad")))
            return failure(QStringLiteral("it is bad"));
        RecordContents record;
        record.filename = _done;
        return std::make_shared<const QuorvinData>(std::move(record));
    }

private:
    Gate &_gate;
    QString _path; ///< of the last file begun
    QString _done; ///< of the last one waited for
};

/// A pool over fake runners, and what it delivered.
struct Bench : DataCacherDelegate {
    std::shared_ptr<Gate> gate = std::make_shared<Gate>();
    std::unique_ptr<DataCacher> pool = makePool();
    std::vector<DataCacherDelivery> deliveries;
    std::function<void()> whenDelivered;

    std::unique_ptr<DataCacher> makePool()
    {
        auto made = std::make_unique<DataCacher>([gate = gate] {
            AnalysisSetup setup;
            setup.makeRunner = [gate] { return std::make_unique<FakeRunner>(*gate); };
            return setup;
        });
        made->setDelegate(this);
        return made;
    }

    void dataCacherNewObjectReady(const DataCacherDelivery &delivery) override
    {
        EXPECT_TRUE(!delivery.data || delivery.data->filename() == delivery.file->filename());
        deliveries.push_back(delivery);
        if (whenDelivered)
            whenDelivered();
    }

    /// "name status", with "+" behind it when a record came along.
    QString log() const
    {
        QStringList lines;
        for (const auto &delivery : deliveries)
            lines.append(QStringLiteral("%1 %2%3")
                             .arg(delivery.file->filename())
                             .arg(int{delivery.status})
                             .arg(delivery.data ? QStringLiteral("+") : QString()));
        return lines.join(u'|');
    }

    bool await(std::size_t count)
    {
        test::spinUntil([&] { return deliveries.size() >= count; });
        QCoreApplication::processEvents();
        return deliveries.size() == count;
    }
};

std::vector<FilelistItemPtr> files(std::initializer_list<const char *> names)
{
    std::vector<FilelistItemPtr> made;
    for (const char *name : names)
        made.push_back(FilelistItem::itemWithFilename(QLatin1String(name), QLatin1String(name)));
    return made;
}

} // namespace

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
    Bench bench;
    for (const int mode : {3, 0, 16, 257, 8})
        bench.pool->setMTMode(mode);
    EXPECT_EQ(bench.pool->mode(), 8);
    bench.pool->setMTMode(5);
    EXPECT_EQ(bench.pool->mode(), 1);
}

TEST(DataCacher, FilesComeInOrderAndFailWithTheirReason)
{
    Bench bench;
    const auto list = files({"a", "bad", "c"});
    bench.pool->processFiles(list);
    ASSERT_TRUE(bench.await(3));
    EXPECT_EQ(bench.log(), QStringLiteral("a 1+|bad 1|c 1+"));
    EXPECT_TRUE(list[1]->isDone() && list[1]->isFailed() && !list[1]->quorvinData());
    EXPECT_EQ(list[1]->failureReason(), QStringLiteral("it is bad"));
    EXPECT_TRUE(list[2]->isDone() && !list[2]->isFailed() && list[2]->quorvinData());
    bench.pool->processFiles({});
    bench.pool->processFiles(files({"later"}));
    EXPECT_TRUE(bench.await(4));
}

TEST(DataCacher, ForcedFileIsNextAndItsOldPlaceRepeats)
{
    Bench bench;
    const auto list = files({"gate", "b", "c", "d"});
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
    Bench bench;
    bench.pool->setThreadCount(2);
    const auto list = files({"gate", "gate 2", "c"});
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
    Bench bench;
    const auto list = files({"gate", "b"});
    bench.pool->processFiles(list);
    bench.gate->awaitWaiting(1);
    bench.pool->cancelThreadsAndWait();
    EXPECT_TRUE(bench.await(0));
    EXPECT_TRUE(list[0]->isDone() && !list[0]->isFailed() && !list[0]->quorvinData());
    EXPECT_FALSE(list[1]->isDone());
    bench.pool->processFiles(files({"c"}));
    ASSERT_TRUE(bench.await(2));
    EXPECT_EQ(bench.log(), QStringLiteral("b 1+|c 1+"));
}

TEST(DataCacher, ReplacedPoolDeliversNothing)
{
    Bench bench;
    const auto old = files({"a", "gate", "b"});
    bench.pool->processFiles(old);
    bench.gate->awaitWaiting(1);
    bench.pool->cancelThreads();
    bench.pool->setDelegate(nullptr);
    bench.pool = bench.makePool();
    bench.pool->processFiles(files({"new"}));
    bench.gate->open();
    ASSERT_TRUE(bench.await(1));
    EXPECT_EQ(bench.log(), QStringLiteral("new 1+"));
}

TEST(DataCacher, SelectionStormLosesAndDoublesNothing)
{
    constexpr std::size_t kFiles = 5000;
    Bench bench;
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
    test::spinUntil([&] {
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
