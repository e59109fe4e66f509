// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "intake/DataCacherShared.h"

#include <utility>

namespace quorvin {

namespace {

constexpr std::size_t kMostSlowThreads = 2;

} // namespace

bool DataCacherShared::leave(int thread, const std::stop_token &stop)
{
    // In one go: a cancel finds the thread as long as it may still read something. Who adds files asks for
    // threads only then, so files that come from now on find it gone.
    const std::lock_guard guard(safeLock);
    if (threads.contains(thread) && !stop.stop_requested() && fileQueue.count() > 0)
        return false;
    threads.erase(thread);
    slowThreads.erase(thread);
    threadEnded.notify_all();
    return true;
}

bool DataCacherShared::becomeSlow(int thread)
{
    const std::lock_guard guard(safeLock);
    if (slowThreads.size() >= kMostSlowThreads)
        return false;
    slowThreads.insert(thread);
    return true;
}

bool DataCacherShared::setAside(int thread, const FilelistItemPtr &file)
{
    const std::lock_guard guard(safeLock);
    if (slowThreads.size() < kMostSlowThreads) {
        slowThreads.insert(thread);
        return false;
    }
    slowFiles.push_back(file);
    return true;
}

FilelistItemPtr DataCacherShared::nextSlowFile(int thread)
{
    const std::lock_guard guard(safeLock);
    if (slowFiles.empty()) {
        slowThreads.erase(thread);
        return nullptr;
    }
    FilelistItemPtr file = std::move(slowFiles.front());
    slowFiles.pop_front();
    return file;
}

void DataCacherShared::dropSlowFiles()
{
    const std::lock_guard guard(safeLock);
    for (const FilelistItemPtr &file : std::exchange(slowFiles, {})) {
        file->setIsDone(true);
        file->setIsInProcess(false);
        filesInProcess.erase(file.get());
    }
}

void DataCacherShared::giveFileBack(const FilelistItemPtr &file)
{
    {
        const std::lock_guard guard(safeLock);
        file->setIsInProcess(false);
        filesInProcess.erase(file.get());
    }
    fileQueue.addForcedFileToStart(file);
}

bool DataCacherShared::leaveToOthers(int thread, const std::stop_token &stop)
{
    const std::lock_guard guard(safeLock);
    slowThreads.erase(thread);
    const bool isOnlyLane = threads.contains(thread) && threads.size() - slowThreads.size() < 2;
    if (isOnlyLane && !stop.stop_requested() && fileQueue.count() > 0)
        return false;
    threads.erase(thread);
    slowThreads.erase(thread);
    threadEnded.notify_all();
    return true;
}

void DataCacherShared::failQueuedFiles(const QString &reason)
{
    while (const FilelistItemPtr file = fileQueue.nextItem()) {
        if (setFileIsInProcess(file, {}) == Claim::Done) {
            answerRepeat(file);
            continue;
        }
        setFileIsDone(file);
        dataReady(file, failure(reason));
    }
}

Claim DataCacherShared::setFileIsInProcess(const FilelistItemPtr &file, const std::stop_token &stop)
{
    if (stop.stop_requested())
        return Claim::Cancelled;
    const std::lock_guard guard(safeLock);
    if (file->isDone())
        return Claim::Done;
    if (!filesInProcess.insert(file.get()).second) {
        ++filesWaitingForFinishProcessing[file];
        return Claim::InProcess;
    }
    file->setIsInProcess(true);
    return Claim::Free;
}

void DataCacherShared::setFileIsDone(const FilelistItemPtr &file)
{
    const std::lock_guard guard(safeLock);
    file->setIsDone(true);
    file->setIsInProcess(false);
    filesInProcess.erase(file.get());
}

int DataCacherShared::takeRepeats(const FilelistItemPtr &file)
{
    const auto waiting = filesWaitingForFinishProcessing.find(file);
    if (waiting == filesWaitingForFinishProcessing.end())
        return 0;
    const int repeats = waiting->second;
    if (--waiting->second == 0)
        filesWaitingForFinishProcessing.erase(waiting);
    return repeats;
}

void DataCacherShared::dataReady(const FilelistItemPtr &file, const Expected<QuorvinDataPtr> &result)
{
    int repeats = 0;
    {
        const std::lock_guard guard(safeLock);
        repeats = takeRepeats(file);
        file->setResult(result);
    }
    const QuorvinDataPtr data = result.value_or(nullptr);
    mail->post({file, DataCacherDelivery::Fresh, data});
    for (int i = 0; i < repeats; ++i)
        mail->post({file, DataCacherDelivery::Repeat, data});
}

void DataCacherShared::answerRepeat(const FilelistItemPtr &file)
{
    int repeats = 0;
    {
        const std::lock_guard guard(safeLock);
        repeats = takeRepeats(file);
    }
    for (int i = 0; i <= repeats; ++i)
        mail->post({file, DataCacherDelivery::Repeat, nullptr});
}

} // namespace quorvin
