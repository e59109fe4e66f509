// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "cli/Command.h"

#include <span>

namespace quorvin::cli {

/// All commands, in the order of the help.
std::span<const Command> commands();

/// The options of every command, in the order of the help.
QList<Option> commonOptions();

} // namespace quorvin::cli
