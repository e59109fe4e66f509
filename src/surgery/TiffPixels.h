// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "surgery/ImagePart.h"

#include <optional>
#include <vector>

namespace quorvin {

/// Strips, tiles and embedded pictures of all directories of a TIFF, in their order. Absent for what is none,
/// or leads out of itself. Any thread.
std::optional<std::vector<ImagePart>> tiffPixels(QByteArrayView file);

} // namespace quorvin
