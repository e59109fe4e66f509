// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/desktop/FocusRing.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QPainter>
#include <QRegion>

namespace quorvin {

namespace {

constexpr int kRingWidth = 2; ///< device-independent pixels

QRegion ringIn(const QRect &rect)
{
    return QRegion(rect).subtracted(rect.adjusted(kRingWidth, kRingWidth, -kRingWidth, -kRingWidth));
}

} // namespace

void paintFocusRing(QPainter &painter, const QRect &rect, const QPalette &palette)
{
    for (const QRect &side : ringIn(rect))
        painter.fillRect(side, palette.color(QPalette::Active, QPalette::Highlight));
}

FocusRing::FocusRing(QAbstractItemView *view) : QWidget(view), _view(view)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    view->installEventFilter(this);
    const QAbstractItemModel *model = view->model();
    connect(model, &QAbstractItemModel::rowsInserted, this, &FocusRing::follow);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &FocusRing::follow);
    connect(model, &QAbstractItemModel::modelReset, this, &FocusRing::follow);
    follow();
}

bool FocusRing::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::FocusIn:
    case QEvent::FocusOut:
    case QEvent::Resize:
    case QEvent::Show:
        follow();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void FocusRing::follow()
{
    setGeometry(_view->rect());
    // The inside stays the view's, which scrolls faster under nothing.
    setMask(ringIn(rect()));
    setVisible(_view->hasFocus() && _view->model()->rowCount(_view->rootIndex()) > 0);
    raise();
}

void FocusRing::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintFocusRing(painter, rect(), palette());
}

} // namespace quorvin
