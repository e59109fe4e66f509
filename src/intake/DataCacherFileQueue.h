// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/FilelistItem.h"

#include <atomic>
#include <cstddef>
#include <deque>
#include <mutex>
#include <vector>

namespace quorvin {

/// Files to do: a stack whose top is the next to be taken, and those on top that were forced. A file may
/// stand in it more than once. Any thread.
class DataCacherFileQueue {
public:
    /// Behind everything that is queued, in their order.
    void addFilesToEnd(const std::vector<FilelistItemPtr> &files);
    /// In front of everything that was not forced, in their order.
    void addFilesToStart(const std::vector<FilelistItemPtr> &files);
    /// In front of everything, earlier forced files too. The file's other place in the queue stays.
    void addForcedFileToStart(const FilelistItemPtr &file);
    /// They will not be taken any more, however often they stand in it.
    void removeFiles(const std::vector<FilelistItemPtr> &files);
    /// Takes the next file; null when there is none.
    FilelistItemPtr nextItem();
    /// The same, among those that were forced.
    FilelistItemPtr nextForcedItem();
    /// Nobody waits any more for those that are not done.
    void clear();
    /// Read without the lock.
    std::size_t count() const { return _count; }

private:
    FilelistItemPtr takeLast(std::deque<FilelistItemPtr> &files);
    void keepCount() { _count = fileQueue.size() + forcedFiles.size(); }

    std::mutex queueLock;
    std::deque<FilelistItemPtr> fileQueue;
    std::deque<FilelistItemPtr> forcedFiles;
    std::atomic<std::size_t> _count = 0;
};

} // namespace quorvin
