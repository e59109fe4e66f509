// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/info/CoverView.h"

#include "shell/desktop/AccessibleRole.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

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
    setAccessibleName(tr("Picture of the file's kind"));
    update();
    Q_EMIT coverDidChange();
}

void CoverView::setCoverImage(const QImage &image)
{
    _icon = {};
    _image = image;
    setAccessibleName(tr("Cover"));
    update();
    Q_EMIT coverDidChange();
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
    // Beside the headline; a drawn sign is smaller than the room of a cover.
    if (_image.isNull())
        target.moveLeft(rect().center().x() - target.width() / 2);
    else
        target = QStyle::visualRect(layoutDirection(), rect(), target);
    // What the program drew stands back, and the pictures of a theme have colours of their own.
    const QIcon::Mode mode = _icon.name().isEmpty() ? QIcon::Disabled : QIcon::Normal;
    if (_image.isNull())
        _icon.paint(&painter, target, Qt::AlignCenter, mode);
    else
        painter.drawImage(target, _image);
}

void CoverView::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        Q_EMIT doubleClicked();
}

} // namespace quorvin
