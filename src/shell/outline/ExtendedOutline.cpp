// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/outline/ExtendedOutline.h"

#include "shell/outline/HitPlaces.h"
#include "shell/outline/OutlineCopy.h"
#include "shell/outline/OutlineDelegate.h"
#include "shell/outline/OutlineHeader.h"
#include "shell/outline/StickyGroup.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>

namespace quorvin {

namespace {

constexpr int kIndentation = 18;
constexpr int kStickyAir = 4; ///< above and below the name together

} // namespace

ExtendedOutline::ExtendedOutline(QWidget *parent)
    : QTreeView(parent),
      _delegate(new OutlineDelegate(this, _content)),
      _header(new OutlineHeader(this)),
      _sticky(new StickyGroup(this))
{
    // First: it asks for the row at the top, and there is none to lay out yet.
    setVerticalScrollMode(ScrollPerPixel);
    setModel(&_content);
    setItemDelegate(_delegate);
    setHeader(_header);
    setFrameShape(NoFrame);
    setSelectionMode(ExtendedSelection);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setUniformRowHeights(false);
    setAllColumnsShowFocus(true);
    setIndentation(kIndentation);
    setAccessibleName(tr("All parameters"));
    // Nothing to be fitted to: values are as long as they like.
    disconnect(_header, &QHeaderView::sectionHandleDoubleClicked, this, nullptr);
    connect(_header, &OutlineHeader::namesWidthChosen, this, &ExtendedOutline::namesWidthChosen);
    connect(_header, &QHeaderView::sectionResized, this, [this] { scheduleDelayedItemsLayout(); });
    connect(this, &QTreeView::expanded, this, [this](const QModelIndex &i) { noteToggle(i, true); });
    connect(this, &QTreeView::collapsed, this, [this](const QModelIndex &i) { noteToggle(i, false); });
    connect(_sticky, &StickyGroup::clicked, this, [this] {
        const QModelIndex group = groupOfFirstRow();
        setCurrentIndex(group);
        verticalScrollBar()->setValue(verticalScrollBar()->value() + nameTop(group));
    });
}

void ExtendedOutline::noteToggle(const QModelIndex &index, bool opens)
{
    const ExtTreeItem *item = _content.itemAt(index);
    if (!_isToggling && item) {
        if (opens)
            _groups.shouldExpandItem(*item, false);
        else
            _groups.shouldCollapseItem(*item);
    }
    updateStickyGroup();
}

void ExtendedOutline::setContent(ExtTreeItems items, bool opensAll, bool isSameFile)
{
    _places.note(*this, _content, _sticky->isHidden() ? 0 : _sticky->height());
    _content.setContent(std::move(items));
    expandAllItems(opensAll);
    if (_content.rowCount() == 0)
        return;
    executeDelayedItemsLayout();
    _places.restore(*this, _content, isSameFile);
    updateStickyGroup();
}

void ExtendedOutline::setSearch(const QString &text)
{
    _delegate->hits = SearchText(text);
    viewport()->update();
}

bool ExtendedOutline::selectHit(bool backwards, bool fromEnd)
{
    const QModelIndex hit
        = nextHit(_content, _delegate->hits, fromEnd ? QModelIndex() : currentIndex(), backwards);
    if (hit.isValid())
        showRow(hit);
    return hit.isValid();
}

void ExtendedOutline::showRow(const QModelIndex &row)
{
    {
        const QScopedValueRollback toggling(_isToggling, true);
        for (QModelIndex above = row.parent(); above.isValid(); above = above.parent())
            expand(above);
    }
    setCurrentIndex(row);
    scrollTo(row);
}

void ExtendedOutline::expandAllItems(bool opensAll)
{
    const QScopedValueRollback toggling(_isToggling, true);
    setUpdatesEnabled(false);
    std::vector<QModelIndex> open{QModelIndex()};
    while (!open.empty()) {
        const QModelIndex above = open.back();
        open.pop_back();
        for (int row = 0; row < _content.rowCount(above); ++row) {
            const QModelIndex index = _content.index(row, ExtTreeModel::Name, above);
            const ExtTreeItem *item = _content.itemAt(index);
            if (!item->children())
                continue;
            setFirstColumnSpanned(row, above, true);
            setExpanded(index, opensAll || _groups.shouldExpandItem(*item, true));
            open.push_back(index);
        }
    }
    setUpdatesEnabled(true);
}

void ExtendedOutline::setAllExpanded(bool expanded)
{
    const QScopedValueRollback toggling(_isToggling, true);
    if (expanded)
        expandAll();
    else
        collapseAll();
    updateStickyGroup();
}

void ExtendedOutline::expandAllIn()
{
    _groups.expandAll();
    setAllExpanded(true);
}

void ExtendedOutline::collapseAllIn()
{
    _groups.collapseAll();
    setAllExpanded(false);
}

void ExtendedOutline::showGroup(const QString &key, quint64 streamIndex)
{
    quint64 count = 0;
    for (int row = 0; row < _content.rowCount(); ++row) {
        const QModelIndex index = _content.index(row, ExtTreeModel::Name);
        if (_content.itemAt(index)->key() != key || count++ != streamIndex)
            continue;
        setCurrentIndex(index);
        scrollRowToTheTop(index);
        return;
    }
}

void ExtendedOutline::scrollRowToTheTop(const QModelIndex &row)
{
    scrollTo(row, PositionAtTop);
    // The row before it stays in sight.
    const QModelIndex above = indexAbove(row);
    if (above.isValid())
        verticalScrollBar()->setValue(verticalScrollBar()->value() - rowHeight(row));
}

void ExtendedOutline::scrollTo(const QModelIndex &index, ScrollHint hint)
{
    QTreeView::scrollTo(index, hint);
    if (hint != EnsureVisible || !index.parent().isValid())
        return;
    const int hidden = stickyHeight() - visualRect(index).top();
    if (hidden > 0 && visualRect(index).height() < viewport()->height() / 2)
        verticalScrollBar()->setValue(verticalScrollBar()->value() - hidden);
}

void ExtendedOutline::doItemsLayout()
{
    if (_isLayingOut)
        return QTreeView::doItemsLayout();
    {
        const QScopedValueRollback layingOut(_isLayingOut, true);
        // Rows above what is seen get other heights; what is seen is to stay.
        const QModelIndex top = indexAt({viewport()->width() / 2, 0});
        const int before = visualRect(top).top();
        QTreeView::doItemsLayout();
        if (top.isValid() && verticalScrollBar()->value() > 0)
            verticalScrollBar()->setValue(verticalScrollBar()->value() + visualRect(top).top() - before);
    }
    updateStickyGroup();
}

const ExtTreeItem *ExtendedOutline::selectedItem() const
{
    const QModelIndexList rows = selectionModel()->selectedRows();
    return rows.size() == 1 ? _content.itemAt(rows.front()) : nullptr;
}

void ExtendedOutline::setWrapLongLines(bool wraps)
{
    _delegate->wrapsLongLines = wraps;
    scheduleDelayedItemsLayout();
}

void ExtendedOutline::setRightAlignsParameters(bool aligns)
{
    _delegate->rightAlignsParameters = aligns;
    _content.setNamesAlignment(aligns ? Qt::AlignTrailing : Qt::AlignLeading);
    constexpr int kMargin = OutlineDelegate::kMargin;
    // Most names stand in a group, which stands below the root.
    _header->setLeads(aligns ? kMargin : kMargin + 2 * kIndentation, kMargin);
    viewport()->update();
}

void ExtendedOutline::setRowHeight(int height)
{
    _delegate->minimumRowHeight = height;
    scheduleDelayedItemsLayout();
}

void ExtendedOutline::setNamesWidth(int width)
{
    _header->setNamesWidth(width);
}

void ExtendedOutline::copy(const QModelIndex &clicked) const
{
    const bool onlyClicked = clicked.isValid() && !selectionModel()->isSelected(clicked);
    const QModelIndexList rows = onlyClicked ? QModelIndexList{clicked.siblingAtColumn(ExtTreeModel::Name)}
                                             : selectedRowsInOrder(*this);
    if (!rows.isEmpty())
        QGuiApplication::clipboard()->setMimeData(mimeDataOf(_content, rows).release());
}

void ExtendedOutline::copyValues() const
{
    QGuiApplication::clipboard()->setText(valuesOf(_content, selectedRowsInOrder(*this)));
}

int ExtendedOutline::nameTop(const QModelIndex &group) const
{
    return visualRect(group).top() + _delegate->groupGap(group);
}

QModelIndex ExtendedOutline::groupOfFirstRow() const
{
    QModelIndex group = indexAt({viewport()->width() / 2, 0});
    while (group.parent().isValid())
        group = group.parent();
    return group.siblingAtColumn(ExtTreeModel::Name);
}

int ExtendedOutline::stickyHeight() const
{
    return std::max(QFontMetrics(OutlineDelegate::groupFont(font())).height() + kStickyAir,
                    _delegate->minimumRowHeight);
}

void ExtendedOutline::updateStickyGroup()
{
    // While the tree is laid out, its rows have no places.
    if (_isLayingOut)
        return;
    const QModelIndex group = groupOfFirstRow();
    const bool isNeeded = group.isValid() && isExpanded(group) && nameTop(group) < 0;
    _sticky->setVisible(isNeeded);
    if (!isNeeded)
        return;
    _sticky->setFont(OutlineDelegate::groupFont(font()));
    const int height = stickyHeight();
    const QModelIndex next = group.siblingAtRow(group.row() + 1);
    // The next group pushes it out.
    const int room = next.isValid() && !visualRect(next).isEmpty() ? nameTop(next) : height;
    _sticky->setGroup(group.data().toString(), viewport()->geometry(), height, room, kIndentation);
}

void ExtendedOutline::scrollContentsBy(int dx, int dy)
{
    QTreeView::scrollContentsBy(dx, dy);
    updateStickyGroup();
}

void ExtendedOutline::updateGeometries()
{
    _header->placeBorder(viewport()->width());
    QTreeView::updateGeometries();
}

void ExtendedOutline::changeEvent(QEvent *event)
{
    QTreeView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange)
        scheduleDelayedItemsLayout();
}

