// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/commands/Command.h"

#include <QtGlobal>

#include <array>

namespace quorvin {

/// What changes files on the disk; the last section of the Edit menu.
inline constexpr std::array kFileChanges{
    CommandRow{.command = Command::menuRemoveImageMetadata,
               .text = QT_TRANSLATE_NOOP("Commands", "Remove &Metadata…"),
               .icon = "edit-clear",
               .keys = "Ctrl+Alt+M",
               .menu = CommandMenu::Edit,
               .section = 5,
               .places = CommandPlace::FileMenu,
               .isEnabled = [](const CommandState &state) { return state.canExportAll; },
               .tip = QT_TRANSLATE_NOOP("Commands", "Take metadata out of images, and see first what goes")},
    CommandRow{.command = Command::removeLocationInfo,
               .text = QT_TRANSLATE_NOOP("Commands", "Remove P&osition…"),
               .keys = "Ctrl+Alt+P",
               .menu = CommandMenu::Edit,
               .section = 5,
               .places = CommandPlace::FileMenu,
               .isEnabled = [](const CommandState &state) { return state.canExportAll; },
               .tip = QT_TRANSLATE_NOOP("Commands", "Take out of images where they were taken")},
    CommandRow{.command = Command::removeExtendedAttribute,
               .text = QT_TRANSLATE_NOOP("Commands", "Remove from the File…"),
               .menu = CommandMenu::Edit,
               .section = 5,
               .places = CommandPlace::TreeMenu,
               .isEnabled = [](const CommandState &state) { return state.selectsAttribute; },
               .isHiddenWhileDisabled = true},
    CommandRow{.command = Command::touchDate,
               .text = QT_TRANSLATE_NOOP("Commands", "Set the File's Date to This…"),
               .menu = CommandMenu::Edit,
               .section = 5,
               .places = CommandPlace::TreeMenu,
               .isEnabled = [](const CommandState &state) { return state.selectsDate; },
               .isHiddenWhileDisabled = true},
};

} // namespace quorvin
