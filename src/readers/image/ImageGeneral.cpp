// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/image/ImageGeneral.h"

#include "filefacts/FileStream.h"
#include "filefacts/Sizes.h"
#include "pictures/Cover.h"
#include "pictures/Images.h"
#include "platform/NativePath.h"
#include "readers/image/ImageMetadata.h"

#include <array>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

using Text = std::optional<QString>;

constexpr double kLeastMegapixels = 0.3;
const QString kNotAnExposure = u"(0/0)"_s;

struct Row;
using Rule = Text (*)(const Row &row, const ImageMetadata &metadata);

/// A line of the General tab: the Exif tag, else the XMP property, by a rule.
struct Row {
    QLatin1String label;
    QLatin1String exifKey;
    QLatin1String xmpKey;
    Rule value;
};

Text unlessEmpty(Text text)
{
    return text && text->isEmpty() ? std::nullopt : std::move(text);
}

Text trimmed(Text text)
{
    return text ? unlessEmpty(text->trimmed()) : std::nullopt;
}

Text eitherSource(const ImageMetadata &metadata, QLatin1String exifKey, QLatin1String xmpKey)
{
    Text value = metadata.exif.value(exifKey);
    return value ? value : metadata.xmp.value(xmpKey);
}

Text asItStands(const Row &row, const ImageMetadata &metadata)
{
    return eitherSource(metadata, row.exifKey, row.xmpKey);
}

Text trimmedText(const Row &row, const ImageMetadata &metadata)
{
    return trimmed(asItStands(row, metadata));
}

Text plain(const Row &row, const ImageMetadata &metadata)
{
    Text value = trimmedText(row, metadata);
    return value == kNotAnExposure ? std::nullopt : value;
}

Text device(const Row &row, const ImageMetadata &metadata)
{
    const Text model = trimmedText(row, metadata);
    const Text make = trimmed(eitherSource(metadata, "Exif.Image.Make"_L1, "Xmp.tiff.Make"_L1));
    return model && make ? *model + " ("_L1 + *make + u')' : model;
}

Text lens(const Row &row, const ImageMetadata &metadata)
{
    return metadata.lensName ? unlessEmpty(metadata.lensName) : asItStands(row, metadata);
}

Text focalLength(const Row &row, const ImageMetadata &metadata)
{
    const Text length = asItStands(row, metadata);
    const Text equivalent = metadata.exif.value(u"Exif.Photo.FocalLengthIn35mmFilm"_s);
    if (!length || !equivalent || *length == *equivalent)
        return trimmed(length);
    return trimmed(*length + " (35 mm equivalent: "_L1 + *equivalent + u')');
}

/// The library writes F2.8.
Text aperture(const Row &row, const ImageMetadata &metadata)
{
    const Text number = asItStands(row, metadata);
    if (!number || *number == kNotAnExposure)
        return std::nullopt;
    return u"\u0192"_s + QString(*number).replace(u'F', u'/');
}

/// 65535 says that the number does not fit its tag.
Text iso(const Row &row, const ImageMetadata &metadata)
{
    const Text value = asItStands(row, metadata);
    const Text wide = metadata.exif.value(u"Exif.Photo.StandardOutputSensitivity"_s);
    return value == u"65535"_s && wide ? wide : value;
}

Text location(const Row &, const ImageMetadata &metadata)
{
    return metadata.gps;
}

