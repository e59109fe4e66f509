// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "intake/DataCacher.h"

#include "intake/DataCacherShared.h"
#include "intake/DataCacherThread.h"

#include <QTimer>

#include <algorithm>
#include <array>
#include <thread>

namespace quorvin {

namespace {

constexpr std::array kModes{1, 2, 4, 8, 256};
constexpr std::size_t kFilesForOneThread = 10;
constexpr int kMomentMilliseconds = 50;

int cores()
{
    return std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
}

void setWanted(const std::vector<FilelistItemPtr> &files, bool wanted)
{
    for (const FilelistItemPtr &file : files)
        file->setIsWanted(wanted);
}

} // namespace

DataCacher::DataCacher(std::function<AnalysisSetup()> setup)
    : _mailbox(new DataCacherMailbox), _shared(std::make_shared<DataCacherShared>())
{
    _shared->setup = std::move(setup);
    _shared->mail = _mailbox->mail();
}

DataCacher::~DataCacher()
{
    _shared->forgetSetup();
    cancelThreads();
}

void DataCacher::setDelegate(DataCacherDelegate *delegate)
{
    _mailbox->delegate = delegate;
}

DataCacherDelegate *DataCacher::delegate() const
{
    return _mailbox->delegate;
}

void DataCacher::setMTMode(int mode)
{
    _mode = std::ranges::find(kModes, mode) == kModes.end() ? 1 : mode;
}

int DataCacher::mode() const
{
    return _mode;
}

void DataCacher::setThreadCount(int count)
{
    _threadCount = count;
}

int DataCacher::numberOfThreadsToWorkWithFilesCount(std::size_t files, int mode, int cores)
{
    const int cap = mode <= cores && mode != kModes.back() ? mode : cores;
    if (mode == 1 || cap == 1 || files <= kFilesForOneThread)
        return 1;
    const std::size_t wanted = (files + kFilesForOneThread - 1) / kFilesForOneThread;
    return static_cast<int>(std::min<std::size_t>(wanted, static_cast<std::size_t>(cap)));
}

void DataCacher::processFiles(const std::vector<FilelistItemPtr> &files)
{
    setWanted(files, true);
    if (!files.empty())
        _shared->fileQueue.addFilesToEnd(files);
    startThreadsForQueue();
}

void DataCacher::processFilesFirstly(const std::vector<FilelistItemPtr> &files)
{
    setWanted(files, true);
    _shared->fileQueue.addFilesToStart(files);
    startThreadsForQueue();
}

void DataCacher::startThreadsForQueue()
{
    const std::size_t queued = _shared->fileQueue.count();
    if (queued == 0)
        return;
    const int byCount
        = static_cast<int>(std::min<std::size_t>(queued, static_cast<std::size_t>(_threadCount)));
    const int count
        = _threadCount > 0 ? byCount : numberOfThreadsToWorkWithFilesCount(queued, _mode, cores());

    if (const QString problem = startThreads(_shared, count); !problem.isEmpty())
        _shared->failQueuedFiles(problem);
}

void DataCacher::removeFiles(const std::vector<FilelistItemPtr> &files)
{
    // Whoever takes them from the queue drops them: to look for thousands there takes its time.
    setWanted(files, false);
}

void DataCacher::processFileFirstly(const FilelistItemPtr &file)
{
    file->setIsWanted(true);
    _shared->takeFromSlowFiles(file);
    _shared->fileQueue.addForcedFileToStart(file);
    startThreadsForQueue();
    // A thread that only reads comes to it sooner than a new reader has started.
    QTimer::singleShot(kMomentMilliseconds, _mailbox.get(),
                       [shared = _shared, file] { startReaderOfItsOwn(shared, file); });
}

void DataCacher::skipFile(const FilelistItemPtr &file)
{
    _shared->skip(file);
}

void DataCacher::stopReading()
{
    const auto threads = _shared->takeThreads();
    _shared->forgetFiles();
    for (auto [number, source] : threads)
        source.request_stop();
}

void DataCacher::cancelThreads()
{
    for (auto [number, source] : _shared->takeThreads())
        source.request_stop();
    _shared->dropSlowFiles();
}

void DataCacher::cancelThreadsAndWait(std::optional<std::chrono::milliseconds> longest)
{
    std::map<int, std::stop_source> threads;
    {
        const std::lock_guard guard(_shared->safeLock);
        threads = _shared->threads;
    }
    for (auto &[number, source] : threads)
        source.request_stop();
    _shared->dropSlowFiles();
    std::unique_lock lock(_shared->safeLock);
    const auto areGone = [this] { return _shared->threads.empty(); };
    if (longest)
        _shared->threadEnded.wait_for(lock, *longest, areGone);
    else
        _shared->threadEnded.wait(lock, areGone);
}

} // namespace quorvin
