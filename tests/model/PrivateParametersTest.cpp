// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/PrivateParameters.h"

#include <gtest/gtest.h>

#include <utility>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

} // namespace

TEST(PrivateParameters, AreToldByTheKeysOfEveryReader)
{
    for (const auto &[key, kind] : {
             std::pair{u"Exif.GPSInfo.GPSLatitude"_s, PrivateKind::Position},
             {u"Xmp.exif.GPSLongitude"_s, PrivateKind::Position},
             {u"xyz"_s, PrivateKind::Position},
             {u"com.apple.quicktime.location.ISO6709"_s, PrivateKind::Position},
             {u"QuickTime.UserData.Location.Copy1.GPSCoordinates"_s, PrivateKind::Position},
             {u"Recorded/Location"_s, PrivateKind::Position},
             {u"Xmp.iptcExt.LocationCreated[1]/Iptc4xmpExt:City"_s, PrivateKind::Place},
             {u"Exif.Nikon3.SerialNO"_s, PrivateKind::SerialNumber},
             {u"Exif.Photo.CameraOwnerName"_s, PrivateKind::Owner},
             {u"Xmp.dc.Creator"_s, PrivateKind::Author},
             {u"Xmp.iptcExt.PersonInImage[2]"_s, PrivateKind::Person},
             {u"Xmp.mwg-rs.Regions/mwg-rs:RegionList[1]/mwg-rs:Name"_s, PrivateKind::Person},
             {u"Xmp.iptc.CreatorContactInfo/Iptc4xmpCore:CiEmailWork"_s, PrivateKind::Contact},
             {u"FileFrom"_s, PrivateKind::Origin},
         })
        EXPECT_EQ(privateKindOf(key), kind) << key.toStdString();
    // Neither who plays, nor what only looks like it.
    for (const auto *key :
         {u"Performer", u"ID3.ID3v1.Author.Artist", u"Exif.Canon.SerialNumberFormat", u"Xmp.xmp.CreatorTool",
          u"Exif.GPSInfo.GPSLatitudeRef", u"FileLocation", u"FileFromDate", u"", u"[1]", u"]", u"Exif."})
        EXPECT_FALSE(privateKindOf(key)) << QString::fromUtf16(key).toStdString();
}

TEST(PrivateParameters, AFileGivesAwayWhatIsFilledInAndShown)
{
    ParameterGroups groups;
    groups.beginGroup(u"EXIF"_s);
    groups.beginStream(0);
    const auto add = [&](const char16_t *key, const char16_t *value, ParameterFlags flags = {}) {
        const QString name = QString::fromUtf16(key);
        groups.add(internTerm(name, name), QString::fromUtf16(value), flags);
    };
    add(u"Exif.Image.Artist", u"\u674e");
    add(u"Exif.Photo.BodySerialNumber", u"000-0 ");
    add(u"Exif.Photo.CameraOwnerName", u"   ");
    add(u"Exif.GPSInfo.GPSLatitude", u"51deg");
    add(u"Exif.GPSInfo.GPSLongitude", u"7deg");
    add(u"Exif.Photo.LensSerialNumber", u"17", ParameterFlag::SkipInExtended);
    EXPECT_EQ(privateKindsIn(groups), (std::vector{PrivateKind::Position, PrivateKind::Author}));
}

} // namespace quorvin
