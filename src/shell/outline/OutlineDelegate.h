// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/SearchText.h"
#include "shell/outline/CellHeights.h"
#include "shell/outline/CellText.h"

#include <QSet>
#include <QStyledItemDelegate>

class QTreeView;

namespace quorvin {

class ExtTreeModel;

/// Draws the cells of a tree of parameters: names stand back, groups are semibold, titles and beginnings have
/// their own fonts, values are wrapped or shortened. A row is as high as its highest cell. A long value ends
/// in a word that opens it; a tip shows what was shortened.
///
/// The tree wants the height of every row at once. The first rows are measured, and from then on only those
/// that come into sight; any other has a height that is guessed from the count of its letters.
class OutlineDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    /// The delegate of a tree of two columns, which shows `model`.
    OutlineDelegate(QTreeView *outline, const ExtTreeModel &model);

    static constexpr int kMargin = 6; ///< beside a cell's text; device-independent pixels

    bool wrapsLongLines = true;
    bool rightAlignsParameters = true;
    SearchText hits{QString()}; ///< marked wherever it stands
    int minimumRowHeight = 0; ///< device-independent pixels

    /// Room above a group, beyond that of other rows. It is in the height of the row, and whoever draws the
    /// row leaves it out.
    int groupGap(const QModelIndex &index) const;
    static QFont groupFont(QFont font);

    bool isOpen(const QModelIndex &value) const;
    /// The value is so long that it can be opened, or it is open.
    bool isLong(const QModelIndex &value) const;
    /// Shows the whole of a long value, or its first lines.
    void setOpen(const QModelIndex &value, bool open);
    /// The same for all, also of the files to come.
    void setAllOpen(bool open);

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;
    /// A click on the word of a long value; with Ctrl all change.
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;

private:
    /// Adds the marks of what is looked for.
    void markHits(CellText &cell, const QModelIndex &index, const QPalette &palette, bool selected) const;
    CellText cellOf(const QFont &font, const QModelIndex &index) const;
    int textWidth(const QModelIndex &index) const;
    CellHeights::Place placeOf(const QModelIndex &index) const;
    /// Of the wrapped text alone: as measured, or a guess.
    int heightOf(const CellText &cell, const QModelIndex &index) const;
    /// The cell was drawn, and its text is that high. A guess that was wrong lays the tree out anew.
    void learnHeight(const CellText &cell, const QModelIndex &index, int height) const;
    void layOutAnew();

    QTreeView *_outline;
    mutable CellHeights _heights;
    mutable QFont _measuredFont;
    QSet<quintptr> _toggled; ///< internal ids of the values that differ from `_areAllOpen`
    bool _areAllOpen = false;
    bool _isLayoutAsked = false;
};

} // namespace quorvin
