// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/DigestProgress.h"
#include "model/Error.h"
#include "model/QuorvinData.h"

#include <QString>

#include <atomic>
#include <cstddef>
#include <memory>
#include <mutex>
#include <optional>

namespace quorvin {

/// Where a file of a list was recorded.
struct MapLocationInfo {
    Location location;
    QString filename; ///< full path
    std::optional<std::size_t> lastIndexInList; ///< place in the arranged list when this was made
};

/// One file of a list. Identity decides equality: two items for one path are two files. Name and prefixed
/// path never change; what analysis finds may be written by one thread while others read.
class FilelistItem {
public:
    static std::shared_ptr<FilelistItem> itemWithFilename(const QString &filename,
                                                          const QString &prefixedPath);

    /// The same file of another list, with what is known of it so far.
    std::shared_ptr<FilelistItem> copyWithResult() const;

    /// Full path.
    const QString &filename() const { return _filename; }
    /// The path as the list shows it: relative to what the user handed in.
    const QString &prefixedPath() const { return _prefixedPath; }

    /// Null while there is none.
    QuorvinDataPtr quorvinData() const;
    /// Milliseconds, of its record; 0 without one. Takes no lock: the sum over a long list is asked for
    /// often.
    qint64 duration() const { return _duration; }
    /// An analysis of the file has ended.
    bool isDone() const { return _isDone; }
    /// A thread has it in hand.
    bool isInProcess() const { return _isInProcess; }
    /// Somebody waits for its analysis, or did when it ended.
    bool isWanted() const { return _isWanted; }
    /// The last analysis gave no record.
    bool isFailed() const;
    /// Why the last analysis gave no record; absent when it did not fail.
    std::optional<Error> error() const;
    /// The same for a person to read; "" when it did not fail.
    QString failureReason() const;
    /// While its digests are computed, and take some time; absent else.
    std::optional<DigestProgress> digestProgress() const;
    /// Absent without a record, or when the record has no location.
    std::optional<MapLocationInfo> mapLocationInfo() const;

    void setIsDone(bool done) { _isDone = done; }
    void setIsWanted(bool wanted) { _isWanted = wanted; }
    void setIsInProcess(bool inProcess) { _isInProcess = inProcess; }
    void setDigestProgress(const DigestProgress &progress);
    /// What an analysis gave.
    void setResult(const Expected<QuorvinDataPtr> &result);
    /// Drops the record of a file that nobody will ask again.
    void releaseQuorvinData();
    /// Back to a file that waits for its analysis.
    void resetQuorvinData();

    QString description() const;

private:
    FilelistItem(QString filename, QString prefixedPath);

    /// The lock is held.
    void setQuorvinData(QuorvinDataPtr data);

    QString _filename;
    QString _prefixedPath;
    std::atomic<bool> _isDone = false;
    std::atomic<bool> _isInProcess = false;
    std::atomic<bool> _isWanted = false;
    std::atomic<qint64> _duration = 0;
    mutable std::mutex _lock; ///< guards all below
    QuorvinDataPtr _quorvinData;
    std::optional<Error> _error; ///< of the last analysis, as below
    std::optional<DigestProgress> _digestProgress;
};

using FilelistItemPtr = std::shared_ptr<FilelistItem>;

} // namespace quorvin
