// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/compare/ComparisonFiles.h"

#include "shell/desktop/Counts.h"

#include <QCoreApplication>

#include <utility>

namespace quorvin {

ComparisonFiles filesForComparison(std::span<const FilelistItemPtr> arranged, int limit)
{
    ComparisonFiles files;
    for (const FilelistItemPtr &file : arranged) {
        QuorvinDataPtr record = file->quorvinData();
        if (!record)
            continue;
        if (files.available++ >= limit)
            continue;
        files.records.push_back(std::move(record));
        files.paths.append(file->filename());
    }
    return files;
}

QString comparisonLimitText(const ComparisonFiles &files)
{
    if (files.paths.size() == files.available)
        return {};
    return QCoreApplication::translate("ComparisonFiles", "%1 of %2 files; change in preferences")
        .arg(groupedCount(files.paths.size()), groupedCount(files.available));
}

QString differingText(int differing, int rows)
{
    return QCoreApplication::translate("ComparisonFiles", "%1 of %2 differ")
        .arg(groupedCount(differing), groupedCount(rows));
}

} // namespace quorvin
