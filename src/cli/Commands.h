// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "cli/Arguments.h"

namespace quorvin {
class Settings;
}

namespace quorvin::cli {

class Console;

/// Exit statuses.
enum Status { AllWell = 0, SomethingFailed = 1, WrongCall = 2 };

/// Runs a command that `parseArguments` accepted and gives the exit status.
int runCommand(const Arguments &arguments, const Settings &settings, Console &console);

/// The version of the program, its libraries and exiftool, and what guards the readers; a line each.
QString versionText();

} // namespace quorvin::cli
