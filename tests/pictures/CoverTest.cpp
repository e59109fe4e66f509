// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pictures/Cover.h"

#include "pictures/Images.h"
#include "pictures/JpegScans.h"
#include "support/TestFolder.h"

#include <QBuffer>
#include <QImageWriter>

#include <gtest/gtest.h>

#include <random>

namespace quorvin {

namespace {

/// A picture that no encoder makes small.
QImage noise(QSize size, QImage::Format format)
{
    QImage image(size, format);
    std::minstd_rand random;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixelColor(x, y, QColor::fromRgba(static_cast<QRgb>(random())));
    }
    return image;
}

QByteArray jpeg(bool progressive)
{
    QByteArray bytes;
    QBuffer device(&bytes);
    device.open(QIODevice::WriteOnly);
    QImageWriter writer(&device, "jpeg");
    writer.setProgressiveScanWrite(progressive);
    writer.write(QImage(test::sample(QStringLiteral("photo.jpg"))));
    return bytes;
}

JpegScans scansOfBytes(const QByteArray &bytes)
{
    QBuffer device;
    device.setData(bytes);
    device.open(QIODevice::ReadOnly);
    const JpegScans scans = scansOf(device);
    EXPECT_EQ(device.pos(), 0);
    return scans;
}

} // namespace

TEST(Cover, PixelsLieRowByRowWithoutGaps)
{
    QImage image(3, 2, QImage::Format_RGB32);
    image.fill(Qt::white);
    image.setPixelColor(1, 1, QColor(1, 2, 3));
    const Cover cover = coverOf(image);
    EXPECT_TRUE(cover.isValid());
    EXPECT_EQ(cover.pixels.size(), 18);
    EXPECT_EQ(cover.pixels.sliced(12, 3), QByteArray("\1\2\3"));
    EXPECT_EQ(coverOf(noise({1'000, 10}, QImage::Format_RGB32), 2'000).width, Cover::kMostSide);
    EXPECT_EQ(coverOf(noise({40, 20}, QImage::Format_ARGB32), 20).pixels.size(), 20 * 10 * 4);
    EXPECT_TRUE(coverOf({}).isEmpty());
}

TEST(Cover, PackedCoverIsSmallWhateverItShows)
{
    for (const auto format : {QImage::Format_RGB32, QImage::Format_ARGB32}) {
        const Cover cover = coverOf(noise({512, 512}, format));
        const QByteArray packed = packedCover(cover);
        EXPECT_LE(packed.size(), kMostPackedBytes);
        const QImage shown = Utilities::thumbnailedImageFromData(packed, 512);
        EXPECT_EQ(shown.width(), shown.height());
        EXPECT_GE(shown.width(), 64);
        EXPECT_EQ(shown.hasAlphaChannel(), cover.hasAlpha);
    }
    EXPECT_EQ(packedCover({}), QByteArray());
    EXPECT_EQ(packedCover({100, 100, false, QByteArray(10, 'x')}), QByteArray()) << "sides that lie";
}

TEST(Cover, RecordKeepsThePackedOne)
{
    RecordContents contents;
    contents.filename = QStringLiteral("/a");
    const auto without = std::make_shared<const QuorvinData>(contents);
    EXPECT_EQ(withPackedCover(without), without);
    EXPECT_EQ(withPackedCover(nullptr), nullptr);
    contents.general.cover = coverOf(noise({20, 10}, QImage::Format_RGB32));
    const auto packed = withPackedCover(std::make_shared<const QuorvinData>(contents));
    EXPECT_TRUE(packed->generalInfo().cover.isEmpty());
    EXPECT_EQ(QImage::fromData(packed->generalInfo().packedCover).size(), QSize(20, 10));
    EXPECT_EQ(packed->filename(), contents.filename);
}

TEST(Cover, DrawingIsNone)
{
    const test::TestFolder folder;
    const QByteArray svg = "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'><image href='"
        + test::sample(QStringLiteral("photo.jpg")).toUtf8() + "' width='9' height='9'/></svg>";
    EXPECT_TRUE(coverOfData(svg).isEmpty());
    EXPECT_TRUE(Utilities::thumbnailedImageFromURL(folder.write(QStringLiteral("a.jpg"), svg), 9).isNull());
}

TEST(Cover, ScansOfAJpegAreCountedBeforeItIsDecoded)
{
    const QByteArray progressive = jpeg(true);
    EXPECT_FALSE(scansOfBytes(jpeg(false)).isProgressive);
    EXPECT_EQ(scansOfBytes(jpeg(false)).count, 1);
    EXPECT_TRUE(scansOfBytes(progressive).isProgressive);
    EXPECT_GT(scansOfBytes(progressive).count, 3);
    EXPECT_EQ(scansOfBytes("no picture").count, 0);
    EXPECT_FALSE(coverOfData(progressive).isEmpty());

    const QByteArray scan = progressive.sliced(progressive.lastIndexOf("\xff\xda")).chopped(2);
    const QByteArray many = progressive.chopped(2) + scan.repeated(Utilities::kMostScans) + "\xff\xd9";
    EXPECT_GT(scansOfBytes(many).count, Utilities::kMostScans);
    EXPECT_TRUE(coverOfData(many).isEmpty());
    for (qsizetype length = 0; length < 700; ++length)
        scansOfBytes(progressive.first(length));
}

} // namespace quorvin
