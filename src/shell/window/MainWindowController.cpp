// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/MainWindowController.h"

#include "platform/FileUri.h"
#include "platform/NativePath.h"
#include "shell/app/AppController.h"
#include "shell/commands/CommandSet.h"
#include "shell/exporting/ExportController.h"
#include "shell/filelist/FilelistTable.h"
#include "shell/info/InfoView.h"
#include "shell/window/MainView.h"
#include "shell/window/SidebarSplitView.h"
#include "shell/window/StatusLine.h"
#include "shell/window/TabSelector.h"
#include "shell/window/WorkNote.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QShortcut>
#include <QTimer>
#include <QToolBar>

namespace quorvin {

namespace {

constexpr QSize kFirstSize(1000, 680);
constexpr int kMinimumHeight = 360;
constexpr int kCascade = 28;
constexpr int kDropMilliseconds = 100; ///< so that the drag ends first
constexpr QLatin1String kFilelistType("QuorvinFilelistPBoardType");

QWidget *expandingSpace()
{
    auto *space = new QWidget;
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    return space;
}

} // namespace

MainWindowController::MainWindowController(AppController &application)
    : _application(application),
      _view(new MainView(application, _worker)),
      _commands(new CommandSet(this, &_view->table())),
      _export(new ExportController(application.settings(), this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setAcceptDrops(true);
    setCentralWidget(_view);
    setUpMenus();
    setUpToolBar();
    connectView();
    connectExport();
    connect(new QShortcut(QKeySequence(Qt::SHIFT | Qt::Key_F10), this), &QShortcut::activated, this, [] {
        if (QWidget *focus = QApplication::focusWidget()) {
            QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), focus->mapToGlobal(QPoint()));
            QApplication::sendEvent(focus, &event);
        }
    });
    setMinimumHeight(kMinimumHeight);
    restoreFrame();
    const Settings &settings = _application.settings();
    _view->sidebar().setSidebarPosition(settings.integer(Setting::sidebarPos));
    if (settings.boolean(Setting::sidebarIsHidden)) {
        _view->sidebar().hideSidebarWithoutAnimation();
        _openSidebar = false;
    }
    updateWindowTitle();
    validateCommands();
    _view->table().setFocus();
}

MainWindowController::~MainWindowController()
{
    windowWillClose();
    delete takeCentralWidget();
}

void MainWindowController::setUpMenus()
{
    _commands->fillMenuBar(menuBar());
    QMenu *file = _commands->menu(CommandMenu::File);
    auto *recent = new QMenu(tr("Open &Recent"), file);
    file->insertMenu(_commands->action(Command::addFile), recent);
    connect(recent, &QMenu::aboutToShow, this, [this, recent] { fillRecentMenu(recent); });
    connect(_commands, &CommandSet::triggered, this, &MainWindowController::run);
}

void MainWindowController::setUpToolBar()
{
    QToolBar *bar = addToolBar(tr("Tool Bar"));
    bar->setObjectName(QStringLiteral("toolbar"));
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    bar->setToolButtonStyle(Qt::ToolButtonIconOnly);
    bar->setIconSize(QSize(18, 18));
    const auto actions = _commands->actionsAt(CommandPlace::ToolBar);
    bar->addAction(_commands->action(Command::toggleSidebar));
    for (QAction *action : actions) {
        if (action != _commands->action(Command::toggleSidebar))
            bar->addAction(action);
    }
    bar->addWidget(expandingSpace());
    bar->addWidget(new TabSelector(_commands->actionsAt(CommandPlace::TabSelector)));
    bar->addWidget(expandingSpace());
}

void MainWindowController::connectView()
{
    connect(_view, &MainView::workerFileDidChange, this, &MainWindowController::updateWindowTitle);
    connect(_view, &MainView::stateDidChange, this, &MainWindowController::validateCommands);
    connect(&_view->sidebar(), &SidebarSplitView::collapsedChanged, this,
            &MainWindowController::validateCommands);
    connect(qApp, &QApplication::focusChanged, this, &MainWindowController::validateCommands);
    connect(&_application, &AppController::settingDidChange, this, &MainWindowController::settingDidChange);
    InfoView &info = _view->info();
    connect(&info, &InfoView::openWanted, this, [this] { run(Command::openFile); });
    connect(&info, &InfoView::tabWanted, this, &MainWindowController::setCurrentTab);
    connect(&info, &InfoView::menuWanted, this,
            [this](const QPoint &where) { showMenu(CommandPlace::TreeMenu, where); });
    connect(&_view->table(), &FilelistTable::menuWanted, this,
            [this](const QPoint &where) { showMenu(CommandPlace::FileMenu, where); });
}

