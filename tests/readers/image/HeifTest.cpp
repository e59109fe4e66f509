// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pictures/Images.h"
#include "readers/RecordBuilder.h"
#include "readers/image/HeifReader.h"
#include "support/Pictures.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace quorvin {

using test::TestFolder;

namespace {

QString lineOf(const QuorvinDataPtr &record, const char *begin)
{
    for (const QString &line : record->stringForExportText().split(u'\n')) {
        if (line.startsWith(QLatin1String(begin)))
            return line;
    }
    return {};
}

} // namespace

TEST(Heif, WithoutMetadataHasItsSize)
{
    const TestFolder folder;
    const QString path = folder.write(QStringLiteral("a.heic"), test::heif(heif_compression_HEVC));
    const auto record = RecordBuilder({}).dataAboutFile(path);
    ASSERT_TRUE(record);
    EXPECT_TRUE((*record)->isImage());
    EXPECT_EQ((*record)->format(), QStringLiteral("HEIF"));
    EXPECT_EQ((*record)->generalInfo().imageSize, QStringLiteral("64 x 48"));
    EXPECT_EQ(lineOf(*record, "Number of previews"), QStringLiteral("Number of previews: 0"));
    EXPECT_EQ(lineOf(*record, "Number of images"), QString());
}

TEST(Heif, ExifBehindItsPrefixTellsTheOrientationAndNotTheSize)
{
    Exiv2::ExifData exif;
    exif["Exif.Image.Orientation"] = uint16_t{6};
    exif["Exif.Image.ImageWidth"] = uint32_t{9};
    const TestFolder folder;
    // The library puts the four-byte prefix in front.
    const QString path = folder.write(
        QStringLiteral("a.avif"),
        test::heif(
            heif_compression_AV1, {64, 48}, test::tiffBytes(exif),
            R"(<x:xmpmeta xmlns:x="adobe:ns:meta/"><rdf:RDF xmlns:rdf="http://www.w3.org/1999/02/22-rdf-syntax-ns#">
                   <rdf:Description rdf:about="" xmlns:dc="http://purl.org/dc/elements/1.1/" dc:source="x"/></rdf:RDF></x:xmpmeta>)"));
    const auto image = readHeif(path);
    ASSERT_TRUE(image);
    EXPECT_EQ(image->imageType, QStringLiteral("AVIF"));
    EXPECT_EQ(image->imageOrientationDegrees, QStringLiteral("270\u00b0 CW"));
    EXPECT_EQ(image->imageWidth, QStringLiteral("64"));
    EXPECT_FALSE(image->mimeType);
    EXPECT_EQ(image->xmp.value(QStringLiteral("Xmp.dc.source")), QStringLiteral("x"));
}

TEST(Heif, DecodesUpToItsPixelLimit)
{
    const TestFolder folder;
    const QString path
        = folder.write(QStringLiteral("a.heic"), test::heif(heif_compression_HEVC, {600, 300}));
    EXPECT_EQ(Utilities::thumbnailedImageFromURL(path, 256).size(), QSize(256, 128));
    RecordOptions options;
    options.useSlowThumbProcessing = true;
    EXPECT_EQ((*RecordBuilder(options).dataAboutFile(path))->generalInfo().cover.height, 128);
}

TEST(Heif, BrandsComeWithTheMainOneFirst)
{
    const QByteArray head("\0\0\0\x18"
                          "ftypmif1\0\0\0\0mif1avif",
                          24);
    EXPECT_EQ(compatibleBrands(head).value().join(u' '), QStringLiteral("mif1 mif1 avif"));
    EXPECT_FALSE(compatibleBrands(head.first(11)));
}

TEST(Heif, WhatTheMetadataLibrariesRefuseTheImageReaderTells)
{
    QByteArray file = test::heif(heif_compression_HEVC);
    // A box that claims to go far beyond the file ends exiv2's walk, not that of libheif.
    file.append(QByteArray("\x7f\0\0\0free", 8));
    const TestFolder folder;
    const auto record = RecordBuilder({.computeFileHashes = true})
                            .dataAboutFile(folder.write(QStringLiteral("a.heic"), file));
    ASSERT_TRUE(record);
    EXPECT_TRUE((*record)->isImage());
    const auto &sha1 = (*record)->generalInfo().sha1;
    ASSERT_TRUE(sha1);
    EXPECT_EQ(lineOf(*record, "SHA1 hash"), QStringLiteral("SHA1 hash: ") + *sha1);
    EXPECT_EQ((*record)->format(), QStringLiteral("HEIC"));
    EXPECT_EQ((*record)->generalInfo().imageSize, QStringLiteral("64 x 48"));
    EXPECT_EQ(lineOf(*record, "PixelWidth"), QStringLiteral("PixelWidth: 64"));
    EXPECT_EQ(lineOf(*record, "Name"), QStringLiteral("Name: a.heic"));
    EXPECT_TRUE((*record)->computeExportInfo().sections.empty()) << "all of it is for the tree";
}

} // namespace quorvin
