// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/FilelistItem.h"

#include <QListView>

#include <vector>

namespace quorvin {

class FilelistModel;

/// The list of files at the side of a window.
class FilelistTable : public QListView {
    Q_OBJECT
public:
    /// The model must outlive the table.
    explicit FilelistTable(FilelistModel &model, QWidget *parent = nullptr);

    /// -1 for none.
    int selectedRow() const;
    /// The rows that are selected, in their order.
    std::vector<int> selectedRows() const;
    /// Selects that row alone and brings it into sight.
    void selectRow(int row);
    /// Nothing: what acts on the selection is not to take all files by a slip.
    void selectAll() override { }

    /// Draws the row of the file anew if it can be seen.
    void setNeedsDisplayIfItemIsVisible(const FilelistItemPtr &file);
    /// The paths of the selected rows, as addresses and as text.
    void copy() const;

Q_SIGNALS:
    /// -1 for none.
    void currentRowChanged(int row);
    void menuWanted(const QPoint &globalPosition);

protected:
    void selectionChanged(const QItemSelection &selected, const QItemSelection &deselected) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void tellRow();
    std::pair<int, int> visibleRows() const;

    FilelistModel &_model;
};

} // namespace quorvin
