// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "readers/image/ImageMetadata.h"

#include <exiv2/exiv2.hpp>

namespace quorvin {

/// Adds what the Exif data of an open, read image tells: its tags, lens, position, format, orientation and
/// the size of the primary image. Nothing is added for empty Exif data. A failure of the library is logged
/// and keeps what was gathered; any other exception passes.
void prepareExif(const Exiv2::Image &image, ImageMetadata &result);

/// Degrees, minutes and seconds as one number, negative for S and W; 0 unless there are three.
double gpsDegreesFromExifDatum(const Exiv2::Exifdatum &datum, char reference);

} // namespace quorvin
