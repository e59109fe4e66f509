// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "intake/DataCacherFileQueue.h"

#include <unordered_set>
#include <utility>

namespace quorvin {

void DataCacherFileQueue::addFilesToEnd(const std::vector<FilelistItemPtr> &files)
{
    const std::lock_guard guard(queueLock);
    fileQueue.insert(fileQueue.begin(), files.rbegin(), files.rend());
    keepCount();
}

void DataCacherFileQueue::addFilesToStart(const std::vector<FilelistItemPtr> &files)
{
    const std::lock_guard guard(queueLock);
    fileQueue.insert(fileQueue.end(), files.rbegin(), files.rend());
    keepCount();
}

void DataCacherFileQueue::addForcedFileToStart(const FilelistItemPtr &file)
{
    const std::lock_guard guard(queueLock);
    forcedFiles.push_back(file);
    keepCount();
}

void DataCacherFileQueue::removeFiles(const std::vector<FilelistItemPtr> &files)
{
    const std::unordered_set<FilelistItemPtr> gone(files.begin(), files.end());
    const auto isGone = [&](const FilelistItemPtr &file) { return gone.contains(file); };
    const std::lock_guard guard(queueLock);
    std::erase_if(fileQueue, isGone);
    std::erase_if(forcedFiles, isGone);
    keepCount();
}

FilelistItemPtr DataCacherFileQueue::nextItem()
{
    if (FilelistItemPtr forced = nextForcedItem())
        return forced;
    const std::lock_guard guard(queueLock);
    return takeLast(fileQueue);
}

FilelistItemPtr DataCacherFileQueue::nextForcedItem()
{
    const std::lock_guard guard(queueLock);
    return takeLast(forcedFiles);
}

FilelistItemPtr DataCacherFileQueue::takeLast(std::deque<FilelistItemPtr> &files)
{
    if (files.empty())
        return nullptr;
    FilelistItemPtr last = std::move(files.back());
    files.pop_back();
    keepCount();
    return last;
}

void DataCacherFileQueue::clear()
{
    const std::lock_guard guard(queueLock);
    for (auto *files : {&fileQueue, &forcedFiles}) {
        for (const FilelistItemPtr &file : *files)
            file->setIsWanted(file->isDone());
        files->clear();
    }
    keepCount();
}

} // namespace quorvin
