// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/commands/Command.h"

#include <span>

namespace quorvin {

/// The one table of commands, in the order of the menus; menus, tool bar and keys are built from it. The row
/// of a command has its enumerator as index.
std::span<const CommandRow> commandTable();

} // namespace quorvin
