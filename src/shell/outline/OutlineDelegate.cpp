// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/outline/OutlineDelegate.h"

#include "shell/outline/ExtTreeModel.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <QTreeView>

#include <cmath>

namespace quorvin {

namespace {

/// A value can be a whole book. Laying it out would take its time, and nobody reads it here; copies are
/// whole.
constexpr qsizetype kMostCharacters = 4'000;
constexpr int kMargin = 6; ///< beside a cell's text
constexpr int kLead = 2; ///< above and below it

/// The title and the beginning stand in italics.
QList<QTextLayout::FormatRange> formatsOf(const QModelIndex &index, qsizetype length)
{
    QList<QTextLayout::FormatRange> formats;
    QTextCharFormat italic;
    italic.setFontItalic(true);
    if (const int beginning = index.data(ExtTreeModel::ItalicRole).toInt(); beginning > 0)
        formats.append({0, beginning, italic});
    if (const int title = index.data(ExtTreeModel::TitleRole).toInt(); title >= 0 && title < length)
        formats.append({title, static_cast<int>(length) - title, italic});
    return formats;
}

} // namespace

/// What a cell shows and how.
struct OutlineDelegate::Cell {
    QString text;
    QList<QTextLayout::FormatRange> formats;
    QFont font;
    Qt::Alignment alignment;
    bool wraps = true;
    bool isTopGroup = false;

    /// Lays the text out in that width and gives its height.
    qreal layOut(QTextLayout &layout, int width) const
    {
        QTextOption option(alignment);
        // A value reads as its own script does, whatever the window's direction.
        option.setTextDirection(Qt::LayoutDirectionAuto);
        option.setWrapMode(wraps ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap);
        QString shown = text;
        shown.replace(u'\n', wraps ? QChar(QChar::LineSeparator) : QChar(u' '));
        if (!wraps)
            shown = QFontMetrics(font).elidedText(shown, Qt::ElideRight, width);
        layout.setText(shown);
        layout.setFont(font);
        layout.setTextOption(option);
        layout.setFormats(formats);
        qreal height = 0;
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(width);
            line.setPosition({0, height});
            height += line.height();
        }
        layout.endLayout();
        return height;
    }
};

OutlineDelegate::OutlineDelegate(QTreeView *outline) : QStyledItemDelegate(outline), _outline(outline) { }

OutlineDelegate::Cell OutlineDelegate::cellOf(const QStyleOptionViewItem &option,
                                              const QModelIndex &index) const
{
    const bool isGroup = index.data(ExtTreeModel::GroupRole).toBool();
    Cell cell;
    cell.text = index.data().toString();
    if (cell.text.size() > kMostCharacters)
        cell.text = cell.text.left(kMostCharacters) + QChar(0x2026);
    cell.font = option.font;
    cell.font.setBold(isGroup);
    cell.wraps = wrapsLongLines;
    cell.isTopGroup = isGroup && !index.parent().isValid();
    const bool toTheRight = index.column() == ExtTreeModel::Name && !isGroup && rightAlignsParameters;
    cell.alignment = toTheRight ? Qt::AlignTrailing : Qt::AlignLeading;
    cell.formats = formatsOf(index, cell.text.size());
    return cell;
}

int OutlineDelegate::textWidth(const QModelIndex &index) const
{
    int width = _outline->columnWidth(index.column());
    if (_outline->isFirstColumnSpanned(index.row(), index.parent()))
        width = _outline->viewport()->width();
    if (index.column() == ExtTreeModel::Name) {
        int level = _outline->rootIsDecorated() ? 1 : 0;
        for (QModelIndex above = index.parent(); above.isValid(); above = above.parent())
            ++level;
        width -= level * _outline->indentation();
    }
    return std::max(width - 2 * kMargin, 1);
}

QSize OutlineDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const Cell cell = cellOf(option, index);
    const QFontMetrics metrics(cell.font);
    const int width = textWidth(index);
    int height = metrics.height();
    // Most values are short: no line is laid out for them.
    const bool isLong = cell.text.size() * metrics.maxWidth() > width
        && (cell.text.contains(u'\n')
            || metrics.horizontalAdvance(cell.text) > width - metrics.averageCharWidth());
    if (cell.wraps && isLong) {
        QTextLayout layout;
        height = static_cast<int>(std::ceil(cell.layOut(layout, width)));
    }
    const int lead = kLead + (cell.isTopGroup ? kGroupGap : 0);
    return {0, std::max(height + lead + kLead, minimumRowHeight)};
}

void OutlineDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &index) const
{
    QStyleOptionViewItem own = option;
    initStyleOption(&own, index);
    own.text.clear();
    QStyle *style = own.widget ? own.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &own, painter, own.widget);

    Cell cell = cellOf(option, index);
    cell.alignment = QStyle::visualAlignment(option.direction, cell.alignment) | Qt::AlignAbsolute;
    const int lead = kLead + (cell.isTopGroup ? kGroupGap : 0);
    const QRect inner = option.rect.adjusted(kMargin, lead, -kMargin, -kLead);
    QTextLayout layout;
    cell.layOut(layout, std::max(inner.width(), 1));
    // The first lines of name and value stand side by side, however many follow; one line alone is centred.
    const int room = inner.height() - QFontMetrics(cell.font).height();
    const int above = room > 0 && option.rect.height() <= minimumRowHeight ? room / 2 : 0;
    const bool selected = own.state.testFlag(QStyle::State_Selected);
    const auto group = own.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
    painter->save();
    painter->setClipRect(option.rect);
    painter->setPen(own.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text));
    layout.draw(painter, QPointF(inner.left(), inner.top() + above));
    painter->restore();
}

bool OutlineDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view,
                                const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (event->type() != QEvent::ToolTip || !index.isValid() || wrapsLongLines)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const Cell cell = cellOf(option, index);
    const bool isShortened = QFontMetrics(cell.font).horizontalAdvance(cell.text) > textWidth(index);
    QToolTip::showText(event->globalPos(), isShortened ? cell.text : QString(), view);
    return true;
}

} // namespace quorvin
