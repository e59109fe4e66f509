// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/commands/Command.h"

#include <QtGlobal>

#include <array>

namespace quorvin {

/// What is shown, and how.
inline constexpr std::array kViewMenu{
    CommandRow{.command = Command::selectGeneralTab,
               .text = QT_TRANSLATE_NOOP("Commands", "&General"),
               .keys = "Ctrl+1",
               .menu = CommandMenu::View,
               .section = 0,
               .places = CommandPlace::TabSelector,
               .isChecked = [](const CommandState &state) { return state.currentTab == Tab::General; }},
    CommandRow{.command = Command::selectExtendedTab,
               .text = QT_TRANSLATE_NOOP("Commands", "&Extended"),
               .keys = "Ctrl+2",
               .menu = CommandMenu::View,
               .section = 0,
               .places = CommandPlace::TabSelector,
               .isChecked = [](const CommandState &state) { return state.currentTab == Tab::Extended; }},
    CommandRow{.command = Command::selectComparisonTab,
               .text = QT_TRANSLATE_NOOP("Commands", "&Comparison"),
               .keys = "Ctrl+3",
               .menu = CommandMenu::View,
               .section = 0,
               .places = CommandPlace::TabSelector,
               .isChecked = [](const CommandState &state) { return state.currentTab == Tab::Comparison; }},
    CommandRow{.command = Command::selectCustomTab,
               .text = QT_TRANSLATE_NOOP("Commands", "C&ustom"),
               .keys = "Ctrl+4",
               .menu = CommandMenu::View,
               .section = 0,
               .places = CommandPlace::TabSelector,
               .isChecked = [](const CommandState &state) { return state.currentTab == Tab::Custom; }},
    CommandRow{.command = Command::selectPreviousTab,
               .text = QT_TRANSLATE_NOOP("Commands", "Pre&vious Tab"),
               .keys = "Ctrl+PgUp",
               .menu = CommandMenu::View,
               .section = 1},
    CommandRow{.command = Command::selectNextTab,
               .text = QT_TRANSLATE_NOOP("Commands", "Ne&xt Tab"),
               .keys = "Ctrl+PgDown",
               .menu = CommandMenu::View,
               .section = 1},
    CommandRow{.command = Command::toggleSidebar,
               .text = QT_TRANSLATE_NOOP("Commands", "&Sidebar"),
               .icon = "view-sidetree",
               .keys = "F9",
               .menu = CommandMenu::View,
               .section = 2,
               .places = CommandPlace::ToolBar,
               .isChecked = [](const CommandState &state) { return !state.sidebarIsCollapsed; },
               .tip = QT_TRANSLATE_NOOP("Commands", "Show the list of files")},
    CommandRow{.command = Command::clickWrapLongLines,
               .text = QT_TRANSLATE_NOOP("Commands", "&Wrap Long Lines"),
               .keys = "Ctrl+Shift+W",
               .menu = CommandMenu::View,
               .section = 2,
               .places = CommandPlace::TreeMenu,
               .isChecked = [](const CommandState &state) { return state.wrapLongLines; }},
    CommandRow{.command = Command::expandAll,
               .text = QT_TRANSLATE_NOOP("Commands", "Op&en All Groups"),
               .keys = "Ctrl+Shift+Down",
               .menu = CommandMenu::View,
               .section = 3,
               .places = CommandPlace::TreeMenu,
               .isEnabled = [](const CommandState &state) { return state.showsTree(); }},
    CommandRow{.command = Command::collapseAll,
               .text = QT_TRANSLATE_NOOP("Commands", "Cl&ose All Groups"),
               .keys = "Ctrl+Shift+Up",
               .menu = CommandMenu::View,
               .section = 3,
               .places = CommandPlace::TreeMenu,
               .isEnabled = [](const CommandState &state) { return state.showsTree(); }},
    CommandRow{.command = Command::toggleFullScreen,
               .text = QT_TRANSLATE_NOOP("Commands", "&Full Screen"),
               .icon = "view-fullscreen",
               .keys = "F11",
               .menu = CommandMenu::View,
               .section = 4,
               .isChecked = [](const CommandState &state) { return state.isFullScreen; }},
};

} // namespace quorvin
