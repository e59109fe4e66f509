// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "surgery/MetadataRemoval.h"

#include "readers/image/Exiv2Library.h"
#include "support/Pictures.h"
#include "support/TestFolder.h"
#include "surgery/ImageParts.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

/// The keys of all items of an image.
QStringList keysOf(const QByteArray &file)
{
    const auto image = exiv2::openImage(QByteArrayView(file));
    image->readMetadata();
    QStringList keys;
    const auto add = [&](const auto &datum) { keys.append(QString::fromStdString(datum.key())); };
    std::ranges::for_each(image->exifData(), add);
    std::ranges::for_each(image->iptcData(), add);
    std::ranges::for_each(image->xmpData(), add);
    keys.sort();
    return keys;
}

/// What a removal leaves of a file, and what it says.
struct Stripped {
    QStringList keys;
    Expected<RemovalResult> said;
    QByteArray bytes;
};

Stripped strippedOf(const QByteArray &file, const oEXIV2Metadata &options)
{
    const test::TestFolder folder;
    const QString original = folder.write(u"original"_s, file);
    const QString copy = folder.write(u"copy"_s, {});
    const auto said = removeMetadata(options, original, copy);
    Stripped stripped{{}, said, test::contentOf(copy)};
    if (said) {
        EXPECT_EQ(plannedRemoval(options, original), said) << "the plan tells what is done";
        EXPECT_EQ(stripped.bytes.isEmpty(), said->removed.empty()) << "nothing to remove: not a byte written";
    }
    if (!stripped.bytes.isEmpty())
        stripped.keys = keysOf(stripped.bytes);
    return stripped;
}

QStringList without(QStringList items, const QString &start)
{
    items.removeIf([&](const QString &item) { return item.startsWith(start); });
    return items;
}

QByteArray samplePhoto()
{
    return test::contentOf(test::sample(u"photo.jpg"_s));
}

} // namespace

TEST(MetadataRemoval, TakesWhatWasAskedForAndNothingElse)
{
    const QStringList all = keysOf(samplePhoto());
    const Stripped exif = strippedOf(samplePhoto(), {.removeExif = true});
    EXPECT_TRUE(exif.keys.filter(u"Exif.Photo."_s).isEmpty());
    for (const char *kept : {"Exif.Image.Orientation", "Exif.GPSInfo.GPSLatitude", "Xmp.dc.title",
                             "Iptc.Application2.City", "Exif.Thumbnail.Compression"})
        EXPECT_TRUE(exif.keys.contains(QLatin1String(kept))) << kept;
    EXPECT_FALSE(exif.keys.contains(u"Exif.Image.Make"_s));
    ASSERT_TRUE(exif.said);
    EXPECT_EQ(exif.said->kept.size(), 1U) << "the orientation, and why";

    const Stripped gps = strippedOf(samplePhoto(), {.removeGPS = true});
    EXPECT_EQ(gps.keys.filter(u"Exif.GPSInfo"_s), QStringList(u"Exif.GPSInfo.GPSVersionID"_s));
    EXPECT_EQ(without(gps.keys, u"Exif.GPSInfo"_s), without(all, u"Exif.GPSInfo"_s));

    const Stripped iptc = strippedOf(samplePhoto(), {.removeIPTC = true});
    EXPECT_EQ(iptc.keys, without(all, u"Iptc."_s));
    const Stripped xmp = strippedOf(samplePhoto(), {.removeXMP = true});
    EXPECT_EQ(xmp.keys, without(all, u"Xmp."_s));
    ASSERT_TRUE(xmp.said);
    EXPECT_EQ(xmp.said->removed.size(), 3U);
}

TEST(MetadataRemoval, TakesThePositionOutOfXmpUnlessThatGoesWhole)
{
    Exiv2::XmpData xmp;
    xmp["Xmp.exif.GPSLatitude"] = "46,30.0N";
    xmp["Xmp.dc.format"] = "image/png";
    const QByteArray file = test::withMetadata(test::picture("PNG"), {}, xmp);
    EXPECT_EQ(strippedOf(file, {.removeGPS = true}).keys, QStringList(u"Xmp.dc.format"_s));
    EXPECT_EQ(strippedOf(file, {.removeGPS = true, .removeXMP = true}).keys, QStringList());
}

TEST(MetadataRemoval, LeavesRawFilesTheirNotes)
{
    Exiv2::ExifData exif;
    exif["Exif.Image.DNGVersion"] = "1 4 0 0";
    exif["Exif.Image.DNGPrivateData"] = "1 2 3 4";
    const QByteArray file = test::withMetadata(test::picture("TIFF"), exif);
    const Stripped stripped = strippedOf(file, {.removeMakernote = true});
    ASSERT_TRUE(stripped.said);
    EXPECT_TRUE(stripped.said->removed.empty());
}

TEST(MetadataRemoval, RefusesWhatTheLibraryWouldSpoil)
{
    // The library moves a colour profile that stands behind the index of further pictures in front of it.
    Exiv2::ExifData exif;
    exif["Exif.Image.Software"] = "test";
    QByteArray file = test::withMetadata(test::picture("JPEG", {16, 12}, true), exif);
    file.insert(file.indexOf("ICC_PROFILE") - 4, QByteArray("\xff\xe2\x00\x0aMPF\0abcd", 12));
    const auto moved = strippedOf(file, {.removeExif = true}).said;
    ASSERT_FALSE(moved);
    EXPECT_TRUE(moved.error().description.contains(u"index of pictures"_s))
        << moved.error().description.toStdString();

    EXPECT_FALSE(strippedOf(test::contentOf(test::sample(u"tone.wav"_s)), {.removeExif = true}).said);
    const QByteArray heif = test::heif(heif_compression_AV1, {64, 48}, test::tiffBytes(exif));
    EXPECT_FALSE(strippedOf(heif, {.removeExif = true}).said) << "the library can't write it";
}

TEST(MetadataRemoval, LeavesThePathToWhoeverShowsTheError)
{
    const test::TestFolder folder;
    const QString original = folder.write(u"original"_s, samplePhoto());
    const auto said = removeMetadata({.removeExif = true}, original, u"/dev/full"_s);
    ASSERT_FALSE(said);
    EXPECT_FALSE(said.error().description.isEmpty());
    EXPECT_FALSE(said.error().description.contains(original)) << said.error().description.toStdString();
}

TEST(ImageParts, DifferWhereAFileEndsTooEarly)
{
    const QByteArray webp = QByteArray("RIFF\x16\0\0\0WEBPVP8L\x0a\0\0\0", 20) + QByteArray(10, 'x');
    for (const QByteArray &whole : {samplePhoto(), test::picture("PNG"), test::picture("TIFF"), webp}) {
        const auto parts = imagePartsOf(whole);
        ASSERT_TRUE(parts.has_value());
        for (qsizetype length = 0; length < whole.size() - 2; length += 1 + length / 16) {
            const QByteArray cut = whole.first(length);
            EXPECT_NE(imagePartsOf(cut), parts) << length;
        }
    }
}

TEST(ImageParts, TellAPictureByItsBytes)
{
    const QByteArray file = test::picture("TIFF");
    const auto parts = imagePartsOf(file);
    ASSERT_TRUE(parts && !parts->empty());
    QByteArray other = file;
    const qsizetype pixel = parts->front().bytes.data() - file.constData();
    other[pixel] = static_cast<char>(other[pixel] ^ 1);
    EXPECT_NE(imagePartsOf(other), parts);
}

} // namespace quorvin
