// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "readers/mediainfo/StreamKind.h"

#include <QLatin1String>

#include <array>
#include <span>

namespace quorvin {

/// How two engines' words on a fact are compared.
enum class FactKind {
    Number, ///< as far apart as the tolerance, at most
    Date, ///< by day and second, whatever stands between the digits and behind them
    Text, ///< whatever the case
};

struct MediaInfoName {
    StreamKind kind;
    const char *parameter;
};

/// A fact of a file, and what the engines call it: several names are tried in their order.
struct Fact {
    QLatin1String name;
    FactKind kind;
    double tolerance; ///< of numbers
    double mediaInfoScale; ///< of numbers: what MediaInfo's are multiplied by
    std::array<MediaInfoName, 3> mediaInfo; ///< nullptr for none, as below
    std::array<const char *, 3> exiv2; ///< its keys, or one of `kExiv2…`
    std::array<const char *, 3> exifTool; ///< tags
};

// What the image reader tells in words of its own.
inline constexpr const char *kExiv2Mime = "mime";
inline constexpr const char *kExiv2Width = "width";
inline constexpr const char *kExiv2Height = "height";
inline constexpr const char *kExiv2Latitude = "latitude";
inline constexpr const char *kExiv2Longitude = "longitude";

// Parameters of a place hold both of its degrees.
inline constexpr double kDegrees = 0.0001;

/// The facts that engines are compared on.
inline constexpr std::array kFacts{
    Fact{QLatin1String("MIME type"),
         FactKind::Text,
         0,
         1,
         {{{StreamKind::General, "InternetMediaType"}}},
         {kExiv2Mime},
         {"MIMEType"}},
    Fact{QLatin1String("Width"),
         FactKind::Number,
         0,
         1,
         {{{StreamKind::Video, "Width"}, {StreamKind::Image, "Width"}}},
         {kExiv2Width},
         {"ImageWidth"}},
    Fact{QLatin1String("Height"),
         FactKind::Number,
         0,
         1,
         {{{StreamKind::Video, "Height"}, {StreamKind::Image, "Height"}}},
         {kExiv2Height},
         {"ImageHeight"}},
    Fact{QLatin1String("Duration (s)"),
         FactKind::Number,
         0.05,
         0.001,
         {{{StreamKind::General, "Duration"}}},
         {},
         {"Duration"}},
    Fact{QLatin1String("Frame rate"),
         FactKind::Number,
         0.01,
         1,
         {{{StreamKind::Video, "FrameRate"}}},
         {},
         {"VideoFrameRate"}},
    Fact{QLatin1String("Channels"),
         FactKind::Number,
         0,
         1,
         {{{StreamKind::Audio, "Channel(s)"}}},
         {},
         {"AudioChannels", "NumChannels", "Channels"}},
    Fact{QLatin1String("Sampling rate"),
         FactKind::Number,
         0,
         1,
         {{{StreamKind::Audio, "SamplingRate"}}},
         {},
         {"AudioSampleRate", "SampleRate"}},
    Fact{QLatin1String("Rotation"),
         FactKind::Number,
         0.01,
         1,
         {{{StreamKind::Video, "Rotation"}}},
         {},
         {"Rotation"}},
    Fact{QLatin1String("Date"),
         FactKind::Date,
         0,
         1,
         {{{StreamKind::General, "Recorded_Date"}, {StreamKind::General, "Encoded_Date"}}},
         {"Exif.Photo.DateTimeOriginal", "Exif.Image.DateTime", "Xmp.xmp.CreateDate"},
         {"DateTimeOriginal", "CreateDate", "ModifyDate"}},
    Fact{QLatin1String("Title"),
         FactKind::Text,
         0,
         1,
         {{{StreamKind::General, "Title"}}},
         {"Xmp.dc.title"},
         {"Title"}},
    Fact{QLatin1String("Camera maker"),
         FactKind::Text,
         0,
         1,
         {{{StreamKind::General, "Encoded_Hardware_CompanyName"}}},
         {"Exif.Image.Make"},
         {"Make"}},
    Fact{QLatin1String("Camera model"),
         FactKind::Text,
         0,
         1,
         {{{StreamKind::General, "Encoded_Hardware_Name"}}},
         {"Exif.Image.Model"},
         {"Model"}},
    Fact{QLatin1String("Software"),
         FactKind::Text,
         0,
         1,
         {{{StreamKind::General, "Encoded_Application"}}},
         {"Exif.Image.Software", "Xmp.xmp.CreatorTool"},
         {"Software", "Encoder", "WritingApp"}},
    Fact{QLatin1String("Latitude"),
         FactKind::Number,
         kDegrees,
         1,
         {{{StreamKind::General, "Recorded_Location"}, {StreamKind::General, "xyz"}}},
         {kExiv2Latitude},
         {"GPSLatitude"}},
    Fact{QLatin1String("Longitude"),
         FactKind::Number,
         kDegrees,
         1,
         {{{StreamKind::General, "Recorded_Location"}, {StreamKind::General, "xyz"}}},
         {kExiv2Longitude},
         {"GPSLongitude"}},
};

} // namespace quorvin
