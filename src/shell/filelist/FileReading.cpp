// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/FileReading.h"

#include "shell/filelist/Disposal.h"
#include "shell/session/LiveSettings.h"

#include <algorithm>
#include <utility>

namespace quorvin {

namespace {

/// So often the counts follow a run.
constexpr int kProgressMilliseconds = 50;
/// With nothing delivered for so long a run has come to rest.
constexpr int kRestMilliseconds = 1000;
/// A closing window stays no longer for threads that do not end.
constexpr std::chrono::milliseconds kLongestClose{1000};

} // namespace

FileReading::FileReading(const LiveSettings &settings, QObject *parent) : QObject(parent), _settings(settings)
{
    _progressTimer.setSingleShot(true);
    _progressTimer.setInterval(kProgressMilliseconds);
    connect(&_progressTimer, &QTimer::timeout, this, &FileReading::progressed);
    _restTimer.setSingleShot(true);
    _restTimer.setInterval(kRestMilliseconds);
    connect(&_restTimer, &QTimer::timeout, this, [this] {
        if (std::exchange(_deliveredSinceRest, 0) >= kManyRecords)
            BackgroundRunBase::runOnThread("Disposal", giveFreeMemoryBack);
    });
    connect(&_wait, &CurrentFileWait::skipWanted, this,
            [this](const FilelistItemPtr &file) { _worker.dataCacher()->skipFile(file); });
}

FileReading::~FileReading()
{
    _worker.setDataCacher(nullptr);
}

void FileReading::start(const std::vector<FilelistItemPtr> &files, const QStringList &roots)
{
    _roots = std::make_shared<RootSet>(roots);
    setCurrentFile(nullptr);
    _worker.setDataCacher(nullptr);
    _readAgain.clear();
    startPool();
    _worker.startNewProcessingWithFiles(files, true);
    readUndone(files);
    if (files.empty())
        _worker.settle();
}

void FileReading::startPool()
{
    auto pool = std::make_unique<DataCacher>(
        [&settings = _settings.values(), roots = _roots] { return analysisSetupFrom(settings, roots); });
    pool->setMTMode(_settings.integer(Setting::MTMode));
    pool->setDelegate(this);
    _worker.setDataCacher(std::move(pool));
}

void FileReading::add(const std::vector<FilelistItemPtr> &files)
{
    _worker.startNewProcessingWithFiles(files, false);
    _worker.isTotalDurationChanged = true;
    readUndone(files);
}

void FileReading::readUndone(const std::vector<FilelistItemPtr> &files)
{
    std::vector<FilelistItemPtr> unread;
    for (const FilelistItemPtr &file : files) {
        if (file->isDone())
            _worker.fileIsReady(file);
        else
            unread.push_back(file);
    }
    _worker.dataCacher()->processFiles(unread);
}

void FileReading::remove(const std::vector<FilelistItemPtr> &files)
{
    for (const FilelistItemPtr &file : files) {
        _worker.fileIsRemoved(file);
        _readAgain.erase(file);
    }
    _worker.isTotalDurationChanged = true;
    _worker.dataCacher()->removeFiles(files);
    // No delivery comes for a file that was only queued.
    _worker.settle();
}

void FileReading::setCurrentFile(const FilelistItemPtr &file)
{
    _worker.setCurrentFile(file);
    _wait.stop();
}

void FileReading::readFirstly(const FilelistItemPtr &file)
{
    if (_worker.isUnread(file))
        _worker.startNewProcessingWithFiles({file}, false);
    _worker.dataCacher()->processFileFirstly(file);
    if (file == _worker.currentFile())
        _wait.start(file);
}

void FileReading::readAgain(const std::vector<FilelistItemPtr> &files)
{
    std::vector<QuorvinDataPtr> old;
    old.reserve(files.size());
    for (const FilelistItemPtr &file : files) {
        old.push_back(file->quorvinData());
        file->resetQuorvinData();
    }
    disposeElsewhere(std::move(old));
    if (files.size() == 1) {
        _readAgain.insert(files.front());
        readFirstly(files.front());
    } else if (!files.empty()) {
        _worker.startNewProcessingWithFiles(files, false);
        _worker.dataCacher()->processFilesFirstly(files);
    }
    Q_EMIT filesChanged(files);
    Q_EMIT progressed();
}

void FileReading::stop()
{
    if (!isUnderWay())
        return;
    _worker.dataCacher()->stopReading();
    _worker.stopProcessing();
    _readAgain.clear();
    _wait.stop();
    Q_EMIT progressed();
}

void FileReading::goOn(const std::vector<FilelistItemPtr> &files)
{
    std::vector<FilelistItemPtr> unread;
    std::ranges::copy_if(files, std::back_inserter(unread),
                         [this](const FilelistItemPtr &file) { return _worker.isUnread(file); });
    if (!unread.empty())
        add(unread);
}

bool FileReading::isUnderWay() const
{
    return _worker.countToProcess() > _worker.countProcessed() || !_readAgain.empty();
}

void FileReading::dataCacherNewObjectReady(const DataCacherDelivery &delivery)
{
    if (_isWindowClosing)
        return;
    if (delivery.data)
        _worker.isTotalDurationChanged = true;
    // An answer from before the file was to be read again may still come in between.
    if (delivery.file->isDone()) {
        _worker.fileIsReady(delivery.file);
        _readAgain.erase(delivery.file);
    }
    _delivered.push_back(delivery.file);
    if (!_progressTimer.isActive())
        _progressTimer.start();
    if (delivery.file == _worker.currentFile())
        _wait.stop();
    Q_EMIT fileIsReady(delivery);
}

void FileReading::dataCacherDidDeliver()
{
    _deliveredSinceRest += _delivered.size();
    Q_EMIT filesChanged(std::exchange(_delivered, {}));
    _restTimer.start();
}

void FileReading::setWindowIsClosing()
{
    if (_worker.dataCacher())
        _worker.dataCacher()->cancelThreadsAndWait(kLongestClose);
    _isWindowClosing = true;
}

} // namespace quorvin