bool ExtendedOutline::isOnDisclosureSign(const QPoint &position, const QModelIndex &index) const
{
    const QRect item = visualRect(index.siblingAtColumn(ExtTreeModel::Name));
    return isRightToLeft() ? position.x() > item.right() : position.x() < item.left();
}

void ExtendedOutline::drawRow(QPainter *painter, const QStyleOptionViewItem &options,
                              const QModelIndex &index) const
{
    // The air above a group is no part of it, and no selection covers it.
    QStyleOptionViewItem own = options;
    own.rect.setTop(own.rect.top() + _delegate->groupGap(index));
    QTreeView::drawRow(painter, own, index);
}

void ExtendedOutline::mousePressEvent(QMouseEvent *event)
{
    const QModelIndex index = indexAt(event->position().toPoint()).siblingAtColumn(ExtTreeModel::Name);
    if (event->button() == Qt::LeftButton && event->modifiers().testFlag(Qt::ControlModifier)
        && _content.hasChildren(index) && index.isValid()
        && isOnDisclosureSign(event->position().toPoint(), index)) {
        if (isExpanded(index))
            collapseAllIn();
        else
            expandAllIn();
        return;
    }
    QTreeView::mousePressEvent(event);
}

void ExtendedOutline::keyPressEvent(QKeyEvent *event)
{
    // The commands have these keys, and validate them.
    if (event->matches(QKeySequence::Copy) || event->matches(QKeySequence::SelectAll))
        return event->ignore();
    if (!toggleLongValue(*event))
        QTreeView::keyPressEvent(event);
}

