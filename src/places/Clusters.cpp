// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "places/Clusters.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <tuple>
#include <utility>

namespace quorvin {

namespace {

constexpr quint32 kNowhere = std::numeric_limits<quint32>::max();

/// The cells that a view shows, and one around them, row by row.
class CellGrid {
public:
    explicit CellGrid(const MapView &view) : _cellsPerWorld(view.worldWidth / kClusterPixels)
    {
        const QRectF shown = view.flatRect();
        _left = std::floor(shown.left() * _cellsPerWorld) - 1;
        _top = std::floor(shown.top() * _cellsPerWorld) - 1;
        _columns = std::floor(shown.right() * _cellsPerWorld) + 2 - _left;
        _rows = std::floor(shown.bottom() * _cellsPerWorld) + 2 - _top;
    }

    std::size_t size() const { return static_cast<std::size_t>(_columns) * static_cast<std::size_t>(_rows); }

    quint32 cellOf(const QPointF &flat) const
    {
        const double column = std::floor(flat.x() * _cellsPerWorld) - _left;
        const double row = std::floor(flat.y() * _cellsPerWorld) - _top;
        const bool isInside = column >= 0 && row >= 0 && column < _columns && row < _rows;
        return isInside ? static_cast<quint32>(row * _columns + column) : kNowhere;
    }

private:
    double _cellsPerWorld;
    double _left;
    double _top;
    double _columns;
    double _rows;
};

/// A cluster while it grows, known by the cell that it began with.
struct Heap {
    QPointF sum; ///< of its points on the flat map
    quint32 size = 0;
    quint32 cell = 0;

    QPointF middle() const { return sum / size; }
};

/// Which cell stands for each cell whose points went to another one's cluster.
class CellUnion {
public:
    explicit CellUnion(std::size_t cells) : _next(cells) { std::iota(_next.begin(), _next.end(), 0U); }

    void put(quint32 cell, quint32 into) { _next[cell] = into; }
    quint32 find(quint32 cell)
    {
        while (_next[cell] != cell)
            cell = _next[cell] = _next[_next[cell]];
        return cell;
    }

private:
    std::vector<quint32> _next;
};

struct NearPair {
    double distance; ///< squared, on the flat map
    quint32 left; ///< in the heaps
    quint32 right;
};

/// The pairs of heaps that are nearer than so much, the nearest first. Sorts the heaps from west to east.
std::vector<NearPair> nearPairs(std::vector<Heap> &heaps, double limit)
{
    std::ranges::sort(heaps, {}, [](const Heap &heap) { return std::tuple(heap.middle().x(), heap.cell); });
    std::vector<NearPair> pairs;
    for (quint32 left = 0; left < heaps.size(); ++left) {
        const QPointF from = heaps[left].middle();
        for (quint32 right = left + 1; right < heaps.size(); ++right) {
            const QPointF way = heaps[right].middle() - from;
            if (way.x() >= limit)
                break;
            const double distance = QPointF::dotProduct(way, way);
            if (distance < limit * limit)
                pairs.push_back({distance, left, right});
        }
    }
    std::ranges::sort(pairs, {},
                      [](const NearPair &pair) { return std::tuple(pair.distance, pair.left, pair.right); });
    return pairs;
}

/// Puts neighbours together until none are nearer than so much; each joins one other at a time, as that moves
/// the middle.
void joinNeighbours(std::vector<Heap> &heaps, CellUnion &cells, double limit)
{
    for (auto pairs = nearPairs(heaps, limit); !pairs.empty(); pairs = nearPairs(heaps, limit)) {
        std::vector<bool> hasJoined(heaps.size());
        for (const NearPair &pair : pairs) {
            if (hasJoined[pair.left] || hasJoined[pair.right])
                continue;
            hasJoined[pair.left] = hasJoined[pair.right] = true;
            Heap &into = heaps[pair.left];
            Heap &from = heaps[pair.right];
            cells.put(from.cell, into.cell);
            into.sum += from.sum;
            into.size += std::exchange(from.size, 0U);
        }
        std::erase_if(heaps, [](const Heap &heap) { return heap.size == 0; });
    }
}

/// The heap of each cell that has points.
std::vector<Heap> heapsOf(std::span<const MapPoint> points, std::span<const quint32> cellOfPoint,
                          std::size_t cells)
{
    std::vector<Heap> heaps(cells);
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (cellOfPoint[i] == kNowhere)
            continue;
        Heap &heap = heaps[cellOfPoint[i]];
        heap.sum += points[i].flat;
        ++heap.size;
    }
    for (quint32 cell = 0; cell < heaps.size(); ++cell)
        heaps[cell].cell = cell;
    std::erase_if(heaps, [](const Heap &heap) { return heap.size == 0; });
    return heaps;
}

QRectF boundsOfFlats(std::size_t count, const auto &flatOf)
{
    QPointF least = flatOf(0);
    QPointF most = least;
    for (std::size_t i = 1; i < count; ++i) {
        const QPointF flat = flatOf(i);
        least = {std::min(least.x(), flat.x()), std::min(least.y(), flat.y())};
        most = {std::max(most.x(), flat.x()), std::max(most.y(), flat.y())};
    }
    return {least, most};
}

} // namespace

MapClusters clustersOf(std::span<const MapPoint> points, const MapView &view)
{
    const CellGrid grid(view);
    std::vector<quint32> cellOfPoint(points.size());
    std::ranges::transform(points, cellOfPoint.begin(),
                           [&](const MapPoint &point) { return grid.cellOf(point.flat); });
    std::vector<Heap> heaps = heapsOf(points, cellOfPoint, grid.size());
    CellUnion cells(grid.size());
    joinNeighbours(heaps, cells, kClusterPixels / view.worldWidth);
    std::ranges::sort(
        heaps, {}, [](const Heap &heap) { return std::tuple(-static_cast<qint64>(heap.size), heap.cell); });

    MapClusters result;
    std::vector<quint32> nextPlace(grid.size()); ///< by the cell that a cluster is known by
    quint32 count = 0;
    for (const Heap &heap : heaps) {
        result.clusters.push_back({view.toPixel(heap.middle()), count, heap.size});
        nextPlace[heap.cell] = count;
        count += heap.size;
    }
    result.members.resize(count);
    for (quint32 i = 0; i < points.size(); ++i) {
        if (cellOfPoint[i] != kNowhere)
            result.members[nextPlace[cells.find(cellOfPoint[i])]++] = i;
    }
    return result;
}

QRectF boundsOf(std::span<const MapPoint> points, std::span<const quint32> members)
{
    return boundsOfFlats(members.size(), [&](std::size_t i) { return points[members[i]].flat; });
}

QRectF boundsOf(std::span<const MapPoint> points)
{
    return boundsOfFlats(points.size(), [&](std::size_t i) { return points[i].flat; });
}

} // namespace quorvin
