// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/ListMenu.h"

#include "platform/NativePath.h"
#include "shell/commands/CommandSet.h"
#include "shell/commands/CommandTable.h"
#include "shell/desktop/BackgroundRun.h"
#include "shell/exporting/ExportController.h"
#include "shell/filelist/FilelistTable.h"
#include "shell/preview/PreviewPanel.h"
#include "shell/window/FileCommands.h"
#include "shell/window/MainView.h"
#include "shell/window/MainWindowController.h"
#include "shell/window/OpenWithMenu.h"

#include <QAction>
#include <QMenu>

#include <algorithm>

namespace quorvin {

ListMenu::ListMenu(const PreviewPanel &panel, MainWindowController &window)
    : QObject(&window),
      _panel(panel),
      _window(window),
      _openWith(new OpenWithMenu(window.myView().statusLine(), &window))
{
    connect(&window.myView().table(), &FilelistTable::menuWanted, this, &ListMenu::popup);
}

void ListMenu::popup(const QModelIndex &row, const QPoint &where)
{
    FilelistController &files = _window.files();
    _file = files.arranged().fileAt(row.row());
    const QuorvinDataPtr record = _file->quorvinData();
    _openWith->setFile(_file->filename(),
                       record ? record->generalInfo().fileUTI.value_or(QString()) : QString());
    auto *menu = new QMenu(&_window);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setAccessibleName(tr("Commands for “%1”").arg(lastPathComponent(_file->filename())));
    _window.commands().fillMenu(menu, CommandPlace::FileMenu);
    menu->insertMenu(_window.commands().action(Command::revealInFinder), _openWith);
    if (!files.selection().isSelected(row)) {
        replaceActions(*menu);
        FilelistTable &table = _window.myView().table();
        table.setFramedRow(row);
        connect(menu, &QMenu::aboutToHide, &table, [&table] { table.setFramedRow({}); });
    } else if (files.selectedCount() > 1) {
        addRemovalOfOne(*menu);
    }
    menu->popup(where);
}

void ListMenu::replaceActions(QMenu &menu)
{
    const CommandState state = stateOfFile();
    for (const CommandRow &row : commandTable()) {
        if (!row.places.testFlag(CommandPlace::FileMenu))
            continue;
        QAction *const shared = _window.commands().action(row.command);
        auto *own = new QAction(shared->icon(), shared->text(), &menu);
        own->setShortcuts(shared->shortcuts());
        own->setCheckable(shared->isCheckable());
        own->setChecked(shared->isChecked());
        own->setEnabled(!row.isEnabled || row.isEnabled(state));
        own->setVisible(own->isEnabled() || !row.isHiddenWhileDisabled);
        connect(own, &QAction::triggered, this, [this, command = row.command] { run(command); });
        menu.insertAction(shared, own);
        menu.removeAction(shared);
    }
}

void ListMenu::addRemovalOfOne(QMenu &menu)
{
    auto *action = new QAction(tr("Remove &Only This File from List"), &menu);
    connect(action, &QAction::triggered, this, [this] { _window.files().removeFile(_file); });
    const auto actions = menu.actions();
    const auto behind = actions.indexOf(_window.commands().action(Command::removeSelectedItems)) + 1;
    menu.insertAction(actions.value(behind), action);
}

CommandState ListMenu::stateOfFile() const
{
    CommandState state = _window.commandState();
    state.hasRecord = _file->quorvinData() != nullptr;
    state.canExportSelection = state.hasRecord && !_window.exporting().run().isUnderWay();
    state.canCopy = true;
    return state;
}

void ListMenu::run(Command command)
{
    if (runAside(command))
        return;
    const bool closes = (command == Command::togglePreviewPanel && _panel.isOpen())
        || (command == Command::toggleQuickInfo && _window.commandState().showsQuickInfo);
    const int row = _window.files().arranged().rowOf(_file);
    // It may have left the list while the menu was open.
    if (row < 0)
        return;
    if (!closes)
        _window.files().selectRow(row);
    _window.commands().run(command);
}

bool ListMenu::runAside(Command command)
{
    const QuorvinDataPtr record = _file->quorvinData();
    switch (command) {
    case Command::removeSelectedItems:
        _window.files().removeFile(_file);
        return true;
    case Command::refreshInfo:
        _window.files().refreshFile(_file);
        return true;
    case Command::revealInFinder:
        FileCommands::reveal(_file->filename(), _window.myView().statusLine(), this);
        return true;
    case Command::copy:
        FilelistTable::copyPaths({_file->filename()});
        return true;
    case Command::copyGeneralInfo:
        if (record)
            FileCommands::copyGeneralInfo(*record);
        return true;
    default:
        return false;
    }
}

} // namespace quorvin
