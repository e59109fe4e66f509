// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"
#include "projects/Project.h"

class QIODevice;

namespace quorvin {

/// Writes a project as JSON; addresses are relative to `folder` where that is possible. The error is a reason
/// without the path, also for a project that would not be read again for its size. One thread.
Expected<void> writeProject(const Project &project, const QString &folder, QIODevice &device);

/// The same into a file, which appears under its name when it is complete; until then the old one stays.
Expected<void> saveProject(const Project &project, const QString &path);

} // namespace quorvin
