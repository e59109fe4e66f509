// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/FilelistTable.h"

#include "platform/FileUri.h"
#include "shell/filelist/FilelistDelegate.h"
#include "shell/filelist/FilelistRow.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMimeData>

#include <algorithm>

namespace quorvin {

FilelistTable::FilelistTable(QAbstractItemModel &model, QItemSelectionModel &selection, QWidget *parent)
    : QListView(parent)
{
    setModel(&model);
    delete selectionModel();
    setSelectionModel(&selection);
    setItemDelegate(new FilelistDelegate(this));
    // All rows are alike, so that a long list need not be measured.
    setUniformItemSizes(true);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameShape(NoFrame);
    setAccessibleName(tr("Files"));
    setAccessibleDescription(tr("The files of this window"));
    viewport()->setAcceptDrops(false);
    setAcceptDrops(false);
}

void FilelistTable::copy() const
{
    QModelIndexList rows = selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    QStringList paths;
    for (const QModelIndex &row : rows)
        paths.append(row.data(FilelistRow::PathRole).toString());
    auto *content = new QMimeData;
    content->setData(QStringLiteral("text/uri-list"), uriListOf(paths));
    content->setText(paths.join(u'\n'));
    QGuiApplication::clipboard()->setMimeData(content);
}

void FilelistTable::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() == QContextMenuEvent::Mouse) {
        const QModelIndex clicked = indexAt(event->pos());
        if (!clicked.isValid())
            return;
        // What the menu acts on is what can be seen as selected.
        if (!selectionModel()->isSelected(clicked))
            setCurrentIndex(clicked);
        Q_EMIT menuWanted(event->globalPos());
    } else if (currentIndex().isValid()) {
        Q_EMIT menuWanted(viewport()->mapToGlobal(visualRect(currentIndex()).center()));
    }
}

} // namespace quorvin
