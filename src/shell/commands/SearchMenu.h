// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/commands/Command.h"

#include <QtGlobal>

#include <array>

namespace quorvin {

/// What is looked for in the files, and what narrows their list.
inline constexpr std::array kSearchMenu{
    CommandRow{.command = Command::performProjectFind,
               .text = QT_TRANSLATE_NOOP("Commands", "&Search All Files"),
               .icon = "edit-find",
               .keys = "Ctrl+Shift+F",
               .menu = CommandMenu::Search,
               .section = 0,
               .places = CommandPlace::ToolBarEnd,
               .tip = QT_TRANSLATE_NOOP("Commands", "Show only files that have a text in a parameter")},
    CommandRow{.command = Command::filterByName,
               .text = QT_TRANSLATE_NOOP("Commands", "Filter by Na&me"),
               .keys = "Ctrl+L",
               .menu = CommandMenu::Search,
               .section = 0},
    CommandRow{.command = Command::toggleFilelistFilter,
               .text = QT_TRANSLATE_NOOP("Commands", "Filter &Rules…"),
               .icon = "view-filter",
               .keys = "Ctrl+Shift+R",
               .menu = CommandMenu::Search,
               .section = 0,
               .places = CommandPlace::ToolBarEnd,
               .tip = QT_TRANSLATE_NOOP("Commands", "Show only files that satisfy a rule")},
    CommandRow{.command = Command::toggleHideUnknownFiles,
               .text = QT_TRANSLATE_NOOP("Commands", "&Hide Unknown Files"),
               .keys = "Ctrl+Shift+H",
               .menu = CommandMenu::Search,
               .section = 1,
               .isChecked = [](const CommandState &state) { return state.hidesUnknownFiles; }},
    CommandRow{.command = Command::showOnlyWithValue,
               .text = QT_TRANSLATE_NOOP("Commands", "Show &Only Files with This Value"),
               .menu = CommandMenu::Search,
               .section = 1,
               .places = CommandPlace::TreeMenu,
               .isEnabled = [](const CommandState &state) { return state.selectsParameter; }},
    CommandRow{.command = Command::showOnlyWithoutParameter,
               .text = QT_TRANSLATE_NOOP("Commands", "Show Only Files with&out This Parameter"),
               .menu = CommandMenu::Search,
               .section = 1,
               .places = CommandPlace::TreeMenu,
               .isEnabled = [](const CommandState &state) { return state.selectsParameter; }},
    CommandRow{.command = Command::showAllFiles,
               .text = QT_TRANSLATE_NOOP("Commands", "Show &All Files"),
               .keys = "Ctrl+Shift+L",
               .menu = CommandMenu::Search,
               .section = 1,
               .isEnabled = [](const CommandState &state) { return state.isListNarrowed; }},
    CommandRow{.command = Command::toggleWatch,
               .text = QT_TRANSLATE_NOOP("Commands", "&Watch This Parameter"),
               .keys = "Ctrl+Alt+W",
               .menu = CommandMenu::Search,
               .section = 2,
               .places = CommandPlace::TreeMenu,
               .isEnabled = [](const CommandState &state) { return state.selectsParameter; },
               .isChecked = [](const CommandState &state) { return state.watchesParameter; }},
};

} // namespace quorvin
