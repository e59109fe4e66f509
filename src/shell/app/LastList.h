// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/FilelistItem.h"
#include "model/Error.h"

#include <QString>

#include <vector>

namespace quorvin::LastList {

/// The files of the window that was closed last, kept over runs: each by its path, byte for byte, and by what
/// the list shows of it. What is known of them is not kept.

/// Files behind these are not kept.
inline constexpr std::size_t kMost = 100'000;

/// Where the user's lies: quorvin/last-list in the XDG state folder.
QString userPath();

/// Keeps these from now on, on a thread of its own; of several calls the last one counts. What can't be kept
/// is logged. Main thread.
void keep(const std::vector<FilelistItemPtr> &files);
/// Nothing is kept any more, as soon as that thread has come to it. Main thread.
void forget();

/// Replaces what was kept, whole or not at all; makes the folders above it. Any thread.
Expected<void> write(const QString &path, const std::vector<FilelistItemPtr> &files);
/// In their order, each waiting for its analysis, whether it is still there or not; empty where nothing is
/// kept, and for what is no such list. Any thread.
std::vector<FilelistItemPtr> read(const QString &path);

} // namespace quorvin::LastList
