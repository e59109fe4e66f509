// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "intake/FilelistItem.h"

#include <utility>

namespace quorvin {

FilelistItem::FilelistItem(QString filename, QString prefixedPath)
    : _filename(std::move(filename)), _prefixedPath(std::move(prefixedPath))
{
}

FilelistItemPtr FilelistItem::itemWithFilename(const QString &filename, const QString &prefixedPath)
{
    return FilelistItemPtr(new FilelistItem(filename, prefixedPath));
}

FilelistItemPtr FilelistItem::copyWithResult() const
{
    FilelistItemPtr copy = itemWithFilename(_filename, _prefixedPath);
    const std::lock_guard guard(_lock);
    copy->setQuorvinData(_quorvinData);
    copy->_error = _error;
    copy->_isDone = _quorvinData || _error;
    return copy;
}

QuorvinDataPtr FilelistItem::quorvinData() const
{
    const std::lock_guard guard(_lock);
    return _quorvinData;
}

bool FilelistItem::isFailed() const
{
    const std::lock_guard guard(_lock);
    return _error.has_value();
}

std::optional<Error> FilelistItem::error() const
{
    const std::lock_guard guard(_lock);
    return _error;
}

QString FilelistItem::failureReason() const
{
    const std::lock_guard guard(_lock);
    return _error ? _error->description : QString();
}

std::optional<DigestProgress> FilelistItem::digestProgress() const
{
    const std::lock_guard guard(_lock);
    return _isDone ? std::nullopt : _digestProgress;
}

void FilelistItem::setDigestProgress(const DigestProgress &progress)
{
    const std::lock_guard guard(_lock);
    _digestProgress = progress;
}

std::optional<MapLocationInfo> FilelistItem::mapLocationInfo() const
{
    const QuorvinDataPtr data = quorvinData();
    if (!data || !data->mapLocation())
        return std::nullopt;
    return MapLocationInfo{*data->mapLocation(), _filename, std::nullopt};
}

void FilelistItem::setResult(const Expected<QuorvinDataPtr> &result)
{
    const std::lock_guard guard(_lock);
    setQuorvinData(result.value_or(nullptr));
    _digestProgress.reset();
    _error = result ? std::nullopt : std::optional(result.error());
}

void FilelistItem::setQuorvinData(QuorvinDataPtr data)
{
    _duration = data ? data->duration() : 0;
    _quorvinData = std::move(data);
}

void FilelistItem::releaseQuorvinData()
{
    const std::lock_guard guard(_lock);
    setQuorvinData(nullptr);
}

void FilelistItem::resetQuorvinData()
{
    _isDone = false;
    const std::lock_guard guard(_lock);
    setQuorvinData(nullptr);
    _digestProgress.reset();
    _error.reset();
}

QString FilelistItem::description() const
{
    return QStringLiteral("FilelistItem: filename=%1, isDone=%2")
        .arg(_filename, _isDone ? QLatin1String("YES") : QLatin1String("NO"));
}

} // namespace quorvin
