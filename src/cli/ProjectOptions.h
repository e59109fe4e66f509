// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "cli/Command.h"
#include "intake/FilelistItem.h"

#include <vector>

namespace quorvin::cli {

/// What `list` does with projects. One thread.

/// Whether --save-project, if it is given, may write there: the name is that of a project, and what stands
/// there is nothing that the call reads. Else the call is refused.
bool isProjectAllowed(const Context &context, const std::vector<FilelistItemPtr> &inputs);

/// Writes the project of --save-project with these files, what they are like, and the filter of the call.
/// False, with an error line, when it could not be written.
bool saveProjectOf(const Context &context, const std::vector<FilelistItemPtr> &files);

/// --changed: a line for each file that is not as the project remembers it.
Status listChanges(const Context &context);

} // namespace quorvin::cli
