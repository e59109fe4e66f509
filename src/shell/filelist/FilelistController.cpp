// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/FilelistController.h"

#include "model/Log.h"
#include "platform/HeapMemory.h"
#include "platform/NativePath.h"
#include "shell/desktop/BackgroundRun.h"

#include <algorithm>
#include <utility>

namespace quorvin {

namespace {

/// So often the totals follow a run.
constexpr int kTotalsMilliseconds = 50;
/// With nothing delivered for so long a run has come to rest.
constexpr int kRestMilliseconds = 1000;
/// What is freed of fewer is soon used again.
constexpr std::size_t kManyRecords = 1000;
/// A closing window stays no longer for threads that do not end.
constexpr std::chrono::milliseconds kLongestClose{1000};

/// Thousands of records take their time to go.
template <typename Items>
void disposeElsewhere(Items items)
{
    BackgroundRunBase::runOnThread("Disposal", [items = std::move(items)]() mutable {
        const bool areMany = items.size() >= kManyRecords;
        items.clear();
        if (areMany)
            giveFreeMemoryBack();
    });
}

} // namespace

FilelistController::FilelistController(const LiveSettings &settings, QObject *parent)
    : QObject(parent), _settings(settings)
{
    _totalsTimer.setSingleShot(true);
    _totalsTimer.setInterval(kTotalsMilliseconds);
    connect(&_totalsTimer, &QTimer::timeout, this, &FilelistController::updateTotals);
    _restTimer.setSingleShot(true);
    _restTimer.setInterval(kRestMilliseconds);
    connect(&_restTimer, &QTimer::timeout, this, [this] {
        if (std::exchange(_deliveredSinceRest, 0) >= kManyRecords)
            BackgroundRunBase::runOnThread("Disposal", giveFreeMemoryBack);
    });
    connect(&_walks, &FolderWalks::found, this, &FilelistController::takeFiles);
    connect(&_wait, &CurrentFileWait::skipWanted, this,
            [this](const FilelistItemPtr &file) { _worker.dataCacher()->skipFile(file); });
    connect(&_selection, &QItemSelectionModel::selectionChanged, this,
            &FilelistController::selectionDidChange);
    connect(&_selection, &QItemSelectionModel::currentChanged, this, &FilelistController::selectionDidChange);
    connect(&_arranged, &ArrangedFilelist::rowsInserted, this, &FilelistController::arrangedObjectsDidChange);
    connect(&_arranged, &ArrangedFilelist::rowsRemoved, this, &FilelistController::arrangedObjectsDidChange);
    connect(&_arranged, &ArrangedFilelist::layoutChanged, this,
            &FilelistController::arrangedObjectsDidChange);
    connect(&_arranged, &ArrangedFilelist::modelReset, this, &FilelistController::arrangedObjectsDidChange);
}

FilelistController::~FilelistController()
{
    disconnect(&_selection, nullptr, this, nullptr);
    disconnect(&_arranged, nullptr, this, nullptr);
    // Whoever lets go last has the work of it.
    _worker.setDataCacher(nullptr);
    _worker.setCurrentFile(nullptr);
    _worker.startNewProcessingWithFiles({}, true);
    disposeElsewhere(_whole.setFiles({}));
}

void FilelistController::processFiles(const QStringList &paths)
{
    _walks.start({paths, FolderWalks::Request::kReplace});
}

void FilelistController::processAdditionalFiles(const QStringList &paths)
{
    processAdditionalFilesAtIndex(paths, FolderWalks::Request::kEnd);
}

void FilelistController::processAdditionalFilesAndSelectFirst(const QStringList &paths)
{
    processAdditionalFilesAtIndex(paths, FolderWalks::Request::kEndAndSelect);
}

void FilelistController::processAdditionalFilesAtIndex(const QStringList &paths, int index)
{
    _walks.start({paths, index});
}

bool FilelistController::isUntouched() const
{
    return filelist().empty() && !isWalking();
}

void FilelistController::takeFiles(const FolderWalks::Request &request,
                                   const std::vector<FilelistItemPtr> &files)
{
    if (_isWindowClosing)
        return;
    if (request.index == FolderWalks::Request::kReplace || filelist().empty()) {
        _roots = std::make_shared<RootSet>(request.paths);
        replaceContent(files);
    } else {
        const int rows = _arranged.rowCount();
        _roots->add(request.paths);
        insertFiles(request.index, files);
        if (request.index == FolderWalks::Request::kEndAndSelect && rows < _arranged.rowCount())
            selectRow(rows);
    }
    Q_EMIT filesTaken(request.paths);
}

void FilelistController::replaceContent(const std::vector<FilelistItemPtr> &files)
{
    _worker.setCurrentFile(nullptr);
    _wait.stop();
    _worker.setDataCacher(nullptr);
    _totals.clear();
    startPool();
    _worker.startNewProcessingWithFiles(files, true);
    _worker.dataCacher()->processFiles(files);
    if (files.empty())
        _worker.settle();
    disposeElsewhere(_whole.setFiles(files));
    updateTotals();
    if (_arranged.rowCount() == 0)
        showFileAtIndex(-1);
    else
        selectRow(0);
}

void FilelistController::insertFiles(int index, const std::vector<FilelistItemPtr> &files)
{
    if (files.empty())
        return;
    const int count = _whole.rowCount();
    _worker.startNewProcessingWithFiles(files, false);
    _worker.dataCacher()->processFiles(files);
    _whole.insertFiles(index < 0 || index >= count ? count : index, files);
    updateTotals();
}

void FilelistController::startPool()
{
    auto pool = std::make_unique<DataCacher>(
        [&settings = _settings.values(), roots = _roots] { return analysisSetupFrom(settings, roots); });
    pool->setMTMode(_settings.integer(Setting::MTMode));
    pool->setDelegate(this);
    _worker.setDataCacher(std::move(pool));
}

void FilelistController::arrangedObjectsDidChange()
{
    // Whoever shows the rows has to learn of the change before a row is selected.
    QMetaObject::invokeMethod(this, &FilelistController::selectionDidChange, Qt::QueuedConnection);
    updateTotals();
    Q_EMIT windowArrangedFilelistDidChange();
}

void FilelistController::dataCacherNewObjectReady(const DataCacherDelivery &delivery)
{
    if (_isWindowClosing)
        return;
    if (delivery.data)
        _worker.isTotalDurationChanged = true;
    _worker.fileIsReady(delivery.file);
    _delivered.push_back(delivery.file);
    if (!_totalsTimer.isActive())
        _totalsTimer.start();
    if (delivery.file != _worker.currentFile())
        return;
    _wait.stop();
    Q_EMIT currentFileIsReady(delivery.status == DataCacherDelivery::Fresh);
    Q_EMIT stateDidChange();
}

void FilelistController::dataCacherDidDeliver()
{
    _deliveredSinceRest += _delivered.size();
    _whole.filesChanged(std::exchange(_delivered, {}));
    _restTimer.start();
}

int FilelistController::selectedRow() const
{
    const QModelIndex current = _selection.currentIndex();
    if (current.isValid() && _selection.isSelected(current))
        return current.row();
    const auto rows = selectedRows();
    return rows.empty() ? -1 : rows.front();
}

std::vector<int> FilelistController::selectedRows() const
{
    std::vector<int> rows;
    for (const QItemSelectionRange &range : _selection.selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row);
    }
    std::ranges::sort(rows);
    return rows;
}

