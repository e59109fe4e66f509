// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What the commands of a window do.

#include "filefacts/ExtendedAttributes.h"
#include "platform/NativePath.h"
#include "shell/app/AppController.h"
#include "shell/commands/CommandSet.h"
#include "shell/desktop/FileManager.h"
#include "shell/exporting/ExportController.h"
#include "shell/filelist/FilelistTable.h"
#include "shell/info/FileKeys.h"
#include "shell/info/InfoView.h"
#include "shell/outline/ExtendedOutline.h"
#include "shell/window/MainView.h"
#include "shell/window/MainWindowController.h"
#include "shell/window/SidebarSplitView.h"

#include <QAction>
#include <QFileDialog>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>

#include <functional>
#include <map>

namespace quorvin {

namespace {

std::optional<QString> problemOf(const tl::expected<void, Error> &result)
{
    return result ? std::nullopt : std::optional(result.error().description);
}

} // namespace

CommandState MainWindowController::commandState() const
{
    const InfoView &info = _view->info();
    CommandState state;
    state.hasFiles = _view->arranged().rowCount() > 0;
    state.hasCurrentFile = _worker.currentFile() != nullptr;
    state.hasRecord = _view->canExport();
    state.canExportAll = _view->canExportAll() && !_export->run().isUnderWay();
    state.canCopy = info.canCopy() || (_view->table().hasFocus() && state.hasFiles);
    state.sidebarIsCollapsed = _view->sidebar().isCollapsed();
    state.wrapLongLines = _application.settings().boolean(Setting::wrapLongLines);
    state.isFullScreen = isFullScreen();
    state.currentTab = info.currentTab();
    const ExtTreeItem *row = state.hasRecord && state.currentTab == InfoView::Extended
        ? _view->info().outline().selectedItem()
        : nullptr;
    const QString key = row ? row->key().value_or(QString()) : QString();
    state.selectsAttribute = attributeOfKey(key).has_value();
    state.selectsDate = isTouchDateKey(key);
    return state;
}

void MainWindowController::validateCommands()
{
    _commands->validate(commandState());
}

void MainWindowController::run(Command command)
{
    InfoView &info = _view->info();
    const auto tab = [this](int index) { return [this, index] { setCurrentTab(index); }; };
    const std::map<Command, std::function<void()>> actions{
        {Command::openEmptyWindow, [this] { _application.openEmptyWindow(); }},
        {Command::openFile, [this] { chooseFiles(tr("Open"), false); }},
        {Command::openDirectory, [this] { openDirectory(); }},
        {Command::addFile, [this] { chooseFiles(tr("Add Files"), true); }},
        {Command::openFileInNewWindow, [this] { _application.openFileInNewWindow(); }},
        {Command::refreshInfo, [this] { _view->refreshInfo(); }},
        {Command::revealInFinder, [this] { revealInFinder(); }},
        {Command::menuExportNew, [this] { _export->menuExportNew(_view->arrayWithDataForExport()); }},
        {Command::closeWindow, [this] { close(); }},
        {Command::quit, [this] { _application.quit(); }},
        {Command::copy, [this] { copy(); }},
        {Command::copyGeneralInfo, [this] { _view->copyGeneralInfo(); }},
        {Command::selectAll, [&info] { info.outline().selectAll(); }},
        {Command::removeSelectedItems, [this] { _view->removeSelectedItems(); }},
        {Command::openPreferences, [this] { _application.openPreferences(); }},
        {Command::selectGeneralTab, tab(InfoView::General)},
        {Command::selectExtendedTab, tab(InfoView::Extended)},
        {Command::selectComparisonTab, tab(InfoView::Comparison)},
        {Command::selectCustomTab, tab(InfoView::Custom)},
        {Command::toggleSidebar, [this] { toggleSidebar(); }},
        {Command::clickWrapLongLines,
         [this] {
             const bool wraps = _application.settings().boolean(Setting::wrapLongLines);
             _application.setSetting(Setting::wrapLongLines, !wraps);
         }},
        {Command::expandAll, [&info] { info.outline().expandAllIn(); }},
        {Command::collapseAll, [&info] { info.outline().collapseAllIn(); }},
        {Command::removeExtendedAttribute, [this] { removeExtendedAttribute(); }},
        {Command::touchDate, [this] { touchDate(); }},
        {Command::toggleFullScreen, [this] { setWindowState(windowState() ^ Qt::WindowFullScreen); }},
        {Command::openAcknowledgments, [this] { _application.openAcknowledgments(); }},
        {Command::openAboutPanel, [this] { _application.openAboutPanel(this); }},
    };
    if (_commands->action(command)->isEnabled())
        actions.at(command)();
    // A switch that was clicked shows what is, not what was clicked.
    if (!_isClosed)
        validateCommands();
}

void MainWindowController::chooseFiles(const QString &title, bool adds)
{
    auto *dialog = new QFileDialog(this, title);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    dialog->setWindowModality(Qt::WindowModal);
    connect(dialog, &QFileDialog::filesSelected, this, [this, adds](const QStringList &paths) {
        if (adds)
            _view->processAdditionalFiles(paths);
        else
            processUrls(paths);
    });
    dialog->open();
}

void MainWindowController::openDirectory()
{
    auto *dialog = new QFileDialog(this, tr("Open Folder"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    connect(dialog, &QFileDialog::filesSelected, this, &MainWindowController::processUrls);
    dialog->open();
}

void MainWindowController::toggleSidebar()
{
    _openSidebar = _view->sidebar().isCollapsed();
    if (currentTab() == InfoView::Comparison)
        _openSidebarForComparison = _openSidebar;
    _application.settings().set(Setting::sidebarIsHidden, !_openSidebar);
    _view->sidebar().toggleSidebar();
}

void MainWindowController::revealInFinder()
{
    if (const auto path = _worker.currentFilePath())
        revealInFileManager(*path);
}

void MainWindowController::removeExtendedAttribute()
{
    const ExtTreeItem *row = _view->info().outline().selectedItem();
    const auto attribute = attributeOfKey(row->key().value_or(QString()));
    auto *question
        = new QMessageBox(QMessageBox::Warning, tr("Remove from the File"),
                          tr("Remove “%1” from the file?").arg(row->name()), QMessageBox::Cancel, this);
    question->setInformativeText(tr("It is taken from the file on the disk, and cannot be brought back."));
    question->setAttribute(Qt::WA_DeleteOnClose);
    question->setWindowModality(Qt::WindowModal);
    const QPushButton *remove = question->addButton(tr("Remove"), QMessageBox::DestructiveRole);
    question->setDefaultButton(QMessageBox::Cancel);
    question->setEscapeButton(QMessageBox::Cancel);
    connect(remove, &QPushButton::clicked, this, [this, attribute] {
        _view->changeCurrentFile([attribute](const QString &path) {
            return problemOf(Utilities::removeExtendedAtrribute(*attribute, path));
        });
    });
    question->open();
}

void MainWindowController::touchDate()
{
    const QString date = _view->info().outline().selectedItem()->stringValue();
    _view->changeCurrentFile(
        [date](const QString &path) { return problemOf(Utilities::touchDate(date, path)); });
}

void MainWindowController::copy()
{
    if (_view->table().hasFocus())
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

void MainWindowController::fillRecentMenu(QMenu *menu)
{
    menu->clear();
    for (const QString &path : _application.recentFiles()) {
        QAction *action = menu->addAction(lastPathComponent(path).replace(u'&', QLatin1String("&&")));
        action->setToolTip(path);
        action->setStatusTip(path);
        connect(action, &QAction::triggered, this, [this, path] { processUrls({path}); });
    }
    if (menu->isEmpty())
        menu->addAction(tr("No Recent Files"))->setEnabled(false);
    menu->addSeparator();
    connect(menu->addAction(tr("&Clear List")), &QAction::triggered, &_application,
            &AppController::clearRecentFiles);
    menu->setToolTipsVisible(true);
}

} // namespace quorvin
