// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "surgery/RemovalLanes.h"

#include "platform/LinkTarget.h"
#include "platform/NativePath.h"

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace quorvin {

namespace {

constexpr std::size_t kMostLanes = 4;
/// So that no lane waits for the one that has the oldest file.
constexpr std::size_t kOrdersOfLane = 2;

class Lanes {
public:
    explicit Lanes(const RemovalWork &work)
        : _work(work), _count(std::clamp<std::size_t>(std::thread::hardware_concurrency() + 1, 2, kMostLanes))
    {
    }

    bool isFull() const { return _tasks.size() >= _count * kOrdersOfLane; }
    bool isEmpty() const { return _tasks.empty(); }
    void add(MetadataRemover::Order order);
    /// The receipt of the oldest order, which is waited for; absent when it was not begun.
    std::optional<RemovalReceipt> takeFirst();

private:
    enum class State { Waiting, UnderWay, Done };
    struct Task {
        MetadataRemover::Order order;
        QByteArray file; ///< that the path leads to
        State state = State::Waiting;
        std::optional<RemovalReceipt> receipt = {};
    };

    void work(const std::stop_token &end);
    Task *nextTask();
    std::optional<RemovalReceipt> receiptOf(MetadataRemover &remover,
                                            const MetadataRemover::Order &order) const;

    const RemovalWork &_work;
    std::size_t _count;
    std::mutex _mutex;
    std::condition_variable_any _changed;
    std::deque<Task> _tasks; ///< the oldest first
    std::vector<std::jthread> _threads; ///< they use all others
};

void Lanes::add(MetadataRemover::Order order)
{
    QByteArray file = LinkTarget::of(encodePath(order.path)).path;
    {
        const std::scoped_lock lock(_mutex);
        _tasks.push_back({std::move(order), std::move(file)});
    }
    _changed.notify_all();
    if (_threads.size() < _count)
        _threads.emplace_back([this](const std::stop_token &end) { work(end); });
}

std::optional<RemovalReceipt> Lanes::takeFirst()
{
    std::unique_lock lock(_mutex);
    _changed.wait(lock, [this] { return _tasks.front().state == State::Done; });
    std::optional<RemovalReceipt> receipt = std::move(_tasks.front().receipt);
    _tasks.pop_front();
    return receipt;
}

void Lanes::work(const std::stop_token &end)
{
    const std::unique_ptr<MetadataRemover> remover = _work.makeRemover();
    std::unique_lock lock(_mutex);
    while (true) {
        Task *task = nullptr;
        if (!_changed.wait(lock, end, [&] { return (task = nextTask()) != nullptr; }))
            return;
        task->state = State::UnderWay;
        lock.unlock();
        auto receipt = receiptOf(*remover, task->order);
        lock.lock();
        task->receipt = std::move(receipt);
        task->state = State::Done;
        _changed.notify_all();
    }
}

Lanes::Task *Lanes::nextTask()
{
    for (auto task = _tasks.begin(); task != _tasks.end(); ++task) {
        // An older one that has the same file holds it back.
        const auto hasItsFile
            = [&](const Task &older) { return older.state != State::Done && older.file == task->file; };
        if (task->state == State::Waiting && std::none_of(_tasks.begin(), task, hasItsFile))
            return &*task;
    }
    return nullptr;
}

std::optional<RemovalReceipt> Lanes::receiptOf(MetadataRemover &remover,
                                               const MetadataRemover::Order &order) const
{
    if (_work.stop.stop_requested() || _work.pause.stop_requested())
        return std::nullopt;
    return (remover.*_work.treat)(order, _work.stop);
}

} // namespace

void treatFiles(const RemovalWork &work,
                const std::function<std::optional<MetadataRemover::Order>()> &nextOrder,
                const std::function<void(RemovalReceipt)> &tell)
{
    Lanes lanes(work);
    const auto tellFirst = [&] {
        if (auto receipt = lanes.takeFirst())
            tell(*std::move(receipt));
    };
    while (auto order = nextOrder()) {
        lanes.add(*std::move(order));
        if (lanes.isFull())
            tellFirst();
    }
    while (!lanes.isEmpty())
        tellFirst();
}

} // namespace quorvin
