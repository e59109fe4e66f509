// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvin {

/// A point of the base map, in half arc minutes: 120 are a degree.
struct ArcPoint {
    std::int16_t latitude = 0; ///< north positive
    std::int16_t longitude = 0; ///< east positive

    bool operator==(const ArcPoint &) const = default;
};

inline constexpr int kArcPointsPerDegree = 120;

using ArcLine = std::vector<ArcPoint>;
/// A line; or an area: its outline, and behind it those of the holes in it. The end of an outline is joined
/// to its begin.
using ArcShape = std::vector<ArcLine>;

/// Land and lakes are areas, which may repeat a part of others; the rest are lines.
enum class MapLayer : std::uint8_t { Land, Lakes, Rivers, Borders, States };
inline constexpr std::size_t kMapLayers = 5;

using ArcLayers = std::array<std::vector<ArcShape>, kMapLayers>;

/// The base map as the program carries it: numbers of as few bytes as they need, each point as the step from
/// the one before. Compresses well. Any thread, as all of this file.
std::string baseMapBytes(const ArcLayers &layers);
/// Absent unless the bytes are a whole base map and no more.
std::optional<ArcLayers> baseMapFromBytes(std::string_view bytes);

} // namespace quorvin
