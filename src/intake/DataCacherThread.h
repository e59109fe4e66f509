// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>
#include <stop_token>

namespace quorvin {

struct DataCacherShared;

/// The life of one thread of a pool, on that thread: takes files from the queue until there are none, or it
/// is stopped, and leaves the pool. `thread` is its number in the pool.
void processFilesInThread(const std::shared_ptr<DataCacherShared> &shared, int thread,
                          const std::stop_token &stop);

} // namespace quorvin
