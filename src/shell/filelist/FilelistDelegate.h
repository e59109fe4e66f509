// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStyledItemDelegate>

namespace quorvin {

/// A row of the list: a small picture, then the folder and the name. Where they do not fit, the beginning of
/// the folder gives way to the name. A file that waits has a dim picture, one that is being read a spinner;
/// one that there is something to say of has a star behind its name.
class FilelistDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    /// The folder and the name as they are drawn.
    struct Texts {
        QString folder; ///< with the slash behind it; "" when there is none, or no room for it
        QString name;
    };

    using QStyledItemDelegate::QStyledItemDelegate;

    /// What of a path fits into that width.
    static Texts fittingTexts(const QString &path, const QFontMetrics &metrics, int width);

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    /// The whole path, why the file failed, and what its mark says: under the row's text, wrapped where the
    /// screen is too narrow.
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;
};

} // namespace quorvin
