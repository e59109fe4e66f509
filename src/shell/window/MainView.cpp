// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/MainView.h"

#include "model/Log.h"
#include "platform/NativePath.h"
#include "shell/desktop/BackgroundRun.h"
#include "shell/filelist/FilelistTable.h"
#include "shell/info/InfoView.h"
#include "shell/session/Session.h"
#include "shell/window/SidebarSplitView.h"
#include "shell/window/StatusLine.h"
#include "shell/window/WorkNote.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QThreadPool>
#include <QVBoxLayout>

#include <algorithm>
#include <unordered_set>

namespace quorvin {

namespace {

constexpr int kWorkingAnimationMilliseconds = 400;
/// So often the line under the list follows a run.
constexpr int kTotalsMilliseconds = 50;

/// Thousands of records take their time to go.
void disposeElsewhere(std::vector<FilelistItemPtr> files)
{
    QThreadPool::globalInstance()->start([files = std::move(files)]() mutable { files.clear(); });
}

} // namespace

MainView::MainView(Session &session, WindowWorker &worker, QWidget *parent)
    : QWidget(parent),
      _session(session),
      _worker(worker),
      _table(new FilelistTable(_arranged)),
      _info(new InfoView(session.settings)),
      _sidebar(new SidebarSplitView(_table, _info)),
      _status(new StatusLine)
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(_sidebar, 1);
    auto *line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    line->setForegroundRole(QPalette::Mid);
    column->addWidget(line);
    column->addWidget(_status);

    _totalsTimer.setSingleShot(true);
    _totalsTimer.setInterval(kTotalsMilliseconds);
    connect(&_totalsTimer, &QTimer::timeout, this, &MainView::updateTotals);
    connect(_table, &FilelistTable::currentRowChanged, this, [this](int row) {
        if (row < 0 && _arranged.rowCount() > 0)
            return _table->selectRow(0);
        if (row < 0 || _arranged.fileAt(row) != _worker.currentFile())
            showFileAtIndex(row);
    });
    connect(_info, &InfoView::retryWanted, this, &MainView::refreshInfo);
    connect(_info, &InfoView::selectionDidChange, this, &MainView::stateDidChange);
    WorkNote &walk = _status->walk();
    connect(&_walks, &FolderWalks::started, &walk, &WorkNote::start);
    connect(&_walks, &FolderWalks::progressed, &walk,
            [&walk](int found) { walk.setText(tr("Looking for files: %n found", nullptr, found)); });
    connect(&_walks, &FolderWalks::ended, &walk, &WorkNote::end);
    connect(&walk, &WorkNote::cancelled, &_walks, &FolderWalks::cancel);
    connect(&_walks, &FolderWalks::found, this, &MainView::takeFiles);
}

MainView::~MainView()
{
    // Whoever lets go last has the work of it.
    _worker.setDataCacher(nullptr);
    _worker.setCurrentFile(nullptr);
    _worker.startNewProcessingWithFiles({}, true);
    _arranged.setFiles({});
    disposeElsewhere(std::move(_filelist));
}

void MainView::processFiles(const QStringList &paths)
{
    _walks.start({paths, FolderWalks::Request::kReplace});
}

void MainView::processAdditionalFiles(const QStringList &paths)
{
    processAdditionalFilesAtIndex(paths, FolderWalks::Request::kEnd);
}

void MainView::processAdditionalFilesAndSelectFirst(const QStringList &paths)
{
    processAdditionalFilesAtIndex(paths, FolderWalks::Request::kEndAndSelect);
}

void MainView::processAdditionalFilesAtIndex(const QStringList &paths, int index)
{
    _walks.start({paths, index});
}

void MainView::takeFiles(const FolderWalks::Request &request, const std::vector<FilelistItemPtr> &files)
{
    if (_isWindowClosing)
        return;
    if (request.index == FolderWalks::Request::kReplace || _filelist.empty()) {
        replaceContent(files);
    } else {
        const int rows = _arranged.rowCount();
        insertFiles(request.index, files);
        if (request.index == FolderWalks::Request::kEndAndSelect && rows < _arranged.rowCount())
            _table->selectRow(rows);
    }
    _session.recentFiles.note(request.paths);
}

