// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "places/MapView.h"

#include <algorithm>

namespace quorvin {

namespace {

constexpr double kMostWorldWidth = kEquatorMetres;
constexpr double kTownWorldWidth = kEquatorMetres / 40;
constexpr double kMargin = 48;

QPointF halfOf(const QSizeF &size)
{
    return {size.width() / 2, size.height() / 2};
}

/// Of a world of that length, of which so much is visible. The range grows from its middle alone, where all
/// is visible, to its whole length.
double boundedCentre(double centre, double world, double visible)
{
    const double range = std::clamp(world - visible, 0.0, world / 2);
    return std::clamp(centre, world / 2 - range, world / 2 + range);
}

/// At which bounds of that size fill the picture up to a margin.
double worldWidthFor(const QSizeF &picture, const QSizeF &bounds, double margin)
{
    const auto along = [margin](double pixels, double flat) {
        const double room = pixels - 2 * std::min(margin, pixels / 4);
        return flat > 0 ? std::max(1.0, room) / flat : kMostWorldWidth;
    };
    return std::min(
        {along(picture.width(), bounds.width()), along(picture.height(), bounds.height()), kMostWorldWidth});
}

} // namespace

QPointF MapView::toPixel(const QPointF &flat) const
{
    return (flat - centre) * worldWidth + halfOf(size);
}

QPointF MapView::toFlat(const QPointF &pixel) const
{
    return (pixel - halfOf(size)) / worldWidth + centre;
}

QRectF MapView::flatRect() const
{
    return {toFlat({0, 0}), size / worldWidth};
}

MapView MapView::bounded() const
{
    const QRectF world = flatWorld(type);
    MapView view = *this;
    view.worldWidth = std::clamp(worldWidth, worldWidthFor(size, world.size(), 0), kMostWorldWidth);
    const QSizeF visible = size / view.worldWidth;
    view.centre = {boundedCentre(centre.x(), world.width(), visible.width()),
                   boundedCentre(centre.y(), world.height(), visible.height())};
    return view;
}

MapView MapView::panned(const QPointF &pixels) const
{
    MapView view = *this;
    view.centre -= pixels / worldWidth;
    return view.bounded();
}

MapView MapView::zoomed(double factor, const QPointF &at) const
{
    MapView view = *this;
    view.worldWidth *= factor;
    // The middle would move by what the scale is bounded to, not by the factor.
    view.worldWidth = view.bounded().worldWidth;
    view.centre += toFlat(at) - view.toFlat(at);
    return view.bounded();
}

MapView MapView::fitting(MapType type, const QSizeF &size, const QRectF &bounds)
{
    const bool isSpot = bounds.width() <= 0 && bounds.height() <= 0;
    const double width = isSpot ? kTownWorldWidth : worldWidthFor(size, bounds.size(), kMargin);
    return MapView{type, bounds.center(), width, size}.bounded();
}

MapView MapView::wholeWorld(MapType type, const QSizeF &size)
{
    const QRectF world = flatWorld(type);
    return MapView{type, world.center(), worldWidthFor(size, world.size(), 0), size}.bounded();
}

} // namespace quorvin
