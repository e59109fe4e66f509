// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "places/MapColors.h"
#include "places/MapView.h"

#include <QRectF>

#include <vector>

class QPainter;

namespace quorvin {

class Towns;

/// Parts of a picture that something else stands on, in its pixels.
using TakenPlaces = std::vector<QRectF>;

/// A dot and a name for towns in view, the most populous first and more of them at larger scales, in the
/// painter's font. None stands over another, over what is taken or over the picture's edge. Returns where the
/// names stand. Any thread, with a painter on an image, as all of this file.
TakenPlaces paintTownNames(QPainter &painter, const MapView &view, const MapColors &colors,
                           const Towns &towns, TakenPlaces taken);

/// A round length, in metres: 1, 2 or 5 and its tens.
struct ScaleBar {
    double metres = 0;
    double pixels = 0; ///< along the equator's direction in the middle of the view, 120 at the most
};
ScaleBar scaleBarOf(const MapView &view);

/// At the bottom left, with its length, in the painter's font. Returns where it stands.
QRectF paintScaleBar(QPainter &painter, const MapView &view, const MapColors &colors);

} // namespace quorvin
