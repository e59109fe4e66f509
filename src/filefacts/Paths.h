// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"

#include <QString>

#include <functional>
#include <optional>

/// Errors are of the POSIX domain. Any thread.
namespace quorvin::Utilities {

/// The path itself if nothing stands there; otherwise the first of "base (1).ext", "base (2).ext" … that is
/// free. After 9998 it gives up and returns that name, free or not.
QString uniqueFilename(const QString &path);

/// Puts something under the first of those names that is free, and gives the path. `attempt` must leave what
/// stands at a path: another may have taken it between its choice and its use, which is the error EEXIST, and
/// the next one is tried. Any other error ends it. EEXIST, too, when no name is left.
Expected<QString> takeUniqueFilename(const QString &path,
                                     const std::function<Expected<void>(const QString &path)> &attempt);

/// Makes a folder, with those above it; one that stands there is fine.
Expected<QString> createFolder(const QString &path);

/// Makes a folder of a unique name, with the folders above it. A failure is logged.
Expected<QString> createUniqueFolder(const QString &path);

/// A folder of that name in the user's temporary folder, or of a globally unique name when the name is
/// absent. An existing folder is fine.
Expected<QString> createTemporaryFolderWithName(const std::optional<QString> &name);

/// A folder of a globally unique name in the temporary folder, below `subfolder` if that is given.
Expected<QString> createRandomTemporaryFolderInSubfolder(const std::optional<QString> &subfolder);

} // namespace quorvin::Utilities
