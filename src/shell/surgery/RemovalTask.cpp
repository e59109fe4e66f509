// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/surgery/RemovalTask.h"

#include "surgery/MetadataRemover.h"

namespace quorvin {

namespace {

template <typename Treat>
std::vector<RemovalReceipt> receiptsOf(const RemovalTask &task, const RunControl &control, Treat treat)
{
    MetadataRemover remover(task.options, task.setup.limits, task.setup.makeRunner());
    std::vector<RemovalReceipt> receipts;
    receipts.reserve(task.paths.size());
    const auto total = static_cast<int>(task.paths.size());
    for (const QString &path : task.paths) {
        if (control.isStopped() || task.stop.stop_requested())
            break;
        receipts.push_back(treat(
            remover, {.path = path, .keepsTimes = task.keepsTimes, .allowsHardLinks = task.allowsHardLinks}));
        control.report(static_cast<int>(receipts.size()), total);
    }
    return receipts;
}

} // namespace

std::vector<RemovalReceipt> plannedReceipts(const RemovalTask &task, const RunControl &control)
{
    return receiptsOf(task, control, [&](MetadataRemover &remover, const MetadataRemover::Order &order) {
        return remover.planned(order, control.stop());
    });
}

std::vector<RemovalReceipt> removeFromFiles(const RemovalTask &task, const RunControl &control)
{
    return receiptsOf(task, control, [&](MetadataRemover &remover, const MetadataRemover::Order &order) {
        return remover.remove(order, control.stop());
    });
}

} // namespace quorvin
