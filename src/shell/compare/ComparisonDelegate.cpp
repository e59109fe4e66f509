// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/compare/ComparisonDelegate.h"

#include "comparison/ComparisonController.h"
#include "shell/desktop/Contrast.h"
#include "shell/desktop/PlainText.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QTextLayout>
#include <QToolTip>

#include <algorithm>

namespace quorvin {

namespace {

constexpr float kGridAlpha = 0.12F;
constexpr float kHitAlpha = 0.28F;
constexpr qsizetype kMostTipLetters = 1'000;
/// A longer text is not worth the attempt to draw it as one line.
constexpr qsizetype kMostQuickLetters = 120;

bool isHeading(const QModelIndex &index)
{
    return index.data(ComparisonController::HeadingRole).toBool();
}

QPalette::ColorGroup groupOf(const QStyleOptionViewItem &option)
{
    return option.state.testFlag(QStyle::State_Active) && option.widget && option.widget->hasFocus()
        ? QPalette::Active
        : QPalette::Inactive;
}

QRect roomIn(const QRect &cell)
{
    return cell.adjusted(TableLook::kMargin, TableLook::kLead, -TableLook::kMargin, -TableLook::kLead);
}

} // namespace

void paintCellLines(QPainter *painter, const QRect &cell, const QPalette &palette,
                    Qt::LayoutDirection direction)
{
    QColor line = palette.color(QPalette::Text);
    line.setAlphaF(kGridAlpha);
    const int end = direction == Qt::LeftToRight ? cell.right() : cell.left();
    painter->fillRect(QRect(end, cell.top(), 1, cell.height() - 1), line);
    painter->fillRect(QRect(cell.left(), cell.bottom(), cell.width(), 1), line);
}

CellText ComparisonDelegate::cellOf(const QModelIndex &index) const
{
    CellText cell(index.data().toString(), look.wraps, false);
    const bool isHeavy = index.data(ComparisonController::DiffersFromReferenceRole).toBool();
    cell.font = isHeavy ? look.heavyFont() : look.font;
    return cell;
}

QSize ComparisonDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &index) const
{
    const CellText cell = cellOf(index);
    return {cell.naturalWidth() + 2 * TableLook::kMargin + 1, look.rowHeight};
}

QColor ComparisonDelegate::inkOf(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QPalette::ColorGroup group = groupOf(option);
    if (option.state.testFlag(QStyle::State_Selected))
        return option.palette.color(group, QPalette::HighlightedText);
    if (index.data(ComparisonController::DiffersFromReferenceRole).toBool())
        return option.palette.color(QPalette::Link);
    const QVariant own = index.data(Qt::ForegroundRole);
    QColor ink = own.isValid() ? own.value<QColor>() : option.palette.color(QPalette::Text);
    const double faintness = 1 - ink.alphaF();
    if (faintness <= 0)
        return ink;
    ink.setAlphaF(1);
    const QColor page = option.palette.color(QPalette::Base);
    const QColor tinted = between(page, option.palette.color(QPalette::Highlight), kHitAlpha);
    return drawnBack(ink, isHit(index) ? tinted : page, faintness);
}

bool ComparisonDelegate::isHit(const QModelIndex &index) const
{
    return !soughtText.isEmpty() && index.data().toString().contains(soughtText, Qt::CaseInsensitive);
}

void ComparisonDelegate::paintGround(QPainter *painter, const QStyleOptionViewItem &option,
                                     const QModelIndex &index) const
{
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    if (isSelected)
        painter->fillRect(option.rect, option.palette.color(groupOf(option), QPalette::Highlight));
    if (isHit(index)) {
        QColor tint = option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Highlight);
        tint.setAlphaF(kHitAlpha);
        painter->fillRect(option.rect, tint);
    }
    paintCellLines(painter, option.rect, option.palette, option.direction);
    if (!option.state.testFlag(QStyle::State_HasFocus))
        return;
    painter->setPen(option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(option.rect.adjusted(1, 1, -3, -3));
}

void ComparisonDelegate::paintText(QPainter *painter, const QRect &room, const QModelIndex &index) const
{
    CellText cell = cellOf(index);
    const QFontMetrics metrics(cell.font);
    painter->setFont(cell.font);
    const QString text = index.data().toString();
    const bool isPlain = text.size() <= kMostQuickLetters && !text.contains(u'\n') && !text.isRightToLeft();
    if (isPlain && metrics.horizontalAdvance(text) <= room.width()) {
        const auto side = QStyle::visualAlignment(painter->layoutDirection(), Qt::AlignLeading);
        // As it would be laid out: by its own script, whatever the window's direction.
        painter->setLayoutDirection(Qt::LeftToRight);
        painter->drawText(room, static_cast<int>(side) | Qt::AlignTop | Qt::TextSingleLine, text);
        return;
    }
    cell.alignment
        = QStyle::visualAlignment(painter->layoutDirection(), Qt::AlignLeading) | Qt::AlignAbsolute;
    QTextLayout layout;
    const CellText::Extent extent = cell.layOut(layout, std::max(room.width(), 1));
    layout.draw(painter, room.topLeft());
    if (extent.wordTop >= 0)
        painter->drawText(QRect(room.left(), room.top() + extent.wordTop, room.width(), metrics.height()),
                          static_cast<int>(cell.alignment) | Qt::AlignTop, QStringLiteral("…"));
}

void ComparisonDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                               const QModelIndex &index) const
{
    if (isHeading(index))
        return;
    painter->save();
    painter->setLayoutDirection(option.direction);
    paintGround(painter, option, index);
    painter->setPen(inkOf(option, index));
    painter->setClipRect(option.rect, Qt::IntersectClip);
    paintText(painter, roomIn(option.rect), index);
    painter->restore();
}

bool ComparisonDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view,
                                   const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (event->type() != QEvent::ToolTip || !index.isValid())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const CellText cell = cellOf(index);
    QTextLayout layout;
    const int width = roomIn(option.rect).width();
    const bool isCut = cell.isShortened() || (!cell.wraps() && cell.naturalWidth() > width)
        || (cell.wraps() && cell.layOut(layout, std::max(width, 1)).wordTop >= 0);
    const QString tip = isCut ? beginningOf(index.data().toString(), kMostTipLetters) : QString();
    QToolTip::showText(event->globalPos(), plainTip(tip, QToolTip::font(), view->viewport()->width()), view);
    return true;
}

} // namespace quorvin
