// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "cli/Command.h"

namespace quorvin::cli {

/// A call of the program, taken apart and checked.
struct Call {
    const Command *command = nullptr; ///< null when only help or the version is wanted
    Arguments arguments; ///< with `help` or `version`, these only
};

/// `words` are those of the command line without the program's name, decoded as paths are. The error is one
/// line.
Expected<Call> parseCall(const QStringList &words);

} // namespace quorvin::cli
