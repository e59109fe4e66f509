// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/PoolBench.h"

#include "support/TestFolder.h"

#include <QDir>

namespace quorvin::test {

std::vector<FilelistItemPtr> filesNamed(std::initializer_list<const char *> names)
{
    std::vector<FilelistItemPtr> made;
    for (const char *name : names)
        made.push_back(FilelistItem::itemWithFilename(QLatin1String(name), QLatin1String(name)));
    return made;
}

bool hasRecord(const FilelistItemPtr &file)
{
    return file->quorvinData() != nullptr;
}

int poolThreads()
{
    int count = 0;
    for (const QString &task :
         QDir(QStringLiteral("/proc/self/task")).entryList(QDir::NoDotAndDotDot | QDir::Dirs))
        count += contentOf(QStringLiteral("/proc/self/task/%1/comm").arg(task)).startsWith("DataCacherThrea");
    return count;
}

} // namespace quorvin::test
