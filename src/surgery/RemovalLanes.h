// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "surgery/MetadataRemover.h"

#include <functional>
#include <memory>
#include <optional>
#include <stop_token>

namespace quorvin {

/// How many files are treated.
struct RemovalWork {
    using Treat
        = RemovalReceipt (MetadataRemover::*)(const MetadataRemover::Order &, const std::stop_token &);

    /// Called on several threads, once on each.
    std::function<std::unique_ptr<MetadataRemover>()> makeRemover;
    Treat treat = &MetadataRemover::remove; ///< or `planned`
    std::stop_token stop = {}; ///< gives up what is under way
    std::stop_token pause = {}; ///< begins no further file
};

/// Treats each file that `nextOrder` gives until it gives none, and tells the receipts of those that were
/// begun, in their order. Several are worked on side by side, as the disk is what a removal waits for; but
/// never two that lead to one file. Both functions are called on the caller's thread.
void treatFiles(const RemovalWork &work,
                const std::function<std::optional<MetadataRemover::Order>()> &nextOrder,
                const std::function<void(RemovalReceipt)> &tell);

} // namespace quorvin
