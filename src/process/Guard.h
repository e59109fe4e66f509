// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "process/GuardRules.h"

#include <QString>

#include <string>
#include <vector>

namespace quorvin {

/// What a guard put in force; the kernel decides what there is.
enum GuardPart : quint32 {
    GuardLimits = 1, ///< of file sizes, open files, threads and core dumps; no capabilities
    GuardLandlock = 2, ///< nothing can be changed or run in the file system but what the profile allows
    GuardSeccomp = 4, ///< no network, no new processes, no tracing or signals, and the profile's own rules
};

struct Guard {
    GuardProfile profile = GuardProfile::Reader;
    int folder = -1; ///< of a writer: an open descriptor, which may be closed once the guard stands
    std::string program = {}; ///< of exiftool: its path
    std::vector<int> readable
        = {}; ///< of a reader: open descriptors of what it may read, which the guard closes
};

/// Takes from this process, for good, all but what its profile needs. What is forbidden fails with an error,
/// as a full disk or a missing right would. Call from the one thread of a process that is about to work on
/// files of unknown origin; for exiftool, in the process that is going to become it. Without Landlock nothing
/// keeps a reader or a writer to its folders, or exiftool from becoming another program.
/// A process of root keeps its files, but none of root's powers over those of others, with one exception: a
/// reader that Landlock confines may read what is in its folders, whoever may else. For who runs this system
/// as root hands it files of other users.
/// Gives the parts that are in force.
quint32 raiseGuard(const Guard &guard);

/// The parts by name: "Landlock, seccomp, resource limits"; "nothing" for none.
QString guardNames(quint32 parts);
/// Those of the three that are not in force, in the same form; "" for none.
QString missingGuardNames(quint32 parts);

} // namespace quorvin
