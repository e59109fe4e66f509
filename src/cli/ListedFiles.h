// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/FilelistFiller.h"

#include <QStringList>

#include <vector>

namespace quorvin::cli {

/// The files that the paths of a call stand for.
struct ListedFiles {
    /// Those of files and folders, sorted as a walk sorts them, then those of projects as they stand there.
    std::vector<FilelistItemPtr> files;
    QStringList roots; ///< what readers may read for them
    std::vector<FilelistFiller::Problem> problems; ///< folders and projects that could not be read
};

/// Walks folders and reads projects. `paths` are absolute. One thread.
ListedFiles listedFiles(const QStringList &paths);

} // namespace quorvin::cli
