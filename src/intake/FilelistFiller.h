// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/FilelistItem.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <stop_token>
#include <vector>

namespace quorvin {

/// Expands files and folders into the sorted list of their files.
///
/// Folders are walked to any depth, symbolic links followed, hidden files and packages included; only
/// ".DS_Store" is left out. A folder that is its own ancestor (same device and inode) is not entered again,
/// and inside a link no folder that the walk has entered already: links that lead to each other would
/// multiply. A path that does not exist is an item like any other; an empty one is a problem. What is no
/// folder is not opened.
class FilelistFiller {
public:
    /// A folder that could not be listed.
    struct Problem {
        QString path;
        QString reason;
    };

    /// Walks at once, on the calling thread. `paths` are absolute. With two or more of them, the prefixed
    /// path of a file in a folder begins with the folder's own name. A stop ends the walk with what it has
    /// found. `progress` is told the number of files found so far, at each folder and
    /// within long ones.
    static FilelistFiller fillerWithSourceArray(const QStringList &paths, const std::stop_token &stop = {},
                                                const std::function<void(std::size_t)> &progress = {});

    /// Sorted like a file browser.
    const std::vector<FilelistItemPtr> &filelist() const { return _filelist; }
    const std::vector<Problem> &problems() const { return _problems; }

private:
    void sortFilelistLikeFinder();

    std::vector<FilelistItemPtr> _filelist;
    std::vector<Problem> _problems;
};

} // namespace quorvin
