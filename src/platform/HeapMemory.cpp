// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/HeapMemory.h"

#include <malloc.h>

namespace quorvin {

namespace {

constexpr int kPools = 2;

} // namespace

void keepHeapCompact()
{
    ::mallopt(M_ARENA_MAX, kPools);
}

void giveFreeMemoryBack()
{
    ::malloc_trim(0);
}

} // namespace quorvin
