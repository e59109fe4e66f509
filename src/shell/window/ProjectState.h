// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "projects/Project.h"
#include "shell/commands/Tabs.h"

#include <optional>

namespace quorvin {

class FilelistController;
class LiveSettings;
class MainView;

/// Between a window and the project that it would be. Main thread.

/// The list of the window and how it is looked at, with the user's kept rules; without facts of the files.
Project projectOf(MainView &view, FilelistController &files, LiveSettings &settings);

/// Shows the list of the window, which is that of the project, as the project says: what narrows it, what is
/// watched, what is compared. Its rules are kept with the user's own, which stay where they have the same
/// name.
/// "" when all of it could be done, else a sentence.
QString applyProject(const Project &project, MainView &view, FilelistController &files,
                     LiveSettings &settings);

/// Absent when it is not told, or none of this version.
std::optional<Tab> tabOf(const Project &project);

/// Whether one should be saved in place of the other: the tab, the choice of rows and the user's rules alone
/// are no reason, nor are facts.
bool isWorthSaving(const Project &now, const Project &saved);

} // namespace quorvin
