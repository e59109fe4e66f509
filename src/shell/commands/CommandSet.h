// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/commands/Commands.h"

#include <QObject>

#include <vector>

class QAction;
class QMenu;
class QMenuBar;
class QWidget;

namespace quorvin {

/// The commands of one window as actions, and the menus made of them. Main thread.
class CommandSet : public QObject {
    Q_OBJECT
public:
    /// The keys of all commands count in the window, those of the list's own only in `listArea`.
    CommandSet(QWidget *window, QWidget *listArea);

    QAction *action(Command command) const;
    std::vector<QAction *> actionsAt(CommandPlace place) const;

    /// Appends the menus in the order of the table.
    void fillMenuBar(QMenuBar *bar);
    /// Appends the commands of that place, with a line between sections.
    void fillMenu(QMenu *menu, CommandPlace place) const;
    QMenu *menu(CommandMenu menu) const { return _menus[static_cast<std::size_t>(menu)]; }

    /// Enables, disables and checks the commands.
    void validate(const CommandState &state) const;

Q_SIGNALS:
    void triggered(quorvin::Command command);

private:
    QAction *makeAction(const CommandRow &row, QWidget *area);

    std::vector<QAction *> _actions;
    std::vector<QMenu *> _menus;
};

} // namespace quorvin
