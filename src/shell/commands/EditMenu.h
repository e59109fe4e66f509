// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/commands/Command.h"

#include <QtGlobal>

#include <array>

namespace quorvin {

/// What is copied, selected and taken out of the list.
inline constexpr std::array kEditMenu{
    CommandRow{.command = Command::undoRemoval,
               .text = QT_TRANSLATE_NOOP("Commands", "&Undo Remove from List"),
               .icon = "edit-undo",
               .keys = "Ctrl+Z",
               .menu = CommandMenu::Edit,
               .section = 0,
               .isEnabled = [](const CommandState &state) { return state.canUndoRemoval; }},
    CommandRow{.command = Command::copy,
               .text = QT_TRANSLATE_NOOP("Commands", "&Copy"),
               .icon = "edit-copy",
               .keys = "Ctrl+C; Ctrl+Ins",
               .menu = CommandMenu::Edit,
               .section = 1,
               .places = CommandPlace::FileMenu | CommandPlace::TreeMenu | CommandPlace::StreamMenu
                   | CommandPlace::FactMenu | CommandPlace::ComparisonMenu,
               .isEnabled = [](const CommandState &state) { return state.canCopy; }},
    CommandRow{.command = Command::copyValue,
               .text = QT_TRANSLATE_NOOP("Commands", "Copy &Value"),
               .keys = "Ctrl+Alt+C",
               .menu = CommandMenu::Edit,
               .section = 1,
               .places = CommandPlace::TreeMenu | CommandPlace::StreamMenu | CommandPlace::FactMenu,
               .isEnabled = [](const CommandState &state) { return state.canCopyValue; }},
    CommandRow{.command = Command::copyGeneralInfo,
               .text = QT_TRANSLATE_NOOP("Commands", "Copy &General Info"),
               .keys = "Ctrl+Shift+C",
               .menu = CommandMenu::Edit,
               .section = 1,
               .places = CommandPlace::FileMenu | CommandPlace::StreamMenu | CommandPlace::FactMenu
                   | CommandPlace::CoverMenu,
               .isEnabled = [](const CommandState &state) { return state.hasRecord; }},
    CommandRow{.command = Command::copyCover,
               .text = QT_TRANSLATE_NOOP("Commands", "Copy P&icture"),
               .menu = CommandMenu::Edit,
               .section = 1,
               .places = CommandPlace::CoverMenu,
               .isEnabled = [](const CommandState &state) { return state.showsCover; }},
    CommandRow{.command = Command::paste,
               .text = QT_TRANSLATE_NOOP("Commands", "&Paste Files"),
               .icon = "edit-paste",
               .keys = "Ctrl+V; Shift+Ins",
               .menu = CommandMenu::Edit,
               .section = 1},
    CommandRow{.command = Command::selectAll,
               .text = QT_TRANSLATE_NOOP("Commands", "Select &All"),
               .icon = "edit-select-all",
               .keys = "Ctrl+A",
               .menu = CommandMenu::Edit,
               .section = 1,
               .places = CommandPlace::TreeMenu,
               // From the list it would select in another pane than the one that is looked at.
               .isEnabled =
                   [](const CommandState &state) {
                       return (state.showsTree() || state.showsTable) && !state.listHasKeyboard;
                   }},
    CommandRow{.command = Command::performExtFind,
               .text = QT_TRANSLATE_NOOP("Commands", "&Find…"),
               .icon = "edit-find",
               .keys = "Ctrl+F",
               .menu = CommandMenu::Edit,
               .section = 2,
               .isEnabled = [](const CommandState &state) { return state.canFind; }},
    CommandRow{.command = Command::findNext,
               .text = QT_TRANSLATE_NOOP("Commands", "Find Ne&xt"),
               .keys = "F3; Ctrl+G",
               .menu = CommandMenu::Edit,
               .section = 2,
               .isEnabled = [](const CommandState &state) { return state.hasFiles; }},
    CommandRow{.command = Command::findPrevious,
               .text = QT_TRANSLATE_NOOP("Commands", "Find Previou&s"),
               .keys = "Shift+F3; Ctrl+Shift+G",
               .menu = CommandMenu::Edit,
               .section = 2,
               .isEnabled = [](const CommandState &state) { return state.hasFiles; }},
    CommandRow{.command = Command::removeSelectedItems,
               .text = QT_TRANSLATE_NOOP("Commands", "&Remove from List"),
               .icon = "list-remove",
               .keys = "Del; Backspace",
               .menu = CommandMenu::Edit,
               .section = 3,
               .places = CommandPlace::FileMenu | CommandPlace::ListArea,
               .isEnabled = [](const CommandState &state) { return state.hasFiles; }},
    CommandRow{.command = Command::selectNextFailed,
               .text = QT_TRANSLATE_NOOP("Commands", "&Next Failed File"),
               .keys = "F8",
               .menu = CommandMenu::Edit,
               .section = 3,
               .isEnabled = [](const CommandState &state) { return state.hasFailed; }},
    CommandRow{.command = Command::openPreferences,
               .text = QT_TRANSLATE_NOOP("Commands", "Pre&ferences…"),
               .icon = "configure",
               .keys = "Ctrl+,",
               .menu = CommandMenu::Edit,
               .section = 4},
};

} // namespace quorvin
