// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace quorvin {

/// What a guard put in force; the kernel decides what there is.
enum GuardPart : quint32 {
    GuardLimits = 1, ///< of memory, files and core dumps
    GuardLandlock = 2, ///< the file system can be read, not changed, and nothing in it run
    GuardSeccomp = 4, ///< no network, no writing, no new programs or processes, no tracing or signals
};

/// Takes from this process, for good, all but what reading files and talking to its parent needs.
/// `addressSpace` is in bytes; 0 sets no limit. What is forbidden fails with an error, as a full disk or a
/// missing right would. Call from the one thread of a process that is about to read files of unknown origin.
/// Gives the parts that are in force.
quint32 raiseGuard(quint64 addressSpace);

/// The parts by name: "Landlock, seccomp, resource limits"; "nothing" for none.
QString guardNames(quint32 parts);

} // namespace quorvin
