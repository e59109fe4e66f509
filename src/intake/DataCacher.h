// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/AnalysisOptions.h"
#include "intake/DataCacherMailbox.h"
#include "intake/FilelistItem.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace quorvin {

struct DataCacherShared;

/// Analyses the files of one window, or of one call, on a small pool of threads, and posts each result to the
/// event loop of the thread that made the pool: the delegate's thread, on which all operations are called.
/// Threads end when the queue is empty and start again when there is something to do. They read no further
/// while 512 deliveries, or 32 MiB of them, wait for the delegate's thread.
///
/// A pool can be destroyed while its threads run: they are cancelled and end by themselves. Its files may
/// outlive it.
class DataCacher {
public:
    /// `setup` is asked by each thread when it starts; it must stay callable for as long as this object is.
    explicit DataCacher(std::function<AnalysisSetup()> setup);
    /// As `cancelThreads`.
    ~DataCacher();
    DataCacher(const DataCacher &) = delete;
    DataCacher &operator=(const DataCacher &) = delete;

    /// May be null. A delegate that is taken away gets nothing any more, not even what was posted before.
    void setDelegate(DataCacherDelegate *delegate);
    DataCacherDelegate *delegate() const;

    /// 1, 2, 4, 8 or 256; every other value sets 1. Starts at 1.
    void setMTMode(int mode);
    int mode() const;
    /// As many threads as this, or as there are files, whatever the mode; 0 goes back to the mode.
    void setThreadCount(int count);

    /// Queues the files behind the others. The number of threads is fixed when the first of them start. Where
    /// none can be started, all queued files fail with the reason.
    void processFiles(const std::vector<FilelistItemPtr> &files);
    /// The same, in front of the others, in their order.
    void processFilesFirstly(const std::vector<FilelistItemPtr> &files);
    /// Queues the file in front of all others. Where every thread is held up by another file, this one gets a
    /// reader of its own after a moment.
    void processFileFirstly(const FilelistItemPtr &file);

    /// Files that are only queued are never read, and nothing is delivered for them, until they are queued
    /// again.
    void removeFiles(const std::vector<FilelistItemPtr> &files);
    /// The file fails at once, as skipped, whether it is queued or in work. Does nothing for one that is
    /// done.
    void skipFile(const FilelistItemPtr &file);
    /// Nothing more is read: files that are queued or in work stay as they are, not done, and nothing is
    /// delivered for them. What comes next is read as ever.
    void stopReading();

    /// The threads give up the file in hand and end; this does not wait for them. The file in hand stays done
    /// without a record and is not delivered.
    void cancelThreads();
    /// The same, and waits until all have ended: at once with reader processes, else for the file in hand.
    /// Threads that take longer than `longest` are left to end by themselves.
    void cancelThreadsAndWait(std::optional<std::chrono::milliseconds> longest = {});

    /// One thread for ten files, up to what the mode and the number of cores allow.
    static int numberOfThreadsToWorkWithFilesCount(std::size_t files, int mode, int cores);

private:
    void startThreadsForQueue();

    std::unique_ptr<DataCacherMailbox, DataCacherMailboxDisposer> _mailbox;
    std::shared_ptr<DataCacherShared> _shared;
    int _mode = 1;
    int _threadCount = 0;
};

} // namespace quorvin
