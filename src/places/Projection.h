// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Location.h"

#include <QPointF>
#include <QRectF>

namespace quorvin {

/// How the Earth is laid flat; the numbers are those of the setting `mapType`.
enum class MapType { WebMercator = 0, WholeEarth = 1 };

/// Finite, the latitude within 90 degrees and the longitude within 180. Any thread, as all of this file.
bool isPossible(const Location &location);

/// On the flat map, whose width is 1: x from 0 at 180 degrees west, y from 0 at the top, downwards. Web
/// Mercator is a square and ends at 85.05 degrees; what lies beyond is laid on its edge. The whole Earth has
/// its degrees equally wide everywhere, and is 0.5 high. Of possible locations only.
QPointF flattened(MapType type, const Location &location);
/// The way back; a point beside the map is first moved to its edge.
Location unflattened(MapType type, const QPointF &point);
/// The whole of the flat map.
QRectF flatWorld(MapType type);

/// How far around the equator, in metres.
inline constexpr double kEquatorMetres = 40075016.686;

/// The shortest way over a sphere of the Earth's mean radius.
double metresBetween(const Location &from, const Location &to);
/// Where that way sets out to, in degrees clockwise from north, from 0 to below 360; 0 between equal
/// locations.
double bearing(const Location &from, const Location &to);

} // namespace quorvin
