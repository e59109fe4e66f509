// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/outline/OutlinePlaces.h"

#include "shell/outline/ExtTreeModel.h"

#include <QItemSelectionModel>
#include <QScrollBar>
#include <QTreeView>

#include <utility>

namespace quorvin {

void OutlinePlaces::note(const QTreeView &view, const ExtTreeModel &content, int covered)
{
    if (content.rowCount() == 0)
        return;
    const int scrolled = view.verticalScrollBar()->value();
    if (std::exchange(_unplacedAt, -1) == scrolled)
        return;
    const QModelIndex current = view.currentIndex();
    _currentRow = current.isValid() ? std::optional(RowPlace(content, current)) : std::nullopt;
    const QRect seen = current.isValid() ? view.visualRect(current) : QRect();
    const bool isSeen = !seen.isEmpty() && view.viewport()->rect().intersects(seen);
    const QModelIndex top = isSeen ? current : view.indexAt({view.viewport()->width() / 2, covered});
    _topRow = scrolled > 0 && top.isValid() ? std::optional(RowPlace(content, top)) : std::nullopt;
    _topRowY = top.isValid() ? view.visualRect(top).top() : 0;
}

void OutlinePlaces::restore(QTreeView &view, const ExtTreeModel &content)
{
    if (const QModelIndex current = _currentRow ? _currentRow->exactIn(content) : QModelIndex();
        current.isValid())
        view.selectionModel()->setCurrentIndex(
            current, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    QScrollBar *bar = view.verticalScrollBar();
    const QModelIndex top = _topRow ? _topRow->nearestIn(content) : QModelIndex();
    if (top.isValid() && !view.visualRect(top).isEmpty())
        bar->setValue(bar->value() + view.visualRect(top).top() - _topRowY);
    else
        bar->setValue(0);
    // The user may go on to a file that has the row, without having looked for another one.
    _unplacedAt = _topRow && !_topRow->exactIn(content).isValid() ? bar->value() : -1;
}

} // namespace quorvin
