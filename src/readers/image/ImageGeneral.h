// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/DigestProgress.h"
#include "model/GeneralFacts.h"
#include "model/RecordOptions.h"

namespace quorvin {

struct ImageMetadata;
class RegularFile;

/// The General facts of an image: its file facts, format, size and cover, and a line for each fact that a
/// photographer asks for first. Nothing here fails: a missing source leaves its line out. Any thread.
GeneralFacts prepareExiv2General(const ImageMetadata &metadata, const RegularFile &file,
                                 const RecordOptions &options, const DigestWatch &watch);

/// Size and size with megapixels, from pixels; the latter counts them only above 0.3.
void setImageSize(const QString &width, const QString &height, GeneralFacts &general);

/// The cover of an image; empty without one. A preview higher than the cover is scaled down to it,
/// a lower one stays as it is, and only then, if the slow way is on, the file itself is decoded.
Cover imageCover(const ImageMetadata &metadata, const RegularFile &file, bool useSlowThumbProcessing);

/// Pixels of the longer side of a cover.
inline constexpr int kImageCoverSide = 256;

} // namespace quorvin
