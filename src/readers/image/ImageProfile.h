// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "readers/image/ImageMetadata.h"

#include <exiv2/exiv2.hpp>

namespace quorvin {

/// Names the colour profile of an open, read image: the one in its Exif data, else the one that a JPEG or PNG
/// embeds. After `prepareExif`, whose format decides: a file without Exif gets no profile. A failure of the
/// library is logged.
void prepareColorProfile(Exiv2::Image &image, ImageMetadata &result);

/// Names a profile by its ICC bytes; bytes that are none add nothing.
void prepareColorProfileWithData(const QByteArray &icc, ImageMetadata &result);

} // namespace quorvin
