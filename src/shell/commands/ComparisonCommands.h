// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/commands/Command.h"

#include <QtGlobal>

#include <array>

namespace quorvin {

/// What is done in a comparison; the last sections of the View menu.
inline constexpr std::array kComparisonCommands{
    CommandRow{.command = Command::showNextDifference,
               .text = QT_TRANSLATE_NOOP("Commands", "Next &Difference"),
               .keys = "F7",
               .menu = CommandMenu::View,
               .section = 7,
               .places = CommandPlace::ComparisonMenu,
               .isEnabled = [](const CommandState &state) { return state.showsTable; }},
    CommandRow{.command = Command::showPreviousDifference,
               .text = QT_TRANSLATE_NOOP("Commands", "&Previous Difference"),
               .keys = "Shift+F7",
               .menu = CommandMenu::View,
               .section = 7,
               .isEnabled = [](const CommandState &state) { return state.showsTable; }},
    CommandRow{.command = Command::makeReference,
               .text = QT_TRANSLATE_NOOP("Commands", "Mark What Differs &from This File"),
               .keys = "Ctrl+R",
               .menu = CommandMenu::View,
               .section = 8,
               .places = CommandPlace::ComparisonMenu,
               .isEnabled = [](const CommandState &state) { return state.selectsColumn; },
               .isChecked = [](const CommandState &state) { return state.selectsReference; }},
    CommandRow{.command = Command::moveColumnBackward,
               .text = QT_TRANSLATE_NOOP("Commands", "Move Column &Back"),
               .keys = "Ctrl+Shift+Left",
               .menu = CommandMenu::View,
               .section = 8,
               .places = CommandPlace::ComparisonMenu,
               .isEnabled = [](const CommandState &state) { return state.selectsColumn; }},
    CommandRow{.command = Command::moveColumnForward,
               .text = QT_TRANSLATE_NOOP("Commands", "Move Column Fo&rward"),
               .keys = "Ctrl+Shift+Right",
               .menu = CommandMenu::View,
               .section = 8,
               .places = CommandPlace::ComparisonMenu,
               .isEnabled = [](const CommandState &state) { return state.selectsColumn; }},
    CommandRow{.command = Command::closeColumn,
               .text = QT_TRANSLATE_NOOP("Commands", "Close Col&umn"),
               .keys = "Ctrl+Shift+X",
               .menu = CommandMenu::View,
               .section = 8,
               .places = CommandPlace::ComparisonMenu,
               .isEnabled = [](const CommandState &state) { return state.selectsColumn; }},
};

} // namespace quorvin
