// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/image/ExifExtraction.h"

#include "model/Log.h"
#include "readers/image/ExifTables.h"
#include "readers/image/ExifTagFaces.h"
#include "readers/image/Exiv2Library.h"
#include "readers/image/PrimaryImage.h"

#include <algorithm>
#include <array>
#include <sstream>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

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

/// Prints values as `Exifdatum::print` does, without a new stream for each.
class ValuePrinter {
public:
    explicit ValuePrinter(const Exiv2::ExifData &exif) : _exif(exif) { }

    std::string print(const Exiv2::Exifdatum &datum)
    {
        // Printers leave their marks on a stream.
        _stream.copyfmt(_untouched);
        _stream.clear();
        _stream.str({});
        datum.write(_stream, &_exif);
        return std::string(_stream.view());
    }

private:
    const Exiv2::ExifData &_exif;
    std::ostringstream _stream;
    const std::ios _untouched{nullptr};
};

bool isBinary(const Exiv2::Exifdatum &datum)
{
    return datum.size() > kLargestPlainBinary
        && std::ranges::find(kBinaryTypes, datum.typeId()) != kBinaryTypes.end();
}

/// Whether the text of a binary value would be longer than the value, without looking at the text: bytes as
/// numbers take two characters each, and what is huge is taken to be so.
bool isSurelyLonger(const Exiv2::Exifdatum &datum, const ExifTagFace &face)
{
    return datum.size() > kLargestPrintedBinary
        || (face.printsAsItIs && dynamic_cast<const Exiv2::DataValue *>(&datum.value()));
}

/// The printed value, or a notice in place of one that is but a dump of bytes.
std::string printedValue(const Exiv2::Exifdatum &datum, const ExifTagFace &face, ValuePrinter &printer)
{
    const bool binary = isBinary(datum);
    const bool isDump = binary && isSurelyLonger(datum, face);
    std::string value = isDump ? std::string() : printer.print(datum);
    if (isDump || (binary && isLongerThan(value, datum.size())))
        return "(Binary data, " + std::to_string(datum.size()) + " bytes)";
    return value;
}

void addTags(const Exiv2::ExifData &exif, TagList &tags)
{
    ValuePrinter printer(exif);
    for (const Exiv2::Exifdatum &datum : exif) {
        const ExifTagFace &face = faceOf(datum);
        if (!face.term)
            continue;
        std::string value = printedValue(datum, face, printer);
        if (!value.empty() && exiv2::isValidText(value))
            tags.append({face.term, std::move(value), face.ifdName});
    }
}

/// The library looks for its lens tags by their keys, one after the other, through everything it is given.
void findLens(const Exiv2::ExifData &exif, ImageMetadata &result)
{
    Exiv2::ExifData candidates;
    for (const Exiv2::Exifdatum &datum : exif) {
        if (faceOf(datum).namesLens)
            candidates.add(datum);
    }
    if (candidates.empty())
        return;
    const auto lens = Exiv2::lensName(candidates);
    if (lens != candidates.end())
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
