// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "places/MapView.h"

class QPainter;

namespace quorvin {

/// Degrees between two lines of latitude or longitude: 30, 15, 10, 5, 2, 1, or a round number of minutes, so
/// that the lines stand apart in the view. Any thread.
double graticuleStep(const MapView &view);

/// With the painter's pen. Any thread, with a painter on an image.
void paintGraticule(QPainter &painter, const MapView &view);

} // namespace quorvin
