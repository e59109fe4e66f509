// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/outline/ExtendedOutline.h"

#include "export/HtmlText.h"
#include "shell/outline/OutlineDelegate.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>

namespace quorvin {

namespace {

constexpr int kFirstNameWidth = 220;

} // namespace

ExtendedOutline::ExtendedOutline(QWidget *parent)
    : QTreeView(parent), _delegate(new OutlineDelegate(this, _content))
{
    setModel(&_content);
    setItemDelegate(_delegate);
    setFrameShape(NoFrame);
    setSelectionMode(ExtendedSelection);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setUniformRowHeights(false);
    setAllColumnsShowFocus(true);
    setIndentation(18);
    setAccessibleName(tr("All parameters"));
    header()->setSectionsMovable(false);
    header()->setStretchLastSection(true);
    header()->resizeSection(ExtTreeModel::Name, kFirstNameWidth);
    connect(header(), &QHeaderView::sectionResized, this, [this] { scheduleDelayedItemsLayout(); });
    const auto noteToggle = [this](const QModelIndex &index, bool opens) {
        const ExtTreeItem *item = _content.itemAt(index);
        if (_isToggling || !item)
            return;
        if (opens)
            _groups.shouldExpandItem(*item, false);
        else
            _groups.shouldCollapseItem(*item);
    };
    connect(this, &QTreeView::expanded, this, [noteToggle](const QModelIndex &i) { noteToggle(i, true); });
    connect(this, &QTreeView::collapsed, this, [noteToggle](const QModelIndex &i) { noteToggle(i, false); });
}

void ExtendedOutline::setContent(ExtTreeItems items)
{
    _content.setContent(std::move(items));
    expandAllItems();
    scrollToTop();
}

void ExtendedOutline::expandAllItems()
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
            setExpanded(index, _groups.shouldExpandItem(*item, true));
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
    viewport()->update();
}

void ExtendedOutline::setRowHeight(int height)
{
    _delegate->minimumRowHeight = height;
    scheduleDelayedItemsLayout();
}

QModelIndexList ExtendedOutline::selectedRowsInOrder() const
{
    QModelIndexList rows = selectionModel()->selectedRows();
    std::vector<std::pair<int, QModelIndex>> placed;
    for (const QModelIndex &row : rows)
        placed.emplace_back(visualRect(row).top(), row);
    std::ranges::stable_sort(placed, {}, [](const auto &one) { return one.first; });
    rows.clear();
    for (const auto &[top, row] : placed)
        rows.append(row);
    return rows;
}

void ExtendedOutline::copy(const QModelIndex &clicked) const
{
    const bool onlyClicked = clicked.isValid() && !selectionModel()->isSelected(clicked);
    const QModelIndexList rows
        = onlyClicked ? QModelIndexList{clicked.siblingAtColumn(ExtTreeModel::Name)} : selectedRowsInOrder();
    if (!rows.isEmpty())
        QGuiApplication::clipboard()->setMimeData(mimeDataOf(rows));
}

QMimeData *ExtendedOutline::mimeDataOf(const QModelIndexList &rows) const
{
    QStringList text;
    QStringList html;
    for (const QModelIndex &row : rows) {
        const ExtTreeItem *item = _content.itemAt(row);
        text.append(item->extValue());
        html.append(pboardHtmlLineForItem(*item));
    }
    auto *content = new QMimeData;
    content->setText(text.join(u'\n'));
    content->setHtml(QStringLiteral("<table cellspacing=0>%1</table>").arg(html.join(u'\n')));
    return content;
}

QString ExtendedOutline::pboardHtmlLineForItem(const ExtTreeItem &item)
{
    if (item.children())
        return QStringLiteral("<tr><td><b>%1</b></td><td></td></tr>")
            .arg(stringByEncodingHTMLEntities(item.extValue(), true));
    return QStringLiteral("<tr><td>%1</td><td>%2</td></tr>")
        .arg(stringByEncodingHTMLEntities(item.name(), true),
             stringWithNewLinesAsBRs(stringByEncodingHTMLEntities(item.stringValue(), true)));
}

bool ExtendedOutline::isOnDisclosureSign(const QPoint &position, const QModelIndex &index) const
{
    const QRect item = visualRect(index.siblingAtColumn(ExtTreeModel::Name));
    return isRightToLeft() ? position.x() > item.right() : position.x() < item.left();
}

void ExtendedOutline::drawBranches(QPainter *painter, const QRect &rect, const QModelIndex &index) const
{
    // The sign stands beside the name, not in the middle of a row with a gap.
    const int gap = _content.hasChildren(index) && !index.parent().isValid() ? OutlineDelegate::kGroupGap : 0;
    QTreeView::drawBranches(painter, rect.adjusted(0, gap, 0, 0), index);
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
    QTreeView::keyPressEvent(event);
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

void ExtendedOutline::resizeEvent(QResizeEvent *event)
{
    QTreeView::resizeEvent(event);
    if (_delegate->wrapsLongLines && event->oldSize().width() != event->size().width())
        scheduleDelayedItemsLayout();
}

void ExtendedOutline::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected)
{
    QTreeView::selectionChanged(selected, deselected);
    Q_EMIT selectionDidChange();
}

} // namespace quorvin
