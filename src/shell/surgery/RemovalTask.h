// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/AnalysisOptions.h"
#include "shell/desktop/BackgroundRun.h"
#include "surgery/RemovalReceipt.h"

#include <QString>

#include <stop_token>
#include <vector>

namespace quorvin {

/// One removal of metadata from images of a window: what, from which, and how.
struct RemovalTask {
    AnalysisSetup setup;
    std::vector<QString> paths = {};
    oEXIV2Metadata options = {};
    bool keepsTimes = false;
    bool allowsHardLinks = false;
    /// Ends the work between two files, so that what was done is told; a stop of the run ends it at once.
    std::stop_token stop = {};
};

/// What would come of each file, in their order. Reports the files that are done. Any thread.
std::vector<RemovalReceipt> plannedReceipts(const RemovalTask &task, const RunControl &control);

/// Removes it. There is a receipt for each file that was begun with. Any thread.
std::vector<RemovalReceipt> removeFromFiles(const RemovalTask &task, const RunControl &control);

} // namespace quorvin
