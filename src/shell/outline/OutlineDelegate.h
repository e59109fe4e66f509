// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStyledItemDelegate>
#include <QTextLayout>

class QTreeView;

namespace quorvin {

/// Draws the cells of a tree of parameters: wrapped or shortened, titles and beginnings in their own fonts,
/// groups bold. A row is as high as its highest cell. A tip shows what was shortened.
class OutlineDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    /// The delegate of a tree of two columns, whose model answers the roles of an `ExtTreeModel`.
    explicit OutlineDelegate(QTreeView *outline);

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

    QTreeView *_outline;
};

} // namespace quorvin
