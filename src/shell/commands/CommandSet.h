// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/commands/Command.h"

#include <QObject>

#include <functional>
#include <vector>

class QAction;
class QActionGroup;
class QMenu;
class QMenuBar;
class QWidget;

namespace quorvin {

/// The commands of one window as actions, what they do, and the menus made of them. Whoever can do a thing
/// registers it here. Main thread.
class CommandSet : public QObject {
    Q_OBJECT
public:
    /// The keys of all commands count in the window, those of the list's own only in `listArea`.
    CommandSet(QWidget *window, QWidget *listArea);

    /// From now on the command does this, in place of what it did before. Whoever registers stays as long as
    /// the set, or sees to it that nothing is run any more.
    void on(Command command, std::function<void()> handler);
    bool hasHandler(Command command) const;
    /// As a click on it: does nothing for a command that is disabled.
    void run(Command command);

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
    /// Its handler has returned; a switch shows what was clicked, and not yet what is.
    void didRun(quorvin::Command command);

private:
    QAction *makeAction(const CommandRow &row, QWidget *area);

    QActionGroup *_tabs; ///< of which one is chosen
    std::vector<QAction *> _actions; ///< by the command's number
    std::vector<std::function<void()>> _handlers; ///< as the actions
    std::vector<QMenu *> _menus;
};

} // namespace quorvin
