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
    const QModelIndex current = view.currentIndex();
    const bool isChosen = view.selectionModel()->isSelected(current) && _restored != current;
    if (std::exchange(_unplacedAt, -1) == scrolled && !isChosen)
        return;
    if (current.isValid())
        _currentRow = RowPlace(content, current);
    const QRect seen = current.isValid() ? view.visualRect(current) : QRect();
    const bool isSeen = !seen.isEmpty() && view.viewport()->rect().intersects(seen);
    const QModelIndex top = isSeen ? current : view.indexAt({view.viewport()->width() / 2, covered});
    _topRow = scrolled > 0 && top.isValid() ? std::optional(RowPlace(content, top)) : std::nullopt;
    _topRowY = top.isValid() ? view.visualRect(top).top() : 0;
}

void OutlinePlaces::restore(QTreeView &view, const ExtTreeModel &content, bool isSameFile)
{
    const auto find = [&](const RowPlace &place) {
        const QModelIndex same = isSameFile ? place.sameIn(content) : QModelIndex();
        return same.isValid() ? same : place.exactIn(content);
    };
    const QModelIndex current = _currentRow ? find(*_currentRow) : QModelIndex();
    _restored = current;
    if (current.isValid())
        view.selectionModel()->setCurrentIndex(
            current, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    QScrollBar *bar = view.verticalScrollBar();
    const QModelIndex exactTop = _topRow ? find(*_topRow) : QModelIndex();
    const QModelIndex top = _topRow && !exactTop.isValid() ? _topRow->nearestIn(content) : exactTop;
    if (top.isValid() && !view.visualRect(top).isEmpty())
        bar->setValue(bar->value() + view.visualRect(top).top() - _topRowY);
    else
        bar->setValue(0);
    // The user may go on to a file that has the row, without having looked for another one.
    _unplacedAt = _topRow && !exactTop.isValid() ? bar->value() : -1;
}

} // namespace quorvin
