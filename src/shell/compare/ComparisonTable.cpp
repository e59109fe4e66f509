// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/compare/ComparisonTable.h"

#include "shell/compare/ComparisonDelegate.h"
#include "shell/compare/FileHeader.h"
#include "shell/compare/ParameterHeader.h"

#include <QContextMenuEvent>
#include <QKeyEvent>

#include <algorithm>

namespace quorvin {

ComparisonTable::ComparisonTable(ComparisonController &content, QWidget *parent)
    : ComparisonGrid(content, parent)
{
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setTabKeyNavigation(false);
    setAccessibleName(tr("Comparison"));
    const auto fileOf = [this](int column) { return this->content().fileOfColumn(column); };
    connect(&files(), &FileHeader::referenceWanted, this,
            [this, fileOf](int column) { Q_EMIT referenceWanted(fileOf(column)); });
    connect(&files(), &FileHeader::closeWanted, this,
            [this, fileOf](int column) { Q_EMIT closeWanted(fileOf(column)); });
    connect(&files(), &FileHeader::menuWanted, this, [this, fileOf](int column, const QPoint &where) {
        setCurrentFile(fileOf(column));
        Q_EMIT menuWanted(where);
    });
    connect(&names(), &ParameterHeader::menuWanted, this, [this](int row, const QPoint &where) {
        if (!selectionModel()->isRowSelected(row))
            selectRow(row);
        Q_EMIT menuWanted(where);
    });
    connect(this, &QAbstractItemView::doubleClicked, this, [this](const QModelIndex &cell) {
        if (!isHeading(cell.row()))
            Q_EMIT cellOpened(cell);
    });
}

QModelIndex ComparisonTable::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    const QModelIndex to = QTableView::moveCursor(action, modifiers);
    if (!to.isValid() || !isHeading(to.row()))
        return to;
    const int step = action == MoveUp || action == MovePageUp ? -1 : 1;
    for (const int direction : {step, -step}) {
        int row = to.row();
        while (isHeading(row))
            row += direction;
        if (content().rowAt(row)) {
            // The first heading is not to stay out of sight.
            scrollTo(to);
            return to.siblingAtRow(row);
        }
    }
    return {};
}

void ComparisonTable::keyPressEvent(QKeyEvent *event)
{
    const bool opens = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const Qt::KeyboardModifiers held = event->modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier);
    if (opens && held == Qt::NoModifier && hasCurrentRow())
        Q_EMIT cellOpened(currentIndex());
    else
        QTableView::keyPressEvent(event);
}

void ComparisonTable::contextMenuEvent(QContextMenuEvent *event)
{
    const QRect current = visualRect(currentIndex());
    const bool isKeyboard = event->reason() == QContextMenuEvent::Keyboard;
    const QPoint where
        = isKeyboard && current.isValid() ? viewport()->mapToGlobal(current.center()) : event->globalPos();
    if (hasCurrentRow())
        Q_EMIT menuWanted(where);
}

void ComparisonTable::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected)
{
    QTableView::selectionChanged(selected, deselected);
    Q_EMIT selectionDidChange();
}

void ComparisonTable::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTableView::currentChanged(current, previous);
    Q_EMIT selectionDidChange();
}

int ComparisonTable::currentFile() const
{
    const QModelIndex current = currentIndex();
    return current.isValid() ? content().fileOfColumn(current.column()) : -1;
}

void ComparisonTable::setCurrentFile(int file)
{
    int row = currentIndex().isValid() ? currentIndex().row() : std::max(rowAt(0), 0);
    while (isHeading(row))
        ++row;
    selectionModel()->setCurrentIndex(content().index(row, ComparisonController::columnOfFile(file)),
                                      QItemSelectionModel::NoUpdate);
}

bool ComparisonTable::hasCurrentRow() const
{
    return currentIndex().isValid() && !isHeading(currentIndex().row());
}

std::vector<int> ComparisonTable::selectedRows() const
{
    std::vector<int> rows;
    for (const QItemSelectionRange &range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            if (!isHeading(row))
                rows.push_back(row);
        }
    }
    std::ranges::sort(rows);
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

void ComparisonTable::goTo(const QModelIndex &cell)
{
    const int column = cell.column() > 0 ? cell.column() : std::max(currentIndex().column(), 1);
    const QModelIndex shown = cell.siblingAtColumn(column);
    selectionModel()->setCurrentIndex(shown, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollTo(shown);
    // Its measured neighbours may have pushed it out again.
    scrollTo(shown);
}

void ComparisonTable::setSoughtText(const QString &text)
{
    cells().soughtText = text;
    names().soughtText = text;
    _hit = QModelIndex();
    viewport()->update();
    names().viewport()->update();
}

bool ComparisonTable::findNext(ComparisonController::Direction direction)
{
    const QModelIndex from
        = _hit.isValid() && _hit.row() == currentIndex().row() ? QModelIndex(_hit) : currentIndex();
    const QModelIndex hit = content().find(cells().soughtText, from, direction);
    _hit = hit;
    if (hit.isValid())
        goTo(hit);
    return hit.isValid();
}

bool ComparisonTable::showNextDifference(ComparisonController::Direction direction)
{
    const int from = currentIndex().isValid() ? currentIndex().row() : -1;
    const int row = content().nextDifference(from, direction);
    if (row < 0)
        return false;
    goTo(content().index(row, std::max(currentIndex().column(), 1)));
    return true;
}

} // namespace quorvin
