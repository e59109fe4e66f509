// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/commands/CommandSet.h"
#include "support/TestFolder.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QWidget>

#include <gtest/gtest.h>

#include <map>

namespace quorvin {

namespace {

bool isEnabled(const CommandSet &commands, Command command)
{
    return commands.action(command)->isEnabled();
}

} // namespace

TEST(Commands, HaveARowEachAndKeysOfTheirOwn)
{
    std::map<QString, QString> owners;
    for (std::size_t i = 0; i < commandTable().size(); ++i) {
        const CommandRow &row = commandTable()[i];
        EXPECT_EQ(static_cast<std::size_t>(row.command), i);
        if (!row.keys)
            continue;
        for (const QKeySequence &keys : QKeySequence::listFromString(QLatin1String(row.keys))) {
            EXPECT_FALSE(keys.isEmpty()) << row.text;
            const auto [owner, isNew] = owners.emplace(keys.toString(), QLatin1String(row.text));
            EXPECT_TRUE(isNew) << row.text << " has the keys of " << owner->second.toStdString();
        }
    }
}

TEST(Commands, FollowTheState)
{
    QWidget window;
    CommandSet commands(&window, new QWidget(&window));
    CommandState state;
    commands.validate(state);
    EXPECT_TRUE(isEnabled(commands, Command::openFile));
    for (const Command needy : {Command::refreshInfo, Command::revealInFinder, Command::copyGeneralInfo,
                                Command::copy, Command::selectAll, Command::removeSelectedItems})
        EXPECT_FALSE(isEnabled(commands, needy)) << int(needy);
    EXPECT_TRUE(commands.action(Command::selectGeneralTab)->isChecked());

    state.hasFiles = state.hasCurrentFile = true;
    state.currentTab = 1;
    commands.validate(state);
    EXPECT_TRUE(isEnabled(commands, Command::refreshInfo)) << "a failed file can be tried again";
    EXPECT_FALSE(isEnabled(commands, Command::copyGeneralInfo));
    state.hasRecord = state.wrapLongLines = true;
    commands.validate(state);
    EXPECT_TRUE(isEnabled(commands, Command::copyGeneralInfo));
    EXPECT_TRUE(isEnabled(commands, Command::expandAll));
    EXPECT_TRUE(commands.action(Command::clickWrapLongLines)->isChecked());
    EXPECT_TRUE(commands.action(Command::selectExtendedTab)->isChecked());
    EXPECT_FALSE(commands.action(Command::selectGeneralTab)->isChecked());
    state.currentTab = 0;
    commands.validate(state);
    EXPECT_FALSE(isEnabled(commands, Command::expandAll)) << "the tree is not on this tab";
}

TEST(Commands, StandInTheMenusOnceAndRun)
{
    QWidget window;
    CommandSet commands(&window, new QWidget(&window));
    QMenuBar bar;
    commands.fillMenuBar(&bar);
    std::map<QAction *, int> found;
    for (const QAction *menu : bar.actions()) {
        for (QAction *action : menu->menu()->actions())
            ++found[action];
    }
    std::vector<Command> run;
    QObject::connect(&commands, &CommandSet::triggered, [&](Command command) { run.push_back(command); });
    for (const CommandRow &row : commandTable()) {
        EXPECT_EQ(found[commands.action(row.command)], 1) << row.text;
        commands.action(row.command)->trigger();
    }
    ASSERT_EQ(run.size(), commandTable().size());
    EXPECT_EQ(run.back(), commandTable().back().command);
}

} // namespace quorvin
