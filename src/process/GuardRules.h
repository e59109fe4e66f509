// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QtGlobal>

#include <span>
#include <vector>

namespace quorvin {

/// What a guarded process is for. None may change the mode, owner, times or extended
/// attributes of a file: no rule could tell the one folder from the rest.
enum class GuardProfile {
    Reader, ///< reads files in the folders that it is given, and talks to its parent
    ExifTool, ///< becomes exiftool, and runs nothing but this and its interpreter; writes into pipes only
    Writer, ///< makes, writes, renames and removes files in one folder and what is below it
};

/// Rights that Landlock knows since its versions 2 and 3.
inline constexpr quint64 kLandlockRefer = 1 << 13;
inline constexpr quint64 kLandlockTruncate = 1 << 14;

/// A system call that is allowed when an argument has this value under a mask.
struct ConditionalCall {
    int call;
    unsigned argument;
    quint64 mask;
    quint64 value;
};

/// What a profile allows, as data. Calls are numbers of this machine; all others fail with EPERM.
struct GuardRules {
    std::vector<std::span<const int>> calls;
    std::vector<std::span<const ConditionalCall>> conditionals;
    quint64 folderRights; ///< of Landlock, in the one folder of the guard, beside reading
    bool writesFiles; ///< else no file may grow
    std::span<const char *const> readable; ///< paths that may be read beside the guard's own folders
    std::span<const char *const> programs; ///< paths that may be run beside the guard's own program
};

const GuardRules &guardRules(GuardProfile profile);

} // namespace quorvin
