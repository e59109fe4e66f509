// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/compare/FileHeader.h"

#include "comparison/ComparisonController.h"
#include "shell/desktop/PlainText.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <utility>

namespace quorvin {

namespace {

constexpr int kNameMargin = 6; ///< beside a name
constexpr int kCrossSide = 14;
constexpr int kCrossEdge = 5; ///< between the cross and the border, which is for dragging
constexpr int kMarkHeight = 2;

} // namespace

FileHeader::FileHeader(QWidget *parent) : QHeaderView(Qt::Horizontal, parent)
{
    setSectionsMovable(true);
    setSectionsClickable(true);
    setHighlightSections(false);
    setStretchLastSection(false);
    setMouseTracking(true);
    setTextElideMode(Qt::ElideMiddle);
    connect(this, &QHeaderView::sectionClicked, this, &FileHeader::referenceWanted);
}

QRect FileHeader::crossRect(int column) const
{
    const int width = sectionSize(column);
    if (width < 3 * kCrossSide)
        return {};
    const int left = sectionViewportPosition(column);
    const int x
        = layoutDirection() == Qt::LeftToRight ? left + width - kCrossEdge - kCrossSide : left + kCrossEdge;
    return {x, (height() - kCrossSide) / 2, kCrossSide, kCrossSide};
}

int FileHeader::crossAt(const QPoint &position) const
{
    const int column = logicalIndexAt(position);
    return column >= 0 && crossRect(column).contains(position) ? column : -1;
}

void FileHeader::setHovered(int column)
{
    if (std::exchange(_hovered, column) != column)
        viewport()->update();
}

void FileHeader::mousePressEvent(QMouseEvent *event)
{
    const int cross = crossAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && cross >= 0)
        _pressedCross = cross;
    else
        QHeaderView::mousePressEvent(event);
}

void FileHeader::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint position = event->position().toPoint();
    setHovered(event->buttons() == Qt::NoButton ? logicalIndexAt(position) : -1);
    if (const int cross = crossAt(position); std::exchange(_hoveredCross, cross) != cross)
        viewport()->update();
    if (!_pressedCross)
        QHeaderView::mouseMoveEvent(event);
}

void FileHeader::mouseReleaseEvent(QMouseEvent *event)
{
    const auto pressed = std::exchange(_pressedCross, std::nullopt);
    if (!pressed)
        QHeaderView::mouseReleaseEvent(event);
    else if (crossAt(event->position().toPoint()) == *pressed)
        Q_EMIT closeWanted(*pressed);
}

void FileHeader::contextMenuEvent(QContextMenuEvent *event)
{
    if (const int column = logicalIndexAt(event->pos()); column >= 0)
        Q_EMIT menuWanted(column, event->globalPos());
}

void FileHeader::leaveEvent(QEvent *event)
{
    QHeaderView::leaveEvent(event);
    setHovered(-1);
}

bool FileHeader::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QHeaderView::viewportEvent(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    const int column = logicalIndexAt(help->pos());
    const QString path
        = column < 0 ? QString() : model()->headerData(column, orientation(), Qt::ToolTipRole).toString();
    const QString tip
        = crossAt(help->pos()) >= 0 ? tr("Close this column; the file stays in the list") : path;
    QToolTip::showText(help->globalPos(), plainTip(tip, *this), this);
    return true;
}

void FileHeader::paintSection(QPainter *painter, const QRect &rect, int column) const
{
    QStyleOptionHeaderV2 option;
    initStyleOption(&option);
    initStyleOptionForIndex(&option, column);
    option.rect = rect;
    option.text.clear();
    style()->drawControl(QStyle::CE_HeaderSection, &option, painter, this);

    const bool isReference
        = model()->headerData(column, orientation(), ComparisonController::ReferenceRole).toBool();
    const bool hasCross = column == _hovered && !crossRect(column).isNull();
    QFont font = this->font();
    if (isReference)
        font.setWeight(QFont::DemiBold);
    const int trailing = hasCross ? kCrossEdge + kCrossSide : kNameMargin;
    const QRect room
        = QStyle::visualRect(layoutDirection(), rect, rect.adjusted(kNameMargin, 0, -trailing, 0));
    const QString name = model()->headerData(column, orientation()).toString();
    painter->setFont(font);
    style()->drawItemText(painter, room,
                          static_cast<int>(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeading))
                              | Qt::AlignVCenter | Qt::TextSingleLine,
                          palette(), true, QFontMetrics(font).elidedText(name, Qt::ElideMiddle, room.width()),
                          QPalette::WindowText);
    if (isReference)
        painter->fillRect(QRect(rect.left(), rect.bottom() + 1 - kMarkHeight, rect.width(), kMarkHeight),
                          palette().color(QPalette::Active, QPalette::Highlight));
    if (hasCross)
        paintCross(painter, crossRect(column));
}

void FileHeader::paintCross(QPainter *painter, const QRect &rect) const
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    QColor ink = palette().color(QPalette::WindowText);
    if (_hoveredCross == _hovered) {
        QColor ground = ink;
        ground.setAlphaF(0.15F);
        painter->setPen(Qt::NoPen);
        painter->setBrush(ground);
        painter->drawEllipse(rect);
    }
    painter->setPen(QPen(ink, 1.3));
    const QRectF lines = QRectF(rect).adjusted(4, 4, -4, -4);
    painter->drawLine(lines.topLeft(), lines.bottomRight());
    painter->drawLine(lines.topRight(), lines.bottomLeft());
    painter->restore();
}

} // namespace quorvin
