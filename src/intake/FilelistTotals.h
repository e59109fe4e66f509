// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/WindowWorker.h"

#include <QString>

#include <vector>

namespace quorvin {

/// The line under a window's list: how many files it has and how long they play in all.
class FilelistTotals {
public:
    void clear() { _totalDuration = 0; }

    /// "5 files", "2 files (of 5 total)", and once all are processed "00:01:30 in 5 files". "" for an empty
    /// list. The duration is that of the whole list when it has just changed, else that of the arranged
    /// files. Clears `isTotalDurationChanged` when it has made the sum anew.
    QString text(WindowWorker &worker, const std::vector<FilelistItemPtr> &filelist,
                 const std::vector<FilelistItemPtr> &arranged);

    /// "3 of 12 processed".
    static QString progressText(const WindowWorker &worker);

private:
    qint64 _totalDuration = 0; ///< milliseconds, of the whole list
};

} // namespace quorvin
