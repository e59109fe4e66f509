// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace quorvin {

/// Copies all bytes of one open file into another that is empty, which shares the blocks where the file
/// system can. Where the descriptors stand does not matter, and stays. False with errno. Any thread.
bool copyBytes(int from, int to);

} // namespace quorvin
