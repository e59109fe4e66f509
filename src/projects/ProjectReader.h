// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"
#include "projects/Project.h"

namespace quorvin {

/// Reads the project in that file. It is bounded in size, in depth and in the number of its entries; members
/// that this version does not know are passed over, and gone when the project is written again. The error, a
/// reason without the path, tells a damaged project, with the line, from one that a newer Quorvin wrote, from
/// a file that is none, and from one that cannot be read. No file that it names is touched. Any thread.
Expected<Project> readProject(const QString &path);

/// The same for what stands in a file; relative addresses count from `folder`.
Expected<Project> projectFromJson(const QByteArray &json, const QString &folder);

} // namespace quorvin