int FilelistController::selectedCount() const
{
    int count = 0;
    for (const QItemSelectionRange &range : _selection.selection())
        count += range.height();
    return count;
}

void FilelistController::selectRow(int row)
{
    _selection.setCurrentIndex(_arranged.index(row, 0), QItemSelectionModel::ClearAndSelect);
}

void FilelistController::selectionDidChange()
{
    if (_arranged.isLosingRows())
        return;
    const int row = selectedRow();
    if (row < 0 && _arranged.rowCount() > 0)
        return selectRow(0);
    if (_arranged.fileAt(row) != _worker.currentFile())
        showFileAtIndex(row);
}

void FilelistController::showFileAtIndex(int row)
{
    const int count = _arranged.rowCount();
    if (row >= count || (row < 0 && count > 0))
        return;
    const FilelistItemPtr file = _arranged.fileAt(row);
    _worker.setCurrentFile(file);
    _wait.stop();
    if (!file)
        updateTotals();
    Q_EMIT currentFileDidChange();
    if (file && !file->isFailed() && !file->quorvinData())
        readFirstly(file);
    Q_EMIT stateDidChange();
}

void FilelistController::readFirstly(const FilelistItemPtr &file)
{
    _worker.dataCacher()->processFileFirstly(file);
    if (file == _worker.currentFile())
        _wait.start(file);
}

void FilelistController::updateTotals()
{
    _totalsTimer.stop();
    Q_EMIT totalsDidChange();
    Q_EMIT stateDidChange();
}

