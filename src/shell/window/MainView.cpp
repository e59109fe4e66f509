// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/MainView.h"

#include "platform/NativePath.h"
#include "shell/desktop/AccessibleRole.h"
#include "shell/desktop/Counts.h"
#include "shell/desktop/PlainText.h"
#include "shell/filelist/FilelistController.h"
#include "shell/filelist/FilelistPane.h"
#include "shell/filelist/FilelistTable.h"
#include "shell/filelist/SelectionSum.h"
#include "shell/info/InfoView.h"
#include "shell/window/ExifToolNotice.h"
#include "shell/window/FocusKeeper.h"
#include "shell/window/PlaceNote.h"
#include "shell/window/SidebarSplitView.h"
#include "shell/window/StatusLine.h"

#include <QFrame>
#include <QVBoxLayout>

namespace quorvin {

namespace {

constexpr int kWalkMilliseconds = 400; ///< from then on a walk is worth a word
constexpr int kMostLines = 30; ///< of a message

} // namespace

MainView::MainView(LiveSettings &settings, FilelistController &files, QWidget *parent)
    : QWidget(parent),
      _files(files),
      _table(new FilelistTable(files.arranged(), files.selection())),
      _list(new FilelistPane(files, _table)),
      _info(new InfoView(settings)),
      _sidebar(new SidebarSplitView(_list, _info)),
      _status(new StatusLine),
      _sum(new SelectionSum(files, this))
{
    new FocusKeeper(_table, _info);
    layOut();
    connectFiles();
    connectWalks();
    new PlaceNote(files, *_status, this);
    new ExifToolNotice(
        files, *_status, [info = _info] { Q_EMIT info->preferencesWanted(); }, this);
}

void MainView::layOut()
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(_sidebar, 1);
    auto *line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    line->setForegroundRole(QPalette::Mid);
    setAccessibleRole(line, QAccessible::Separator);
    column->addWidget(line);
    column->addWidget(_status);
}

void MainView::connectFiles()
{
    connect(&_files, &FilelistController::currentFileDidChange, this, &MainView::showCurrentFile);
    connect(&_files.currentFileWait(), &CurrentFileWait::changed, this, &MainView::showWait);
    connect(_info, &InfoView::skipWanted, &_files.currentFileWait(), &CurrentFileWait::skip);
    connect(&_files, &FilelistController::currentFileIsReady, this, [this](bool isFresh) {
        if (isFresh)
            showCurrentResult();
    });
    connect(&_files, &FilelistController::currentFileWasChanged, this,
            [this](const QString &problem) { _status->say(problem); });
    connect(&_files, &FilelistController::totalsDidChange, this, &MainView::showTotals);
    connect(&_files.selection(), &QItemSelectionModel::selectionChanged, this,
            [this] { _status->setSelectedCount(_files.selectedCount()); });
    connect(_sum, &SelectionSum::changed, this, [this] { _info->showSum(_sum->sum()); });
    connect(_status, &StatusLine::nextFailedWanted, &_files, &FilelistController::selectNextFailed);
    connect(_status, &StatusLine::stopWanted, &_files, &FilelistController::stopReading);
    connect(&_files, &FilelistController::readingDidStop, this, &MainView::tellStop);
    connect(_info, &InfoView::retryWanted, &_files, &FilelistController::refreshInfo);
}

void MainView::connectWalks()
{
    FolderWalks &walks = _files.walks();
    _status->follow(walks.run(),
                    {tr("Stop looking for files; the list stays as it is"),
                     [](int found, int) { return tr("Looking for files: %1").arg(groupedCount(found)); },
                     [&walks] { walks.cancel(); }});
    const BackgroundRunBase &run = walks.run();
    _walkDelay.setSingleShot(true);
    _walkDelay.setInterval(kWalkMilliseconds);
    connect(&_walkDelay, &QTimer::timeout, this, [this, &run] { _info->showWalk(run.done()); });
    connect(&run, &BackgroundRunBase::started, &_walkDelay, qOverload<>(&QTimer::start));
    connect(&run, &BackgroundRunBase::progressed, this, [this](int found) {
        if (!_walkDelay.isActive())
            _info->showWalk(found);
    });
    connect(&run, &BackgroundRunBase::ended, this, [this] {
        _walkDelay.stop();
        _info->stopWalk();
    });
    connect(_info, &InfoView::cancelWalkWanted, this, [&walks] { walks.cancel(); });
    connect(&walks, &FolderWalks::walked, this, &MainView::tellWalk);
}

void MainView::tellWalk(const QStringList &paths, std::size_t files,
                        const std::vector<FilelistFiller::Problem> &problems)
{
    if (!problems.empty()) {
        const auto count = static_cast<qint64>(problems.size());
        const QString text = count == 1 ? tr("1 folder could not be read")
                                        : tr("%1 folders could not be read").arg(groupedCount(count));
        QStringList lines;
        for (const FilelistFiller::Problem &problem : problems) {
            if (lines.size() < kMostLines)
                lines.append(tr("%1: %2").arg(problem.path, problem.reason));
        }
        if (count > kMostLines)
            lines.append(tr("and %1 more").arg(groupedCount(count - kMostLines)));
        _status->say(text, tr("Show…"), [this, text, lines] {
            plainMessage(window(), tr("Folders"), text, lines.join(u'\n'), QMessageBox::Close)->open();
        });
    } else if (files == 0 && paths.size() == 1) {
        _status->say(tr("There are no files in “%1”").arg(lastPathComponent(paths.front())));
    } else if (files == 0 && !paths.isEmpty()) {
        _status->say(tr("There are no files in these folders"));
    }
}

void MainView::tellStop()
{
    const qint64 unread = _files.worker().countUnread();
    if (unread > 0)
        _status->say(tr("Reading was stopped: %1 not read").arg(countOfFiles(unread)), tr("Go On"),
                     [this] { _files.goOn(); });
}

void MainView::showCurrentFile()
{
    const FilelistItemPtr &file = _files.worker().currentFile();
    if (!file)
        showNoFile();
    else if (file->isFailed() || file->quorvinData())
        showCurrentResult();
    else if (_files.worker().isUnread(file))
        _info->showUnread();
    else
        _info->clear();
}

void MainView::showNoFile()
{
    if (_files.filelist().empty())
        _info->showNoFile();
    else
        _info->showNothingPasses(_list->filterTexts(), _files.isReading());
}

void MainView::showCurrentResult()
{
    const FilelistItemPtr &file = _files.worker().currentFile();
    if (const QuorvinDataPtr record = file->quorvinData())
        _info->showRecord(record);
    else
        _info->showFailure(file->filename(), file->error().value_or(Error()));
}

void MainView::showWait()
{
    const CurrentFileWait &wait = _files.currentFileWait();
    if (wait.stage() == CurrentFileWait::None)
        return _info->stopWaiting();
    const bool isLong = wait.stage() == CurrentFileWait::Long;
    _info->showWait(lastPathComponent(wait.file()->filename()),
                    isLong ? std::optional(wait.seconds()) : std::nullopt, wait.file()->digestProgress());
}

void MainView::showTotals()
{
    _status->setTotals(_files.totals());
    _status->setProgress(_files.worker());
    if (!_files.worker().currentFile())
        showNoFile();
}

} // namespace quorvin
