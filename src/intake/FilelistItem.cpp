// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "intake/FilelistItem.h"

namespace quorvin {

FilelistItem::FilelistItem(QString filename, QString prefixedPath)
    : _filename(std::move(filename)), _prefixedPath(std::move(prefixedPath))
{
}

FilelistItemPtr FilelistItem::itemWithFilename(const QString &filename, const QString &prefixedPath)
{
    return FilelistItemPtr(new FilelistItem(filename, prefixedPath));
}

void FilelistItem::resetQuorvinData()
{
    _quorvinData.store(nullptr);
    _isDone = false;
    _isFailed = false;
}

QString FilelistItem::description() const
{
    return QStringLiteral("FilelistItem: filename=%1, isDone=%2")
        .arg(_filename, _isDone ? QLatin1String("YES") : QLatin1String("NO"));
}

} // namespace quorvin