void MainWindowController::connectExport()
{
    ExportRun &run = _export->run();
    WorkNote &note = _view->statusLine().exporting();
    connect(&run, &ExportRun::started, &note, &WorkNote::start);
    connect(&run, &ExportRun::progressed, &note,
            [&note, &run](int done) { note.setText(tr("Exporting: %1 of %2").arg(done).arg(run.count())); });
    connect(&run, &ExportRun::ended, &note, &WorkNote::end);
    connect(&note, &WorkNote::cancelled, &run, &ExportRun::cancel);
    connect(&note, &WorkNote::cancelled, &note, &WorkNote::end);
    for (const auto signal : {&WorkNote::started, &WorkNote::ended})
        connect(&note, signal, this, &MainWindowController::validateCommands);
}

void MainWindowController::restoreFrame()
{
    resize(kFirstSize.boundedTo(screen()->availableSize()));
    const QByteArray frame
        = QByteArray::fromBase64(_application.settings().string(Setting::mainWindowFrame).toLatin1());
    if (!frame.isEmpty())
        restoreGeometry(frame);
    // A further window does not hide the one before.
    if (!_application.windows().empty() && !isMaximized() && !isFullScreen())
        move(_application.windows().back()->pos() + QPoint(kCascade, kCascade));
}

void MainWindowController::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    if (std::exchange(_wasShown, true))
        return;
    layout()->activate();
    _view->layout()->activate();
    _view->sidebar().setSidebarWidth(_application.settings().real(Setting::sidebarWidth));
}

int MainWindowController::currentTab() const
{
    return _view->info().currentTab();
}

void MainWindowController::setCurrentTab(int tab)
{
    const int wanted = tab >= 0 && tab < InfoView::TabCount ? tab : 0;
    if (wanted == currentTab())
        return;
    SidebarSplitView &sidebar = _view->sidebar();
    if (sidebar.isCollapsed() || currentTab() == InfoView::Comparison)
        _openSidebarForComparison = !sidebar.isCollapsed();
    if (wanted == InfoView::Comparison ? _openSidebarForComparison : _openSidebar)
        sidebar.showSidebarWithoutAnimation();
    else
        sidebar.hideSidebarWithoutAnimation();
    _view->info().setCurrentTab(wanted);
    validateCommands();
}

bool MainWindowController::isUntouched() const
{
    return _worker.countToProcess() == 0 && _worker.countProcessed() == 0 && !_view->isWalking();
}

void MainWindowController::processUrls(const QStringList &paths)
{
    QTimer::singleShot(0, _view, [view = _view, paths] { view->processFiles(paths); });
}

void MainWindowController::updateWindowTitle()
{
    const auto path = _worker.currentFilePath();
    setWindowFilePath(path.value_or(QString()));
    setWindowTitle(path ? lastPathComponent(*path) : QStringLiteral("Quorvin"));
}

void MainWindowController::settingDidChange(Setting setting)
{
    if (setting == Setting::recentFiles)
        return;
    _view->info().applySettings();
    _view->sidebar().setSidebarPosition(_application.settings().integer(Setting::sidebarPos));
    validateCommands();
}

void MainWindowController::dragEnterEvent(QDragEnterEvent *event)
{
    dragMoveEvent(event);
}

void MainWindowController::dragMoveEvent(QDragMoveEvent *event)
{
    const bool isOwnList
        = event->mimeData()->hasFormat(kFilelistType) && _application.draggingSourceWindow == this;
    if (isOwnList || !event->mimeData()->hasUrls())
        return event->ignore();
    // Always a copy: nobody is to take a file away because it was shown here.
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

void MainWindowController::dropEvent(QDropEvent *event)
{
    const QStringList paths = pathsFromUriList(event->mimeData()->data(QStringLiteral("text/uri-list")));
    const bool replaces = event->modifiers().testFlag(Qt::ShiftModifier);
    event->setDropAction(Qt::CopyAction);
    event->accept();
    _application.draggingSourceWindow = nullptr;
    if (paths.isEmpty())
        return;
    QTimer::singleShot(kDropMilliseconds, _view, [view = _view, paths, replaces] {
        if (replaces)
            view->processFiles(paths);
        else
            view->processAdditionalFilesAndSelectFirst(paths);
    });
}

void MainWindowController::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && _wasShown)
        validateCommands();
}

void MainWindowController::closeEvent(QCloseEvent *event)
{
    windowWillClose();
    QMainWindow::closeEvent(event);
}

void MainWindowController::windowWillClose()
{
    if (std::exchange(_isClosed, true))
        return;
    hide();
    Settings &settings = _application.settings();
    settings.set(Setting::sidebarWidth, double(_view->sidebar().sidebarWidth()));
    settings.set(Setting::sidebarIsHidden, !_openSidebar);
    settings.set(Setting::mainWindowFrame, QString::fromLatin1(saveGeometry().toBase64()));
    disconnect(qApp, nullptr, this, nullptr);
    _export->run().cancel();
    _view->setWindowIsClosing();
    _application.windowClosed(this);
}

} // namespace quorvin
