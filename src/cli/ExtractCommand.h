// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "cli/Command.h"

namespace quorvin::cli {

/// The command "extract": writes the covers, thumbnails and previews of each file into a folder, and the
/// paths of what it wrote, one a line.
QList<Option> extractOptions();
Expected<void> checkExtract(const Arguments &arguments);
Status runExtract(const Context &context);

} // namespace quorvin::cli
