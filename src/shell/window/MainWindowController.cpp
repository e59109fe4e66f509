// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/MainWindowController.h"

#include "places/Projection.h"
#include "platform/NativePath.h"
#include "shell/commands/CommandSet.h"
#include "shell/compare/ComparisonView.h"
#include "shell/desktop/Counts.h"
#include "shell/exporting/ExportController.h"
#include "shell/filelist/FilelistDrags.h"
#include "shell/filelist/FilelistTable.h"
#include "shell/info/InfoView.h"
#include "shell/session/Session.h"
#include "shell/window/ChartCommands.h"
#include "shell/window/CompareCommands.h"
#include "shell/window/CopyDrops.h"
#include "shell/window/DropHint.h"
#include "shell/window/FileCommands.h"
#include "shell/window/FilterCommands.h"
#include "shell/window/FindCommands.h"
#include "shell/window/ListCommands.h"
#include "shell/window/MainView.h"
#include "shell/window/MenuKeys.h"
#include "shell/window/MissingFiles.h"
#include "shell/window/OpenPanels.h"
#include "shell/window/OpenWithMenu.h"
#include "shell/window/ProjectMarks.h"
#include "shell/window/QuickInfo.h"
#include "shell/window/RemovalCommands.h"
#include "shell/window/SidebarSplitView.h"
#include "shell/window/StatusLine.h"
#include "shell/window/TabSidebars.h"
#include "shell/window/ToolBar.h"
#include "shell/window/WindowFrame.h"
#include "shell/window/WindowProject.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDropEvent>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>

namespace quorvin {

namespace {

constexpr int kMinimumHeight = 360;
constexpr int kSidebarStep = 16; ///< that a key makes the list wider or narrower

} // namespace

MainWindowController::MainWindowController(Session &session)
    : _session(session),
      _files(session.settings),
      _view(new MainView(session.settings, _files)),
      _sidebars(new TabSidebars(_view->sidebar(), session.settings)),
      _commands(new CommandSet(this, &_view->table())),
      _fileCommands(new FileCommands(session, *_view, _files, this)),
      _quickInfo(new QuickInfo(_files, session.settings, _view->table(), this)),
      _export(new ExportController(session.settings, this)),
      _listCommands(new ListCommands(*_view, _files, *_export, this)),
      _compare(new CompareCommands(session.settings, *_view, _files, this)),
      _project(new WindowProject(session, *_view, _files, this)),
      _filterCommands(new FilterCommands(session.settings, *_view, _files, this)),
      _drags(new FilelistDrags(_files, session, this)),
      _dropHint(new DropHint(_view)),
      _frame(new WindowFrame(*this, session.settings))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setAcceptDrops(true);
    new CopyDrops(this);
    _view->table().setDrags(*_drags);
    new FindCommands(*_view, _files, this);
    connect(_drags, &FilelistDrags::hintDidChange, _dropHint, &DropHint::tell);
    _drags->setReplacing([this](const auto &replace) { _project->afterSaving(replace); });
    setCentralWidget(_view);
    setUpCommands();
    auto *bar = new ToolBar(*_commands);
    addToolBar(bar);
    _filterCommands->follow(bar->globalSearchField());
    // Readers go by this order: menus and tool bar come before the content.
    _view->raise();
    connectView();
    connectExport();
    new MenuKeys(this);
    setMinimumHeight(kMinimumHeight);
    _frame->restore();
    updateWindowTitle();
    validateCommands();
    _view->table().setFocus();
}

MainWindowController::~MainWindowController()
{
    windowWillClose();
    delete takeCentralWidget();
}

void MainWindowController::setUpCommands()
{
    _commands->fillMenuBar(menuBar());
    auto *panels = new OpenPanels(_session, this);
    connect(panels, &OpenPanels::chosen, this, &MainWindowController::processUrls);
    connect(panels, &OpenPanels::chosenToAdd, &_files, &FilelistController::processAdditionalFiles);
    panels->registerAt(*_commands);
    _view->info().registerAt(*_commands);
    _fileCommands->registerAt(*_commands);
    connect(_fileCommands, &FileCommands::temporaryFilesSaved, this,
            &MainWindowController::temporaryFilesSaved);
    _openWith = new OpenWithMenu(_view->statusLine(), this);
    _commands->menu(CommandMenu::File)->insertMenu(_commands->action(Command::revealInFinder), _openWith);
    _listCommands->registerAt(*_commands);
    _compare->registerAt(*_commands);
    _filterCommands->registerAt(*_commands);
    _quickInfo->registerAt(*_commands);
    _project->registerAt(*_commands);
    new ProjectMarks(*_project, *_view, _files, *_commands);
    new MissingFiles(*_project, _session.settings, *_view, _files, *_commands);
    new RemovalCommands(_session.settings, *_view, _files, *_commands, this);
    new ChartCommands(_session.settings, *_view, _files, *_commands, this);
    registerCommands();
    connect(_commands, &CommandSet::didRun, this, &MainWindowController::validateCommands);
}

