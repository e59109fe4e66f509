// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "export/ExportEntry.h"
#include "export/QuorvinExporter.h"
#include "shell/desktop/BackgroundRun.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace quorvin {

/// One export of a window: what, how and where to.
struct ExportTask {
    QuorvinExporter exporter;
    std::vector<ExportEntry> entries;
    QString path; ///< of the one document, or of the folder
    bool toFolder = false; ///< a document for each entry
};

/// Writes it and gives the reasons, each with its path, why documents could not be written; none when all
/// went well. Reports the entries that are done. When it is stopped it does so behind the entry at hand:
/// complete documents in a folder stay, no incomplete one does. Any thread.
QStringList writeExport(const ExportTask &task, const RunControl &control);

} // namespace quorvin
