// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QImage>
#include <QRect>

class QPainter;

namespace quorvin {

/// Where a picture of that many pixels of the device stands in `area`: in its middle, scaled down to fit, and
/// up only where `grows`. In the units of `area`, of which each has `ratio` pixels.
QRect fittedRect(QSize pixels, const QRect &area, qreal ratio, bool grows);

/// Draws the image there, smoothly. Main thread.
void paintFitted(QPainter &painter, const QImage &image, const QRect &area, bool grows);

} // namespace quorvin
