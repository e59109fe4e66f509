// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/compare/ParameterHeader.h"

#include "comparison/ComparisonController.h"
#include "shell/compare/ComparisonDelegate.h"
#include "shell/desktop/PlainText.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QItemSelectionModel>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

namespace quorvin {

namespace {

constexpr float kNameHitAlpha = 0.28F;

} // namespace

ParameterHeader::ParameterHeader(QWidget *parent) : QHeaderView(Qt::Vertical, parent)
{
    setSectionsClickable(true);
    setHighlightSections(false);
    setSectionResizeMode(Fixed);
}

bool ParameterHeader::isHeading(int row) const
{
    return model()->index(row, 0).data(ComparisonController::HeadingRole).toBool();
}

int ParameterHeader::headingGap(int row) const
{
    if (!isHeading(row))
        return 0;
    const int line = QFontMetrics(look.font).height();
    return row == 0 ? line / 3 : line;
}

CellText ParameterHeader::cellOf(int row) const
{
    CellText cell(model()->headerData(row, orientation()).toString(), look.wraps, false);
    const bool heading = isHeading(row);
    cell.font = heading || look.hasHeavyNames ? look.heavyFont() : look.font;
    cell.alignment = look.rightAlignsNames && !heading ? Qt::AlignTrailing : Qt::AlignLeading;
    return cell;
}

void ParameterHeader::paintSection(QPainter *painter, const QRect &rect, int row) const
{
    const bool heading = isHeading(row);
    const bool isSelected = !heading && selectionModel() && selectionModel()->isRowSelected(row);
    const QPalette::ColorGroup group
        = parentWidget()->hasFocus() && isActiveWindow() ? QPalette::Active : QPalette::Inactive;
    painter->fillRect(rect, palette().color(group, isSelected ? QPalette::Highlight : QPalette::Base));
    CellText cell = cellOf(row);
    if (!soughtText.isEmpty() && !heading
        && model()->headerData(row, orientation()).toString().contains(soughtText, Qt::CaseInsensitive)) {
        QColor tint = palette().color(isSelected ? QPalette::HighlightedText : QPalette::Highlight);
        tint.setAlphaF(kNameHitAlpha);
        painter->fillRect(rect, tint);
    }
    paintCellLines(painter, rect, palette(), layoutDirection());
    const QPalette::ColorRole back = heading ? QPalette::Text : QPalette::PlaceholderText;
    painter->setPen(palette().color(group, isSelected ? QPalette::HighlightedText : back));
    cell.alignment = QStyle::visualAlignment(layoutDirection(), cell.alignment) | Qt::AlignAbsolute;
    const QRect room = rect.adjusted(TableLook::kMargin, TableLook::kLead + headingGap(row),
                                     -TableLook::kMargin - 1, -TableLook::kLead);
    painter->setClipRect(rect, Qt::IntersectClip);
    QTextLayout layout;
    cell.layOut(layout, std::max(room.width(), 1));
    layout.draw(painter, room.topLeft());
}

void ParameterHeader::contextMenuEvent(QContextMenuEvent *event)
{
    if (const int row = logicalIndexAt(event->pos()); row >= 0 && !isHeading(row))
        Q_EMIT menuWanted(row, event->globalPos());
}

bool ParameterHeader::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QHeaderView::viewportEvent(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    const int row = logicalIndexAt(help->pos());
    const bool isCut
        = row >= 0 && !look.wraps && cellOf(row).naturalWidth() > width() - 2 * TableLook::kMargin;
    const QString tip = isCut ? model()->headerData(row, orientation()).toString() : QString();
    QToolTip::showText(help->globalPos(), plainTip(tip, *this), this);
    return true;
}

} // namespace quorvin
