// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "places/Projection.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quorvin {

namespace {

constexpr double kMeanRadius = 6371008.8;
constexpr double kPoleDegrees = 90;
constexpr double kDateLineDegrees = 180;
constexpr double kAround = 360;

double radians(double degrees)
{
    return degrees * std::numbers::pi / kDateLineDegrees;
}

double degreesOf(double angle)
{
    return angle * kDateLineDegrees / std::numbers::pi;
}

} // namespace

bool isPossible(const Location &location)
{
    // A comparison with what is no number fails.
    return std::abs(location.latitude) <= kPoleDegrees && std::abs(location.longitude) <= kDateLineDegrees;
}

QRectF flatWorld(MapType type)
{
    return {0, 0, 1, type == MapType::WebMercator ? 1 : 0.5};
}

QPointF flattened(MapType type, const Location &location)
{
    const double x = location.longitude / kAround + 0.5;
    if (type == MapType::WholeEarth)
        return {x, (kPoleDegrees - location.latitude) / kAround};
    const double y = 0.5 - std::atanh(std::sin(radians(location.latitude))) / (2 * std::numbers::pi);
    return {x, std::clamp(y, 0.0, 1.0)};
}

Location unflattened(MapType type, const QPointF &point)
{
    const double longitude = (std::clamp(point.x(), 0.0, 1.0) - 0.5) * kAround;
    const double y = std::clamp(point.y(), 0.0, flatWorld(type).bottom());
    if (type == MapType::WholeEarth)
        return {kPoleDegrees - y * kAround, longitude};
    return {degreesOf(std::asin(std::tanh((0.5 - y) * 2 * std::numbers::pi))), longitude};
}

double metresBetween(const Location &from, const Location &to)
{
    const double north = std::sin(radians(to.latitude - from.latitude) / 2);
    const double east = std::sin(radians(to.longitude - from.longitude) / 2);
    const double half
        = north * north + std::cos(radians(from.latitude)) * std::cos(radians(to.latitude)) * east * east;
    return 2 * kMeanRadius * std::asin(std::min(1.0, std::sqrt(half)));
}

double bearing(const Location &from, const Location &to)
{
    const double east = radians(to.longitude - from.longitude);
    const double toCosine = std::cos(radians(to.latitude));
    const double across = std::sin(east) * toCosine;
    const double along = std::cos(radians(from.latitude)) * std::sin(radians(to.latitude))
        - std::sin(radians(from.latitude)) * toCosine * std::cos(east);
    const double degrees = degreesOf(std::atan2(across, along));
    // A tiny negative angle would round to the whole circle.
    const double clockwise = degrees < 0 ? degrees + kAround : degrees;
    return clockwise < kAround ? clockwise : 0;
}

} // namespace quorvin