void MainView::replaceContent(const std::vector<FilelistItemPtr> &files)
{
    _worker.setCurrentFile(nullptr);
    _worker.setDataCacher(nullptr);
    _totals.clear();
    std::vector<FilelistItemPtr> old = std::move(_filelist);
    _filelist = files;
    startPool();
    _arranged.setFiles(_filelist);
    _worker.startNewProcessingWithFiles(_filelist, true);
    disposeElsewhere(std::move(old));
    arrangedObjectsDidChange();
    _worker.dataCacher()->processFiles(_filelist);
    if (_filelist.empty())
        showFileAtIndex(-1);
    else
        _table->selectRow(0);
}

void MainView::insertFiles(int index, const std::vector<FilelistItemPtr> &files)
{
    const int count = static_cast<int>(_filelist.size());
    const int row = index < 0 || index >= count ? count : index;
    _filelist.insert(_filelist.begin() + row, files.begin(), files.end());
    _arranged.insertFiles(row, files);
    _worker.startNewProcessingWithFiles(files, false);
    arrangedObjectsDidChange();
    _worker.dataCacher()->processFiles(files);
}

void MainView::startPool()
{
    auto pool = std::make_unique<DataCacher>(
        [&settings = _session.settings.values()] { return analysisSetupFrom(settings); });
    pool->setMTMode(_session.settings.integer(Setting::MTMode));
    pool->setDelegate(this);
    _worker.setDataCacher(std::move(pool));
}

void MainView::arrangedObjectsDidChange()
{
    updateTotals();
    Q_EMIT windowArrangedFilelistDidChange();
}

void MainView::dataCacherNewObjectReady(const DataCacherDelivery &delivery)
{
    if (_isWindowClosing)
        return;
    if (delivery.data)
        _worker.isTotalDurationChanged = true;
    _worker.fileIsReady(delivery.file);
    if (_table->selectedRow() < 0 && _arranged.rowCount() > 0)
        _table->selectRow(0);
    _table->setNeedsDisplayIfItemIsVisible(delivery.file);
    if (!_totalsTimer.isActive())
        _totalsTimer.start();
    if (delivery.file != _worker.currentFile())
        return;
    _info->stopWorking();
    if (delivery.status == DataCacherDelivery::Fresh)
        showCurrentRecord();
    Q_EMIT workerFileDidChange();
    Q_EMIT stateDidChange();
}

void MainView::showFileAtIndex(int index)
{
    const int count = _arranged.rowCount();
    if (index >= count || (index < 0 && count > 0))
        return;
    _info->stopWorking();
    const FilelistItemPtr file = _arranged.fileAt(index);
    _worker.setCurrentFile(file);
    if (!file) {
        _info->showNoFile();
        updateTotals();
    } else if (file->isFailed() || file->quorvinData()) {
        showCurrentRecord();
    } else {
        _info->clear();
        startDelayedWorkingAnimation(file);
        _worker.dataCacher()->processFileFirstly(file);
    }
    Q_EMIT workerFileDidChange();
    Q_EMIT stateDidChange();
}

void MainView::showCurrentRecord()
{
    const FilelistItemPtr &file = _worker.currentFile();
    if (const QuorvinDataPtr record = file->quorvinData())
        _info->showRecord(record);
    else
        _info->showFailure(file->failureReason());
}

void MainView::startDelayedWorkingAnimation(const FilelistItemPtr &file)
{
    QTimer::singleShot(kWorkingAnimationMilliseconds, this, [this, file] {
        if (!_isWindowClosing && !file->isDone() && file == _worker.currentFile())
            _info->startWorking();
    });
}

void MainView::updateTotals()
{
    _totalsTimer.stop();
    _status->setTotals(_totals.totals(_worker, _filelist, _arranged.files()));
    _status->setProgress(_worker);
    Q_EMIT stateDidChange();
}

