// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/info/CoverView.h"

#include "shell/desktop/AccessibleRole.h"
#include "shell/desktop/FocusRing.h"

#include <QKeyEvent>
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
    showPicture(icon, {}, tr("Picture of the file's kind"));
}

void CoverView::setCoverImage(const QImage &image)
{
    showPicture({}, image, tr("Cover"));
}

void CoverView::showPicture(const QIcon &icon, const QImage &image, const QString &name)
{
    _icon = icon;
    _image = image;
    setAccessibleName(name);
    setFocusPolicy(isEmpty() ? Qt::NoFocus : Qt::StrongFocus);
    update();
    Q_EMIT coverDidChange();
}

QSize CoverView::fittedSize(const QSize &image, const QSize &room)
{
    if (image.width() <= room.width() && image.height() <= room.height())
        return image;
    return image.scaled(room, Qt::KeepAspectRatio);
}

QRect CoverView::place() const
{
    QRect place(QPoint(),
                _image.isNull() ? QSize(kIconSide, kIconSide).boundedTo(size())
                                : fittedSize(_image.size(), size()));
    // Beside the headline; a drawn sign is smaller than the room of a cover.
    if (!_image.isNull())
        return QStyle::visualRect(layoutDirection(), rect(), place);
    place.moveLeft(rect().center().x() - place.width() / 2);
    return place;
}

void CoverView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    // What the program drew stands back, and the pictures of a theme have colours of their own.
    const QIcon::Mode mode = _icon.name().isEmpty() ? QIcon::Disabled : QIcon::Normal;
    if (_image.isNull())
        _icon.paint(&painter, place(), Qt::AlignCenter, mode);
    else
        painter.drawImage(place(), _image);
    if (hasFocus() && !isEmpty())
        paintFocusRing(painter, place(), palette());
}

void CoverView::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        Q_EMIT opened();
}

void CoverView::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        Q_EMIT opened();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace quorvin
