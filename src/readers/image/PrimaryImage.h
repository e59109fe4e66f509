// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <exiv2/exiv2.hpp>

#include <string>

namespace quorvin {

/// The full-resolution image of a TIFF-like file with several.
struct PrimaryImage {
    std::string group = "Image"; ///< group name of its Exif keys
    long width = 0; ///< pixels; 0 when the file does not say
    long height = 0;
};

/// The last image that calls itself of full resolution before or at the first one that is not compressed as a
/// JPEG preview; directory 0 when none does. Throws what the library throws for a value without numbers.
PrimaryImage primaryImage(const Exiv2::ExifData &exif);

} // namespace quorvin
