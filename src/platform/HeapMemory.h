// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace quorvin {

/// Before the first thread: the threads of this program share few pools of memory, since what is freed in one
/// is no use to another.
void keepHeapCompact();

/// Gives the memory that is free back to the system. Takes tens of milliseconds after a long list; any
/// thread but one that somebody waits for.
void giveFreeMemoryBack();

} // namespace quorvin
