// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/compare/ColumnGrip.h"

#include <QMouseEvent>

namespace quorvin {

ColumnGrip::ColumnGrip(QWidget *parent) : QWidget(parent)
{
    setCursor(Qt::SplitHCursor);
    setFocusPolicy(Qt::NoFocus);
}

void ColumnGrip::mousePressEvent(QMouseEvent *event)
{
    event->setAccepted(event->button() == Qt::LeftButton);
    _grabbedAt = qRound(event->position().x()) - kWidth / 2;
}

void ColumnGrip::mouseMoveEvent(QMouseEvent *event)
{
    if (event->buttons().testFlag(Qt::LeftButton))
        Q_EMIT dragged(mapToParent(event->position().toPoint()).x() - _grabbedAt);
}

void ColumnGrip::mouseDoubleClickEvent(QMouseEvent *event)
{
    event->setAccepted(event->button() == Qt::LeftButton);
    if (event->isAccepted())
        Q_EMIT doubleClicked();
}

} // namespace quorvin
