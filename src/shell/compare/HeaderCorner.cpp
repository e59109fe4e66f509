// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/compare/HeaderCorner.h"

#include "shell/compare/TableLook.h"
#include "shell/desktop/AccessibleRole.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionHeader>

namespace quorvin {

HeaderCorner::HeaderCorner(QWidget *parent) : QWidget(parent)
{
    setFocusPolicy(Qt::NoFocus);
    // The headers have names of their own.
    setAccessibleRole(this, QAccessible::Whitespace);
}

void HeaderCorner::setAlignment(Qt::Alignment alignment)
{
    _alignment = alignment;
    update();
}

void HeaderCorner::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QStyleOptionHeader option;
    option.initFrom(this);
    option.orientation = Qt::Horizontal;
    option.position = QStyleOptionHeader::Middle;
    style()->drawControl(QStyle::CE_HeaderSection, &option, &painter, this);
    painter.setPen(palette().color(QPalette::PlaceholderText));
    const QRect room = rect().adjusted(TableLook::kMargin, 0, -TableLook::kMargin - 1, 0);
    painter.drawText(room,
                     static_cast<int>(QStyle::visualAlignment(layoutDirection(), _alignment))
                         | Qt::AlignVCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(tr("Parameter"), Qt::ElideRight, room.width()));
}

} // namespace quorvin
