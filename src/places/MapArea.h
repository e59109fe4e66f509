// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Location.h"

namespace quorvin {

/// A part of the Earth between two parallels and two meridians, in degrees; its edges belong to it. It does
/// not reach over the 180th meridian.
struct MapArea {
    double south = 0;
    double west = 0;
    double north = 0;
    double east = 0;

    bool contains(const Location &location) const
    {
        return location.latitude >= south && location.latitude <= north && location.longitude >= west
            && location.longitude <= east;
    }
    bool operator==(const MapArea &) const = default;
};

} // namespace quorvin
