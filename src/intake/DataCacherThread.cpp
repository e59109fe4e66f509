// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "intake/DataCacherThread.h"

#include "intake/DataCacherShared.h"
#include "model/FailureKind.h"
#include "model/Log.h"
#include "pictures/Cover.h"

#include <sys/prctl.h>

#include <functional>
#include <system_error>
#include <thread>
#include <utility>

namespace quorvin {

namespace {

/// Which files a thread takes.
enum class Lane {
    Any, ///< whatever is next
    Own, ///< what was forced
};

/// Adds a thread to a pool, whose lock is held. "" when it runs, else why it does not.
QString startThread(const std::shared_ptr<DataCacherShared> &shared, Lane lane);

/// Takes files from the queue until there are none. A file that takes long is read to its end outside the
/// lane, which a new thread takes over. A file may be taken away from it at any time.
class Worker {
public:
    enum End {
        NoFiles, ///< or a stop
        NoLane, ///< a slow file is done, and the lane is another thread's
        NoReader, ///< the files have been given back
    };

    /// The one that `isLast` answers for files that it can't read.
    Worker(const std::shared_ptr<DataCacherShared> &pool, AnalysisSetup setup, int thread,
           std::stop_token stop, Lane lane, bool isLast)
        : _pool(pool),
          _shared(*pool),
          _thread(thread),
          _stop(std::move(stop)),
          _lane(lane),
          _isLast(isLast),
          _setup(std::move(setup)),
          _runner(_setup.makeRunner())
    {
        _runner->setWhenSlow([this](bool advances) { return goesOnSlowly(advances); });
        _runner->setWhenAdvanced(
            [this](const DigestProgress &progress) { _awaited->setDigestProgress(progress); });
    }

    End run()
    {
        if (_setup.logsDebug)
            log(QStringLiteral("started with number of files: %1").arg(_shared.fileQueue.count()));
        FilelistItemPtr file = begunInTime();
        while (file && !_stop.stop_requested()) {
            const Waiting waiting(_shared.stopOf(file, _thread), _stop);
            if (!await(file, waiting.token())) {
                // Taken away, or a stop.
                if (_stop.stop_requested())
                    break;
                _isSetAside = false;
                const bool hasLane = !_isSlow;
                file = hasLane ? begunInTime() : begunSlow();
                if (!file && !hasLane)
                    return NoLane;
                continue;
            }
            FilelistItemPtr next = begunAhead();
            const JobResult result = _runner->take(waiting.token());
            if (lacksReader(result)) {
                giveBack(next);
                giveBack(file);
                answerRepeats();
                return NoReader;
            }
            if (std::exchange(_isSetAside, false) && !_stop.stop_requested()) {
                next = begunInsteadOf(file);
            } else {
                finish(file, result);
                answerRepeats();
                if (_isSlow && !(next = begunSlow()))
                    return NoLane;
                if (!next)
                    next = begunInTime();
            }
            file = next;
        }
        answerRepeats();
        // What is left in hand here was given up: done without a record.
        if (file)
            _shared.release(file, _thread);
        if (_setup.logsDebug)
            log(_stop.stop_requested() ? QStringLiteral("cancelled") : QStringLiteral("normal end"));
        return NoFiles;
    }

private:
    /// Lets a file be given up by itself, and with all others when the thread is stopped.
    class Waiting {
    public:
        Waiting(std::stop_source file, const std::stop_token &thread)
            : _file(std::move(file)), _forward(thread, [this] { _file.request_stop(); })
        {
        }
        std::stop_token token() const { return _file.get_token(); }

    private:
        std::stop_source _file;
        std::stop_callback<std::function<void()>> _forward;
    };

    bool await(const FilelistItemPtr &file, const std::stop_token &stop)
    {
        _awaited = file;
        return _runner->await(stop);
    }

    FilelistItemPtr begunNext() { return begun(claimedNext()); }

    /// The reader works on the next file while the record of the one in hand travels.
    FilelistItemPtr begunAhead()
    {
        const bool isHeldBack = _isSlow || _isSetAside || _lane == Lane::Own || _shared.mail->isFull();
        return isHeldBack ? nullptr : begunNext();
    }

    /// Not before there is room for what comes of it.
    FilelistItemPtr begunInTime()
    {
        _shared.mail->awaitRoom(_stop);
        return begunNext();
    }

    FilelistItemPtr begun(FilelistItemPtr file)
    {
        if (file) {
            if (_setup.logsDebug)
                log(QStringLiteral("open: %1").arg(file->filename()));
            _runner->begin(_setup.recordOf(file->filename()));
        }
        return file;
    }

    /// For a slow thread; without a file it is none any more.
    FilelistItemPtr begunSlow()
    {
        FilelistItemPtr file = _shared.nextSlowFile(_thread);
        _isSlow = file != nullptr;
        return begun(std::move(file));
    }

    /// The file in hand has turned out slow, and there was no room for one more: it waits, or has room now.
    FilelistItemPtr begunInsteadOf(const FilelistItemPtr &file)
    {
        if (_shared.setAside(_thread, file))
            return begunNext();
        leaveLane();
        return begun(file);
    }

