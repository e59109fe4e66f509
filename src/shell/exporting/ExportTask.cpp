// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/exporting/ExportTask.h"

namespace quorvin {

QStringList writeExport(const ExportTask &task, const RunControl &control)
{
    const auto target = task.toFolder ? task.exporter.toFolder(task.path) : task.exporter.toFile(task.path);
    const int total = static_cast<int>(task.entries.size());
    QStringList failures;
    int done = 0;
    for (const ExportEntry &entry : task.entries) {
        // One document ends with its first failure; of a folder each document is tried.
        if (control.isStopped() || (!task.toFolder && !failures.isEmpty()))
            return failures;
        if (const auto added = target->add(entry); !added)
            failures.append(added.error().description);
        control.report(++done, total);
    }
    if (control.isStopped())
        return failures;
    if (const auto finished = failures.isEmpty() ? target->finish() : ExportTarget::Result(); !finished)
        failures.append(finished.error().description);
    return failures;
}

} // namespace quorvin
