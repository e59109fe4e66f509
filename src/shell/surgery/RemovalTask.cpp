// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/surgery/RemovalTask.h"

#include "surgery/RemovalLanes.h"

#include <memory>
#include <optional>
#include <utility>

namespace quorvin {

namespace {

std::vector<RemovalReceipt> receiptsOf(const RemovalTask &task, const RunControl &control,
                                       RemovalWork::Treat treat)
{
    const auto makeRemover = [&] {
        return std::make_unique<MetadataRemover>(task.options, task.setup.limits, task.setup.makeRunner());
    };
    const auto total = static_cast<int>(task.paths.size());
    auto path = task.paths.begin();
    const auto nextOrder = [&]() -> std::optional<MetadataRemover::Order> {
        if (path == task.paths.end() || control.isStopped() || task.stop.stop_requested())
            return std::nullopt;
        return MetadataRemover::Order{
            .path = *path++, .keepsTimes = task.keepsTimes, .allowsHardLinks = task.allowsHardLinks};
    };
    std::vector<RemovalReceipt> receipts;
    receipts.reserve(task.paths.size());
    treatFiles({makeRemover, treat, control.stop(), task.stop}, nextOrder, [&](RemovalReceipt receipt) {
        receipts.push_back(std::move(receipt));
        control.report(static_cast<int>(receipts.size()), total);
    });
    return receipts;
}

} // namespace

std::vector<RemovalReceipt> plannedReceipts(const RemovalTask &task, const RunControl &control)
{
    return receiptsOf(task, control, &MetadataRemover::planned);
}

std::vector<RemovalReceipt> removeFromFiles(const RemovalTask &task, const RunControl &control)
{
    return receiptsOf(task, control, &MetadataRemover::remove);
}

} // namespace quorvin
