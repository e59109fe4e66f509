// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"

#include <sys/types.h>

#include <string>

namespace quorvin {

/// A resident exiftool, with the ends of its streams that are ours. It is ended by the kernel when the thread
/// ends that started it.
struct StartedExifTool {
    pid_t pid = -1;
    int input = -1; ///< it reads its arguments from there; never blocks
    int inputEnd = -1; ///< the other end, kept open so that writing to one that has ended is no signal
    int output = -1;
    int errors = -1;
};

/// Where exiftool is installed, by the variable PATH; "" when it is not.
std::string exifToolProgram();

/// Starts exiftool behind its guard: it reads files and writes to its two streams, and that is all. It takes
/// `memoryMiB` at most. Comes back before it is known whether it runs: one that can not ends its output.
Expected<StartedExifTool> startExifTool(int memoryMiB);

/// The first argument of the reader's program in a process that is to become exiftool.
inline constexpr const char *kBecomeExifTool = "exiftool";

/// Makes of this process, which `startExifTool` has begun, exiftool itself. Comes back only when that fails.
void becomeExifTool(int argc, char **argv);

} // namespace quorvin
