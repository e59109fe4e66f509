// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/image/ExifExtraction.h"
#include "readers/image/ExifTables.h"
#include "readers/image/PrimaryImage.h"
#include "support/Pictures.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace quorvin {

using test::imageWith;

namespace {

ImageMetadata metadataOf(const Exiv2::ExifData &exif)
{
    ImageMetadata result;
    prepareExif(*imageWith(exif), result);
    return result;
}

QString valueOf(const Exiv2::ExifData &exif, const char *key)
{
    return metadataOf(exif).exif.value(QLatin1String(key)).value_or(QStringLiteral("absent"));
}

Exiv2::ExifData exifWithBytes(const char *key, const std::vector<Exiv2::byte> &bytes, Exiv2::TypeId type)
{
    Exiv2::ExifData exif;
    const Exiv2::DataValue value(bytes.data(), static_cast<long>(bytes.size()), Exiv2::littleEndian, type);
    exif.add(Exiv2::ExifKey(key), &value);
    return exif;
}

Exiv2::ExifData position()
{
    Exiv2::ExifData exif;
    exif["Exif.GPSInfo.GPSLatitude"] = "48/1 51/1 29/1";
    exif["Exif.GPSInfo.GPSLatitudeRef"] = "N";
    exif["Exif.GPSInfo.GPSLongitude"] = "2/1 17/1 40/1";
    exif["Exif.GPSInfo.GPSLongitudeRef"] = "w";
    return exif;
}

} // namespace

TEST(Exif, DumpsOfMoreThan32BytesAreNoticed)
{
    const auto printed = [](std::size_t count) {
        const char *key = "Exif.Image.0xfdea";
        return valueOf(exifWithBytes(key, std::vector<Exiv2::byte>(count, 7), Exiv2::undefined), key);
    };
    EXPECT_TRUE(printed(32).endsWith(QLatin1String("7 7")));
    EXPECT_EQ(printed(33), QStringLiteral("(Binary data, 33 bytes)"));
    EXPECT_EQ(printed(34), QStringLiteral("(Binary data, 34 bytes)"));
    // Bytes too, and the library prints a character for two of them.
    std::vector<Exiv2::byte> letters;
    for (int i = 0; i < 30; ++i)
        letters.insert(letters.end(), {'t', 0});
    const char *title = "Exif.Image.XPTitle";
    Exiv2::ExifData exif = exifWithBytes(title, letters, Exiv2::unsignedByte);
    EXPECT_EQ(valueOf(exif, title), QString(30, u't'));
    exif["Exif.Image.Artist"] = std::string(60, 'a');
    EXPECT_EQ(valueOf(exif, "Exif.Image.Artist"), QString(60, u'a'));
}

TEST(Exif, HugeBinaryIsNoticedWithoutPrintingIt)
{
    const char *key = "Exif.Image.0xfdea";
    const std::vector<Exiv2::byte> bytes(40'000'000, 1);
    EXPECT_EQ(valueOf(exifWithBytes(key, bytes, Exiv2::undefined), key),
              QStringLiteral("(Binary data, 40000000 bytes)"));
}

TEST(Exif, WhatIsNoTextStaysOut)
{
    Exiv2::ExifData exif;
    exif["Exif.Image.Artist"] = "caf\xe9";
    exif["Exif.Image.Software"] = "";
    exif["Exif.Image.Copyright"] = "\xc3\xa9";
    exif["Exif.Image.ExifTag"] = uint32_t{26};
    const ImageMetadata data = metadataOf(exif);
    ASSERT_EQ(data.exif.count(), 1U);
    EXPECT_EQ(data.exif[0].term->label, QStringLiteral("Copyright"));
    EXPECT_EQ(data.imageType, QStringLiteral("JPEG"));
}

TEST(Exif, RepeatedKeyIsListedTwiceWithItsLastValue)
{
    Exiv2::ExifData exif;
    for (const char *name : {"first", "second"}) {
        const Exiv2::AsciiValue value(name);
        exif.add(Exiv2::ExifKey("Exif.Image.Artist"), &value);
    }
    const ImageMetadata data = metadataOf(exif);
    ASSERT_EQ(data.exif.count(), 2U);
    EXPECT_EQ(data.exif[0].value, "second");
    EXPECT_EQ(data.exif[1].value, "second");
}

