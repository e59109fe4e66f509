// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>

namespace quorvin::UnfinishedFiles {

/// The temporary files that exist at this moment or will in the next, and the folders that are empty without
/// them, kept where a signal handler can read them.

/// Returns the slot of the path, or -1 when all `kSlots` are taken: such a file is not removed on an
/// interrupt.
int add(const QByteArray &path);
void remove(int slot);

/// From now on the signals that end a process from outside, and an `exit` in the middle of things, remove the
/// files before they end it as they always do. Call once, before any thread.
void removeOnInterrupt();

inline constexpr int kSlots = 16;

} // namespace quorvin::UnfinishedFiles
