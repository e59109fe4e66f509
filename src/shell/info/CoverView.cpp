// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/info/CoverView.h"

#include "shell/desktop/AccessibleRole.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace quorvin {

namespace {

/// A drawn sign looks lost at the size of a cover, and a photograph does not.
constexpr int kIconSide = 128;

} // namespace

CoverView::CoverView(QWidget *parent) : QWidget(parent)
{
    setAccessibleRole(this, QAccessible::Graphic);
    setAccessibleName(tr("Cover"));
}

void CoverView::clear()
{
    setIcon({});
}

void CoverView::setIcon(const QIcon &icon)
{
    _icon = icon;
    _image = {};
    update();
}

void CoverView::setCoverImage(const QImage &image)
{
    _icon = {};
    _image = image;
    update();
}

QSize CoverView::fittedSize(const QSize &image, const QSize &room)
{
    if (image.width() <= room.width() && image.height() <= room.height())
        return image;
    return image.scaled(room, Qt::KeepAspectRatio);
}

void CoverView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    QRect target(QPoint(),
                 _image.isNull() ? QSize(kIconSide, kIconSide).boundedTo(size())
                                 : fittedSize(_image.size(), size()));
    target.moveCenter(rect().center());
    if (_image.isNull())
        _icon.paint(&painter, target);
    else
        painter.drawImage(target, _image);
}

void CoverView::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        Q_EMIT doubleClicked();
}

} // namespace quorvin
