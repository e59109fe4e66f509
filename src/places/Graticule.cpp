// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "places/Graticule.h"

#include <QPainter>

#include <array>
#include <cmath>

namespace quorvin {

namespace {

constexpr double kLeastPixels = 110;
constexpr double kMinute = 1.0 / 60;
constexpr std::array kSteps{30.0,        15.0,         10.0,         5.0,          2.0,
                            1.0,         30 * kMinute, 20 * kMinute, 10 * kMinute, 5 * kMinute,
                            2 * kMinute, 1 * kMinute,  kMinute / 2};

/// The multiples of the step from one degree to another, which is not less.
template <typename Use>
void forEachMultiple(double step, double from, double to, const Use &use)
{
    for (double number = std::ceil(from / step); number * step <= to; ++number)
        use(number * step);
}

} // namespace

double graticuleStep(const MapView &view)
{
    double found = kSteps.front();
    for (const double step : kSteps) {
        if (step * view.worldWidth / 360 < kLeastPixels)
            break;
        found = step;
    }
    return found;
}

void paintGraticule(QPainter &painter, const MapView &view)
{
    const QRectF shown = view.flatRect() & flatWorld(view.type);
    if (shown.isEmpty())
        return;
    const double step = graticuleStep(view);
    const Location northWest = unflattened(view.type, shown.topLeft());
    const Location southEast = unflattened(view.type, shown.bottomRight());
    const QRectF pixels{view.toPixel(shown.topLeft()), view.toPixel(shown.bottomRight())};
    forEachMultiple(step, northWest.longitude, southEast.longitude, [&](double longitude) {
        const double x = view.toPixel(flattened(view.type, {0, longitude})).x();
        painter.drawLine(QPointF(x, pixels.top()), QPointF(x, pixels.bottom()));
    });
    forEachMultiple(step, southEast.latitude, northWest.latitude, [&](double latitude) {
        const double y = view.toPixel(flattened(view.type, {latitude, 0})).y();
        painter.drawLine(QPointF(pixels.left(), y), QPointF(pixels.right(), y));
    });
}

} // namespace quorvin
