// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/DataCacher.h"
#include "model/Error.h"

#include <QtGlobal>

#include <cstddef>
#include <unordered_set>
#include <vector>

namespace quorvin::cli {

/// What came of a file of the list.
struct FileResult {
    FilelistItemPtr file;
    Expected<QuorvinDataPtr> record;
};

/// Takes the results of a pool as they come and gives them away in the order of the list. One thread, that of
/// the pool's delegate.
class OrderedResults : public DataCacherDelegate {
public:
    /// The list must outlive this.
    explicit OrderedResults(const std::vector<FilelistItemPtr> &files);

    bool isAtEnd() const { return _next == _files.size(); }
    /// Whether the result of the file that is next in the list has come; not at the end.
    bool hasNext() const { return !_waiting.contains(_files[_next].get()); }
    /// The next file, with its result; only when there is one. Its record is the caller's from now on.
    FileResult takeNext();
    /// Text of the records that have come and were not taken yet.
    qsizetype waitingBytes() const { return _waitingBytes; }
    /// The number of results that have come, in whatever order.
    std::size_t count() const { return _files.size() - _waiting.size(); }

    void dataCacherNewObjectReady(const DataCacherDelivery &delivery) override;

private:
    const std::vector<FilelistItemPtr> &_files;
    std::unordered_set<const FilelistItem *> _waiting; ///< not delivered yet
    std::size_t _next = 0;
    qsizetype _waitingBytes = 0;
};

} // namespace quorvin::cli
