// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/FilelistItem.h"
#include "model/Error.h"
#include "projects/Project.h"

#include <QStringList>

#include <stop_token>
#include <vector>

namespace quorvin {

/// A project as a window takes it.
struct OpenedProject {
    Project project;
    std::vector<FilelistItemPtr> files; ///< those that are missing have failed already
    QStringList roots; ///< what readers may read for them
};

/// Reads a project and looks whether its files are there. The error is a reason. Any thread.
Expected<OpenedProject> openProject(const QString &path, const std::stop_token &stop);

/// Nothing stands at that path. Any thread.
bool isMissing(const QString &path);

} // namespace quorvin
