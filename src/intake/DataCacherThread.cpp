// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "intake/DataCacherThread.h"

#include "intake/DataCacherShared.h"
#include "model/Log.h"
#include "pictures/Cover.h"

#include <utility>

namespace quorvin {

namespace {

/// Takes files from the queue until there are none.
class Worker {
public:
    Worker(DataCacherShared &shared, int thread, std::stop_token stop)
        : _shared(shared),
          _thread(thread),
          _stop(std::move(stop)),
          _setup(shared.setup()),
          _runner(_setup.makeRunner())
    {
    }

    void run()
    {
        if (_setup.logsDebug)
            log(QStringLiteral("started with number of files: %1").arg(_shared.fileQueue.count()));
        FilelistItemPtr file = begunNext();
        while (file && _runner->await(_stop)) {
            // The reader works on the next file while the record of this one travels.
            const FilelistItemPtr next = begunNext();
            finish(file, _runner->take(_stop));
            answerRepeats();
            file = next;
        }
        answerRepeats();
        // What is left in hand here was given up: done without a record.
        if (file)
            _shared.setFileIsDone(file);
        if (_setup.logsDebug)
            log(_stop.stop_requested() ? QStringLiteral("cancelled") : QStringLiteral("normal end"));
    }

private:
    FilelistItemPtr begunNext()
    {
        FilelistItemPtr file = claimedNext();
        if (file) {
            if (_setup.logsDebug)
                log(QStringLiteral("open: %1").arg(file->filename()));
            _runner->begin(_setup.recordOf(file->filename()));
        }
        return file;
    }

    FilelistItemPtr claimedNext()
    {
        while (FilelistItemPtr file = _shared.fileQueue.nextItem()) {
            const Claim claim = _shared.setFileIsInProcess(file, _stop);
            if (claim == Claim::Free)
                return file;
            if (claim == Claim::Done)
                _repeats.push_back(file);
        }
        return nullptr;
    }

    /// After the result in hand, which was there before they were asked for again.
    void answerRepeats()
    {
        for (const FilelistItemPtr &file : std::exchange(_repeats, {}))
            _shared.answerRepeat(file);
    }

    void finish(const FilelistItemPtr &file, const JobResult &result)
    {
        _shared.setFileIsDone(file);
        if (_stop.stop_requested())
            return;
        _shared.dataReady(file, result.map([](const JobAnswer &answer) {
            return withPackedCover(std::get<QuorvinDataPtr>(answer));
        }));
    }

    void log(const QString &what) const
    {
        qCInfo(lcQuorvin).noquote() << QStringLiteral("[%1] DC %2").arg(_thread).arg(what);
    }

    DataCacherShared &_shared;
    int _thread;
    std::stop_token _stop;
    AnalysisSetup _setup;
    std::unique_ptr<JobRunner> _runner;
    std::vector<FilelistItemPtr> _repeats; ///< met in the queue and found done
};

/// Leaves the pool; false when there is work after all, and nobody else to do it.
bool left(DataCacherShared &shared, int thread, const std::stop_token &stop)
{
    std::stop_source source;
    {
        const std::lock_guard guard(shared.safeLock);
        const auto own = shared.threads.find(thread);
        if (own == shared.threads.end())
            return true;
        source = own->second;
        shared.threads.erase(own);
        shared.threadEnded.notify_all();
    }
    // Files that came after the last look at the queue, and before this thread had left, found it still
    // there.
    if (stop.stop_requested() || shared.fileQueue.count() == 0)
        return true;
    const std::lock_guard guard(shared.safeLock);
    if (!shared.threads.empty())
        return true;
    shared.threads.emplace(thread, source);
    return false;
}

} // namespace

void processFilesInThread(const std::shared_ptr<DataCacherShared> &shared, int thread,
                          const std::stop_token &stop)
{
    do {
        // Ends, and its reader with it, before the thread counts as gone.
        Worker(*shared, thread, stop).run();
    } while (!left(*shared, thread, stop));
}

} // namespace quorvin