TEST(Exif, PositionNeedsAllFourTagsAndThreeNumbers)
{
    Exiv2::ExifData exif = position();
    ImageMetadata data = metadataOf(exif);
    EXPECT_EQ(data.gps, QStringLiteral("48\u00b051'29\"N 2\u00b017'40\"w"));
    EXPECT_NEAR(data.gpsLatitude.value_or(0), 48.858055, 1e-5);
    EXPECT_NEAR(data.gpsLongitude.value_or(0), -2.294444, 1e-5);

    exif["Exif.GPSInfo.GPSLatitude"] = "48/1 51/1";
    data = metadataOf(exif);
    EXPECT_TRUE(data.gps);
    EXPECT_EQ(data.gpsLatitude, 0.0);

    exif.erase(exif.findKey(Exiv2::ExifKey("Exif.GPSInfo.GPSLongitudeRef")));
    data = metadataOf(exif);
    EXPECT_FALSE(data.gps || data.gpsLatitude || data.gpsLongitude);
    EXPECT_TRUE(data.exif.value(QStringLiteral("Exif.GPSInfo.GPSLongitude")));
}

TEST(Exif, OrientationTurnsAreThoseOfTheStoredPicture)
{
    const auto degrees = [](uint16_t orientation) {
        Exiv2::ExifData exif;
        exif["Exif.Image.Orientation"] = orientation;
        return metadataOf(exif).imageOrientationDegrees.value_or(QString());
    };
    EXPECT_EQ(degrees(1), QStringLiteral("0\u00b0"));
    EXPECT_EQ(degrees(2), QString());
    EXPECT_EQ(degrees(3), QStringLiteral("180\u00b0 CW"));
    EXPECT_EQ(degrees(6), QStringLiteral("270\u00b0 CW"));
    EXPECT_EQ(degrees(8), QStringLiteral("90\u00b0 CW"));
}

TEST(Exif, PrimaryImageIsTheFirstFullOneThatIsNoJpegPreview)
{
    Exiv2::ExifData exif;
    const auto primary = [&] { return primaryImage(exif).group; };
    EXPECT_EQ(primary(), "Image");
    exif["Exif.Image.NewSubfileType"] = uint32_t{1};
    exif["Exif.SubImage1.NewSubfileType"] = uint32_t{0};
    exif["Exif.SubImage1.JPEGInterchangeFormat"] = uint32_t{8};
    EXPECT_EQ(primary(), "SubImage1");
    exif["Exif.SubImage3.NewSubfileType"] = uint32_t{0};
    exif["Exif.SubImage3.ImageWidth"] = uint32_t{4000};
    exif["Exif.SubImage4.NewSubfileType"] = uint32_t{0};
    EXPECT_EQ(primary(), "SubImage3");
    EXPECT_EQ(primaryImage(exif).width, 4000);
    EXPECT_EQ(primaryImage(exif).height, 0);
}

TEST(Exif, SkippedTagsAndNamesOfTheTables)
{
    EXPECT_TRUE(skipExifTag("MakerNote", "Exif", "Exif.Photo.MakerNote"));
    EXPECT_FALSE(skipExifTag("MakerNote", "Makernote", "Exif.Pentax.MakerNote"));
    EXPECT_TRUE(skipExifTag("Offset", "Makernote", "Exif.MakerNote.Offset"));
    EXPECT_EQ(makernoteGroupName(QStringLiteral("NikonAf2")), QStringLiteral("Auto Focus"));
    EXPECT_EQ(makernoteGroupName(QStringLiteral("Sony2")), QStringLiteral("Sony2"));
    EXPECT_EQ(rawInfo(QStringLiteral("image/tiff"), true).imageType, QStringLiteral("DNG"));
    EXPECT_FALSE(rawInfo(QStringLiteral("image/tiff"), false).isRaw);
    EXPECT_EQ(rawInfo(QStringLiteral("image/webp"), true).imageType, QStringLiteral("image/webp"));
}

} // namespace quorvin
