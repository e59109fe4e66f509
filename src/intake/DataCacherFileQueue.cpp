// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "intake/DataCacherFileQueue.h"

#include <unordered_set>

namespace quorvin {

void DataCacherFileQueue::addFilesToEnd(const std::vector<FilelistItemPtr> &files)
{
    const std::lock_guard guard(queueLock);
    std::vector<FilelistItemPtr> stack(files.rbegin(), files.rend());
    stack.insert(stack.end(), fileQueue.begin(), fileQueue.end());
    fileQueue = std::move(stack);
    _count = fileQueue.size();
}

void DataCacherFileQueue::addForcedFileToStart(const FilelistItemPtr &file)
{
    const std::lock_guard guard(queueLock);
    fileQueue.push_back(file);
    _count = fileQueue.size();
}

void DataCacherFileQueue::removeFiles(const std::vector<FilelistItemPtr> &files)
{
    const std::unordered_set<FilelistItemPtr> gone(files.begin(), files.end());
    const std::lock_guard guard(queueLock);
    std::erase_if(fileQueue, [&](const FilelistItemPtr &file) { return gone.contains(file); });
    _count = fileQueue.size();
}

FilelistItemPtr DataCacherFileQueue::nextItem()
{
    const std::lock_guard guard(queueLock);
    if (fileQueue.empty())
        return nullptr;
    FilelistItemPtr next = std::move(fileQueue.back());
    fileQueue.pop_back();
    _count = fileQueue.size();
    return next;
}

} // namespace quorvin
