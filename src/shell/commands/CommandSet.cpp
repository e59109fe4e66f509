// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/commands/CommandSet.h"

#include "shell/commands/CommandTable.h"
#include "shell/desktop/Icons.h"
#include "shell/desktop/PlainText.h"

#include <QAction>
#include <QActionGroup>
#include <QCoreApplication>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

#include <array>

namespace quorvin {

namespace {

constexpr std::array kMenuTitles{
    QT_TRANSLATE_NOOP("Commands", "&File"),        QT_TRANSLATE_NOOP("Commands", "&Edit"),
    QT_TRANSLATE_NOOP("Commands", "&Search"),      QT_TRANSLATE_NOOP("Commands", "&View"),
    QT_TRANSLATE_NOOP("Commands", "&Diagnostics"), QT_TRANSLATE_NOOP("Commands", "&Help"),
};

QString translated(const char *text)
{
    return QCoreApplication::translate("Commands", text);
}

/// Appends the commands that are wanted, with a line between sections.
void append(QMenu *menu, const std::vector<QAction *> &actions,
            const std::function<bool(const CommandRow &)> &isWanted)
{
    const CommandRow *last = nullptr;
    for (const CommandRow &row : commandTable()) {
        if (!isWanted(row))
            continue;
        if (last && (last->menu != row.menu || last->section != row.section))
            menu->addSeparator();
        menu->addAction(actions[static_cast<std::size_t>(row.command)]);
        last = &row;
    }
}

} // namespace

CommandSet::CommandSet(QWidget *window, QWidget *listArea)
    : QObject(window), _tabs(new QActionGroup(this)), _handlers(commandTable().size())
{
    for (const CommandRow &row : commandTable())
        _actions.push_back(makeAction(row, row.places.testFlag(CommandPlace::ListArea) ? listArea : window));
}

QAction *CommandSet::makeAction(const CommandRow &row, QWidget *area)
{
    auto *action = new QAction(translated(row.text), this);
    if (row.icon)
        action->setIcon(commandIcon(QLatin1String(row.icon)));
    if (row.keys)
        action->setShortcuts(QKeySequence::listFromString(QLatin1String(row.keys)));
    action->setShortcutContext(row.places.testFlag(CommandPlace::ListArea) ? Qt::WidgetWithChildrenShortcut
                                                                           : Qt::WindowShortcut);
    action->setCheckable(row.isChecked != nullptr);
    if (row.places.testFlag(CommandPlace::TabSelector))
        _tabs->addAction(action);
    if (row.tip) {
        const QString keys = action->shortcut().toString(QKeySequence::NativeText);
        action->setStatusTip(plainTip(translated(row.tip)));
        action->setToolTip(plainTip(QStringLiteral("%1 (%2)").arg(translated(row.tip), keys)));
    }
    connect(action, &QAction::triggered, this, [this, command = row.command] { run(command); });
    area->addAction(action);
    return action;
}

void CommandSet::on(Command command, std::function<void()> handler)
{
    _handlers[static_cast<std::size_t>(command)] = std::move(handler);
}

bool CommandSet::hasHandler(Command command) const
{
    return static_cast<bool>(_handlers[static_cast<std::size_t>(command)]);
}

void CommandSet::run(Command command)
{
    // It may register another one for the next time.
    if (const auto handler = _handlers[static_cast<std::size_t>(command)];
        handler && action(command)->isEnabled())
        handler();
    Q_EMIT didRun(command);
}

QAction *CommandSet::action(Command command) const
{
    return _actions[static_cast<std::size_t>(command)];
}

std::vector<QAction *> CommandSet::actionsAt(CommandPlace place) const
{
    std::vector<QAction *> actions;
    for (const CommandRow &row : commandTable()) {
        if (row.places.testFlag(place))
            actions.push_back(action(row.command));
    }
    return actions;
}

void CommandSet::fillMenuBar(QMenuBar *bar)
{
    for (std::size_t i = 0; i < kMenuTitles.size(); ++i) {
        QMenu *menu = bar->addMenu(translated(kMenuTitles[i]));
        append(menu, _actions,
               [&](const CommandRow &row) { return row.menu == static_cast<CommandMenu>(i); });
        _menus.push_back(menu);
    }
}

void CommandSet::fillMenu(QMenu *menu, CommandPlace place) const
{
    append(menu, _actions, [&](const CommandRow &row) { return row.places.testFlag(place); });
}

void CommandSet::validate(const CommandState &state) const
{
    for (const CommandRow &row : commandTable()) {
        QAction *const own = action(row.command);
        const bool enabled = !row.isEnabled || row.isEnabled(state);
        // First: what is hidden can't be enabled.
        own->setVisible(enabled || !row.isHiddenWhileDisabled);
        own->setEnabled(enabled);
        if (row.isChecked)
            own->setChecked(row.isChecked(state));
    }
}

} // namespace quorvin
