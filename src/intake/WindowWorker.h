// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/DataCacher.h"
#include "intake/FilelistItem.h"

#include <QHash>
#include <QSet>

#include <memory>
#include <optional>
#include <vector>

namespace quorvin {

/// The model behind one window: which file it shows, how many are to be processed and how many are finished.
/// One thread.
class WindowWorker {
public:
    /// Null while the window shows none.
    const FilelistItemPtr &currentFile() const { return _currentFilelistItem; }
    void setCurrentFile(const FilelistItemPtr &file) { _currentFilelistItem = file; }
    /// Absent without a current file.
    std::optional<QString> currentFilePath() const;
    /// Null without a current file, and while it has no record.
    QuorvinDataPtr currentQuorvinData() const;
    std::optional<MapLocationInfo> currentMapLocationInfo() const;

    /// The window's pool; null while there is none. The old one is cancelled and not waited for.
    DataCacher *dataCacher() const { return _cacher.get(); }
    void setDataCacher(std::unique_ptr<DataCacher> cacher) { _cacher = std::move(cacher); }

    /// Call before the files go to the pool, for new ones and for those that are to be read once more. A
    /// clean start forgets all other files. Without it the counts run from 0 for what is left plus these
    /// files.
    void startNewProcessingWithFiles(const std::vector<FilelistItemPtr> &files, bool cleanStart);
    /// Counts a delivery, once for each start with the file.
    void fileIsReady(const FilelistItemPtr &file);
    void fileIsRemoved(const FilelistItemPtr &file);
    /// Nothing more will come: what has not come is unread, and processing is done.
    void stopProcessing();
    /// Nothing more is on its way but what was counted: with all of it processed, processing is done.
    void settle();

    qint64 countToProcess() const { return _countToProcess; }
    qint64 countProcessed() const { return _countProcessed; }
    /// `countProcessed` has reached `countToProcess` since the last start. Removing files alone does not
    /// change it.
    bool processingIsDone() const { return _processingIsDone; }

    qint64 countFailed() const { return _failed.size(); }
    /// Files that `stopProcessing` gave up and nobody has started since.
    qint64 countUnread() const { return _unread.size(); }
    bool isUnread(const FilelistItemPtr &file) const { return _unread.contains(file.get()); }

    bool isTotalDurationChanged = false; ///< the sum of the durations must be made anew

private:
    struct Progress {
        bool isPending = false;
        unsigned run = 0; ///< in which it was finished
    };

    FilelistItemPtr _currentFilelistItem;
    std::unique_ptr<DataCacher> _cacher;
    // By their addresses: a file is gone from here before it is gone.
    QHash<const FilelistItem *, Progress> _files;
    QSet<const FilelistItem *> _failed;
    QSet<const FilelistItem *> _unread;
    unsigned _run = 0;
    qint64 _countToProcess = 0;
    qint64 _countProcessed = 0;
    bool _processingIsDone = false;
};

} // namespace quorvin
