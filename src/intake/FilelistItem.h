// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/QuorvinData.h"

#include <QString>

#include <atomic>
#include <memory>

namespace quorvin {

/// One file of a list. Identity decides equality: two items for one path are two files. Name and prefixed
/// path never change; what analysis finds may be written by one thread while others read.
class FilelistItem {
public:
    static std::shared_ptr<FilelistItem> itemWithFilename(const QString &filename,
                                                          const QString &prefixedPath);

    /// Full path.
    const QString &filename() const { return _filename; }
    /// The path as the list shows it: relative to what the user handed in.
    const QString &prefixedPath() const { return _prefixedPath; }

    /// Null while there is none.
    QuorvinDataPtr quorvinData() const { return _quorvinData.load(); }
    /// An analysis of the file has ended.
    bool isDone() const { return _isDone; }
    /// The last analysis gave no record.
    bool isFailed() const { return _isFailed; }

    /// Why the last analysis gave no record; "" when it did not fail.
    QString failureReason() const;

    void setQuorvinData(QuorvinDataPtr record) { _quorvinData = std::move(record); }
    void setIsDone(bool done) { _isDone = done; }
    void setIsFailed(bool failed) { _isFailed = failed; }
    void setFailureReason(const QString &reason);
    /// Back to a file that waits for its analysis.
    void resetQuorvinData();

    QString description() const;

private:
    FilelistItem(QString filename, QString prefixedPath);

    QString _filename;
    QString _prefixedPath;
    std::atomic<QuorvinDataPtr> _quorvinData;
    std::atomic<bool> _isDone = false;
    std::atomic<bool> _isFailed = false;
    std::atomic<std::shared_ptr<const QString>> _failureReason;
};

using FilelistItemPtr = std::shared_ptr<FilelistItem>;

} // namespace quorvin
