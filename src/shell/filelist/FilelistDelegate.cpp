// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/FilelistDelegate.h"

#include "shell/filelist/FilelistRow.h"

namespace quorvin {

QSize FilelistDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    return {0, std::max(option.fontMetrics.height(), FilelistRow::kPictureSide) + 8};
}

void FilelistDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    option->decorationSize = QSize(FilelistRow::kPictureSide, FilelistRow::kPictureSide);
    option->textElideMode = Qt::ElideMiddle;
    if (index.data(FilelistRow::StateRole).toInt() == FilelistRow::Waiting)
        option->palette.setColor(QPalette::Text, option->palette.color(QPalette::Disabled, QPalette::Text));
}

} // namespace quorvin