bool ExtendedOutline::toggleLongValue(const QKeyEvent &event)
{
    const QModelIndex value = currentIndex().siblingAtColumn(ExtTreeModel::Value);
    const bool isOpen = value.isValid() && _delegate->isOpen(value);
    const int opening = isRightToLeft() ? Qt::Key_Left : Qt::Key_Right;
    const int closing = isRightToLeft() ? Qt::Key_Right : Qt::Key_Left;
    const bool isEnter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    const bool isMeant = isEnter || event.key() == (isOpen ? closing : opening);
    if (!isMeant || (event.modifiers() & ~(Qt::KeypadModifier | Qt::ControlModifier)) != 0 || !value.isValid()
        || !_delegate->isLong(value))
        return false;
    if (event.modifiers().testFlag(Qt::ControlModifier))
        _delegate->setAllOpen(!isOpen);
    else
        _delegate->setOpen(value, !isOpen);
    return true;
}

void ExtendedOutline::contextMenuEvent(QContextMenuEvent *event)
{
    const bool byMouse = event->reason() == QContextMenuEvent::Mouse;
    const QModelIndex clicked = byMouse ? indexAt(event->pos()) : currentIndex();
    if (clicked.isValid() && !selectionModel()->isSelected(clicked))
        setCurrentIndex(clicked);
    const bool besideRow = !byMouse && clicked.isValid();
    Q_EMIT menuWanted(besideRow ? viewport()->mapToGlobal(visualRect(clicked).center()) : event->globalPos());
}

void ExtendedOutline::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected)
{
    QTreeView::selectionChanged(selected, deselected);
    Q_EMIT selectionDidChange();
}

} // namespace quorvin
