// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/compare/ComparisonGrid.h"

#include <QPersistentModelIndex>

#include <vector>

namespace quorvin {

/// The table of a comparison: what is selected in it and what its cells and headers lead to. Rows are
/// selected, but for headings. Main thread.
class ComparisonTable final : public ComparisonGrid {
    Q_OBJECT
public:
    /// As `ComparisonGrid`.
    explicit ComparisonTable(ComparisonController &content, QWidget *parent = nullptr);

    /// That of the current cell, counted from 0; -1 without one.
    int currentFile() const;
    void setCurrentFile(int file);
    /// The current cell is that of a parameter.
    bool hasCurrentRow() const;
    /// In their order.
    std::vector<int> selectedRows() const;

    /// Tints the cells that contain the text; "": none.
    void setSoughtText(const QString &text);
    /// Goes to the next of them; false when there is none.
    bool findNext(ComparisonController::Direction direction);
    /// Goes to the next row that differs; false when there is none.
    bool showNextDifference(ComparisonController::Direction direction);

Q_SIGNALS:
    /// Or the current cell.
    void selectionDidChange();
    void menuWanted(const QPoint &globalPosition);
    /// A cell of a file was double clicked, or Return pressed on it.
    void cellOpened(const QModelIndex &cell);
    void referenceWanted(int file);
    void closeWanted(int file);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    /// Passes by headings.
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void selectionChanged(const QItemSelection &selected, const QItemSelection &deselected) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;

private:
    void goTo(const QModelIndex &cell);

    QPersistentModelIndex _hit; ///< where the search is
};

} // namespace quorvin
