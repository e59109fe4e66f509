// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/CountedFiles.h"

#include "statistics/ParameterTally.h"
#include "support/IndexedFiles.h"
#include "support/TestRecords.h"

namespace quorvin::test {

FilelistItemPtr readFile(const QStringList &parameters, qint64 duration, qint64 bytes)
{
    RecordContents contents = recordOf(parameters)->contents();
    contents.duration = duration;
    contents.general.filesizeinbytes = QString::number(bytes);
    return fileWith(std::make_shared<const QuorvinData>(std::move(contents)));
}

std::vector<FilelistItemPtr> filesOfValues(const QStringList &values)
{
    std::vector<FilelistItemPtr> files;
    for (const QString &value : values)
        files.push_back(readFile({QStringLiteral("Video#0/rate=") + value}));
    return files;
}

ParameterCountPtr counted(const QString &parameter, const std::vector<FilelistItemPtr> &files)
{
    RecordIndex index;
    for (const FilelistItemPtr &file : files) {
        if (file->isDone())
            index.put(file, file->quorvinData());
    }
    return countOf(parameter, index, files);
}

QStringList linesOf(const CountTable &table)
{
    QStringList lines;
    for (const CountRow &row : table.rows())
        lines.append(QStringLiteral("%1 %2 %3").arg(row.sum.files).arg(row.sum.streams).arg(row.text));
    return lines;
}

} // namespace quorvin::test
