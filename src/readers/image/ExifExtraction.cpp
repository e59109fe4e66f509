// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/image/ExifExtraction.h"

#include "model/Log.h"
#include "readers/image/ExifTables.h"
#include "readers/image/Exiv2Library.h"
#include "readers/image/PrimaryImage.h"

#include <algorithm>
#include <array>
#include <unordered_map>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

/// What all tags of one number in one directory have in common.
struct TagFace {
    TermPtr term; ///< null for a tag that stays out
    std::string ifdName;
};

constexpr std::size_t kMaxFaces = 20'000;

TagFace makeFace(const Exiv2::Exifdatum &datum)
{
    const std::string name = datum.tagName();
    const std::string key = datum.key();
    TagFace face{nullptr, datum.ifdName()};
    std::string label = datum.tagLabel();
    if (label.empty() || !exiv2::isValidText(label))
        label = name;
    const bool kept = !face.ifdName.empty() && !label.empty() && exiv2::isValidText(key)
        && !skipExifTag(name, face.ifdName, key);
    if (kept)
        face.term = internTerm(QString::fromStdString(key), QString::fromStdString(label));
    return face;
}

/// The library makes key and label anew at each call, which takes longer than printing most values.
const TagFace &faceOf(const Exiv2::Exifdatum &datum)
{
    thread_local std::unordered_map<quint32, TagFace> faces;
    if (faces.size() >= kMaxFaces)
        faces.clear();
    const auto number = static_cast<quint32>(datum.ifdId()) << 16 | datum.tag();
    auto known = faces.find(number);
    if (known == faces.end())
        known = faces.emplace(number, makeFace(datum)).first;
    return known->second;
}

constexpr std::array kBinaryTypes{
    Exiv2::undefined,   Exiv2::unsignedByte, Exiv2::signedByte, Exiv2::unsignedShort,
    Exiv2::signedShort, Exiv2::unsignedLong, Exiv2::signedLong,
};
constexpr long kLargestPlainBinary = 32;
/// Above this many bytes the text of a binary value is taken to be longer than the value without printing it.
constexpr long kLargestPrintedBinary = 1'048'576;

bool isLongerThan(const std::string &utf8, long characters)
{
    const auto limit = static_cast<std::size_t>(characters);
    return utf8.size() > limit && QString::fromStdString(utf8).size() > characters;
}

/// The printed value, or a notice in place of one that is but a dump of bytes.
std::string printedValue(const Exiv2::Exifdatum &datum, const Exiv2::ExifData &exif)
{
    const long size = datum.size();
    const bool binary
        = size > kLargestPlainBinary && std::ranges::find(kBinaryTypes, datum.typeId()) != kBinaryTypes.end();
    std::string value;
    if (!binary || size <= kLargestPrintedBinary)
        value = datum.print(&exif);
    if (binary && (size > kLargestPrintedBinary || isLongerThan(value, size)))
        return "(Binary data, " + std::to_string(size) + " bytes)";
    return value;
}

void addTags(const Exiv2::ExifData &exif, TagList &tags)
{
    for (const Exiv2::Exifdatum &datum : exif) {
        const TagFace &face = faceOf(datum);
        if (!face.term)
            continue;
        std::string value = printedValue(datum, exif);
        if (!value.empty() && exiv2::isValidText(value))
            tags.append({face.term, std::move(value), face.ifdName});
    }
}

void findLens(const Exiv2::ExifData &exif, ImageMetadata &result)
{
    const auto lens = Exiv2::lensName(exif);
    if (lens != exif.end())
        result.lensName = exiv2::text(lens->print(&exif));
}

void findPosition(const Exiv2::ExifData &exif, ImageMetadata &result)
{
    static const std::array tags{
        exiv2::TagNumber("Exif.GPSInfo.GPSLatitude"), exiv2::TagNumber("Exif.GPSInfo.GPSLatitudeRef"),
        exiv2::TagNumber("Exif.GPSInfo.GPSLongitude"), exiv2::TagNumber("Exif.GPSInfo.GPSLongitudeRef")};
    std::array<const Exiv2::Exifdatum *, tags.size()> found{};
    std::ranges::transform(tags, found.begin(), [&](const exiv2::TagNumber &tag) { return tag.in(exif); });
    if (std::ranges::find(found, nullptr) != found.end())
        return;
    const auto [latitude, latitudeRef, longitude, longitudeRef] = found;
    const std::string north = latitudeRef->toString().substr(0, 1);
    const std::string east = longitudeRef->toString().substr(0, 1);
    if (auto text = exiv2::text(latitude->print() + north + ':' + longitude->print() + east)) {
        text->replace("deg"_L1, u"\u00b0"_s).remove(u' ').replace(u':', u' ');
        result.gps = std::move(text);
    }
    result.gpsLatitude = gpsDegreesFromExifDatum(*latitude, north.empty() ? '\0' : north.front());
    result.gpsLongitude = gpsDegreesFromExifDatum(*longitude, east.empty() ? '\0' : east.front());
}

struct Turn {
    long orientation;
    QStringView degrees;
};

/// The turns are those of the picture as it is stored; mirrored pictures have none.
constexpr std::array kTurns{
    Turn{1, u"0\u00b0"},
    Turn{3, u"180\u00b0 CW"},
    Turn{6, u"270\u00b0 CW"},
    Turn{8, u"90\u00b0 CW"},
};

void findOrientation(const Exiv2::ExifData &exif, ImageMetadata &result)
{
    static const exiv2::TagNumber orientation("Exif.Image.Orientation");
    const auto *datum = orientation.in(exif);
    if (!datum)
        return;
    const auto *turn = std::ranges::find(kTurns, exiv2::toLong(*datum), &Turn::orientation);
    if (turn != kTurns.end())
        result.imageOrientationDegrees = turn->degrees.toString();
}

void findPrimaryImage(const Exiv2::ExifData &exif, const QString &mimeType, ImageMetadata &result)
{
    const bool hasSeveral = result.isRaw || mimeType == "image/tiff"_L1;
    if (!hasSeveral || mimeType == "image/x-fuji-raf"_L1)
        return;
    const PrimaryImage primary = primaryImage(exif);
    result.tiffPrimaryGroup = QString::fromStdString(primary.group);
    result.imageWidth = QString::number(primary.width);
    result.imageHeight = QString::number(primary.height);
}

} // namespace

void prepareExif(const Exiv2::Image &image, ImageMetadata &result)
{
    const Exiv2::ExifData &exif = image.exifData();
    if (exif.empty())
        return;
    result.exif = {};
    try {
        addTags(exif, result.exif);
        findLens(exif, result);
        findPosition(exif, result);
        const QString mimeType = QString::fromStdString(image.mimeType());
        static const exiv2::TagNumber dngVersion("Exif.Image.DNGVersion");
        const RawInfo info = rawInfo(mimeType, dngVersion.in(exif) != nullptr);
        result.isRaw = info.isRaw;
        result.imageType = info.imageType;
        findOrientation(exif, result);
        findPrimaryImage(exif, mimeType, result);
    } catch (const Exiv2::Error &error) {
        qCInfo(lcQuorvin).noquote() << "exiv2 exception in Exif:" << error.what();
    }
}

double gpsDegreesFromExifDatum(const Exiv2::Exifdatum &datum, char reference)
{
    if (datum.count() != 3)
        return 0;
    const double degrees
        = exiv2::toFloat(datum, 2) / 3600 + (exiv2::toFloat(datum, 1) / 60 + exiv2::toFloat(datum, 0));
    return std::string_view("SsWw").find(reference) == std::string_view::npos ? degrees : -degrees;
}

} // namespace quorvin