constexpr std::array kRows{
    Row{"Device"_L1, "Exif.Image.Model"_L1, "Xmp.tiff.Model"_L1, device},
    Row{"Lens"_L1, {}, "Xmp.aux.Lens"_L1, lens},
    Row{"Photo Date"_L1, "Exif.Photo.DateTimeOriginal"_L1, "Xmp.exif.DateTimeOriginal"_L1, trimmedText},
    Row{"Focal Length"_L1, "Exif.Photo.FocalLength"_L1, "Xmp.exif.FocalLength"_L1, focalLength},
    Row{"Aperture"_L1, "Exif.Photo.FNumber"_L1, "Xmp.exif.FNumber"_L1, aperture},
    Row{"ISO"_L1, "Exif.Photo.ISOSpeedRatings"_L1, "Xmp.exif.ISOSpeedRatings"_L1, iso},
    Row{"Exposure Time"_L1, "Exif.Photo.ExposureTime"_L1, "Xmp.exif.ShutterSpeedValue"_L1, plain},
    Row{"Exposure Bias"_L1, "Exif.Photo.ExposureBiasValue"_L1, "Xmp.exif.ExposureBiasValue"_L1, plain},
    Row{"Exposure Program"_L1, "Exif.Photo.ExposureProgram"_L1, "Xmp.exif.ExposureProgram"_L1, plain},
    Row{"Metering Mode"_L1, "Exif.Photo.MeteringMode"_L1, "Xmp.exif.MeteringMode"_L1, plain},
    Row{"Flash"_L1, "Exif.Photo.Flash"_L1, {}, plain},
    Row{"Exposure Mode"_L1, "Exif.Photo.ExposureMode"_L1, "Xmp.exif.ExposureMode"_L1, plain},
    Row{"White Balance"_L1, "Exif.Photo.WhiteBalance"_L1, "Xmp.exif.WhiteBalance"_L1, plain},
    Row{"Creator"_L1, "Exif.Image.Artist"_L1, "Xmp.dc.Creator"_L1, plain},
    Row{"Copyright"_L1, "Exif.Image.Copyright"_L1, "Xmp.dc.Rights"_L1, plain},
    Row{"Location"_L1, {}, {}, location},
};

void addLines(const ImageMetadata &metadata, GeneralFacts &general)
{
    for (const Row &row : kRows) {
        const Text value = row.value(row, metadata);
        if (!value)
            continue;
        StyledText text{*value};
        text.italicLength = row.value == aperture ? 1 : 0;
        general.lines.push_back({{}, row.label, std::move(text), 0, row.value == location});
    }
    if (metadata.gps) {
        general.latitude = metadata.gpsLatitude;
        general.longitude = metadata.gpsLongitude;
    }
}

} // namespace

GeneralFacts prepareExiv2General(const ImageMetadata &metadata, const RegularFile &file,
                                 const RecordOptions &options, const DigestWatch &watch)
{
    GeneralFacts general;
    static_cast<FileFacts &>(general) = getFileInfo(file, options, watch);
    general.format = metadata.imageType ? *metadata.imageType : pathExtension(file.resolvedPath()).toUpper();
    if (metadata.imageWidth && metadata.imageHeight)
        setImageSize(*metadata.imageWidth, *metadata.imageHeight, general);
    if (options.keepCover)
        general.cover = imageCover(metadata, file, options.useSlowThumbProcessing);
    general.thumbCount = metadata.thumbCount;
    addLines(metadata, general);
    return general;
}

void setImageSize(const QString &width, const QString &height, GeneralFacts &general)
{
    const QString size = width + " x "_L1 + height;
    const double megapixels = width.toDouble() * height.toDouble() / 1'000'000;
    general.imageSize = size;
    general.imageSizeMP = megapixels > kLeastMegapixels
        ? size + " ("_L1 + Utilities::fixedNotation(megapixels, 1) + " MP)"_L1
        : size;
}

Cover imageCover(const ImageMetadata &metadata, const RegularFile &file, bool useSlowThumbProcessing)
{
    const bool isTall = metadata.thumbHeight > kImageCoverSide;
    Cover cover;
    if (!metadata.thumb.isEmpty() && isTall)
        cover = coverOfData(metadata.thumb, kImageCoverSide);
    else if (useSlowThumbProcessing)
        cover = coverOf(Utilities::thumbnailedImageFromURL(file.descriptorPath(), kImageCoverSide));
    return cover.isEmpty() && !metadata.thumb.isEmpty() ? coverOfData(metadata.thumb) : cover;
}

} // namespace quorvin
