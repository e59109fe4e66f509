// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/FilelistItem.h"

#include <QItemSelectionModel>

#include <memory>
#include <vector>

namespace quorvin {

class ArrangedFilelist;

/// What is selected of a window's arranged files. Main thread.
class FilelistSelection final : public QItemSelectionModel {
    Q_OBJECT
public:
    /// `files` must outlive this object.
    explicit FilelistSelection(ArrangedFilelist &files, QObject *parent = nullptr);

    /// The row of the keyboard's place where it is selected, else the first selected one; -1 for none.
    int selectedRow() const;
    /// In their order.
    std::vector<int> rows() const;
    int count() const;

    /// Selects that row alone.
    void selectRow(int row);
    /// Those that are shown, in addition or alone; the first of them is the keyboard's place. None shown:
    /// does nothing.
    void selectFiles(const std::vector<FilelistItemPtr> &files, SelectionFlag how = Select);

    /// Has the filter decide anew which files are shown. What stays in sight stays selected. When all that is
    /// selected goes, the first row stands in, until `current`, the file that was looked at, is back in sight
    /// or another one is selected.
    void rearrange(const FilelistItemPtr &current);

private:
    ArrangedFilelist &_files;
    std::weak_ptr<FilelistItem> _displaced; ///< went out of sight
    std::weak_ptr<FilelistItem> _standIn; ///< was selected in its place
};

} // namespace quorvin
