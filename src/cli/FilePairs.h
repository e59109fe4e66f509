// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/FilelistItem.h"

#include <vector>

namespace quorvin::cli {

/// Two files of two folders that belong together; one of them null where the other has no partner.
struct FilePair {
    FilelistItemPtr first;
    FilelistItemPtr second;
};

/// Pairs files whose prefixed paths are the same but for their extensions. Where there are several, those
/// with the same extension too find each other, and then the others in their order. In file browser order.
/// Any thread.
std::vector<FilePair> filePairs(const std::vector<FilelistItemPtr> &first,
                                const std::vector<FilelistItemPtr> &second);

} // namespace quorvin::cli
