// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/FilelistItem.h"

#include <QSortFilterProxyModel>

#include <optional>
#include <vector>

namespace quorvin {

class FilelistFiltering;
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

    /// From now on only files that pass are shown. `filter` must outlive this object.
    void setFilter(const FilelistFiltering &filter);
    /// Other files pass than before. With many of them here and there the model is reset.
    void rearrange();

    /// Rows are just being taken out: they are still there, and nobody may lean on them.
    bool isLosingRows() const { return _isLosingRows; }

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;

private:
    FilelistModel &_whole;
    const FilelistFiltering *_filter = nullptr;
    std::vector<bool> _decided; ///< by the row of the whole list, while it is arranged anew; else empty
    mutable std::optional<std::vector<FilelistItemPtr>> _files; ///< made when asked for
    bool _isLosingRows = false;
};

} // namespace quorvin
