// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "places/FlatShapes.h"
#include "places/MapColors.h"
#include "places/MapView.h"

#include <array>
#include <vector>

class QPainter;

namespace quorvin {

/// Land, borders, states, lakes and rivers of the Earth, fit for a scale of 1:50 million, out of the
/// program's resources; true to half an arc minute. Not changed once made: any thread.
class BaseMap {
public:
    /// Made at the first call, which takes some milliseconds.
    static const BaseMap &instance();

    /// What the view shows, in the pixels of the view, whose size is filled: sea and what lies beyond the
    /// world, land, lakes, lines and a graticule in round degrees; finer lines from larger scales on. Leaves
    /// the painter as it was. Any thread, with a painter on an image.
    void paint(QPainter &painter, const MapView &view, const MapColors &colors) const;

private:
    BaseMap();
    const std::vector<FlatShape> &shapes(MapType type, MapLayer layer) const;

    std::array<FlatLayers, 2> _layers; ///< by map type
};

} // namespace quorvin
