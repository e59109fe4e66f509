// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview/FittedImage.h"

#include <QPaintDevice>
#include <QPainter>

namespace quorvin {

QRect fittedRect(QSize pixels, const QRect &area, qreal ratio, bool grows)
{
    const QSize natural = (QSizeF(pixels) / ratio).toSize().expandedTo({1, 1});
    const bool fits = natural.width() <= area.width() && natural.height() <= area.height();
    QRect rect({}, fits && !grows ? natural : natural.scaled(area.size(), Qt::KeepAspectRatio));
    rect.setSize(rect.size().expandedTo({1, 1}));
    rect.moveCenter(area.center());
    return rect;
}

void paintFitted(QPainter &painter, const QImage &image, const QRect &area, bool grows)
{
    if (image.isNull() || area.isEmpty())
        return;
    const qreal ratio = painter.device()->devicePixelRatioF();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(fittedRect(image.size(), area, ratio, grows), image);
}

} // namespace quorvin
