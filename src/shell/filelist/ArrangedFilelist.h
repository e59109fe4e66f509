// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/FilelistItem.h"

#include <QSortFilterProxyModel>

#include <optional>
#include <vector>

namespace quorvin {

class FilelistModel;

/// The files of a window as it shows them: those of the whole list that no filter hides, in the order of the
/// sorting, or without one in that of the whole list. Its rows are those of the table. Main thread.
class ArrangedFilelist : public QSortFilterProxyModel {
    Q_OBJECT
public:
    /// `whole` must outlive this object.
    explicit ArrangedFilelist(FilelistModel &whole, QObject *parent = nullptr);

    /// Null beyond the list.
    FilelistItemPtr fileAt(int row) const;
    /// -1 when it is hidden, or in no list.
    int rowOf(const FilelistItemPtr &file) const;
    /// -1 beyond the list.
    int rowInWholeList(int row) const;
    const std::vector<FilelistItemPtr> &files() const;

    /// Rows are just being taken out: they are still there, and nobody may lean on them.
    bool isLosingRows() const { return _isLosingRows; }

private:
    FilelistModel &_whole;
    mutable std::optional<std::vector<FilelistItemPtr>> _files; ///< made when asked for
    bool _isLosingRows = false;
};

} // namespace quorvin
