// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"

#include <QByteArray>

#include <sys/types.h>

/// The files ".quorvin-XXXXXX" that stand beside their target until they are complete, and folders of such
/// names with one file or none. Whoever writes one holds a lock on it, so that others can tell it from what a
/// killed run has left. Any thread.
namespace quorvin::TemporaryFiles {

struct Opened {
    int descriptor = -1; ///< of a file for writing; the lock goes when it is closed
    QByteArray path;
    int slot = -1; ///< among the unfinished files, taken before it was made; the caller gives it back
};

/// A new one of this mode, as far as the user's mask leaves it. The error is of the POSIX domain.
Expected<Opened> open(const QByteArray &folder, mode_t mode);

/// A new folder in that one, likewise.
Expected<Opened> openFolder(const QByteArray &folder);

/// Moves a file to a name in the same file system that nothing has; what has it stays, and errno is EEXIST.
bool renameKeepingExisting(const QByteArray &from, const QByteArray &to);

/// Removes a folder that `openFolder` made, and the files in it.
void removeFolder(const QByteArray &path);

/// Removes those of this user that nobody holds.
void removeLeftovers(const QByteArray &folder);

} // namespace quorvin::TemporaryFiles
