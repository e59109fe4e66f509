// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace quorvin::cli {

struct Command;

/// The help of the program, or, unless it is null, of a command.
QString helpText(const Command *command);

} // namespace quorvin::cli
