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
    setFailureReason(QString());
}

QString FilelistItem::failureReason() const
{
    const auto reason = _failureReason.load();
    return reason ? *reason : QString();
}

void FilelistItem::setFailureReason(const QString &reason)
{
    _failureReason.store(reason.isEmpty() ? nullptr : std::make_shared<const QString>(reason));
}

QString FilelistItem::description() const
{
    return QStringLiteral("FilelistItem: filename=%1, isDone=%2")
        .arg(_filename, _isDone ? QLatin1String("YES") : QLatin1String("NO"));
}

} // namespace quorvin
