// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/DataCacher.h"
#include "intake/FilelistItem.h"

#include <memory>
#include <optional>
#include <unordered_map>
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

    /// Call before the files go to the pool. A clean start forgets all other files. Without it the counts run
    /// from 0 for what is left plus the new files.
    void startNewProcessingWithFiles(const std::vector<FilelistItemPtr> &files, bool cleanStart);
    /// Counts a delivery, once for each time that the file was started with.
    void fileIsReady(const FilelistItemPtr &file);
    void fileIsRemoved(const FilelistItemPtr &file);
    /// Nothing more is on its way but what was counted: with all of it processed, processing is done.
    void settle();

    qint64 countToProcess() const { return _countToProcess; }
    qint64 countProcessed() const { return _countProcessed; }
    /// `countProcessed` has reached `countToProcess` since the last start. Removing files alone does not
    /// change it.
    bool processingIsDone() const { return _processingIsDone; }

    bool isTotalDurationChanged = false; ///< the sum of the durations must be made anew

private:
    struct Counts {
        int toBeDone = 0;
        int done = 0;
    };

    FilelistItemPtr _currentFilelistItem;
    std::unique_ptr<DataCacher> _cacher;
    std::unordered_map<FilelistItemPtr, Counts> _files;
    qint64 _countToProcess = 0;
    qint64 _countProcessed = 0;
    bool _processingIsDone = false;
};

} // namespace quorvin