void MainWindowController::registerCommands()
{
    const auto on = [this](Command command, auto handler) { _commands->on(command, std::move(handler)); };
    on(Command::refreshInfo, [this] { _files.refreshInfo(); });
    on(Command::refreshAll, [this] { _files.refreshAll(); });
    on(Command::stopReading, [this] { _files.stopReading(); });
    on(Command::cancelWalks, [this] { _files.walks().cancel(); });
    on(Command::undoRemoval, [this] { _files.undoRemoval(); });
    on(Command::selectNextFailed, [this] { _files.selectNextFailed(); });
    on(Command::removeSelectedItems, [this] { _files.removeSelectedItems(); });
    on(Command::closeWindow, [this] { close(); });
    on(Command::copy, [this] { copy(); });
    on(Command::selectGeneralTab, [this] { setCurrentTab(Tab::General); });
    on(Command::selectExtendedTab, [this] { setCurrentTab(Tab::Extended); });
    on(Command::selectComparisonTab, [this] { setCurrentTab(Tab::Comparison); });
    on(Command::selectCustomTab, [this] { setCurrentTab(Tab::Custom); });
    on(Command::selectPreviousTab, [this] { setCurrentTab(tabBeside(currentTab(), -1)); });
    on(Command::selectNextTab, [this] { setCurrentTab(tabBeside(currentTab(), 1)); });
    on(Command::toggleSidebar, [this] { _sidebars->toggle(); });
    on(Command::widenSidebar, [this] { _view->sidebar().widen(kSidebarStep); });
    on(Command::narrowSidebar, [this] { _view->sidebar().widen(-kSidebarStep); });
    on(Command::clickWrapLongLines, [this] { _session.settings.toggle(Setting::wrapLongLines); });
    on(Command::toggleFullScreen, [this] { setWindowState(windowState() ^ Qt::WindowFullScreen); });
}

void MainWindowController::connectView()
{
    connect(&_files, &FilelistController::currentFileDidChange, this,
            &MainWindowController::updateWindowTitle);
    connect(&_files, &FilelistController::stateDidChange, this, &MainWindowController::validateCommands);
    connect(_quickInfo, &QuickInfo::stateDidChange, this, &MainWindowController::validateCommands);
    for (const auto signal : {&BackgroundRunBase::started, &BackgroundRunBase::ended})
        connect(&_files.walks().run(), signal, this, &MainWindowController::validateCommands);
    connect(&_files, &FilelistController::filesTaken, this,
            [this](const QStringList &paths) { _session.recentFiles.note(paths); });
    connect(&_view->sidebar(), &SidebarSplitView::collapsedChanged, this,
            &MainWindowController::validateCommands);
    connect(qApp, &QApplication::focusChanged, this, &MainWindowController::validateCommands);
    connect(&_session.settings, &LiveSettings::changed, this, [this](Setting setting) {
        if (setting == Setting::wrapLongLines)
            validateCommands();
    });
    InfoView &info = _view->info();
    connect(&info, &InfoView::preferencesWanted, this, [this] { _commands->run(Command::openPreferences); });
    connect(&info, &InfoView::selectionDidChange, this, &MainWindowController::validateCommands);
    connect(_compare, &CompareCommands::stateDidChange, this, &MainWindowController::validateCommands);
    connect(_compare, &CompareCommands::extendedTabWanted, this, [this] { setCurrentTab(Tab::Extended); });
    connect(&info, &InfoView::openWanted, this, [this] { _commands->run(Command::openFile); });
    connect(&info, &InfoView::tabWanted, this, &MainWindowController::setCurrentTab);
    connect(_project, &WindowProject::tabWanted, this, &MainWindowController::setCurrentTab);
    connect(_project, &WindowProject::closeWanted, this, &QWidget::close);
    connect(_project, &WindowProject::didChange, this, &MainWindowController::updateWindowTitle);
    connect(_project, &WindowProject::didChange, this, &MainWindowController::validateCommands);
    connect(&info, &InfoView::menuWanted, this,
            [this](CommandPlace place, const QPoint &where) { showMenu(place, where); });
}

void MainWindowController::connectExport()
{
    BackgroundRunBase &run = _export->run();
    _view->statusLine().follow(
        run,
        {tr("Stop the export; no half document stays"),
         [](int done, int total) {
             return tr("Exporting: %1 of %2").arg(groupedCount(done), groupedCount(total));
         },
         [&run] { run.cancel(); }});
    for (const auto signal : {&BackgroundRunBase::started, &BackgroundRunBase::ended})
        connect(&run, signal, this, &MainWindowController::validateCommands);
}

void MainWindowController::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    if (std::exchange(_wasShown, true))
        return;
    layout()->activate();
    _view->layout()->activate();
    _sidebars->restoreWidth();
    _frame->windowDidShow();
}

bool MainWindowController::isUntouched() const
{
    return _files.isUntouched() && !_project->isOpening() && _project->name().isEmpty();
}

void MainWindowController::placeBeside(const QWidget &before)
{
    _frame->placeBeside(before);
}

Tab MainWindowController::currentTab() const
{
    return _view->info().currentTab();
}

const ComparisonRow *MainWindowController::comparisonSelectionInfo() const
{
    const bool isLookedAt = currentTab() == Tab::Comparison;
    return isLookedAt ? _view->info().comparison().extComparisonSelectionInfo() : nullptr;
}

