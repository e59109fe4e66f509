// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "places/FlatShapes.h"

#include <QPolygonF>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

namespace quorvin {

namespace {

/// Pixels beyond the view, so that no line ends in it and no cut edge is seen.
constexpr double kBleed = 8;

constexpr double kPerDegree = kArcPointsPerDegree;
constexpr int kPoleArc = 90 * kArcPointsPerDegree;

using Points = std::vector<QPointF>;

/// One side of a window.
struct Side {
    bool isUpright;
    bool isLeast;
    double limit;

    /// How far a point is out of the window, negative within.
    double beyond(const QPointF &point) const
    {
        const double at = isUpright ? point.x() : point.y();
        return isLeast ? limit - at : at - limit;
    }
};

std::array<Side, 4> sidesOf(const QRectF &window)
{
    return {{{true, true, window.left()},
             {true, false, window.right()},
             {false, true, window.top()},
             {false, false, window.bottom()}}};
}

QPointF between(const QPointF &from, const QPointF &to, double part)
{
    return from + (to - from) * part;
}

/// What of an area lies within by one side.
Points cut(const Points &outline, const Side &side)
{
    Points kept;
    kept.reserve(outline.size() + 2);
    QPointF last = outline.back();
    double lastBeyond = side.beyond(last);
    for (const QPointF &point : outline) {
        const double beyond = side.beyond(point);
        if ((beyond > 0) != (lastBeyond > 0))
            kept.push_back(between(last, point, lastBeyond / (lastBeyond - beyond)));
        if (beyond <= 0)
            kept.push_back(point);
        last = point;
        lastBeyond = beyond;
    }
    return kept;
}

/// What of a straight line lies within.
std::optional<std::pair<QPointF, QPointF>> cut(const QPointF &from, const QPointF &to,
                                               const std::array<Side, 4> &sides)
{
    double begin = 0;
    double end = 1;
    for (const Side &side : sides) {
        const double first = side.beyond(from);
        const double last = side.beyond(to);
        if (first > 0 && last > 0)
            return {};
        if (first > 0)
            begin = std::max(begin, first / (first - last));
        else if (last > 0)
            end = std::min(end, first / (first - last));
    }
    if (begin > end)
        return {};
    return std::pair(begin > 0 ? between(from, to, begin) : from, end < 1 ? between(from, to, end) : to);
}

QRectF boundsOf(const std::vector<FlatLine> &lines)
{
    constexpr float kFar = std::numeric_limits<float>::max();
    FlatPoint least{kFar, kFar};
    FlatPoint most{-kFar, -kFar};
    for (const FlatLine &line : lines) {
        for (const FlatPoint &point : line) {
            least = {std::min(least.x, point.x), std::min(least.y, point.y)};
            most = {std::max(most.x, point.x), std::max(most.y, point.y)};
        }
    }
    return {QPointF(least.x, least.y), QPointF(most.x, most.y)};
}

/// Heights on the flat map by latitude, from the south pole up: each once, as there are fewer of them than
/// points.
std::vector<float> flatHeights(MapType type)
{
    std::vector<float> heights;
    for (int latitude = -kPoleArc; latitude <= kPoleArc; ++latitude)
        heights.push_back(static_cast<float>(flattened(type, {latitude / kPerDegree, 0}).y()));
    return heights;
}

FlatLine flatLine(const ArcLine &line, const std::vector<float> &heights)
{
    FlatLine flat;
    flat.reserve(line.size());
    for (const ArcPoint &point : line) {
        const auto row
            = static_cast<std::size_t>(std::clamp<int>(point.latitude, -kPoleArc, kPoleArc) + kPoleArc);
        flat.push_back({static_cast<float>(point.longitude / (4.0 * kPoleArc) + 0.5), heights[row]});
    }
    return flat;
}

FlatShape flatShape(const ArcShape &shape, const std::vector<float> &heights)
{
    FlatShape flat;
    for (const ArcLine &line : shape)
        flat.lines.push_back(flatLine(line, heights));
    flat.bounds = boundsOf(flat.lines);
    return flat;
}

/// As intersects(), for bounds that may have no width or no height.
bool touches(const QRectF &bounds, const QRectF &window)
{
    return bounds.left() <= window.right() && bounds.right() >= window.left()
        && bounds.top() <= window.bottom() && bounds.bottom() >= window.top();
}

} // namespace

FlatLayers flatLayers(MapType type, const ArcLayers &layers)
{
    const std::vector<float> heights = flatHeights(type);
    FlatLayers flat;
    for (std::size_t layer = 0; layer < kMapLayers; ++layer) {
        for (const ArcShape &shape : layers[layer])
            flat[layer].push_back(flatShape(shape, heights));
    }
    return flat;
}

PathMaker::PathMaker(const MapView &view, double detail)
    : _origin(view.toPixel({0, 0})),
      _scale(view.worldWidth),
      _detail(detail),
      _window(QRectF({0, 0}, view.size).adjusted(-kBleed, -kBleed, kBleed, kBleed)),
      _flatWindow(view.toFlat(_window.topLeft()), view.toFlat(_window.bottomRight()))
{
}

QPainterPath PathMaker::areaPath(const FlatShape &area) const
{
    QPainterPath path;
    if (!shows(area))
        return path;
    const bool isWhole = _flatWindow.contains(area.bounds);
    for (const FlatLine &outline : area.lines) {
        Points points = thinned(outline);
        for (const Side &side : sidesOf(_window)) {
            if (!isWhole && !points.empty())
                points = cut(points, side);
        }
        if (points.size() < 3)
            continue;
        path.addPolygon(QPolygonF(QList<QPointF>(points.begin(), points.end())));
        path.closeSubpath();
    }
    return path;
}

void PathMaker::addLine(QPainterPath &path, const FlatShape &line) const
{
    if (!shows(line))
        return;
    const std::array<Side, 4> sides = sidesOf(_window);
    const Points points = thinned(line.lines.front());
    std::optional<QPointF> end;
    for (std::size_t place = 1; place < points.size(); ++place) {
        const auto part = cut(points[place - 1], points[place], sides);
        if (!part)
            continue;
        if (end != part->first)
            path.moveTo(part->first);
        path.lineTo(part->second);
        end = part->second;
    }
}

bool PathMaker::shows(const FlatShape &shape) const
{
    const double extent = std::max(shape.bounds.width(), shape.bounds.height()) * _scale;
    return extent >= _detail && touches(shape.bounds, _flatWindow);
}

Points PathMaker::thinned(const FlatLine &line) const
{
    Points points;
    QPointF next;
    for (const FlatPoint &point : line) {
        next = QPointF(point.x, point.y) * _scale + _origin;
        const QPointF way = points.empty() ? QPointF(_detail, 0) : next - points.back();
        if (std::abs(way.x()) >= _detail || std::abs(way.y()) >= _detail)
            points.push_back(next);
    }
    // Lines meet in their ends.
    if (!points.empty() && points.back() != next)
        points.push_back(next);
    return points;
}

} // namespace quorvin
