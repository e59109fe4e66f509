// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/outline/CellHeights.h"

#include <QFont>
#include <QStyledItemDelegate>

class QTreeView;

namespace quorvin {

class ExtTreeModel;

/// Draws the cells of a tree of parameters: wrapped or shortened, titles and beginnings in their own fonts,
/// groups bold. A row is as high as its highest cell. A tip shows what was shortened.
///
/// The tree wants the height of every row at once. The first rows are measured, and from then on only those
/// that come into sight; any other has a height that is guessed from the count of its letters.
class OutlineDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    /// The delegate of a tree of two columns, which shows `model`.
    OutlineDelegate(QTreeView *outline, const ExtTreeModel &model);

    /// Of a value a cell shows so many letters; the tip shows more, and copies are whole.
    static constexpr qsizetype kMostCharacters = 300;

    /// Room above the name of a group at the top, beyond that of other rows.
    static constexpr int kGroupGap = 6;

    bool wrapsLongLines = true;
    bool rightAlignsParameters = true;
    int minimumRowHeight = 0; ///< device-independent pixels

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

private:
    struct Cell;

    Cell cellOf(const QStyleOptionViewItem &option, const QModelIndex &index) const;
    int textWidth(const QModelIndex &index) const;
    CellHeights::Place placeOf(const QModelIndex &index) const;
    /// Of the wrapped text alone: as measured, or a guess.
    int heightOf(const Cell &cell, const QModelIndex &index) const;
    /// The cell was drawn, and its text is that high. A guess that was wrong lays the tree out anew.
    void learnHeight(const Cell &cell, const QModelIndex &index, int height) const;
    void layOutAnew();

    QTreeView *_outline;
    mutable CellHeights _heights;
    mutable QFont _measuredFont;
    bool _isLayoutAsked = false;
};

} // namespace quorvin
