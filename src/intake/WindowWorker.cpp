// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "intake/WindowWorker.h"

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
        _failed.clear();
        _unread.clear();
        _countToProcess = 0;
        _countProcessed = 0;
    }
    ++_run;
    _countToProcess -= std::exchange(_countProcessed, 0);
    _files.reserve(_files.size() + static_cast<qsizetype>(files.size()));
    for (const FilelistItemPtr &file : files) {
        Progress &progress = _files[file.get()];
        _countToProcess += !std::exchange(progress.isPending, true);
        _failed.remove(file.get());
        _unread.remove(file.get());
    }
    _processingIsDone = false;
}

void WindowWorker::fileIsReady(const FilelistItemPtr &file)
{
    const auto found = _files.find(file.get());
    if (found != _files.end()) {
        if (std::exchange(found->isPending, false)) {
            found->run = _run;
            ++_countProcessed;
        }
        _unread.remove(file.get());
        if (file->isFailed())
            _failed.insert(file.get());
        else
            _failed.remove(file.get());
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
    const Progress progress = _files.take(file.get());
    _failed.remove(file.get());
    _unread.remove(file.get());
    if (progress.isPending) {
        --_countToProcess;
    } else if (progress.run == _run) {
        --_countToProcess;
        --_countProcessed;
    }
}

void WindowWorker::stopProcessing()
{
    for (auto [file, progress] : _files.asKeyValueRange()) {
        if (std::exchange(progress.isPending, false))
            _unread.insert(file);
    }
    _countToProcess = _countProcessed;
    _processingIsDone = true;
}

} // namespace quorvin
