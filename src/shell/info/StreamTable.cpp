// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/info/StreamTable.h"

#include "shell/desktop/FocusRing.h"
#include "shell/info/Pane.h"
#include "shell/outline/OutlineCopy.h"
#include "shell/outline/OutlineDelegate.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMimeData>
#include <QWheelEvent>

namespace quorvin {

namespace {

/// The lines as nodes of a tree.
ExtTreeItems treeOf(const std::vector<GeneralLine> &lines)
{
    ExtTreeItems items;
    for (const GeneralLine &line : lines) {
        if (line.isLocation)
            items.push_back(ExtTreeItem::locationItemWithName(line.name, line.value.plain));
        else if (line.isMediaStream())
            items.push_back(
                ExtTreeItem::mediaStreamItemWithKey(line.key, line.name, line.value, line.streamIndex));
        else
            items.push_back(ExtTreeItem::itemWithName(line.name, line.value));
    }
    return items;
}

} // namespace

StreamTable::StreamTable(QWidget *parent) : QTreeView(parent), _delegate(new OutlineDelegate(this, _content))
{
    setModel(&_content);
    setItemDelegate(_delegate);
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setIndentation(0);
    setFrameShape(QFrame::NoFrame);
    setSelectionMode(ExtendedSelection);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAllColumnsShowFocus(true);
    setEditTriggers(NoEditTriggers);
    setAccessibleName(tr("Streams"));
    header()->setMinimumSectionSize(1);
    new FocusRing(this);
    connect(this, &QTreeView::doubleClicked, this, &StreamTable::open);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, &StreamTable::selectionDidChange);
}

void StreamTable::setLines(const std::vector<GeneralLine> &lines)
{
    _content.setContent(treeOf(lines));
    executeDelayedItemsLayout();
}

void StreamTable::setLook(const RowLook &look)
{
    _delegate->wrapsLongLines = look.wrapsLongLines;
    _delegate->rightAlignsParameters = look.rightAlignsParameters;
    _delegate->minimumRowHeight = look.height;
    setFont(look.font);
    scheduleDelayedItemsLayout();
}

void StreamTable::setNamesWidth(int width)
{
    header()->resizeSection(ExtTreeModel::Name, width);
    scheduleDelayedItemsLayout();
}

void StreamTable::doItemsLayout()
{
    QTreeView::doItemsLayout();
    int height = 0;
    for (int row = 0; row < _content.rowCount(); ++row)
        height += rowHeight(_content.index(row, ExtTreeModel::Name));
    if (height != minimumHeight() || height != maximumHeight())
        setFixedHeight(height);
}

const ExtTreeItem *StreamTable::selectedStream() const
{
    const QModelIndexList rows = selectionModel()->selectedRows();
    const ExtTreeItem *item = rows.size() == 1 ? _content.itemAt(rows.front()) : nullptr;
    return item && item->isMediaStream() ? item : nullptr;
}

bool StreamTable::canCopy() const
{
    return hasFocus() && selectionModel()->hasSelection();
}

void StreamTable::copy() const
{
    QGuiApplication::clipboard()->setMimeData(mimeDataOf(_content, selectedRowsInOrder(*this)).release());
}

void StreamTable::copyValues() const
{
    QGuiApplication::clipboard()->setText(valuesOf(_content, selectedRowsInOrder(*this)));
}

void StreamTable::openCurrent()
{
    open(currentIndex());
}

void StreamTable::open(const QModelIndex &index)
{
    const ExtTreeItem *item = _content.itemAt(index);
    if (item && item->isLocation())
        Q_EMIT locationOpened();
    else if (item && item->isMediaStream())
        Q_EMIT streamOpened(*item->key(), item->mediaStreamIndex());
}

void StreamTable::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy) || event->matches(QKeySequence::SelectAll))
        return event->ignore();
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        return openCurrent();
    QTreeView::keyPressEvent(event);
}

void StreamTable::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}

void StreamTable::contextMenuEvent(QContextMenuEvent *event)
{
    const bool byMouse = event->reason() == QContextMenuEvent::Mouse;
    const QModelIndex clicked = byMouse ? indexAt(event->pos()) : currentIndex();
    if (!clicked.isValid())
        return;
    if (!selectionModel()->isSelected(clicked))
        setCurrentIndex(clicked);
    setFocus();
    Q_EMIT menuWanted(byMouse ? event->globalPos() : viewport()->mapToGlobal(visualRect(clicked).center()));
}

void StreamTable::resizeEvent(QResizeEvent *event)
{
    QTreeView::resizeEvent(event);
    if (event->oldSize().width() != event->size().width())
        scheduleDelayedItemsLayout();
}

void StreamTable::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTreeView::currentChanged(current, previous);
    if (hasFocus() && current.isValid())
        Q_EMIT rowReached(visualRect(current));
}

} // namespace quorvin
