// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/commands/Command.h"

#include <QtGlobal>

#include <array>

namespace quorvin {

/// What brings files, and what is done with them without changing any.
inline constexpr std::array kFileMenu{
    CommandRow{.command = Command::openEmptyWindow,
               .text = QT_TRANSLATE_NOOP("Commands", "&New Window"),
               .icon = "window-new",
               .keys = "Ctrl+N",
               .menu = CommandMenu::File,
               .section = 0},
    CommandRow{.command = Command::openFile,
               .text = QT_TRANSLATE_NOOP("Commands", "&Open…"),
               .icon = "document-open",
               .keys = "Ctrl+O",
               .menu = CommandMenu::File,
               .section = 1,
               .places = CommandPlace::ToolBar,
               .tip = QT_TRANSLATE_NOOP("Commands", "Choose files to look into")},
    CommandRow{.command = Command::openDirectory,
               .text = QT_TRANSLATE_NOOP("Commands", "Open &Folder…"),
               .icon = "folder-open",
               .keys = "Ctrl+Shift+O",
               .menu = CommandMenu::File,
               .section = 1},
    CommandRow{.command = Command::addFile,
               .text = QT_TRANSLATE_NOOP("Commands", "&Add Files…"),
               .icon = "list-add",
               .keys = "Ctrl+Shift+A",
               .menu = CommandMenu::File,
               .section = 1},
    CommandRow{.command = Command::openFileInNewWindow,
               .text = QT_TRANSLATE_NOOP("Commands", "Open in New &Window…"),
               .keys = "Ctrl+Shift+N",
               .menu = CommandMenu::File,
               .section = 1},
    CommandRow{.command = Command::refreshInfo,
               .text = QT_TRANSLATE_NOOP("Commands", "&Refresh"),
               .icon = "view-refresh",
               .keys = "F5",
               .menu = CommandMenu::File,
               .section = 2,
               .places = CommandPlace::FileMenu,
               .isEnabled = [](const CommandState &state) { return state.hasCurrentFile; }},
    CommandRow{.command = Command::revealInFinder,
               .text = QT_TRANSLATE_NOOP("Commands", "&Show in Folder"),
               .keys = "Ctrl+Alt+O",
               .menu = CommandMenu::File,
               .section = 2,
               .places = CommandPlace::FileMenu | CommandPlace::FactMenu | CommandPlace::CoverMenu,
               .isEnabled = [](const CommandState &state) { return state.hasCurrentFile; }},
    CommandRow{.command = Command::menuExportNew,
               .text = QT_TRANSLATE_NOOP("Commands", "&Export…"),
               .icon = "document-export",
               .keys = "Ctrl+E",
               .menu = CommandMenu::File,
               .section = 2,
               .places = CommandPlace::ToolBar,
               .isEnabled = [](const CommandState &state) { return state.canExportAll; },
               .tip = QT_TRANSLATE_NOOP("Commands", "Write what is known of the files to a document")},
    CommandRow{.command = Command::exportSelection,
               .text = QT_TRANSLATE_NOOP("Commands", "Export Se&lection…"),
               .keys = "Ctrl+Shift+E",
               .menu = CommandMenu::File,
               .section = 2,
               .places = CommandPlace::FileMenu,
               .isEnabled = [](const CommandState &state) { return state.canExportSelection; }},
    CommandRow{.command = Command::closeWindow,
               .text = QT_TRANSLATE_NOOP("Commands", "&Close Window"),
               .icon = "window-close",
               .keys = "Ctrl+W",
               .menu = CommandMenu::File,
               .section = 3},
    CommandRow{.command = Command::quit,
               .text = QT_TRANSLATE_NOOP("Commands", "&Quit"),
               .icon = "application-exit",
               .keys = "Ctrl+Q",
               .menu = CommandMenu::File,
               .section = 3},
};

} // namespace quorvin
