// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "surgery/ImagePart.h"

#include <optional>
#include <vector>

namespace quorvin {

/// The pieces of a whole file, in its order: of JPEG, PNG, WebP, PSD, JPEG 2000, and TIFF with the raw
/// formats that are built like it, of which the pixels are told, and no tags. Absent for another format, and
/// for a file that is cut off or lies about itself. The views last as long as the bytes. Any thread.
///
/// Two files whose parts of the picture are equal show the same.
std::optional<std::vector<ImagePart>> imagePartsOf(QByteArrayView file);

} // namespace quorvin
