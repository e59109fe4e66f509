// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/FilelistController.h"

#include "model/Log.h"
#include "platform/NativePath.h"
#include "shell/desktop/BackgroundRun.h"
#include "shell/filelist/Disposal.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace quorvin {

FilelistController::FilelistController(const LiveSettings &settings, QObject *parent)
    : QObject(parent), _reading(settings)
{
    connect(&_reading, &FileReading::progressed, this, &FilelistController::updateTotals);
    connect(&_reading, &FileReading::filesChanged, &_whole, &FilelistModel::filesChanged);
    connect(&_reading, &FileReading::fileIsReady, this, &FilelistController::fileIsReady);
    connect(&_walks, &FolderWalks::found, this, &FilelistController::takeFiles);
    connect(&_selection, &QItemSelectionModel::selectionChanged, this,
            &FilelistController::selectionDidChange);
    connect(&_selection, &QItemSelectionModel::currentChanged, this, &FilelistController::selectionDidChange);
    connect(&_arranged, &ArrangedFilelist::rowsInserted, this, &FilelistController::arrangedObjectsDidChange);
    connect(&_arranged, &ArrangedFilelist::rowsRemoved, this, &FilelistController::arrangedObjectsDidChange);
    connect(&_arranged, &ArrangedFilelist::layoutChanged, this,
            &FilelistController::arrangedObjectsDidChange);
    connect(&_arranged, &ArrangedFilelist::modelReset, this, &FilelistController::arrangedObjectsDidChange);
    connect(&_filter, &FilelistFiltering::criteriaDidChange, &_arranged, &ArrangedFilelist::stopDeciding);
    connect(&_filter, &FilelistFiltering::didChange, &_arranged, &ArrangedFilelist::decide);
    connect(&_arranged, &ArrangedFilelist::decided, this, &FilelistController::arrange);
    _filter.setCriteria({.hideUnknownFiles = settings.boolean(Setting::hideUnknownFiles)});
    _arranged.setFilter(_filter);
}

FilelistController::~FilelistController()
{
    disconnect(&_selection, nullptr, this, nullptr);
    disconnect(&_arranged, nullptr, this, nullptr);
    // Whoever lets go last has the work of it.
    _reading.worker().setDataCacher(nullptr);
    _reading.worker().setCurrentFile(nullptr);
    _removed.clear();
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
        replaceContent(files, request.paths);
    } else {
        const int rows = _arranged.rowCount();
        _reading.addRoots(request.paths);
        insertFiles(request.index, files);
        if (request.index == FolderWalks::Request::kEndAndSelect && rows < _arranged.rowCount())
            selectRow(rows);
    }
    Q_EMIT filesTaken(request.paths);
}

void FilelistController::replaceContent(const std::vector<FilelistItemPtr> &files, const QStringList &roots)
{
    _totals.clear();
    _removed.clear();
    _reading.start(files, roots);
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
    _reading.add(files);
    _whole.insertFiles(index < 0 || index >= count ? count : index, files);
    updateTotals();
}

void FilelistController::arrange()
{
    if (_isWindowClosing)
        return;
    {
        const QScopedValueRollback arranging(_isArranging, true);
        _selection.rearrange(worker().currentFile());
    }
    selectionDidChange();
    updateTotals();
    Q_EMIT windowArrangedFilelistDidChange();
}

void FilelistController::arrangedObjectsDidChange()
{
    if (_isArranging)
        return;
    // Once for all the runs of rows that come or go together. Whoever shows the rows has to learn of the
    // change before a row is selected.
    if (!std::exchange(_isChangeToBeTold, true))
        QMetaObject::invokeMethod(this, &FilelistController::tellOfChange, Qt::QueuedConnection);
}

void FilelistController::tellOfChange()
{
    _isChangeToBeTold = false;
    updateTotals();
    Q_EMIT windowArrangedFilelistDidChange();
    selectionDidChange();
}

void FilelistController::fileIsReady(const DataCacherDelivery &delivery)
{
    _filter.fileIsDone(delivery.file);
    if (delivery.file != worker().currentFile())
        return;
    Q_EMIT currentFileIsReady(delivery.status == DataCacherDelivery::Fresh);
    Q_EMIT stateDidChange();
}

void FilelistController::selectionDidChange()
{
    if (_isArranging || _arranged.isLosingRows())
        return;
    const int row = selectedRow();
    if (row < 0 && _arranged.rowCount() > 0)
        return selectRow(0);
    if (_arranged.fileAt(row) != worker().currentFile())
        showFileAtIndex(row);
    else
        Q_EMIT stateDidChange();
}

