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
#include <set>
#include <stop_token>
#include <unordered_map>
#include <unordered_set>

namespace quorvin {

/// What a thread is to do with a file that it took from the queue.
enum class Claim {
    Free = 0, ///< it is this thread's now
    Done = 1, ///< it is finished
    InProcess = 2, ///< another thread works on it, and will answer for this request too
    Cancelled = 3, ///< this thread has no more work to do
};

/// The state of a pool. Outlives the pool for as long as a thread runs. No two of its locks are ever held at
/// once.
struct DataCacherShared {
    std::function<AnalysisSetup()> setup;
    DataCacherFileQueue fileQueue;

    std::mutex safeLock; ///< for bookkeeping only; guards all below, and the items' record and flags
    std::unordered_set<const FilelistItem *> filesInProcess;
    std::unordered_map<FilelistItemPtr, int>
        filesWaitingForFinishProcessing; ///< how often each was asked for again
    std::map<int, std::stop_source> threads; ///< the running ones that are not cancelled
    int lastThread = 0;
    std::condition_variable threadEnded;
    std::set<int> slowThreads; ///< those that have left their lanes to others
    std::deque<FilelistItemPtr> slowFiles; ///< in process, and waiting for a slow thread

    std::shared_ptr<DataCacherMail> mail;

    /// The thread with that number has found nothing to do any more. False when there is something after all:
    /// it is to go on.
    bool leave(int thread, const std::stop_token &stop);
    /// The thread with that number is of no use any more, whatever is queued. False when no other one is
    /// there to take it: the thread is to go on.
    bool leaveToOthers(int thread, const std::stop_token &stop);
    /// The file that the thread in a lane works on has turned out slow. True when the thread may go on with
    /// it, out of its lane; false when there are enough of its kind.
    bool becomeSlow(int thread);
    /// A slow file that was given up waits for a slow thread. False when there is room for one: the caller is
    /// one now, and has to read it.
    bool setAside(int thread, const FilelistItemPtr &file);
    /// For a slow thread that is done with its file: the next one; null when there is none, and the thread is
    /// no slow one any more.
    FilelistItemPtr nextSlowFile(int thread);
    /// Those that wait for a slow thread are given up.
    void dropSlowFiles();

    /// To the top of the queue, as if it had not been taken.
    void giveFileBack(const FilelistItemPtr &file);
    /// No thread will ever come for them.
    void failQueuedFiles(const QString &reason);

    Claim setFileIsInProcess(const FilelistItemPtr &file, const std::stop_token &stop);
    void setFileIsDone(const FilelistItemPtr &file);
    /// A run has ended: keeps what came of it, and tells everybody who asked.
    void dataReady(const FilelistItemPtr &file, const Expected<QuorvinDataPtr> &result);
    /// The file was asked for again and is done.
    void answerRepeat(const FilelistItemPtr &file);

private:
    /// For each time that the file was asked for while it was in work.
    int takeRepeats(const FilelistItemPtr &file);
};

} // namespace quorvin
