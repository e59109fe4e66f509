// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "intake/WindowWorker.h"

#include <algorithm>
#include <utility>

namespace quorvin {

std::optional<QString> WindowWorker::currentFilePath() const
{
    return _currentFilelistItem ? std::optional(_currentFilelistItem->filename()) : std::nullopt;
}

QuorvinDataPtr WindowWorker::currentQuorvinData() const
{
    return _currentFilelistItem ? _currentFilelistItem->quorvinData() : nullptr;
}

std::optional<MapLocationInfo> WindowWorker::currentMapLocationInfo() const
{
    return _currentFilelistItem ? _currentFilelistItem->mapLocationInfo() : std::nullopt;
}

void WindowWorker::startNewProcessingWithFiles(const std::vector<FilelistItemPtr> &files, bool cleanStart)
{
    if (cleanStart) {
        _files.clear();
        _countToProcess = 0;
        _countProcessed = 0;
    }
    _countToProcess += static_cast<qint64>(files.size()) - std::exchange(_countProcessed, 0);
    _files.reserve(_files.size() + files.size());
    for (const FilelistItemPtr &file : files)
        ++_files[file].toBeDone;
    _processingIsDone = false;
}

void WindowWorker::fileIsReady(const FilelistItemPtr &file)
{
    const auto found = _files.find(file);
    if (found != _files.end() && found->second.done < found->second.toBeDone) {
        ++found->second.done;
        ++_countProcessed;
    }
    settle();
}

void WindowWorker::settle()
{
    if (_countProcessed >= _countToProcess)
        _processingIsDone = true;
}

void WindowWorker::fileIsRemoved(const FilelistItemPtr &file)
{
    const auto found = _files.find(file);
    const Counts counts = found == _files.end() ? Counts{} : found->second;
    if (_countToProcess > 0)
        --_countToProcess;
    if (counts.done >= counts.toBeDone && _countProcessed > 0)
        --_countProcessed;
    if (counts.toBeDone <= 1) {
        if (found != _files.end())
            _files.erase(found);
        return;
    }
    --found->second.toBeDone;
    found->second.done = std::min(counts.done, counts.toBeDone - 1);
}

} // namespace quorvin