std::vector<ExportEntry> MainView::arrayWithDataForExport() const
{
    std::vector<ExportEntry> entries;
    for (const FilelistItemPtr &file : _arranged.files()) {
        if (const QuorvinDataPtr record = file->quorvinData())
            entries.push_back({file->filename(), file->prefixedPath(), record});
    }
    return entries;
}

void MainView::changeCurrentFile(const std::function<Expected<void>(const QString &)> &change)
{
    const FilelistItemPtr file = _worker.currentFile();
    if (!file)
        return;
    runInBackground(
        this, "FileChange", [change, path = file->filename()](const RunControl &) { return change(path); },
        [this, file](const Expected<void> &changed) {
            _status->setProblem(changed ? QString() : changed.error().description);
            if (changed && !_isWindowClosing)
                reprocess(file);
        });
}

void MainView::reprocess(const FilelistItemPtr &file)
{
    file->setIsDone(false);
    file->releaseQuorvinData();
    startDelayedWorkingAnimation(file);
    _worker.dataCacher()->processFileFirstly(file);
}

bool MainView::canExport() const
{
    return _worker.currentQuorvinData() != nullptr;
}

bool MainView::canExportAll() const
{
    return _worker.processingIsDone() && !_filelist.empty();
}

void MainView::refreshInfo()
{
    for (const int row : _table->selectedRows()) {
        const FilelistItemPtr file = _arranged.fileAt(row);
        file->resetQuorvinData();
        _arranged.rowsChanged(row, row);
        if (file == _worker.currentFile()) {
            _info->clear();
            startDelayedWorkingAnimation(file);
        }
        _worker.dataCacher()->processFileFirstly(file);
    }
    Q_EMIT stateDidChange();
}

void MainView::removeSelectedItems()
{
    const std::vector<int> rows = _table->selectedRows();
    if (rows.empty())
        return;
    std::vector<FilelistItemPtr> removed = _arranged.removeFiles(rows);
    const std::unordered_set<FilelistItemPtr> gone(removed.begin(), removed.end());
    std::erase_if(_filelist, [&](const FilelistItemPtr &file) { return gone.contains(file); });
    for (const FilelistItemPtr &file : removed)
        _worker.fileIsRemoved(file);
    _worker.isTotalDurationChanged = true;
    arrangedObjectsDidChange();
    if (_arranged.rowCount() > 0)
        _table->selectRow(std::min(rows.front(), _arranged.rowCount() - 1));
    else
        showFileAtIndex(-1);
    disposeElsewhere(std::move(removed));
}

void MainView::copyGeneralInfo() const
{
    const QuorvinDataPtr record = _worker.currentQuorvinData();
    if (!record)
        return;
    const QString name = lastPathComponent(record->filename());
    QGuiApplication::clipboard()->setText(
        QStringLiteral("%1\n%2\n%3").arg(name, QString(name.size(), u'-'), record->stringForExportGeneral()));
}

std::vector<MapLocationInfo> MainView::allMapLocationInfo() const
{
    std::vector<MapLocationInfo> all;
    for (std::size_t i = 0; i < _arranged.files().size(); ++i) {
        if (auto info = _arranged.files()[i]->mapLocationInfo()) {
            info->lastIndexInList = i;
            all.push_back(*info);
        }
    }
    return all;
}

void MainView::selectFileByMapLocationInfo(const MapLocationInfo &info)
{
    const int row = static_cast<int>(info.lastIndexInList.value_or(0));
    if (row == _table->selectedRow())
        return;
    const FilelistItemPtr file = _arranged.fileAt(row);
    if (file && file->filename() == info.filename)
        _table->selectRow(row);
    else
        qCInfo(lcQuorvin) << "not found by last known index";
}

void MainView::setWindowIsClosing()
{
    _walks.cancel();
    if (_worker.dataCacher())
        _worker.dataCacher()->cancelThreadsAndWait();
    _isWindowClosing = true;
}

} // namespace quorvin
