// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "comparison/ComparisonRows.h"
#include "intake/FilelistItem.h"
#include "shell/compare/ComparisonNote.h"

#include <QStringList>

#include <unordered_set>
#include <vector>

namespace quorvin {

/// A file of a comparison, and its record at the time.
struct ComparedFile {
    FilelistItemPtr file;
    QuorvinDataPtr record; ///< never null

    bool operator==(const ComparedFile &) const = default;
};

/// Which files of a list are compared, and in which order they stand: those of the list that have a record,
/// as many as the limit allows, but for those that the user has closed; and where the user has put them, with
/// files that come later behind. Main thread.
class ComparedFiles {
public:
    /// Takes the files of a list; whether others are compared now than before.
    bool take(const std::vector<FilelistItemPtr> &files, int limit);
    /// In the order of the list.
    const std::vector<ComparedFile> &files() const { return _files; }
    const ComparedCounts &counts() const { return _counts; }

    /// For each place the number of its file among `files`.
    std::vector<int> order() const;
    /// Puts the files where they stand there.
    void setOrder(const std::vector<ComparedFile> &files);

    /// The paths of the files of a list that are not closed, whatever is known of them, where the user has
    /// put them; and the other way round, from the next `take` on.
    QStringList columns(const std::vector<FilelistItemPtr> &files) const;
    void setColumns(const std::vector<FilelistItemPtr> &files, const QStringList &paths);

    /// From the next `take` on. It is no longer among them.
    void close(const FilelistItemPtr &file);
    void reopenAll() { _closed.clear(); }

private:
    std::vector<ComparedFile> _files;
    ComparedCounts _counts;
    // By their addresses: such a file is in the list, or nobody asks for it.
    std::vector<const FilelistItem *> _places; ///< as the user has put them; empty: as in the list
    std::unordered_set<FilelistItemPtr> _closed; ///< also while the list hides them
};

/// The rows of the files, whose values stand in that order. Any thread.
ComparisonContent orderedRows(const std::vector<ComparedFile> &files, const std::vector<int> &order);
/// The same rows with the values of their files in another order.
ComparisonContent reordered(ComparisonContent content, const std::vector<int> &order);
/// The paths of the files in that order.
QStringList orderedPaths(const std::vector<ComparedFile> &files, const std::vector<int> &order);

} // namespace quorvin
