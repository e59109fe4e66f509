// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/image/ExifTables.h"

#include <QHash>

#include <algorithm>
#include <array>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

constexpr std::string_view kSkippedMakernoteKey = "Exif.MakerNote.Offset";
constexpr std::array<std::string_view, 13> kSkippedTags{
    "ExifTag",         "PrintImageMatching", "MakerNote",         "StripOffsets",
    "StripByteCounts", "XMLPacket",          "InterColorProfile", "TileOffsets",
    "TileByteCounts",  "JPEGTables",         "DNGPrivateData",    "GPSTag",
    "SubIFDs",
};

struct NamedGroups {
    QLatin1String name;
    std::initializer_list<QLatin1String> groups;
};

const QHash<QString, QString> &makernoteNames()
{
    static const QHash<QString, QString> table = [] {
        QHash<QString, QString> names;
        for (const NamedGroups &row : std::initializer_list<NamedGroups>{
                 {"Nikon Tags"_L1, {"Nikon1"_L1, "Nikon2"_L1, "Nikon3"_L1}},
                 {"Vibration Reduction"_L1, {"NikonVr"_L1}},
                 {"Picture Control"_L1, {"NikonPc"_L1}},
                 {"World Time"_L1, {"NikonWt"_L1}},
                 {"ISO Info"_L1, {"NikonIi"_L1}},
                 {"Auto Focus"_L1, {"NikonAf"_L1, "NikonAf2"_L1}},
                 {"AF Fine Tune"_L1, {"NikonAFT"_L1}},
                 {"File Info"_L1, {"NikonFi"_L1, "CanonFi"_L1}},
                 {"Multi Exposure"_L1, {"NikonMe"_L1}},
                 {"Flash Info"_L1, {"NikonFl1"_L1, "NikonFl2"_L1, "NikonFl3"_L1}},
                 {"Shot Info"_L1,
                  {"NikonSiD80"_L1, "NikonSiD40"_L1, "NikonSiD300a"_L1, "NikonSiD300b"_L1, "NikonSi02xx"_L1,
                   "CanonSi"_L1}},
                 {"Color Balance"_L1,
                  {"NikonCb1"_L1, "NikonCb2"_L1, "NikonCb2a"_L1, "NikonCb2b"_L1, "NikonCb3"_L1,
                   "NikonCb4"_L1}},
                 {"Lens Data"_L1, {"NikonLd1"_L1, "NikonLd2"_L1, "NikonLd3"_L1}},
                 {"Canon Tags"_L1, {"Canon"_L1}},
                 {"Camera Settings"_L1,
                  {"CanonCs"_L1, "MinoltaCsNew"_L1, "MinoltaCs5D"_L1, "MinoltaCs7D"_L1, "OlympusCs"_L1,
                   "Sony1Cs"_L1, "Sony1Cs2"_L1, "Sony1MltCsOld"_L1, "Sony1MltCsNew"_L1, "Sony1MltCs7D"_L1,
                   "Sony1MltCsA100"_L1}},
                 {"Panorama"_L1, {"CanonPa"_L1}},
                 {"Custom Function"_L1, {"CanonCf"_L1}},
                 {"Picture Info"_L1, {"CanonPi"_L1}},
                 {"Time Info"_L1, {"CanonTi"_L1}},
                 {"Fujifilm Tags"_L1, {"Fujifilm"_L1}},
                 {"Minolta Tags"_L1, {"Minolta"_L1}},
                 {"Olympus Tags"_L1, {"Olympus"_L1}},
                 {"Equipment"_L1, {"OlympusEq"_L1}},
                 {"Raw Development"_L1, {"OlympusRd"_L1, "OlympusRd2"_L1}},
                 {"Image Processing"_L1, {"OlympusIp"_L1}},
                 {"Focus Info"_L1, {"OlympusFi"_L1}},
                 {"FE"_L1, {"OlympusFe1"_L1}},
                 {"Raw Info"_L1, {"OlympusRi"_L1}},
                 {"Panasonic Tags"_L1, {"Panasonic"_L1}},
                 {"Pentax Tags"_L1, {"Pentax"_L1, "PentaxDng"_L1}},
                 {"Samsung Tags"_L1, {"Samsung2"_L1}},
                 {"Sigma/Foveon Tags"_L1, {"Sigma"_L1}},
                 {"Sony Tags"_L1, {"Sony1"_L1}},
                 {"Sony Minolta Tags"_L1, {"SonyMinolta"_L1}},
             }) {
            for (const QLatin1String group : row.groups)
                names.insert(group, row.name);
        }
        return names;
    }();
    return table;
}

struct Format {
    QLatin1String mimeType;
    QLatin1String imageType;
    bool isRaw;
};

constexpr std::array kFormats{
    Format{"image/jpeg"_L1, "JPEG"_L1, false},
    Format{"image/x-exv"_L1, "EXV"_L1, false},
    Format{"image/heif"_L1, "HEIF"_L1, false},
    Format{"image/heic"_L1, "HEIF"_L1, false},
    Format{"image/avif"_L1, "AVIF"_L1, false},
    Format{"image/x-canon-cr2"_L1, "CR2"_L1, true},
    Format{"image/x-canon-cr3"_L1, "CR3"_L1, true},
    Format{"image/x-canon-crw"_L1, "CRW"_L1, true},
    Format{"image/x-minolta-mrw"_L1, "MRW"_L1, true},
    Format{"image/x-nikon-nef"_L1, "NEF"_L1, true},
    Format{"image/x-pentax-pef"_L1, "PEF"_L1, true},
    Format{"image/x-panasonic-rw2"_L1, "RW2"_L1, true},
    Format{"image/x-samsung-srw"_L1, "SRW"_L1, true},
    Format{"image/x-olympus-orf"_L1, "ORF"_L1, true},
    Format{"image/png"_L1, "PNG"_L1, false},
    Format{"image/pgf"_L1, "PGF"_L1, false},
    Format{"image/x-fuji-raf"_L1, "RAF"_L1, true},
    Format{"image/x-photoshop"_L1, "PSD"_L1, false},
    Format{"application/postscript"_L1, "EPS"_L1, false},
    Format{"application/rdf+xml"_L1, "XMP"_L1, false},
    Format{"image/jp2"_L1, "JP2"_L1, false},
    Format{"image/tiff"_L1, "TIFF"_L1, false},
};

} // namespace

bool skipExifTag(std::string_view tagName, std::string_view ifdName, std::string_view fullKey)
{
    if (ifdName == "Makernote")
        return fullKey == kSkippedMakernoteKey;
    return std::ranges::find(kSkippedTags, tagName) != kSkippedTags.end();
}

QString makernoteGroupName(const QString &group)
{
    return makernoteNames().value(group, group);
}

RawInfo rawInfo(const QString &mimeType, bool hasDngVersion)
{
    if (hasDngVersion && mimeType == "image/tiff"_L1)
        return {u"DNG"_s, true};
    const auto *format = std::ranges::find(kFormats, mimeType, &Format::mimeType);
    return format == kFormats.end() ? RawInfo{mimeType, false}
                                    : RawInfo{QString(format->imageType), format->isRaw};
}

} // namespace quorvin
