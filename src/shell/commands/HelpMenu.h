// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/commands/Command.h"

#include <QtGlobal>

#include <array>

namespace quorvin {

/// What tells of the program itself.
inline constexpr std::array kHelpMenu{
    CommandRow{.command = Command::openAcknowledgments,
               .text = QT_TRANSLATE_NOOP("Commands", "A&cknowledgments"),
               .menu = CommandMenu::Help,
               .section = 0},
    CommandRow{.command = Command::openAboutPanel,
               .text = QT_TRANSLATE_NOOP("Commands", "&About Quorvin"),
               .icon = "help-about",
               .menu = CommandMenu::Help,
               .section = 0},
};

} // namespace quorvin
