// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"
#include "readers/image/ImageMetadata.h"

#include <QByteArrayView>
#include <QString>
#include <QStringList>

#include <optional>

namespace quorvin {

/// The four-letter brands in the first bytes of a file, the main one first; a brand that is both main and
/// compatible stands twice. Absent for fewer than 12 bytes. Any thread.
std::optional<QStringList> compatibleBrands(QByteArrayView head);

/// Whether exiv2 only names the MIME type of such files, and libheif reads them.
bool isHeifType(const QString &mimeType);

/// What libheif tells of a HEIF or AVIF file: format, number of images, size of the primary one, its
/// thumbnails, colour profile, and Exif and XMP blocks, which exiv2 reads. Fails, and is logged, for a file
/// that libheif refuses; a block that cannot be read is logged and left out. Any thread.
Expected<ImageMetadata> readHeif(const QString &path);

} // namespace quorvin
