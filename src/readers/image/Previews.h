// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "readers/image/ImageMetadata.h"

#include <exiv2/exiv2.hpp>

#include <vector>

namespace quorvin {

/// What the choice looks at.
struct PreviewKind {
    quint32 height = 0; ///< pixels
    bool isJpeg = false;
};

/// Which of the previews, at least one, stands for the file: the first JPEG of at least 256 lines, else the
/// first of at least 256 lines, else the last one.
std::size_t chosenPreview(const std::vector<PreviewKind> &previews);

/// Lists the previews that an open, read image embeds and, with `keepThumb`, keeps the bytes of the chosen
/// one. A failure of the library is logged, with `filepath`, and leaves but the number. Erases the Exif tags
/// that have nothing to do with previews, so call it last.
void prepareThumbnails(Exiv2::Image &image, const QString &filepath, bool keepThumb, ImageMetadata &result);

inline constexpr quint32 kTallPreview = 256;

} // namespace quorvin
