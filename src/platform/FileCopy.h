// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <sys/types.h>

#include <cstddef>

namespace quorvin {

/// Copies all bytes of one open file into another that is empty, which shares the blocks where the file
/// system can. Where the descriptors stand does not matter, and stays. False with errno. Any thread.
bool copyBytes(int from, int to);

/// Writes all of these bytes to that place of a file. Likewise.
bool writeBytes(int to, const void *bytes, std::size_t count, off_t place);

} // namespace quorvin
