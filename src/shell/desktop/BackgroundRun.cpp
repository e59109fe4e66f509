// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/desktop/BackgroundRun.h"

#include <sys/prctl.h>

#include <condition_variable>
#include <mutex>
#include <thread>

namespace quorvin {

namespace {

/// Counts the threads that are out. Never destroyed, since one of them may outlive the program's own end.
struct ThreadCount {
    std::mutex lock;
    std::condition_variable allGone;
    int threads = 0;
};

ThreadCount &threadCount()
{
    static auto *const count = new ThreadCount;
    return *count;
}

} // namespace

BackgroundRunBase::BackgroundRunBase(QObject *parent) : QObject(parent) { }

std::stop_token BackgroundRunBase::begin()
{
    cancel();
    _stop = {};
    _done = _total = 0;
    _isUnderWay = true;
    return _stop.get_token();
}

void BackgroundRunBase::finish()
{
    _isUnderWay = false;
    Q_EMIT ended();
}

void BackgroundRunBase::cancel()
{
    if (!_isUnderWay)
        return;
    _stop.request_stop();
    forget();
    finish();
}

void BackgroundRunBase::advance(int done, int total)
{
    _done = done;
    _total = total;
    Q_EMIT progressed(_done, _total);
}

void BackgroundRunBase::follow(QFutureWatcherBase &watcher)
{
    connect(&watcher, &QFutureWatcherBase::progressRangeChanged, this,
            [this](int, int total) { _total = total; });
    connect(&watcher, &QFutureWatcherBase::progressValueChanged, this,
            [this](int done) { advance(done, _total); });
}

void BackgroundRunBase::runOnThread(const char *name, std::function<void()> work)
{
    ThreadCount &count = threadCount();
    {
        const std::lock_guard lock(count.lock);
        ++count.threads;
    }
    std::thread([&count, name, work = std::move(work)]() mutable {
        ::prctl(PR_SET_NAME, name);
        work();
        // What the work holds is gone before it counts as ended.
        work = nullptr;
        const std::lock_guard lock(count.lock);
        if (--count.threads == 0)
            count.allGone.notify_all();
    }).detach();
}

bool BackgroundRunBase::awaitThreads(std::chrono::milliseconds longest)
{
    ThreadCount &count = threadCount();
    std::unique_lock lock(count.lock);
    return count.allGone.wait_for(lock, longest, [&count] { return count.threads == 0; });
}

} // namespace quorvin
