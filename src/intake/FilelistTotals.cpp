// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "intake/FilelistTotals.h"

#include "readers/mediainfo/oMediaInfo.h"

#include <QCoreApplication>

namespace quorvin {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("FilelistTotals", text);
}

qint64 durationOf(const std::vector<FilelistItemPtr> &files)
{
    qint64 sum = 0;
    for (const FilelistItemPtr &file : files) {
        if (const QuorvinDataPtr data = file->quorvinData())
            sum += data->duration();
    }
    return sum;
}

} // namespace

QString FilelistTotals::text(WindowWorker &worker, const std::vector<FilelistItemPtr> &filelist,
                             const std::vector<FilelistItemPtr> &arranged)
{
    if (filelist.empty())
        return {};
    QString count = arranged.size() == filelist.size()
        ? tr("%1 files").arg(arranged.size())
        : tr("%1 files (of %2 total)").arg(arranged.size()).arg(filelist.size());
    if (!worker.processingIsDone())
        return count;

    qint64 shown = _totalDuration;
    if (worker.isTotalDurationChanged) {
        shown = _totalDuration = durationOf(filelist);
        worker.isTotalDurationChanged = false;
    } else if (arranged.size() < filelist.size()) {
        shown = durationOf(arranged);
    }
    const QString duration
        = shown == 0 ? QStringLiteral("00:00:00") : oMediaInfo::formatDurationUpToSeconds(shown);
    return tr("%1 in %2").arg(duration, count);
}

QString FilelistTotals::progressText(const WindowWorker &worker)
{
    return tr("%1 of %2 processed").arg(worker.countProcessed()).arg(worker.countToProcess());
}

} // namespace quorvin
