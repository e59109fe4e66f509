// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/AnalysisOptions.h"
#include "intake/DataCacherFileQueue.h"
#include "intake/DataCacherMailbox.h"

#include <condition_variable>
#include <deque>
#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <stop_token>
#include <unordered_map>

namespace quorvin {

/// What a thread is to do with a file that it took from the queue.
enum class Claim {
    Free = 0, ///< it is this thread's now
    Done = 1, ///< it is finished
    InProcess = 2, ///< another thread works on it, and will answer for this request too
    Cancelled = 3, ///< this thread has no more work to do
    Unwanted = 4, ///< nobody waits for it any more
};

/// A thread and the file that it works on, which it can be made to give up.
struct FileInProcess {
    int thread = 0;
    std::stop_source stop;
};

/// The state of a pool. Outlives the pool for as long as a thread runs. No two of its locks are ever held at
/// once.
struct DataCacherShared {
    std::mutex setupLock; ///< guards `setup` while it is asked
    std::function<AnalysisSetup()> setup; ///< empty once the pool is gone
    DataCacherFileQueue fileQueue;

    std::mutex safeLock; ///< for bookkeeping only; guards all below, and the items' record and flags
    std::unordered_map<FilelistItemPtr, FileInProcess> filesInProcess;
    std::unordered_map<FilelistItemPtr, int>
        filesWaitingForFinishProcessing; ///< how often each was asked for again
    std::map<int, std::stop_source> threads; ///< the running ones that are not cancelled
    int lastThread = 0;
    std::condition_variable threadEnded;
    std::set<int> slowThreads; ///< those that have left their lanes to others
    int ownThread = 0; ///< the one that reads forced files alone, while all lanes are taken; 0: none
    std::deque<FilelistItemPtr> slowFiles; ///< in process, and waiting for a slow thread

    std::shared_ptr<DataCacherMail> mail;

    /// For a thread that starts. Absent when the pool is gone, and all that it leaned on may be.
    std::optional<AnalysisSetup> askSetup();
    void forgetSetup();

    /// The thread with that number has found nothing to do any more. False when there is something after all:
    /// it is to go on.
    bool leave(int thread, const std::stop_token &stop);
    /// The thread with that number is of no use any more, whatever is queued. False when no other one is
    /// there to take it: the thread is to go on.
    bool leaveToOthers(int thread, const std::stop_token &stop);
    /// The thread that reads forced files alone has found no more. False when it is to go on in a lane.
    bool leaveOwn(int thread, const std::stop_token &stop);
    /// Those of the threads that take whatever is queued; `safeLock` is held.
    std::size_t laneCount() const;
    /// The file that the thread in a lane works on has turned out slow. True when the thread may go on with
    /// it, out of its lane; false when there are enough of its kind.
    bool becomeSlow(int thread);
    /// A slow file that was given up waits for a slow thread, if nobody has taken it away. False when there
    /// is room for one: the caller is one now, and has to read it.
    bool setAside(int thread, const FilelistItemPtr &file);
    /// For a slow thread that is done with its file: the next one; null when there is none, and the thread is
    /// no slow one any more.
    FilelistItemPtr nextSlowFile(int thread);
    /// A slow file that waits is to be taken like any other.
    void takeFromSlowFiles(const FilelistItemPtr &file);
    /// Takes all threads out of the pool, for a cancel; they end by themselves.
    std::map<int, std::stop_source> takeThreads();
    /// Those that wait for a slow thread are given up.
    void dropSlowFiles();

    /// To the top of the queue, as if the thread had not taken it.
    void giveFileBack(const FilelistItemPtr &file, int thread);
    /// A forced file is still queued while the thread that reads such files works on another one. That one
    /// goes to the end of the queue, and the thread gives it up.
    void makeOwnThreadFree();
    /// The file is answered as failed, and whoever works on it gives it up. False when it is done.
    bool skip(const FilelistItemPtr &file);
    /// Nothing is queued or in process any more; files that were are as they were before they were queued.
    void forgetFiles();
    /// No thread will ever come for them.
    void failQueuedFiles(const QString &reason);

    /// `thread` is to hold on to the file until `release`, unless it is asked to give it up.
    Claim setFileIsInProcess(const FilelistItemPtr &file, int thread, const std::stop_token &stop);
    /// Asked for once somebody wants the thread to give the file up; it may be gone from it already.
    std::stop_source stopOf(const FilelistItemPtr &file, int thread);
    /// The thread is done with the file, and so is the file. False when the file was taken away from it:
    /// what came of it is worth nothing.
    bool release(const FilelistItemPtr &file, int thread);
    /// A run has ended: keeps what came of it, and tells everybody who asked.
    void dataReady(const FilelistItemPtr &file, const Expected<QuorvinDataPtr> &result);
    /// The file was asked for again and is done.
    void answerRepeat(const FilelistItemPtr &file);

private:
    /// `safeLock` is held.
    bool isHeldBy(const FilelistItemPtr &file, int thread) const;
    void letGo(const FilelistItemPtr &file);
    /// For each time that the file was asked for while it was in work.
    int takeRepeats(const FilelistItemPtr &file);
};

} // namespace quorvin
