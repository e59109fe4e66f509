// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QFutureWatcher>
#include <QObject>
#include <QPromise>

#include <chrono>
#include <functional>
#include <memory>
#include <stop_token>
#include <type_traits>
#include <utility>

namespace quorvin {

/// What a piece of long work is given: how it learns that nobody wants it any more, and where it tells how
/// far it is. Used on the thread of the work alone.
class RunControl {
public:
    using Report = std::function<void(int done, int total)>;

    RunControl(std::stop_token stop, Report report) : _stop(std::move(stop)), _report(std::move(report)) { }

    const std::stop_token &stop() const { return _stop; }
    bool isStopped() const { return _stop.stop_requested(); }
    /// Cheap enough for every step: what is not shown anyway gets lost. `total` 0: not known.
    void report(int done, int total = 0) const { _report(done, total); }

private:
    std::stop_token _stop;
    Report _report;
};

/// What all background runs have in common, whatever they bring: what a note in the status line needs of
/// them. Main thread.
class BackgroundRunBase : public QObject {
    Q_OBJECT
public:
    /// Asks the work to stop; nothing is told of it.
    ~BackgroundRunBase() override { _stop.request_stop(); }

    bool isUnderWay() const { return _isUnderWay; }
    /// As the work told last, in a unit of its own; 0 before it tells.
    int done() const { return _done; }
    int total() const { return _total; }

    /// Asks the work to stop and forgets it: it ends at once for everybody here, however long its thread
    /// takes to notice, and its result is thrown away. Does nothing when none is under way.
    void cancel();

    /// Waits until no thread of a run is left; false when one is, after so long. For the end of the program,
    /// when every run was cancelled, so that work which is about to stop can clean up. Any thread.
    static bool awaitThreads(std::chrono::milliseconds longest);
    /// Work that brings nothing and needs no run: on a thread of that name, at most 15 letters, which nobody
    /// joins. Any thread.
    static void runOnThread(const char *name, std::function<void()> work);

Q_SIGNALS:
    void started();
    void progressed(int done, int total);
    /// Once for each `started`: the result is there and about to be used, or the run was cancelled. A run
    /// that is destroyed under way only tells `destroyed`.
    void ended();

protected:
    explicit BackgroundRunBase(QObject *parent);

    /// A new run begins; what was under way is cancelled. Gives its stop token.
    std::stop_token begin();
    /// The run under way has its result.
    void finish();
    /// The work tells how far it is.
    void advance(int done, int total);
    void follow(QFutureWatcherBase &watcher);
    virtual void forget() = 0;

private:
    std::stop_source _stop;
    int _done = 0;
    int _total = 0;
    bool _isUnderWay = false;
};

/// Long work on a thread of its own, one piece at a time; its result comes back to the main thread by the
/// event loop. Nothing here waits for the thread: a run that is cancelled, or destroyed with the object it
/// belongs to, asks its work to stop and delivers nothing any more. So the owner of the run, or its parent,
/// is the context of the delivery, and may go at any time.
///
///     BackgroundRun<Files> _walk{this};
///     _walk.start("FolderWalk", [paths](const RunControl &run) { return walk(paths, run.stop()); },
///                 [this](Files files) { take(std::move(files)); });
///
/// Work takes what it needs by value. It runs to its end when nobody stops it, at the latest until
/// `awaitThreads` gives it up at the end of the program. Main thread.
template <typename Result>
class BackgroundRun final : public BackgroundRunBase {
public:
    explicit BackgroundRun(QObject *parent = nullptr) : BackgroundRunBase(parent)
    {
        follow(_watcher);
        connect(&_watcher, &QFutureWatcherBase::finished, this, &BackgroundRun::deliver);
    }

    /// `work` is called with a `const RunControl &` on a thread of that name and gives the result; `use` is
    /// called with the result. A run that is under way is cancelled.
    template <typename Work>
    void start(const char *threadName, Work work, std::function<void(Result)> use)
    {
        const std::stop_token stop = begin();
        _use = std::move(use);
        auto promise = std::make_shared<QPromise<Result>>();
        _watcher.setFuture(promise->future());
        promise->start();
        runOnThread(threadName, [promise, work = std::move(work), stop]() mutable {
            const RunControl control(stop, [&promise, known = 0](int done, int total) mutable {
                if (std::exchange(known, total) != total)
                    promise->setProgressRange(0, total);
                promise->setProgressValue(done);
            });
            promise->addResult(work(control));
            promise->finish();
        });
        Q_EMIT started();
    }

private:
    void deliver()
    {
        if (!isUnderWay())
            return;
        Result result = _watcher.future().takeResult();
        const auto use = std::exchange(_use, {});
        finish();
        use(std::move(result));
    }
    void forget() override
    {
        _watcher.setFuture({});
        _use = {};
    }

    QFutureWatcher<Result> _watcher;
    std::function<void(Result)> _use;
};

/// One piece of work with a run of its own, which belongs to `context` and goes when it has ended. Not to be
/// kept beyond the call but by a `QPointer`.
template <typename Work, typename Use>
BackgroundRunBase *runInBackground(QObject *context, const char *threadName, Work work, Use use)
{
    using Result = std::invoke_result_t<Work &, const RunControl &>;
    auto *run = new BackgroundRun<Result>(context);
    QObject::connect(run, &BackgroundRunBase::ended, run, &QObject::deleteLater);
    run->start(threadName, std::move(work), std::move(use));
    return run;
}

} // namespace quorvin
