// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "cli/Command.h"

namespace quorvin::cli {

/// The command "attachments": writes what is attached to each file into a folder, and the paths of what it
/// wrote, one a line.
QList<Option> attachmentsOptions();
Expected<void> checkAttachments(const Arguments &arguments);
Status runAttachments(const Context &context);

} // namespace quorvin::cli
