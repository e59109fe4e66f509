// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/DigestProgress.h"
#include "model/Error.h"
#include "projects/Project.h"

#include <functional>
#include <stop_token>

namespace quorvin {

/// Is told, between two files, how many of them are done.
using FilesProgress = std::function<void(std::size_t done, std::size_t total)>;

/// Size and dates of a regular file, links followed, in one call of the system. The error is of the POSIX
/// domain, or tells what stands there. Any thread.
Expected<KeptFacts> statFacts(const QString &path);

/// The SHA-1 of a file, which is read whole; an error also when `stop` asks to end. Any thread.
Expected<QString> digestForProject(const QString &path, const std::stop_token &stop);

/// The names of the files in a folder, in no order: of all that a walk of the folder would list, but for
/// projects. What is no file (a folder, a link to one) is left out. Any thread.
Expected<QStringList> fileNamesIn(const QString &folder);

/// Notes what the files of a project are like at this moment, and what else lies in their folders. A digest
/// is kept if asked for. What cannot be read keeps no facts; a folder that cannot be listed, or that holds
/// more than `kMostOthers` other files, is not kept. A stop leaves the rest as it was. Any thread.
void keepFacts(Project &project, bool withDigests, const std::stop_token &stop = {},
               const FilesProgress &progress = {});

inline constexpr qsizetype kMostOthers = 10'000;

} // namespace quorvin
