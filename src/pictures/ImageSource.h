// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"

#include <QString>
#include <QVariantMap>

namespace quorvin {

/// What the image readers of Qt, or libheif where Qt has none, tell of the first image of a file without
/// decoding it: scalars under their names (PixelWidth, PixelHeight, Depth in bits a pixel or a sample of
/// HEIF, HasAlpha, Orientation by the numbers of Exif), maps under a name in braces ({PNG}: the texts of a
/// PNG). Fails, and is logged, for a file that neither opens. Any thread.
Expected<QVariantMap> imageProperties(const QString &path);

} // namespace quorvin
