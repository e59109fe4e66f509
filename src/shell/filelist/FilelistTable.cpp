// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/FilelistTable.h"

#include "platform/FileUri.h"
#include "shell/filelist/FilelistDelegate.h"
#include "shell/filelist/FilelistModel.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMimeData>

#include <algorithm>

namespace quorvin {

FilelistTable::FilelistTable(FilelistModel &model, QWidget *parent) : QListView(parent), _model(model)
{
    setModel(&model);
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

int FilelistTable::selectedRow() const
{
    const QModelIndex current = currentIndex();
    if (current.isValid() && selectionModel()->isSelected(current))
        return current.row();
    const auto rows = selectedRows();
    return rows.empty() ? -1 : rows.front();
}

std::vector<int> FilelistTable::selectedRows() const
{
    std::vector<int> rows;
    for (const QItemSelectionRange &range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row);
    }
    std::ranges::sort(rows);
    return rows;
}

void FilelistTable::selectRow(int row)
{
    setCurrentIndex(_model.index(row));
}

std::pair<int, int> FilelistTable::visibleRows() const
{
    const QRect seen = viewport()->rect();
    const int first = std::max(indexAt(seen.topLeft()).row(), 0);
    const int last = indexAt(QPoint(seen.left(), seen.bottom())).row();
    return {first, last < 0 ? _model.rowCount() - 1 : last};
}

void FilelistTable::setNeedsDisplayIfItemIsVisible(const FilelistItemPtr &file)
{
    const auto [first, last] = visibleRows();
    for (int row = first; row <= last; ++row) {
        if (_model.fileAt(row) == file)
            _model.rowsChanged(row, row);
    }
}

void FilelistTable::copy() const
{
    QStringList paths;
    for (const int row : selectedRows())
        paths.append(_model.fileAt(row)->filename());
    auto *content = new QMimeData;
    content->setData(QStringLiteral("text/uri-list"), uriListOf(paths));
    content->setText(paths.join(u'\n'));
    QGuiApplication::clipboard()->setMimeData(content);
}

void FilelistTable::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected)
{
    QListView::selectionChanged(selected, deselected);
    tellRow();
}

void FilelistTable::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QListView::currentChanged(current, previous);
    tellRow();
}

void FilelistTable::tellRow()
{
    Q_EMIT currentRowChanged(selectedRow());
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
