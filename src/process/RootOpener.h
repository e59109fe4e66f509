// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "process/Frames.h"

#include <sys/types.h>

#include <cstddef>
#include <vector>

namespace quorvin {

/// Opens what a reader may read, in a process beside it: a file system that does not answer keeps its own
/// paths back, and nothing else. One thread, from its making to `take`.
class RootOpener {
public:
    struct Opened {
        std::vector<int> descriptors; ///< they only name what they are of; the caller's
        std::vector<QString> reached; ///< the real paths that the links on the way to `through` lead to
    };

    /// Begins. To be made while the calling process has one thread and has read no file of unknown origin.
    explicit RootOpener(const ReaderRoots &roots);
    ~RootOpener();
    RootOpener(const RootOpener &) = delete;
    RootOpener &operator=(const RootOpener &) = delete;

    /// What has been opened; waits for the rest, but no longer than a second. Once.
    Opened take();

private:
    void endHelper();

    std::size_t _threads; ///< of the helper, that have not come to their end
    int _socket = -1;
    pid_t _helper = -1;
};

} // namespace quorvin
