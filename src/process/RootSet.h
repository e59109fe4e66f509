// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

#include <mutex>
#include <utility>

namespace quorvin {

/// The paths of a moment out of a `RootSet`: what a reader that starts now may read.
class ReadableRoots {
public:
    static constexpr std::size_t kMost = 64;

    ReadableRoots() = default;
    /// Absolute paths of files and folders. A folder stands for all that is below it. Where there are more
    /// than `kMost`, or they are too long together, the deepest give way to the folders above them.
    explicit ReadableRoots(const QStringList &paths);

    /// Sorted by their depth; none is below another.
    const QStringList &paths() const { return _paths; }
    /// Whether a reader with these roots can be expected to read the file: by the text of its path alone,
    /// which knows nothing of links.
    bool cover(const QString &path) const;

private:
    QStringList _paths;
    QSet<QString> _roots;
};

/// What the readers of one list may read, growing with the list. Any thread.
class RootSet {
public:
    RootSet() = default;
    explicit RootSet(QStringList paths) : _added(std::move(paths)) { }
    RootSet(const RootSet &) = delete;
    RootSet &operator=(const RootSet &) = delete;
    ~RootSet() = default;

    /// Absolute paths, as `ReadableRoots` has them. Done at once, however many.
    void add(const QStringList &paths);
    /// Takes its time for thousands of them.
    ReadableRoots roots() const;

private:
    mutable std::mutex _lock;
    mutable QStringList _added; ///< since they were last asked for
    mutable ReadableRoots _roots;
};

} // namespace quorvin
