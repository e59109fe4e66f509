// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Location.h"

#include <QString>

#include <array>
#include <optional>
#include <span>
#include <vector>

namespace quorvin {

/// Most have 15,000 people or more; smaller ones are capitals of something.
struct Town {
    QString name;
    QString state; ///< or another part of the country; "" where there is none
    QString country;
    QString timeZone; ///< as "Europe/Zurich"
    Location location;
    quint32 population = 0;
};

struct NearestTown {
    const Town *town; ///< lives as long as the towns
    double metres; ///< from its middle
    double bearing; ///< from the town to the place, degrees clockwise from north
};

/// The towns of the Earth, as the system's library knows them. Not changed once made: any thread.
class Towns {
public:
    /// Made at the first call, which takes 0.1 to 0.3 seconds: never on the main thread. Without the library
    /// there are none.
    static const Towns &instance();
    /// Of these, in whatever order.
    explicit Towns(std::vector<Town> towns);

    /// The most populous first.
    std::span<const Town> towns() const { return _towns; }
    /// Over the shortest way, also over a pole or the date line. Absent where the position is impossible or
    /// there are no towns.
    std::optional<NearestTown> nearest(const Location &location) const;

private:
    using Point = std::array<double, 3>;
    /// A town as a point of a sphere of radius 1. The middle of a range of nodes parts the others by one
    /// axis, each half by the next.
    struct Node {
        Point point;
        quint32 town;
    };
    /// The nearest so far, by the square of the straight way.
    struct Found {
        double square;
        quint32 town;
    };

    static Point pointOf(const Location &location);
    static void arrange(std::span<Node> nodes, std::size_t axis);
    static void search(std::span<const Node> nodes, std::size_t axis, const Point &point, Found &found);

    std::vector<Town> _towns;
    std::vector<Node> _nodes;
};

} // namespace quorvin
