// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/DataCacher.h"
#include "model/FailureKind.h"
#include "support/Events.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <atomic>
#include <condition_variable>
#include <mutex>

namespace quorvin::test {

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
    /// Takes one of the readers that may still run, and gives it back at its end.
    FakeRunner(Gate &gate, std::shared_ptr<std::atomic<int>> readers)
        : _gate(gate), _readers(std::move(readers)), _hasReader((*_readers)-- > 0)
    {
        if (!_hasReader)
            ++*_readers;
    }
    FakeRunner(const FakeRunner &) = delete;
    FakeRunner &operator=(const FakeRunner &) = delete;
    ~FakeRunner() override
    {
        if (_hasReader)
            ++*_readers;
    }

    void begin(const Job &job) override { _path = std::get<RecordRequest>(job.request).path; }
    bool await(const std::stop_token &stop) override
    {
        _done = _path;
        if (!_hasReader)
            return !stop.stop_requested();
        const bool isSlow = _done.startsWith(QStringLiteral("slow"));
        const bool advances = _done.endsWith(QStringLiteral("advances"));
        if (advances)
            watch().whenAdvanced({1, 2});
        _isGivenUp = isSlow && !watch().whenSlow(advances);
        if ((isSlow && !_isGivenUp) || _done.startsWith(QStringLiteral("gate")))
            _gate.pass(stop);
        return !stop.stop_requested();
    }
    JobResult take(const std::stop_token &) override
    {
        if (!_hasReader)
            return failure(FailureKind::NoReader);
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
    std::shared_ptr<std::atomic<int>> _readers;
    bool _hasReader;
    bool _isGivenUp = false;
    QString _path; ///< of the last file begun
    QString _done; ///< of the last one waited for
};

/// A pool over fake runners, and what it delivered.
struct PoolBench : DataCacherDelegate {
    std::shared_ptr<Gate> gate = std::make_shared<Gate>();
    std::shared_ptr<std::atomic<int>> readers = std::make_shared<std::atomic<int>>(1000); ///< that may run
    std::unique_ptr<DataCacher> pool = makePool();
    std::vector<DataCacherDelivery> deliveries;
    std::function<void()> whenDelivered;

    std::unique_ptr<DataCacher> makePool()
    {
        auto made = std::make_unique<DataCacher>([gate = gate, readers = readers] {
            AnalysisSetup setup;
            setup.makeRunner = [gate, readers] { return std::make_unique<FakeRunner>(*gate, readers); };
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
        spinUntil([&] { return deliveries.size() >= count; });
        QCoreApplication::processEvents();
        return deliveries.size() == count;
    }
};

/// One of each name, in no folder.
std::vector<FilelistItemPtr> filesNamed(std::initializer_list<const char *> names);

bool hasRecord(const FilelistItemPtr &file);

/// Threads of all pools that have not ended.
int poolThreads();

} // namespace quorvin::test
