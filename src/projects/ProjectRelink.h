// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "projects/Project.h"

#include <QHash>
#include <QString>

#include <functional>
#include <stop_token>
#include <vector>

namespace quorvin {

/// Where missing files are now: the new paths by the old ones. First each is looked for below `folder` under
/// as much of its old path as leads to a file there; then, in a walk of the folder, by its name, and by its
/// size where that is kept. Of several such files the one counts that shares most folders with the old path,
/// and none if that is not one alone. What no file is found for is left out; a stop gives what is found so
/// far. `progress` is told the number of files that the walk has met. Any thread.
QHash<QString, QString> relinkedPaths(const std::vector<ProjectFile> &missing, const QString &folder,
                                      const std::stop_token &stop = {},
                                      const std::function<void(std::size_t)> &progress = {});

} // namespace quorvin
