// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/FilelistItem.h"
#include "projects/Project.h"

#include <vector>

namespace quorvin {

/// Between the files of a list and those of a project. Any thread.

/// In their order, shown as the list shows them; without facts.
std::vector<ProjectFile> projectFilesOf(const std::vector<FilelistItemPtr> &list);

/// A file for a list, shown as the project says, that nobody has looked at.
FilelistItemPtr itemOf(const ProjectFile &file);

} // namespace quorvin
