// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "intake/DataCacher.h"

#include "support/Events.h"
#include "support/TestFolder.h"

#include <QCoreApplication>
#include <QDir>

#include <gtest/gtest.h>
#include <pthread.h>

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

/// Makes an empty record of every file, one of a MiB when its name begins with "large", or fails it when it
/// begins with "bad"; "gate" waits at the gate, and so does "slow" when it may go on. Has no reader where
/// none may start.
class FakeRunner final : public JobRunner {
public:
    FakeRunner(Gate &gate, bool hasReader) : _gate(gate), _hasReader(hasReader) { }

    void begin(const Job &job) override { _path = std::get<RecordRequest>(job.request).path; }
    bool await(const std::stop_token &stop) override
    {
        _done = _path;
        if (!_hasReader)
            return !stop.stop_requested();
        const bool isSlow = _done.startsWith(QStringLiteral("slow"));
        _isGivenUp = isSlow && !whenSlow()();
        if ((isSlow && !_isGivenUp) || _done.startsWith(QStringLiteral("gate")))
            _gate.pass(stop);
        return !stop.stop_requested();
    }
    JobResult take(const std::stop_token &) override
    {
        if (!_hasReader)
            return tl::unexpected(Error{kErrorDomain, kNoReader, QStringLiteral("no reader")});
        if (_isGivenUp)
            return failure(QStringLiteral("given up"));
        if (_done.startsWith(QStringLiteral("bad")))
            return failure(QStringLiteral("it is bad"));
        RecordContents record;
        record.filename = _done;
        if (_done.startsWith(QStringLiteral("large")))
            record.groups.setText(QByteArray(1 << 20, 'x'));
        return std::make_shared<const QuorvinData>(std::move(record));
    }

private:
    Gate &_gate;
    bool _hasReader;
    bool _isGivenUp = false;
    QString _path; ///< of the last file begun
    QString _done; ///< of the last one waited for
};

/// A pool over fake runners, and what it delivered.
struct Bench : DataCacherDelegate {
    std::shared_ptr<Gate> gate = std::make_shared<Gate>();
    std::shared_ptr<std::atomic<int>> readers = std::make_shared<std::atomic<int>>(1000); ///< that may start
    std::unique_ptr<DataCacher> pool = makePool();
    std::vector<DataCacherDelivery> deliveries;
    std::function<void()> whenDelivered;

    std::unique_ptr<DataCacher> makePool()
    {
        auto made = std::make_unique<DataCacher>([gate = gate, readers = readers] {
            AnalysisSetup setup;
            setup.makeRunner
                = [gate, readers] { return std::make_unique<FakeRunner>(*gate, (*readers)-- > 0); };
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

/// Those of all pools that have not ended.
int poolThreads()
{
    int count = 0;
    for (const QString &task :
         QDir(QStringLiteral("/proc/self/task")).entryList(QDir::NoDotAndDotDot | QDir::Dirs))
        count += test::contentOf(QStringLiteral("/proc/self/task/%1/comm").arg(task))
                     .startsWith("DataCacherThrea");
    return count;
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

TEST(DataCacher, FilesOfAThreadWithoutReaderGoToTheOthers)
{
    Bench bench;
    *bench.readers = 1;
    bench.pool->setThreadCount(4);
    std::vector<FilelistItemPtr> list = files({"gate"});
    for (int i = 0; i < 200; ++i)
        list.push_back(FilelistItem::itemWithFilename(QString::number(i), {}));
    bench.pool->processFiles(list);
    bench.gate->awaitWaiting(1);
    ASSERT_TRUE(test::spinUntil([] { return poolThreads() == 1; })) << "the others have left";
    bench.gate->open();
    ASSERT_TRUE(bench.await(list.size()));
    EXPECT_TRUE(std::ranges::none_of(list, &FilelistItem::isFailed));
}

TEST(DataCacher, WithoutAnyReaderOrThreadFilesFailWithTheReason)
{
    Bench bench;
    *bench.readers = 0;
    bench.pool->setThreadCount(3);
    bench.pool->processFiles(files({"a", "b", "c", "d"}));
    ASSERT_TRUE(bench.await(4));
    EXPECT_EQ(bench.log().count(u'+'), 0);
    EXPECT_EQ(bench.deliveries[3].file->failureReason(), QStringLiteral("no reader"));
    bench.pool->cancelThreadsAndWait();

    pthread_attr_t usual;
    pthread_attr_t huge;
    pthread_getattr_default_np(&usual);
    pthread_attr_init(&huge);
    // No address space has room for such a stack.
    pthread_attr_setstacksize(&huge, std::size_t{1} << 47U);
    pthread_setattr_default_np(&huge);
    const auto list = files({"e", "f"});
    bench.pool->processFiles(list);
    pthread_setattr_default_np(&usual);
    ASSERT_TRUE(bench.await(6));
    EXPECT_TRUE(list[1]->isFailed() && list[1]->isDone());
    EXPECT_FALSE(list[1]->failureReason().isEmpty());
}

TEST(DataCacher, SlowFilesLeaveTheirLaneAndAThirdOneWaits)
{
    Bench bench;
    const auto list = files({"slow 1", "slow 2", "a", "slow 3", "b", "slow 4", "c"});
    bench.pool->processFiles(list);
    ASSERT_TRUE(bench.await(3)) << "one lane reads all others";
    EXPECT_EQ(bench.log(), QStringLiteral("a 1+|b 1+|c 1+"));
    bench.gate->awaitWaiting(2);
    // The lane has ended; what comes now needs a new one.
    bench.pool->processFiles(files({"d"}));
    ASSERT_TRUE(bench.await(4));
    bench.gate->open();
    ASSERT_TRUE(bench.await(8));
    EXPECT_TRUE(std::ranges::none_of(list, &FilelistItem::isFailed));
    bench.pool->processFiles(files({"e"}));
    EXPECT_TRUE(bench.await(9));
}

TEST(DataCacher, CancelEndsSlowFilesToo)
{
    Bench bench;
    const auto list = files({"slow 1", "slow 2", "slow 3", "a"});
    bench.pool->processFiles(list);
    ASSERT_TRUE(bench.await(1));
    bench.gate->awaitWaiting(2);
    bench.pool->cancelThreadsAndWait();
    EXPECT_TRUE(bench.await(1));
    EXPECT_TRUE(std::ranges::all_of(list, &FilelistItem::isDone));
    bench.gate->open();
    bench.pool->processFiles(files({"slow 5"}));
    EXPECT_TRUE(bench.await(2));
}

TEST(DataCacher, ReadsNotFarAheadOfItsDelegate)
{
    const auto doneWhileNobodyTakes = [](Bench &bench, const QString &name, std::size_t least) {
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
    Bench bench;
    EXPECT_LT(doneWhileNobodyTakes(bench, QStringLiteral("small"), 512), 520U);
    EXPECT_TRUE(bench.await(2000));
    Bench large;
    EXPECT_LT(doneWhileNobodyTakes(large, QStringLiteral("large"), 32), 40U);
    large.pool->cancelThreadsAndWait();
}

TEST(DataCacher, RemovedFilesAreNotRead)
{
    Bench bench;
    const auto list = files({"gate", "b", "c", "d"});
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
