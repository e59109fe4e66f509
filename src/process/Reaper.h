// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <sys/types.h>

#include <optional>

namespace quorvin {

/// Kills a child and waits for its end, a second at most: a process that hangs in the read of a stalled file
/// system outlives even this. Such a one is left to a thread of its own, which collects it when it ends at
/// last. Gives the status as `waitpid` does, or nothing for a child that was left. `handle` is a descriptor
/// of the process. Any thread.
std::optional<int> endChild(pid_t pid, int handle);

} // namespace quorvin
