// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/outline/StickyGroup.h"

#include "shell/outline/OutlineDelegate.h"

#include <QAbstractScrollArea>
#include <QCoreApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QWheelEvent>

#include <algorithm>

namespace quorvin {

namespace {

constexpr int kLineAlpha = 90; ///< of 255

} // namespace

StickyGroup::StickyGroup(QAbstractScrollArea *view) : QWidget(view), _view(view)
{
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::ArrowCursor);
    hide();
}

void StickyGroup::setGroup(const QString &name, const QRect &frame, int height, int room, int indentation)
{
    setGeometry(frame.left(), frame.top() + std::min(room - height, 0), frame.width(), height);
    setMask(QRect(0, std::max(height - room, 0), frame.width(), height));
    constexpr int kMargin = OutlineDelegate::kMargin;
    const QRect text(indentation + kMargin, 0, frame.width() - indentation - 2 * kMargin, height);
    _name = name;
    _text = QStyle::visualRect(layoutDirection(), rect(), text);
    _sign = QStyle::visualRect(layoutDirection(), rect(), {0, 0, indentation, height});
    update();
}

void StickyGroup::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    QStyleOption sign;
    sign.initFrom(this);
    sign.rect = _sign;
    sign.state |= QStyle::State_Children | QStyle::State_Open;
    style()->drawPrimitive(QStyle::PE_IndicatorBranch, &sign, &painter, _view);
    style()->drawItemText(
        &painter, _text,
        static_cast<int>(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeading)) | Qt::AlignVCenter,
        palette(), true, fontMetrics().elidedText(_name, Qt::ElideRight, _text.width()), QPalette::Text);
    QColor line = palette().color(QPalette::PlaceholderText);
    line.setAlpha(kLineAlpha);
    painter.fillRect(0, height() - 1, width(), 1, line);
}

void StickyGroup::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        Q_EMIT clicked();
}

void StickyGroup::wheelEvent(QWheelEvent *event)
{
    QCoreApplication::sendEvent(_view->viewport(), event);
}

} // namespace quorvin
