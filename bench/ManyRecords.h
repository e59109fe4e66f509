// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "filter/RecordIndex.h"

#include <cstddef>
#include <ctime>
#include <vector>

namespace quorvin::bench {

inline constexpr std::size_t kRecords = 100'000;
inline constexpr std::size_t kWalked
    = 2'000; ///< records that are kept for the walk, which is as long for each

/// Processor time of this thread, so that what else the machine does counts for nothing.
double processorSecondsOf(const auto &work)
{
    const auto now = [] {
        timespec time{};
        ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
    };
    const double start = now();
    work();
    return now() - start;
}

/// The index of all, and the files, of which the first have their records.
struct ManyRecords {
    RecordIndex index;
    std::vector<FilelistItemPtr> files;
    double secondsOfPut = 0;

    ManyRecords();
};

/// Records of 150 parameters, as in real files, one value in ten unique. Made once.
ManyRecords &manyRecords();

} // namespace quorvin::bench