void FilelistController::changeCurrentFile(const QString &command,
                                           const std::function<Expected<void>(const QString &)> &change)
{
    const FilelistItemPtr file = _worker.currentFile();
    if (!file)
        return;
    runInBackground(
        this, "FileChange", [change, path = file->filename()](const RunControl &) { return change(path); },
        [this, file, command](const Expected<void> &changed) {
            if (_isWindowClosing)
                return;
            Q_EMIT currentFileWasChanged(changed ? QString()
                                                 : tr("%1 failed for “%2”: %3")
                                                       .arg(command, lastPathComponent(file->filename()),
                                                            changed.error().description));
            if (changed)
                reprocess(file);
        });
}

void FilelistController::reprocess(const FilelistItemPtr &file)
{
    file->setIsDone(false);
    file->releaseQuorvinData();
    readFirstly(file);
}

void FilelistController::refreshInfo()
{
    std::vector<FilelistItemPtr> files;
    for (const int row : selectedRows())
        files.push_back(_arranged.fileAt(row));
    readAgain(files);
}

void FilelistController::refreshAll()
{
    readAgain(filelist());
}

void FilelistController::readAgain(const std::vector<FilelistItemPtr> &files)
{
    std::vector<QuorvinDataPtr> old;
    for (const FilelistItemPtr &file : files) {
        old.push_back(file->quorvinData());
        file->resetQuorvinData();
        if (file == _worker.currentFile())
            Q_EMIT currentFileDidChange();
        readFirstly(file);
    }
    disposeElsewhere(std::move(old));
    _whole.filesChanged(files);
    Q_EMIT stateDidChange();
}

void FilelistController::removeSelectedItems()
{
    const std::vector<int> rows = selectedRows();
    if (rows.empty())
        return;
    std::vector<int> wholeRows;
    std::vector<FilelistItemPtr> removed;
    for (const int row : rows) {
        wholeRows.push_back(_arranged.rowInWholeList(row));
        removed.push_back(_arranged.fileAt(row));
        _worker.fileIsRemoved(removed.back());
    }
    _worker.isTotalDurationChanged = true;
    _worker.dataCacher()->removeFiles(removed);
    // No delivery comes for a file that was only queued.
    _worker.settle();
    // Without a word: a row is selected below, and no other is to be shown before.
    _selection.reset();
    _whole.removeFiles(std::move(wholeRows));
    disposeElsewhere(std::move(removed));
    if (_arranged.rowCount() > 0)
        selectRow(std::min(rows.front(), _arranged.rowCount() - 1));
    else
        showFileAtIndex(-1);
}

std::vector<ExportEntry> FilelistController::arrayWithDataForExport() const
{
    return exportEntriesOf(_arranged.files());
}

bool FilelistController::canExport() const
{
    return _worker.currentQuorvinData() != nullptr;
}

bool FilelistController::canExportAll() const
{
    return _worker.processingIsDone() && !filelist().empty();
}

std::vector<MapLocationInfo> FilelistController::allMapLocationInfo() const
{
    std::vector<MapLocationInfo> all;
    const std::vector<FilelistItemPtr> &files = _arranged.files();
    for (std::size_t i = 0; i < files.size(); ++i) {
        if (auto info = files[i]->mapLocationInfo()) {
            info->lastIndexInList = i;
            all.push_back(*info);
        }
    }
    return all;
}

void FilelistController::selectFileByMapLocationInfo(const MapLocationInfo &info)
{
    const int row = static_cast<int>(info.lastIndexInList.value_or(0));
    if (row == selectedRow())
        return;
    const FilelistItemPtr file = _arranged.fileAt(row);
    if (file && file->filename() == info.filename)
        selectRow(row);
    else
        qCInfo(lcQuorvin) << "not found by last known index";
}

void FilelistController::setWindowIsClosing()
{
    _walks.cancel();
    if (_worker.dataCacher())
        _worker.dataCacher()->cancelThreadsAndWait(kLongestClose);
    _isWindowClosing = true;
}

std::vector<ExportEntry> exportEntriesOf(const std::vector<FilelistItemPtr> &files)
{
    std::vector<ExportEntry> entries;
    for (const FilelistItemPtr &file : files) {
        if (const QuorvinDataPtr record = file->quorvinData())
            entries.push_back({file->filename(), file->prefixedPath(), record});
    }
    return entries;
}

} // namespace quorvin
