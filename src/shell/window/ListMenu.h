// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/FilelistItem.h"
#include "shell/commands/Command.h"

#include <QObject>

class QMenu;
class QModelIndex;
class QPoint;

namespace quorvin {

class MainWindowController;
class OpenWithMenu;
class PreviewPanel;

/// The context menu of the list. On a selected row its commands are those of the window. On another row it is
/// about that file alone, and what is selected stays so; only what has to show the file, and what acts on a
/// selection by its nature, selects that row first. Main thread.
class ListMenu : public QObject {
    Q_OBJECT
public:
    /// Belongs to the window. The panel must outlive it.
    ListMenu(const PreviewPanel &panel, MainWindowController &window);

private:
    void popup(const QModelIndex &row, const QPoint &where);
    /// Puts commands about `_file` in the place of those of the window.
    void replaceActions(QMenu &menu);
    /// The file of one of several selected rows can be taken out by itself.
    void addRemovalOfOne(QMenu &menu);
    /// What the commands of the window would go by, were that file the selected one.
    CommandState stateOfFile() const;
    void run(Command command);
    /// Does what leaves the selection alone; false when the command is none of these.
    bool runAside(Command command);

    const PreviewPanel &_panel;
    MainWindowController &_window;
    OpenWithMenu *_openWith;
    FilelistItemPtr _file; ///< of the last menu
};

} // namespace quorvin
