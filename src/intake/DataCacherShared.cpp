// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "intake/DataCacherShared.h"

#include "model/FailureKind.h"

#include <algorithm>
#include <utility>

namespace quorvin {

namespace {

constexpr std::size_t kMostSlowThreads = 2;

} // namespace

std::optional<AnalysisSetup> DataCacherShared::askSetup()
{
    const std::lock_guard guard(setupLock);
    return setup ? std::optional(setup()) : std::nullopt;
}

void DataCacherShared::forgetSetup()
{
    const std::lock_guard guard(setupLock);
    setup = {};
}

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

bool DataCacherShared::leaveOwn(int thread, const std::stop_token &stop)
{
    const std::lock_guard guard(safeLock);
    if (ownThread == thread)
        ownThread = 0;
    // What it had to give up may be all that is left.
    if (laneCount() == 1 && threads.contains(thread) && !stop.stop_requested() && fileQueue.count() > 0)
        return false;
    threads.erase(thread);
    threadEnded.notify_all();
    return true;
}

std::size_t DataCacherShared::laneCount() const
{
    return threads.size() - slowThreads.size() - (threads.contains(ownThread) ? 1 : 0);
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
    if (!isHeldBy(file, thread))
        return true;
    if (slowThreads.size() < kMostSlowThreads) {
        slowThreads.insert(thread);
        return false;
    }
    file->setIsInProcess(false);
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
    filesInProcess[file] = {thread, {}};
    file->setIsInProcess(true);
    return file;
}

void DataCacherShared::takeFromSlowFiles(const FilelistItemPtr &file)
{
    const std::lock_guard guard(safeLock);
    if (std::erase(slowFiles, file) > 0)
        letGo(file);
}

std::map<int, std::stop_source> DataCacherShared::takeThreads()
{
    const std::lock_guard guard(safeLock);
    slowThreads.clear();
    ownThread = 0;
    return std::exchange(threads, {});
}

void DataCacherShared::dropSlowFiles()
{
    const std::lock_guard guard(safeLock);
    for (const FilelistItemPtr &file : std::exchange(slowFiles, {})) {
        file->setIsDone(true);
        letGo(file);
    }
}

void DataCacherShared::giveFileBack(const FilelistItemPtr &file, int thread)
{
    {
        const std::lock_guard guard(safeLock);
        if (!isHeldBy(file, thread))
            return;
        letGo(file);
    }
    fileQueue.addForcedFileToStart(file);
}

void DataCacherShared::makeOwnThreadFree()
{
    FilelistItemPtr file;
    std::stop_source stop(std::nostopstate);
    {
        const std::lock_guard guard(safeLock);
        const auto held = std::ranges::find_if(
            filesInProcess, [this](const auto &entry) { return entry.second.thread == ownThread; });
        if (held == filesInProcess.end())
            return;
        file = held->first;
        stop.swap(held->second.stop);
        letGo(file);
    }
    fileQueue.addFilesToEnd({file});
    stop.request_stop();
}

bool DataCacherShared::skip(const FilelistItemPtr &file)
{
    fileQueue.removeFiles({file});
    std::stop_source stop(std::nostopstate);
    {
        const std::lock_guard guard(safeLock);
        if (file->isDone())
            return false;
        if (const auto held = filesInProcess.find(file); held != filesInProcess.end())
            stop.swap(held->second.stop);
        std::erase(slowFiles, file);
        letGo(file);
        file->setIsDone(true);
    }
    dataReady(file, failure(FailureKind::Skipped));
    stop.request_stop();
    return true;
}

void DataCacherShared::forgetFiles()
{
    fileQueue.clear();
    const std::lock_guard guard(safeLock);
    for (const auto &[file, process] : filesInProcess) {
        file->setIsInProcess(false);
        file->setIsWanted(false);
    }
    filesInProcess.clear();
    filesWaitingForFinishProcessing.clear();
    slowFiles.clear();
}

bool DataCacherShared::leaveToOthers(int thread, const std::stop_token &stop)
{
    const std::lock_guard guard(safeLock);
    slowThreads.erase(thread);
    const bool isOnlyLane = threads.contains(thread) && laneCount() < 2;
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
        const Claim claim = setFileIsInProcess(file, 0, {});
        if (claim == Claim::Free && release(file, 0))
            dataReady(file, failure(reason));
        else if (claim == Claim::Done)
            answerRepeat(file);
    }
}

Claim DataCacherShared::setFileIsInProcess(const FilelistItemPtr &file, int thread,
                                           const std::stop_token &stop)
{
    const std::lock_guard guard(safeLock);
    const bool isOut = thread != 0 && !threads.contains(thread);
    if (isOut || stop.stop_requested())
        return Claim::Cancelled;
    if (!file->isWanted())
        return Claim::Unwanted;
    if (file->isDone())
        return Claim::Done;
    if (!filesInProcess.try_emplace(file, FileInProcess{thread, {}}).second) {
        ++filesWaitingForFinishProcessing[file];
        return Claim::InProcess;
    }
    file->setIsInProcess(true);
    return Claim::Free;
}

std::stop_source DataCacherShared::stopOf(const FilelistItemPtr &file, int thread)
{
    const std::lock_guard guard(safeLock);
    if (isHeldBy(file, thread))
        return filesInProcess.find(file)->second.stop;
    std::stop_source stopped;
    stopped.request_stop();
    return stopped;
}

bool DataCacherShared::release(const FilelistItemPtr &file, int thread)
{
    const std::lock_guard guard(safeLock);
    if (!isHeldBy(file, thread))
        return false;
    file->setIsDone(true);
    letGo(file);
    return true;
}

bool DataCacherShared::isHeldBy(const FilelistItemPtr &file, int thread) const
{
    const auto held = filesInProcess.find(file);
    return held != filesInProcess.end() && held->second.thread == thread;
}

void DataCacherShared::letGo(const FilelistItemPtr &file)
{
    file->setIsInProcess(false);
    filesInProcess.erase(file);
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
