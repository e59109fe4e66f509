// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/commands/CommandSet.h"
#include "shell/commands/CommandTable.h"
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

TEST(Commands, HaveKeysOfTheirOwn)
{
    std::map<QString, QString> owners;
    for (const CommandRow &row : commandTable()) {
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
    state.currentTab = Tab::Extended;
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
    state.currentTab = Tab::General;
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
    for (const CommandRow &row : commandTable()) {
        EXPECT_EQ(found[commands.action(row.command)], 1) << row.text;
        EXPECT_FALSE(commands.hasHandler(row.command));
        commands.action(row.command)->trigger();
        commands.on(row.command, [&run, command = row.command] { run.push_back(command); });
        commands.action(row.command)->trigger();
    }
    ASSERT_EQ(run.size(), commandTable().size());
    EXPECT_EQ(run.back(), commandTable().back().command);
}

TEST(Commands, RunOnlyWhileTheyAreEnabled)
{
    QWidget window;
    CommandSet commands(&window, new QWidget(&window));
    int runs = 0;
    int ends = 0;
    QObject::connect(&commands, &CommandSet::didRun, [&ends] { ++ends; });
    commands.on(Command::copy, [&] {
        ++runs;
        commands.on(Command::copy, [&runs] { runs += 10; });
    });
    commands.validate({});
    commands.run(Command::copy);
    EXPECT_EQ(runs, 0);
    commands.validate({.canCopy = true});
    commands.run(Command::copy);
    commands.run(Command::copy);
    EXPECT_EQ(runs, 11) << "the newer handler counts";
    EXPECT_EQ(ends, 3);
}

} // namespace quorvin
