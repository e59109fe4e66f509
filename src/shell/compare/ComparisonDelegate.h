// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/compare/TableLook.h"
#include "shell/outline/CellText.h"

#include <QString>
#include <QStyledItemDelegate>

namespace quorvin {

/// Draws the values of a comparison: what is equal in all files stands back as far as the model says, but can
/// be read; what differs from the reference file is heavier and in the colour of links, and cells in which a
/// text is looked for are tinted. Headings are left to the table.
class ComparisonDelegate final : public QStyledItemDelegate {
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    TableLook look;
    QString soughtText; ///< whatever its case; "": none

    CellText cellOf(const QModelIndex &index) const;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    /// The whole of a value that does not fit.
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

private:
    bool isHit(const QModelIndex &index) const;
    QColor inkOf(const QStyleOptionViewItem &option, const QModelIndex &index) const;
    void paintGround(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const;
    void paintText(QPainter *painter, const QRect &room, const QModelIndex &index) const;
};

/// Draws the lines between the cells of a table, at the end and the bottom of this one.
void paintCellLines(QPainter *painter, const QRect &cell, const QPalette &palette,
                    Qt::LayoutDirection direction);

} // namespace quorvin
