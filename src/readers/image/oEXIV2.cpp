// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/image/oEXIV2.h"

#include "readers/image/ExifExtraction.h"
#include "readers/image/Exiv2Library.h"
#include "readers/image/HeifReader.h"
#include "readers/image/ImageProfile.h"
#include "readers/image/IptcXmpExtraction.h"
#include "readers/image/Previews.h"

#include <libheif/heif.h>

namespace quorvin {

namespace {

/// A primary image without a width in its tags keeps the 0 it was given: only without Exif, or for a format
/// with one image, does the library's size count.
void takeLibrarySize(const Exiv2::Image &image, ImageMetadata &result)
{
    if (result.imageWidth)
        return;
    result.imageWidth = QString::number(image.pixelWidth());
    result.imageHeight = QString::number(image.pixelHeight());
}

std::optional<ImageMetadata> metadataOf(Exiv2::Image *image, const QString &filepath, bool keepThumb)
{
    if (!image)
        return std::nullopt;
    image->readMetadata();
    if (image->mimeType() == "image/generic")
        return std::nullopt;
    ImageMetadata result;
    prepareExif(*image, result);
    prepareIptc(*image, result);
    prepareXmp(*image, result);
    result.mimeType = QString::fromStdString(image->mimeType());
    takeLibrarySize(*image, result);
    prepareColorProfile(*image, result);
    prepareThumbnails(*image, filepath, keepThumb, result);
    return result;
}

} // namespace

void oEXIV2::setupLibrary()
{
    exiv2::setUp();
}

QString oEXIV2::libVersion()
{
    return QString::fromStdString(Exiv2::versionString());
}

QString oEXIV2::heifVersion()
{
    return QString::fromUtf8(heif_get_version());
}

std::optional<oEXIV2> oEXIV2::initWithFilename(const QString &path, bool keepThumb)
try {
    auto data = metadataOf(exiv2::openImage(path).get(), path, keepThumb);
    return data ? std::optional(oEXIV2(std::move(*data))) : std::nullopt;
} catch (...) {
    return std::nullopt;
}

std::optional<oEXIV2> oEXIV2::initWithMemData(QByteArrayView bytes, bool keepThumb)
try {
    auto data = metadataOf(exiv2::openImage(bytes).get(), {}, keepThumb);
    return data ? std::optional(oEXIV2(std::move(*data))) : std::nullopt;
} catch (...) {
    return std::nullopt;
}

std::optional<oEXIV2> oEXIV2::initWithHeifFilePath(const QString &path)
{
    auto data = readHeif(path);
    return data ? std::optional(oEXIV2(std::move(*data))) : std::nullopt;
}

} // namespace quorvin
