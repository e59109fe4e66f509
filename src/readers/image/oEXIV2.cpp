// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/image/oEXIV2.h"

#include "model/Log.h"
#include "pictures/HeifImage.h"
#include "readers/image/ExifExtraction.h"
#include "readers/image/Exiv2Library.h"
#include "readers/image/HeifReader.h"
#include "readers/image/ImageProfile.h"
#include "readers/image/IptcXmpExtraction.h"
#include "readers/image/Previews.h"

namespace quorvin {

namespace {

const QString kNotAnImage = QStringLiteral("Not an image");

/// A primary image without a width in its tags keeps the 0 it was given: only without Exif, or for a format
/// with one image, does the library's size count.
void takeLibrarySize(const Exiv2::Image &image, ImageMetadata &result)
{
    if (result.imageWidth)
        return;
    result.imageWidth = QString::number(image.pixelWidth());
    result.imageHeight = QString::number(image.pixelHeight());
}

Expected<ImageMetadata> metadataOf(Exiv2::Image &image, const QString &filepath, bool keepThumb)
{
    ImageMetadata result;
    {
        const exiv2::XmpSession session;
        image.readMetadata();
        if (image.mimeType() == "image/generic")
            return failure(kNotAnImage);
        result.mimeType = QString::fromStdString(image.mimeType());
        if (isHeifType(*result.mimeType))
            return result;
        prepareXmp(image, result);
    }
    prepareExif(image, result);
    prepareIptc(image, result);
    takeLibrarySize(image, result);
    prepareColorProfile(image, result);
    prepareThumbnails(image, filepath, keepThumb, result);
    return result;
}

/// What `open` opens, read.
template <typename Open>
Expected<ImageMetadata> guardedMetadata(Open open, const QString &filepath, bool keepThumb)
try {
    const std::unique_ptr<Exiv2::Image> image = open();
    return image ? metadataOf(*image, filepath, keepThumb) : failure(kNotAnImage);
} catch (const std::exception &error) {
    qCDebug(lcLibraries).noquote() << "exiv2:" << error.what();
    return failure(kNotAnImage);
} catch (...) {
    qCDebug(lcLibraries) << "exiv2: an exception without a name";
    return failure(kNotAnImage);
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
    return HeifImage::libraryVersion();
}

Expected<oEXIV2> oEXIV2::initWithFilename(const QString &path, bool keepThumb)
{
    return RegularFile::open(path).and_then(
        [&](const RegularFile &file) { return initWithFile(file, path, keepThumb); });
}

Expected<oEXIV2> oEXIV2::initWithFile(const RegularFile &file, const QString &path, bool keepThumb)
{
    return guardedMetadata([&] { return exiv2::openImage(file); }, path, keepThumb).map(wrapped);
}

Expected<oEXIV2> oEXIV2::initWithMemData(QByteArrayView bytes, bool keepThumb)
{
    return guardedMetadata([&] { return exiv2::openImage(bytes); }, {}, keepThumb).map(wrapped);
}

Expected<oEXIV2> oEXIV2::initWithHeifFilePath(const QString &path)
{
    return readHeif(path).map(wrapped);
}

oEXIV2 oEXIV2::wrapped(ImageMetadata data)
{
    return oEXIV2(std::move(data));
}

} // namespace quorvin
