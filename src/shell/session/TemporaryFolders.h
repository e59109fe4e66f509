// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"

#include <QLockFile>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

namespace quorvin {

/// The folders that this run needs for a while: all lie in one folder of its own in the user's temporary
/// folder, which goes with this object. What a killed run left behind goes when the next one starts. Main
/// thread.
class TemporaryFolders {
public:
    TemporaryFolders() = default;
    ~TemporaryFolders();
    TemporaryFolders(const TemporaryFolders &) = delete;
    TemporaryFolders &operator=(const TemporaryFolders &) = delete;

    /// Makes a new empty folder of that name, or of the first free "name (1)", and gives its path.
    Expected<QString> makeFolder(const QString &name);
    /// A folder elsewhere that is to go with this run.
    void add(const QString &path) { _tempFiles.append(path); }
    /// The path leads into a folder that goes with this run.
    bool hold(const QString &path) const;

    /// Removes the folders of runs that are no more, on the calling thread. Any thread.
    static void removeLeftovers();

private:
    QStringList _tempFiles;
    std::unique_ptr<QTemporaryDir> _own;
    std::unique_ptr<QLockFile> _lock; ///< held while this run lives
};

} // namespace quorvin
