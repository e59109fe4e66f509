// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "readers/image/TagList.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace quorvin {

/// What the libraries found in an image, printed. Absent where the file or the reader has nothing to say.
struct ImageMetadata {
    std::optional<QString> mimeType; ///< as exiv2 tells it; absent for HEIF and AVIF
    std::optional<QString> imageType; ///< short name of the format; absent for a file without Exif
    bool isRaw = false; ///< the format is a camera's raw one
    QString tiffPrimaryGroup = QStringLiteral("Image"); ///< group of the Exif keys of the full picture
    std::optional<QString> imageWidth; ///< pixels in decimal digits, as the height
    std::optional<QString> imageHeight;
    std::optional<QString> imageOrientationDegrees; ///< such as 90° CW
    std::optional<QString> imageCount; ///< top-level images of a HEIF or AVIF file, in decimal digits
    TagList exif; ///< the group of an item is the name of its directory
    TagList iptc; ///< without groups; repeated datasets are one item
    TagList xmp; ///< the group of an item is its namespace prefix
    std::optional<QString> lensName;
    std::optional<QString> gps; ///< position as text
    std::optional<double> gpsLatitude; ///< degrees, north positive
    std::optional<double> gpsLongitude; ///< degrees, east positive
    std::optional<QString> iccProfileColorSpace; ///< name of the colour profile
    std::optional<QString> iccProfileColorSpaceModel; ///< RGB, CMYK, Gray or LAB
    QString thumbCount = QStringLiteral("0"); ///< number of previews in decimal digits
    QStringList previews; ///< a line for each
    QByteArray thumb; ///< the preview that stands for the file, encoded; empty when there is none
    int thumbHeight = 0; ///< its height in pixels
};

} // namespace quorvin