void FilelistController::showFileAtIndex(int row)
{
    const int count = _arranged.rowCount();
    if (row >= count || (row < 0 && count > 0))
        return;
    const FilelistItemPtr file = _arranged.fileAt(row);
    _reading.setCurrentFile(file);
    if (!file)
        updateTotals();
    Q_EMIT currentFileDidChange();
    if (file && !file->isFailed() && !file->quorvinData())
        _reading.readFirstly(file);
    Q_EMIT stateDidChange();
}

void FilelistController::updateTotals()
{
    Q_EMIT totalsDidChange();
    Q_EMIT stateDidChange();
}

void FilelistController::changeCurrentFile(const QString &command,
                                           const std::function<Expected<void>(const QString &)> &change)
{
    const FilelistItemPtr file = worker().currentFile();
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
    _reading.readFirstly(file);
}

void FilelistController::reprocessFiles(const std::vector<FilelistItemPtr> &files)
{
    _reading.readAgain(files);
    const FilelistItemPtr &current = worker().currentFile();
    if (files.size() > 1 && current && !current->isDone())
        _reading.readFirstly(current);
    Q_EMIT stateDidChange();
}

void FilelistController::refreshInfo()
{
    std::vector<FilelistItemPtr> files;
    for (const int row : selectedRows())
        files.push_back(_arranged.fileAt(row));
    readAgain(files);
    goOn();
}

void FilelistController::refreshAll()
{
    const std::vector<FilelistItemPtr> &shown = _arranged.files();
    readAgain(shown.size() == filelist().size() ? shown : filelist());
}

void FilelistController::readAgain(const std::vector<FilelistItemPtr> &files)
{
    _reading.readAgain(files);
    const FilelistItemPtr &current = worker().currentFile();
    if (!current || current->isDone())
        return Q_EMIT stateDidChange();
    Q_EMIT currentFileDidChange();
    if (files.size() > 1)
        _reading.readFirstly(current);
    Q_EMIT stateDidChange();
}

void FilelistController::stopReading()
{
    _reading.stop();
    _whole.allFilesChanged();
    if (const FilelistItemPtr &current = worker().currentFile(); current && !current->isDone())
        Q_EMIT currentFileDidChange();
    Q_EMIT readingDidStop();
    Q_EMIT stateDidChange();
}

void FilelistController::goOn()
{
    _reading.goOn(filelist());
    updateTotals();
}

void FilelistController::removeSelectedItems()
{
    const std::vector<int> rows = selectedRows();
    if (rows.empty())
        return;
    std::vector<int> wholeRows;
    wholeRows.reserve(rows.size());
    for (const int row : rows)
        wholeRows.push_back(_arranged.rowInWholeList(row));
    std::ranges::sort(wholeRows);
    // Without a word: a row is selected below, and no other is to be shown before.
    _selection.reset();
    takeOut(std::move(wholeRows));
    if (_arranged.rowCount() > 0)
        selectRow(std::min(rows.front(), _arranged.rowCount() - 1));
    else
        showFileAtIndex(-1);
    updateTotals();
}

void FilelistController::removeFile(const FilelistItemPtr &file)
{
    const int row = _arranged.rowOf(file);
    if (row < 0)
        return;
    if (selectedRows() == std::vector{row})
        return removeSelectedItems();
    takeOut({_arranged.rowInWholeList(row)});
    selectionDidChange();
    updateTotals();
}

void FilelistController::takeOut(std::vector<int> rows)
{
    RemovedFiles::Removal removal;
    removal.files = _whole.removeFiles(rows);
    removal.rows = std::move(rows);
    _reading.remove(removal.files);
    _removed.keep(std::move(removal));
}

void FilelistController::undoRemoval()
{
    if (_removed.isEmpty())
        return;
    const RemovedFiles::Removal back = _removed.takeLast();
    _reading.add(back.files);
    _selection.reset();
    _whole.insertFilesAt(back.rows, back.files);
    _selection.selectFiles(back.files);
    updateTotals();
}

void FilelistController::selectNextFailed()
{
    const std::vector<FilelistItemPtr> &files = _arranged.files();
    const auto after = files.begin() + (selectedRow() + 1);
    const auto isFailed = [](const FilelistItemPtr &file) { return file->isFailed(); };
    auto found = std::find_if(after, files.end(), isFailed);
    if (found == files.end())
        found = std::find_if(files.begin(), after, isFailed);
    if (found != files.end() && *found != worker().currentFile())
        selectRow(static_cast<int>(found - files.begin()));
}

std::vector<ExportEntry> FilelistController::arrayWithDataForExport() const
{
    return exportEntriesOf(_arranged.files());
}

bool FilelistController::canExport() const
{
    return worker().currentQuorvinData() != nullptr;
}

bool FilelistController::canExportAll() const
{
    return worker().processingIsDone() && !_reading.isUnderWay() && _arranged.rowCount() > 0;
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
    _reading.setWindowIsClosing();
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
