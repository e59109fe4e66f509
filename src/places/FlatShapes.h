// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "places/BaseMapBytes.h"
#include "places/MapView.h"

#include <QPainterPath>
#include <QRectF>

#include <array>
#include <vector>

namespace quorvin {

/// In half the room of a point of Qt, and true to three metres.
struct FlatPoint {
    float x;
    float y;
};

using FlatLine = std::vector<FlatPoint>;

/// A line on the flat map; or an area, with the outlines of its holes behind its own.
struct FlatShape {
    QRectF bounds;
    std::vector<FlatLine> lines;
};

using FlatLayers = std::array<std::vector<FlatShape>, kMapLayers>;

/// In the same order. Any thread, as all of this file.
FlatLayers flatLayers(MapType type, const ArcLayers &layers);

/// Paths in the pixels of a view. They end soon beyond its edge, whatever the scale, and have no points that
/// are nearer to each other than can be seen.
class PathMaker {
public:
    /// `detail`: how many pixels apart points are told apart.
    PathMaker(const MapView &view, double detail);

    /// What of the area is shown, to be filled; an empty path if nothing is.
    QPainterPath areaPath(const FlatShape &area) const;
    /// What of the line is shown is added to the path.
    void addLine(QPainterPath &path, const FlatShape &line) const;

private:
    bool shows(const FlatShape &shape) const;
    std::vector<QPointF> thinned(const FlatLine &line) const;

    QPointF _origin; ///< pixels of the top left corner of the flat map
    double _scale; ///< pixels of its width
    double _detail;
    QRectF _window;
    QRectF _flatWindow; ///< the same on the flat map
};

} // namespace quorvin
