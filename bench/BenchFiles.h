// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <chrono>
#include <vector>

namespace quorvin::bench {

/// The files to measure with: those listed in the file that QUORVIN_BENCH_LIST names, one a line, else the
/// samples. Only those that a record can be made of count.
const std::vector<QString> &mediaFiles();

double secondsOf(const auto &work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

} // namespace quorvin::bench
