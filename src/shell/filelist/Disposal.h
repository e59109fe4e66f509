// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/HeapMemory.h"
#include "shell/desktop/BackgroundRun.h"

#include <cstddef>
#include <utility>

namespace quorvin {

/// What is freed of fewer records is soon used again.
inline constexpr std::size_t kManyRecords = 1000;

/// Lets go of a list of files or records on a thread of its own: thousands of records take their time to go.
/// Any thread.
template <typename Items>
void disposeElsewhere(Items items)
{
    if (items.empty())
        return;
    BackgroundRunBase::runOnThread("Disposal", [items = std::move(items)]() mutable {
        const bool areMany = items.size() >= kManyRecords;
        items.clear();
        if (areMany)
            giveFreeMemoryBack();
    });
}

} // namespace quorvin
