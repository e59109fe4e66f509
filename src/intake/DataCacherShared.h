// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/AnalysisOptions.h"
#include "intake/DataCacherFileQueue.h"
#include "intake/DataCacherMailbox.h"

#include <condition_variable>
#include <map>
#include <mutex>
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

    std::shared_ptr<DataCacherMail> mail;

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
