// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Location.h"

#include <QString>

namespace quorvin {

/// How a position is written: "46.51970, 6.63230"; 46°31'10.9"N 6°37'56.3"E; "geo:46.5197,6.6323".
enum class PositionNotation { Decimal, Sexagesimal, GeoUri };

/// The text of a possible position. Any thread, as below.
QString positionText(const Location &location, PositionNotation notation);

/// Seven decimals at most, which is a centimetre; no zeros at the end, no exponent, never "-0".
QString degreesText(double degrees);

} // namespace quorvin
