// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "places/MapView.h"

#include <QPointF>
#include <QRectF>
#include <QtGlobal>

#include <span>
#include <vector>

namespace quorvin {

/// A file on the flat map.
struct MapPoint {
    QPointF flat; ///< finite
    quint32 file = 0; ///< place in the list that the points were made of
};

/// Points that stand so near to each other on a picture that they are one mark.
struct MapCluster {
    QPointF middle; ///< mean of its points, in pixels
    quint32 first = 0; ///< in `MapClusters::members`
    quint32 size = 0;
};

struct MapClusters {
    std::vector<MapCluster> clusters; ///< the largest first
    std::vector<quint32> members; ///< places of points, cluster by cluster, ascending within one

    std::span<const quint32> membersOf(const MapCluster &cluster) const
    {
        return std::span(members).subspan(cluster.first, cluster.size);
    }
};

/// No two clusters have their middles nearer to each other, in pixels.
inline constexpr double kClusterPixels = 44;

/// The clusters of what a view shows and a little around it: the points of each cell of a grid are one, then
/// neighbours that are too near. The grid stands still on the Earth, so that a view that is moved keeps its
/// clusters but for some at its edge. Points on one spot are always in one cluster, and no point is in two.
/// The same points and view give the same clusters. Any thread, as below.
MapClusters clustersOf(std::span<const MapPoint> points, const MapView &view);

/// The least rectangle of the flat map that has these members, without size for one spot; not of none.
QRectF boundsOf(std::span<const MapPoint> points, std::span<const quint32> members);
/// The same of all of them.
QRectF boundsOf(std::span<const MapPoint> points);

} // namespace quorvin
