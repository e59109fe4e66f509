// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "intake/FilelistTotals.h"

namespace quorvin {

namespace {

qint64 durationOf(const std::vector<FilelistItemPtr> &files)
{
    qint64 sum = 0;
    for (const FilelistItemPtr &file : files)
        sum += file->duration();
    return sum;
}

} // namespace

ListTotals FilelistTotals::totals(WindowWorker &worker, const std::vector<FilelistItemPtr> &filelist,
                                  const std::vector<FilelistItemPtr> &arranged)
{
    ListTotals totals;
    totals.shown = static_cast<qint64>(arranged.size());
    totals.all = static_cast<qint64>(filelist.size());
    totals.failed = worker.countFailed();
    totals.unread = worker.countUnread();
    if (filelist.empty() || !worker.processingIsDone())
        return totals;
    if (worker.isTotalDurationChanged) {
        _totalDuration = durationOf(filelist);
        worker.isTotalDurationChanged = false;
        totals.duration = _totalDuration;
    } else {
        totals.duration = arranged.size() < filelist.size() ? durationOf(arranged) : _totalDuration;
    }
    return totals;
}

} // namespace quorvin
