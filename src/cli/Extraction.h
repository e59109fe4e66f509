// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "cli/Command.h"
#include "process/Job.h"

namespace quorvin::cli {

/// The folder that extracted files go to.
Option extractionFolderOption(const QString &description);

/// Writes what is inside each file into the folder of the call, and prints the paths of what it wrote, one a
/// line.
Status runExtraction(const Context &context, ExtractionRequest::Kind kind);

} // namespace quorvin::cli
