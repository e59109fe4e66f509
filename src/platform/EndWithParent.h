// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <sys/types.h>

namespace quorvin {

/// For a program that serves the one that started it: it ends with that thread of it, whatever either is
/// doing, and at once when `parent` is gone already. What interrupts the parent at the terminal is the
/// parent's affair. Descriptors above `lastDescriptor` are closed. Call first of all, before any file is
/// opened.
void endWithParent(pid_t parent, int lastDescriptor);

} // namespace quorvin
