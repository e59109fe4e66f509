// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>

namespace quorvin {

/// What a map is painted with.
struct MapColors {
    QColor sea = {};
    QColor land = {};
    QColor lake = {};
    QColor river = {};
    QColor border = {}; ///< of countries
    QColor state = {}; ///< borders within a country
    QColor graticule = {};
    QColor text = {};
    QColor halo = {}; ///< around texts, so that they stand out from lines
    QColor beyond = {}; ///< where the world has ended; not valid: as the sea

    bool operator==(const MapColors &) const = default;
};

} // namespace quorvin