void MainWindowController::setCurrentTab(Tab tab)
{
    if (tab == currentTab())
        return;
    _sidebars->tabWillChange(tab);
    _view->info().setCurrentTab(tab);
    validateCommands();
}

void MainWindowController::processUrls(const QStringList &paths)
{
    QTimer::singleShot(0, &_files,
                       [this, paths] { _project->afterSaving([=, this] { _files.processFiles(paths); }); });
}

CommandState MainWindowController::commandState() const
{
    const InfoView &info = _view->info();
    CommandState state;
    state.hasFiles = _files.arranged().rowCount() > 0;
    state.hasCurrentFile = worker().currentFile() != nullptr;
    const auto place = worker().currentMapLocationInfo();
    state.hasPlace = place && isPossible(place->location);
    state.hasRecord = _files.canExport();
    state.hasFailed = worker().countFailed() > 0;
    state.isReading = _files.isReading();
    state.isWalking = _files.isWalking();
    state.canUndoRemoval = _files.canUndoRemoval();
    state.canCopy = _keyboard.canCopy;
    state.listHasKeyboard = _keyboard.isInList;
    state.sidebarIsCollapsed = _view->sidebar().isCollapsed();
    state.wrapLongLines = _session.settings.boolean(Setting::wrapLongLines);
    state.isFullScreen = isFullScreen();
    state.currentTab = info.currentTab();
    info.describe(state);
    _fileCommands->describe(state);
    _quickInfo->describe(state);
    _project->describe(state);
    _listCommands->describe(state);
    _compare->describe(state);
    _filterCommands->describe(state);
    return state;
}

void MainWindowController::validateCommands()
{
    if (_isClosed)
        return;
    // The menu bar takes the keyboard only to give it back; its commands are meant for who had it.
    if (!qobject_cast<QMenuBar *>(QApplication::focusWidget())) {
        _keyboard.isInList = _view->table().hasFocus();
        _keyboard.canCopy = _keyboard.isInList ? _files.arranged().rowCount() > 0 : _view->info().canCopy();
        if (_quickInfo->hasKeyboard())
            _keyboard.canCopy = _quickInfo->canCopy();
    }
    const QuorvinDataPtr record = worker().currentQuorvinData();
    _openWith->setFile(worker().currentFilePath(),
                       record ? record->generalInfo().fileUTI.value_or(QString()) : QString());
    _commands->validate(commandState());
}

void MainWindowController::copy()
{
    if (_quickInfo->hasKeyboard())
        _quickInfo->copy();
    else if (_keyboard.isInList)
        _view->table().copy();
    else
        _view->info().copy();
}

void MainWindowController::showMenu(CommandPlace place, const QPoint &globalPosition)
{
    validateCommands();
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    _commands->fillMenu(menu, place);
    menu->popup(globalPosition);
}

void MainWindowController::updateWindowTitle()
{
    const auto path = worker().currentFilePath();
    setWindowFilePath(path.value_or(QString()));
    const QString name = path ? lastPathComponent(*path) : QStringLiteral("Quorvin");
    const bool hasProject = path && !_project->name().isEmpty();
    setWindowTitle(hasProject ? QStringLiteral("%1 — %2").arg(name, _project->name()) : name);
}

void MainWindowController::dragEnterEvent(QDragEnterEvent *event)
{
    dragMoveEvent(event);
}

void MainWindowController::dragMoveEvent(QDragMoveEvent *event)
{
    answerDrop(*event);
}

void MainWindowController::answerDrop(QDropEvent &event) const
{
    const DropPlan plan = _drags->planFor(*event.mimeData(), event.modifiers());
    // Beside the list there is no place between two of its rows.
    const bool isAccepted = plan.isAccepted && !plan.reorders;
    _dropHint->tell(isAccepted ? FilelistDrags::hintFor(plan) : QString());
    // Always a copy: nobody is to take a file away because it was shown here.
    event.setDropAction(Qt::CopyAction);
    event.setAccepted(isAccepted && event.dropAction() == Qt::CopyAction);
}

void MainWindowController::dragLeaveEvent(QDragLeaveEvent *)
{
    _dropHint->tell({});
}

void MainWindowController::dropEvent(QDropEvent *event)
{
    answerDrop(*event);
    _dropHint->tell({});
    if (event->isAccepted())
        _drags->drop(*event->mimeData(), event->modifiers(), FilelistDrags::kNoRow);
}

void MainWindowController::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && _wasShown)
        validateCommands();
}

void MainWindowController::closeEvent(QCloseEvent *event)
{
    if (!_isClosed && !_project->mayClose())
        return event->ignore();
    windowWillClose();
    QMainWindow::closeEvent(event);
}

void MainWindowController::windowWillClose()
{
    if (std::exchange(_isClosed, true))
        return;
    hide();
    _quickInfo->close();
    _sidebars->save();
    _frame->save();
    disconnect(qApp, nullptr, this, nullptr);
    _export->run().cancel();
    _files.setWindowIsClosing();
    Q_EMIT closed(this);
}

} // namespace quorvin