    /// The reader asks whether to go on with the file in hand. One whose digests advance is not begun again:
    /// where there is no room for one more, it keeps its lane.
    bool goesOnSlowly(bool advances)
    {
        if (_isSlow || _lane == Lane::Own)
            return true;
        if (_shared.becomeSlow(_thread)) {
            leaveLane();
            return true;
        }
        _isSetAside = !advances;
        return advances;
    }

    void leaveLane()
    {
        _isSlow = true;
        if (_shared.fileQueue.count() == 0)
            return;
        const std::lock_guard guard(_shared.safeLock);
        if (_shared.threads.contains(_thread))
            startThread(_pool, Lane::Any);
    }

    FilelistItemPtr claimedNext()
    {
        while (!_stop.stop_requested()) {
            DataCacherFileQueue &queue = _shared.fileQueue;
            FilelistItemPtr file = _lane == Lane::Own ? queue.nextForcedItem() : queue.nextItem();
            if (!file)
                break;
            const Claim claim = _shared.setFileIsInProcess(file, _thread, _stop);
            if (claim == Claim::Free)
                return file;
            if (claim == Claim::Done)
                _repeats.push_back(file);
            if (claim == Claim::Cancelled) {
                queue.addForcedFileToStart(file);
                break;
            }
        }
        return nullptr;
    }

    /// No reader can be started for this thread, and others may have one.
    bool lacksReader(const JobResult &result) const
    {
        return !_isLast && !_stop.stop_requested() && !result
            && kindOf(result.error()) == FailureKind::NoReader;
    }

    void giveBack(const FilelistItemPtr &file)
    {
        if (file)
            _shared.giveFileBack(file, _thread);
    }

    /// After the result in hand, which was there before they were asked for again.
    void answerRepeats()
    {
        for (const FilelistItemPtr &file : std::exchange(_repeats, {}))
            _shared.answerRepeat(file);
    }

    void finish(const FilelistItemPtr &file, const JobResult &result)
    {
        if (!_shared.release(file, _thread) || _stop.stop_requested())
            return;
        _shared.dataReady(file, result.map([](const JobAnswer &answer) {
            return withPackedCover(std::get<QuorvinDataPtr>(answer));
        }));
    }

    void log(const QString &what) const
    {
        qCInfo(lcQuorvin).noquote() << QStringLiteral("[%1] DC %2").arg(_thread).arg(what);
    }

    std::shared_ptr<DataCacherShared> _pool;
    DataCacherShared &_shared;
    int _thread;
    std::stop_token _stop;
    Lane _lane;
    bool _isLast;
    AnalysisSetup _setup;
    std::unique_ptr<JobRunner> _runner;
    FilelistItemPtr _awaited; ///< the last file in hand
    bool _isSlow = false; ///< its lane is another thread's
    bool _isSetAside = false; ///< the file in hand is to wait
    std::vector<FilelistItemPtr> _repeats; ///< met in the queue and found done
};

/// The life of one thread.
void processFilesInThread(const std::shared_ptr<DataCacherShared> &shared, int thread, Lane lane,
                          const std::stop_token &stop)
{
    for (bool isLast = false;;) {
        auto setup = shared->askSetup();
        if (!setup)
            return;
        // Ends, and its reader with it, before the thread counts as gone.
        const Worker::End end = Worker(shared, *std::move(setup), thread, stop, lane, isLast).run();
        const bool wasOwn = std::exchange(lane, Lane::Any) == Lane::Own;
        if (wasOwn                       ? shared->leaveOwn(thread, stop)
                : end == Worker::NoFiles ? shared->leave(thread, stop)
                                         : shared->leaveToOthers(thread, stop))
            return;
        isLast = end == Worker::NoReader;
    }
}

QString startThread(const std::shared_ptr<DataCacherShared> &shared, Lane lane)
{
    const int number = ++shared->lastThread;
    try {
        std::jthread thread([shared, number, lane](const std::stop_token &stop) {
            ::prctl(PR_SET_NAME, "DataCacherThread");
            processFilesInThread(shared, number, lane, stop);
        });
        shared->threads.emplace(number, thread.get_stop_source());
        if (lane == Lane::Own)
            shared->ownThread = number;
        thread.detach();
        return {};
    } catch (const std::system_error &error) {
        QString problem = QString::fromLocal8Bit(error.what());
        qCInfo(lcQuorvin).noquote() << "Failed to start a thread:" << problem;
        return problem;
    }
}

} // namespace

QString startThreads(const std::shared_ptr<DataCacherShared> &shared, int count)
{
    const std::lock_guard guard(shared->safeLock);
    QString problem;
    // The threads in the lanes take the new files.
    for (int i = shared->laneCount() > 0 ? count : 0; i < count; ++i)
        problem = startThread(shared, Lane::Any);
    return shared->threads.empty() ? problem : QString();
}

void startReaderOfItsOwn(const std::shared_ptr<DataCacherShared> &shared, const FilelistItemPtr &file)
{
    {
        const std::lock_guard guard(shared->safeLock);
        if (file->isDone() || shared->filesInProcess.contains(file))
            return;
        if (shared->ownThread == 0) {
            startThread(shared, Lane::Own);
            return;
        }
    }
    shared->makeOwnThreadFree();
}

} // namespace quorvin
