// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "readers/image/ImageMetadata.h"

#include <exiv2/exiv2.hpp>

namespace quorvin {

/// Adds the IPTC datasets of an open, read image; an empty one leaves no trace. A failure of the library is
/// logged and ends the walk with what was gathered.
void prepareIptc(const Exiv2::Image &image, ImageMetadata &result);

/// Adds the XMP properties of an open, read image; nothing is added for empty XMP data. A property that
/// cannot be printed is logged and left out; any other failure is logged and ends the walk.
void prepareXmp(const Exiv2::Image &image, ImageMetadata &result);

} // namespace quorvin
