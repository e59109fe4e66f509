// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/Location.h"
#include "readers/Ways.h"
#include "readers/image/ImageBrand.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace quorvin {

TEST(Classification, BrandDecidesOnIsoFiles)
{
    for (const char *brand :
         {"JXL ", "crx ", "msf1", "mif1", "miaf", "avif", "avis", "heic", "heix", "hevc", "hevx"})
        EXPECT_TRUE(brandMayBeImage(QByteArray("\0\0\0\x18"
                                               "ftyp",
                                               8)
                                    + brand))
            << brand;
    for (const char *brand : {"isom", "mp42", "qt  ", "M4A ", "HEIC", "jxl ", "aviX"})
        EXPECT_EQ(brandMayBeImage(QByteArray("\0\0\0\x18"
                                             "ftyp",
                                             8)
                                  + brand),
                  QByteArrayView(brand).startsWith("avi"))
            << brand;
    EXPECT_TRUE(brandMayBeImage(QByteArray("\0\0\0\x18"
                                           "ftypiso",
                                           11)));
    EXPECT_TRUE(brandMayBeImage(QByteArray("RIFF....WAVEfmt ")));
    EXPECT_TRUE(brandMayBeImage({}));
}

TEST(Classification, HeadDecidesOnTheWays)
{
    const auto ways = [](const QByteArray &head, const RecordOptions &options = {}) {
        QStringList names;
        for (const Way *way : waysFor(head, options))
            names.append(way->name);
        return names.join(u' ');
    };
    const QByteArray box("\0\0\0\x18"
                         "ftyp",
                         8);
    EXPECT_EQ(ways(box + "isom"), QStringLiteral("media")) << "a movie never meets the image reader";
    EXPECT_EQ(ways("\xff\xd8\xff\xe0"), QStringLiteral("image media"));
    EXPECT_EQ(ways("\xff\xd8\xff\xe0", {.useExiftoolForVideo = true}), QStringLiteral("image exiftool"));
    EXPECT_EQ(ways(box + "heic....mif1"), QStringLiteral("image system-image media"));
    EXPECT_EQ(ways(box + "mif1....avifmif1"), QStringLiteral("image media"));
}

TEST(Location, ImageHasItsCoordinatesOrNone)
{
    RecordContents record;
    record.isImage = true;
    record.general.latitude = 48.5;
    EXPECT_EQ(findMapLocation(record), std::nullopt);
    record.general.longitude = -2.25;
    EXPECT_EQ(findMapLocation(record), (Location{48.5, -2.25}));
}

TEST(Location, DecimalDegreesWithTheirSigns)
{
    const auto location = [](const char *text) { return locationFromIso6709(QLatin1String(text)); };
    EXPECT_EQ(location("+48.8577+002.295/"), (Location{48.8577, 2.295}));
    EXPECT_EQ(location("-33.86+151.21+010.5/"), (Location{-33.86, 151.21}));
    EXPECT_EQ(location("+1.2.3-4/"), (Location{1.2, -4}));
    EXPECT_EQ(location("48.8577+002.295/"), std::nullopt);
    EXPECT_EQ(location("+48.8577"), std::nullopt);
}

TEST(Location, AppleKeyComesBeforeTheOther)
{
    RecordContents record;
    const auto add = [&](const char *key, const char *value) {
        record.groups.add(internTerm(QLatin1String(key), {}), QString(QLatin1String(value)));
    };
    EXPECT_EQ(findMapLocation(record), std::nullopt);
    record.groups.beginGroup(QStringLiteral("Container"));
    EXPECT_EQ(findMapLocation(record), std::nullopt);
    record.groups.beginStream(1);
    add("xyz", "+1+1/");
    EXPECT_EQ(findMapLocation(record), (Location{1, 1}));
    add("com.apple.quicktime.location.ISO6709", "+2+2/");
    EXPECT_EQ(findMapLocation(record), (Location{2, 2}));
}

} // namespace quorvin
