// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "places/Projection.h"

#include <QPointF>
#include <QRectF>
#include <QSizeF>

namespace quorvin {

/// Which part of the flat map a picture shows, and how large. A value; pixels are those of a widget, not of
/// its device, from its top left corner. Any thread.
struct MapView {
    MapType type = MapType::WebMercator;
    QPointF centre = {0.5, 0.5}; ///< on the flat map
    double worldWidth = 256; ///< pixels from 180 degrees west to 180 east
    QSizeF size; ///< of the picture, in pixels

    bool operator==(const MapView &) const = default;

    QPointF toPixel(const QPointF &flat) const;
    QPointF toFlat(const QPointF &pixel) const;
    /// What is shown, on the flat map; may reach beyond the world.
    QRectF flatRect() const;

    /// The nearest view that may be shown: a pixel is no less than a metre at the equator, the world no
    /// smaller than what fits in; it stands in the middle where it fits, and its edge never passes the
    /// picture's middle.
    MapView bounded() const;
    /// With the content moved by so many pixels, and bounded.
    MapView panned(const QPointF &pixels) const;
    /// Larger by the factor, and bounded. What lies at this pixel stays there, unless a bound moves it.
    MapView zoomed(double factor, const QPointF &at) const;

    /// All of `bounds`, which are on the flat map, with a margin; one spot as large as the map of a town.
    static MapView fitting(MapType type, const QSizeF &size, const QRectF &bounds);
    static MapView wholeWorld(MapType type, const QSizeF &size);
};

} // namespace quorvin
