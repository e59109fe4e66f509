// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/FilelistItem.h"

#include <vector>

namespace quorvin {

/// What was taken out of a list and can come back, the last removal first. Main thread.
class RemovedFiles {
public:
    struct Removal {
        std::vector<int> rows; ///< of the whole list before the removal, ascending
        std::vector<FilelistItemPtr> files; ///< in the order of the rows
    };

    /// The most files that are kept for this, with their records; older removals are forgotten.
    static constexpr std::size_t kMostFiles = 100'000;

    bool isEmpty() const { return _removals.empty(); }
    void keep(Removal removal);
    /// There must be one.
    Removal takeLast();
    void clear();

private:
    std::vector<Removal> _removals;
    std::size_t _count = 0; ///< of all files
};

} // namespace quorvin
