// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/WindowWorker.h"

#include <optional>
#include <vector>

namespace quorvin {

/// How many files a window's list has, how long they play in all, and how many of them have no record.
struct ListTotals {
    qint64 shown = 0; ///< arranged files
    qint64 all = 0; ///< files of the whole list
    std::optional<qint64> duration = {}; ///< milliseconds; absent until all files are processed
    qint64 failed = 0; ///< of all
    qint64 unread = 0; ///< of all, since reading was stopped

    bool operator==(const ListTotals &) const = default;
};

/// Sums up a window's list. Main thread.
class FilelistTotals {
public:
    void clear() { _totalDuration = 0; }

    /// The duration is that of the whole list when it has just changed, else that of the arranged files.
    /// Clears `isTotalDurationChanged` when it has made the sum anew.
    ListTotals totals(WindowWorker &worker, const std::vector<FilelistItemPtr> &filelist,
                      const std::vector<FilelistItemPtr> &arranged);

private:
    qint64 _totalDuration = 0; ///< milliseconds, of the whole list
};

} // namespace quorvin
