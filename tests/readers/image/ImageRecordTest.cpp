// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/RegularFile.h"
#include "readers/RecordBuilder.h"
#include "readers/image/ImageGeneral.h"
#include "readers/image/Previews.h"
#include "readers/image/oEXIV2.h"
#include "readers/image/oEXIV2Reports.h"
#include "support/Pictures.h"
#include "support/Sweep.h"
#include "support/TestFolder.h"

#include <QDataStream>
#include <QImage>

#include <gtest/gtest.h>

#include <array>
#include <thread>

namespace quorvin {

using test::picture;
using test::TestFolder;
using test::withMetadata;

namespace {

Exiv2::ExifData photoExif()
{
    Exiv2::ExifData exif;
    exif["Exif.Image.Make"] = "Maker ";
    exif["Exif.Image.Model"] = " Model";
    exif["Exif.Photo.FNumber"] = Exiv2::URational(28, 10);
    exif["Exif.Photo.ISOSpeedRatings"] = uint16_t{65535};
    exif["Exif.Photo.StandardOutputSensitivity"] = uint32_t{102400};
    exif["Exif.Photo.FocalLength"] = Exiv2::URational(35, 1);
    exif["Exif.Photo.FocalLengthIn35mmFilm"] = uint16_t{52};
    exif["Exif.Photo.ExposureTime"] = Exiv2::URational(0, 0);
    return exif;
}

QStringList linesOf(const QuorvinDataPtr &record)
{
    QStringList lines;
    for (const GeneralLine &line : record->generalInfo().lines)
        lines.append(line.name + u'=' + line.value.plain);
    return lines;
}

QuorvinDataPtr recordOf(const QByteArray &file, const QString &name, const RecordOptions &options = {})
{
    const TestFolder folder;
    return RecordBuilder(options).dataAboutFile(folder.write(name, file)).value_or(nullptr);
}

const QByteArray kRawPhoto("CR\2\0\0\0\0\0", 8);

/// A TIFF of 4 by 2 grey pixels in one strip, which is these bytes; `signature` stands behind its header.
QByteArray tiffOfStrip(quint32 newSubfileType, const QByteArray &strip, const QByteArray &signature = {})
{
    constexpr quint32 kEntries = 9;
    const auto directory = static_cast<quint32>(8 + signature.size());
    const quint32 stripOffset = directory + 2 + kEntries * 12 + 4;
    const std::array<std::array<quint32, 2>, kEntries> entries{{
        {254, newSubfileType},
        {256, 4},
        {257, 2},
        {258, 8},
        {259, 1},
        {262, 1},
        {273, stripOffset},
        {278, 2},
        {279, static_cast<quint32>(strip.size())},
    }};
    QByteArray file;
    QDataStream out(&file, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out << quint16{0x4949} << quint16{42} << directory;
    out.writeRawData(signature.constData(), static_cast<int>(signature.size()));
    out << static_cast<quint16>(kEntries);
    constexpr quint16 kLong = 4;
    for (const auto &[tag, value] : entries)
        out << static_cast<quint16>(tag) << kLong << quint32{1} << value;
    out << quint32{0};
    return file + strip;
}

std::size_t previewsThatTheLibraryFinds(const QByteArray &file)
{
    const auto whole = Exiv2::ImageFactory::open(reinterpret_cast<const Exiv2::byte *>(file.constData()),
                                                 static_cast<long>(file.size()));
    whole->readMetadata();
    return Exiv2::PreviewManager(*whole).getPreviewProperties().size();
}

bool hasProfile(const QuorvinDataPtr &record)
{
    return record->stringForExportText().contains(QLatin1String("\nICC Profile Color Space: RGB"));
}

} // namespace

TEST(ImageRecord, GeneralLinesWithTheirFallBacks)
{
    const auto record = recordOf(withMetadata(picture("JPEG"), photoExif()), QStringLiteral("a.jpg"));
    ASSERT_TRUE(record && record->isImage());
    EXPECT_EQ(linesOf(record).join(u'\n'),
              QStringLiteral("Device=Model (Maker)\nFocal Length=35.0 mm (35 mm equivalent: 52.0 mm)\n"
                             "Aperture=\u0192/2.8\nISO=102400"));
    EXPECT_EQ(record->generalInfo().lines[2].value.italicLength, 1);

    Exiv2::XmpData xmp;
    xmp["Xmp.exif.ShutterSpeedValue"] = "6/1";
    xmp["Xmp.tiff.Make"] = "Maker";
    xmp["Xmp.exif.DateTimeOriginal"] = " 2021 ";
    const auto withXmp = recordOf(withMetadata(picture("JPEG"), {}, xmp), QStringLiteral("a.jpeg"));
    EXPECT_EQ(linesOf(withXmp).first(1), QStringList(QStringLiteral("Photo Date=2021")));
    EXPECT_TRUE(linesOf(withXmp).last().startsWith(QLatin1String("Exposure Time=")));
    EXPECT_EQ(withXmp->format(), QStringLiteral("JPEG"));
}

TEST(ImageRecord, MegapixelsCountAboveAThird)
{
    GeneralFacts general;
    setImageSize(QStringLiteral("640"), QStringLiteral("480"), general);
    EXPECT_EQ(general.imageSizeMP, QStringLiteral("640 x 480 (0.3 MP)"));
    setImageSize(QStringLiteral("600"), QStringLiteral("500"), general);
    EXPECT_EQ(general.imageSizeMP, QStringLiteral("600 x 500"));
    setImageSize(QStringLiteral("1500"), QStringLiteral("1500"), general);
    EXPECT_EQ(general.imageSizeMP, QStringLiteral("1500 x 1500 (2.2 MP)")) << "2.25, to the even digit";
    setImageSize(QStringLiteral("4294967295"), QStringLiteral("4294967295"), general);
    EXPECT_EQ(general.imageSizeMP, QStringLiteral("4294967295 x 4294967295 (18446744065119.6 MP)"));
}

TEST(ImageRecord, ProfileIsNamedOnlyBesideExif)
{
    for (const char *format : {"JPEG", "PNG"}) {
        const QByteArray file = picture(format, {16, 12}, true);
        const QString name = QString::fromLatin1(format).toLower();
        EXPECT_FALSE(hasProfile(recordOf(file, QStringLiteral("a.") + name))) << format;
        EXPECT_TRUE(hasProfile(recordOf(withMetadata(file, photoExif()), QStringLiteral("a.") + name)))
            << format;
    }
}

TEST(ImageRecord, ChoiceOfThePreview)
{
    using Kinds = std::vector<PreviewKind>;
    EXPECT_EQ(chosenPreview(Kinds{{120, true}, {300, false}, {1000, true}, {2000, true}}), 2U);
    EXPECT_EQ(chosenPreview(Kinds{{120, true}, {256, false}, {1000, false}}), 1U);
    EXPECT_EQ(chosenPreview(Kinds{{120, true}, {255, true}, {90, false}}), 2U);
}

TEST(ImageRecord, PreviewsAreThoseOfTheWholeMetadata)
{
    Exiv2::ExifData exif = photoExif();
    exif["Exif.GPSInfo.GPSLatitudeRef"] = "N";
    const QByteArray small = picture("JPEG", {48, 32});
    Exiv2::ExifThumb(exif).setJpegThumbnail(reinterpret_cast<const Exiv2::byte *>(small.constData()),
                                            static_cast<long>(small.size()));
    const QByteArray file = withMetadata(picture("JPEG"), exif);
    const auto *bytes = reinterpret_cast<const Exiv2::byte *>(file.constData());
    const auto whole = Exiv2::ImageFactory::open(bytes, static_cast<long>(file.size()));
    whole->readMetadata();
    const Exiv2::PreviewManager manager(*whole);
    const auto properties = manager.getPreviewProperties();
    ASSERT_EQ(properties.size(), 1U);
    const auto preview = manager.getPreviewImage(properties.front());

    const auto read = oEXIV2::initWithMemData(file);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->data().previews,
              QStringList(QStringLiteral("48 x 32 (image/jpeg, %1 bytes)").arg(preview.size())));
    EXPECT_EQ(read->data().thumb,
              QByteArray(reinterpret_cast<const char *>(preview.pData()), preview.size()));
    EXPECT_EQ(read->data().exif.count(), whole->exifData().count() - 2) << "but for the pointers";

    // Nothing to look into: nothing is asked.
    EXPECT_EQ(oEXIV2::initWithMemData(withMetadata(picture("JPEG"), photoExif()))->data().thumbCount,
              QStringLiteral("0"));
}

TEST(ImageRecord, PixelsAreAPreviewWhereTheyAreReducedOrAFile)
{
    const auto expectPreviews = [](std::size_t count, const QByteArray &file) {
        EXPECT_EQ(previewsThatTheLibraryFinds(file), count) << "the file is what it should be";
        EXPECT_EQ(oEXIV2::initWithMemData(file)->data().thumbCount, QString::number(count));
    };
    const QByteArray pixels(8, '\x40');
    const QByteArray photo = picture("JPEG", {4, 2});
    expectPreviews(0, tiffOfStrip(0, pixels));
    expectPreviews(1, tiffOfStrip(1, pixels));
    expectPreviews(0, tiffOfStrip(0, photo));
    expectPreviews(0, tiffOfStrip(0, pixels, kRawPhoto));
    expectPreviews(1, tiffOfStrip(0, photo, kRawPhoto));
}

TEST(ImageRecord, CoverIsThePreviewOrTheSlowWay)
{
    const auto cover = [](const ImageMetadata &metadata, bool slow, const QByteArray &file) {
        const TestFolder folder;
        const auto opened = RegularFile::open(folder.write(QStringLiteral("a"), file));
        const Cover found = imageCover(metadata, *opened, slow);
        EXPECT_TRUE(found.isValid());
        return QSize(found.width, found.height);
    };
    const QByteArray file = picture("PNG", {512, 64});
    ImageMetadata metadata;
    EXPECT_TRUE(cover(metadata, false, file).isEmpty());
    EXPECT_EQ(cover(metadata, true, file), QSize(256, 32));
    metadata.thumb = picture("JPEG", {300, 400});
    metadata.thumbHeight = 400;
    EXPECT_EQ(cover(metadata, true, file), QSize(192, 256));
    metadata.thumb = picture("JPEG", {300, 256});
    metadata.thumbHeight = 256;
    EXPECT_EQ(cover(metadata, false, file), QSize(300, 256));
    EXPECT_EQ(cover(metadata, true, file), QSize(256, 32));

    // A header that claims 60,000 by 60,000 pixels.
    QByteArray lie = picture("BMP");
    lie.replace(18, 8, QByteArray("\x60\xea\0\0\x60\xea\0\0", 8));
    EXPECT_TRUE(cover({}, true, lie).isEmpty());
}

TEST(ImageRecord, VideosThatTheLibraryReadsAreNoImages)
{
    const std::array heads{
        QByteArray("RIFF\x10\0\0\0AVI LIST", 16),
        QByteArray("RIFF\x10\0\0\0WAVEfmt ", 16),
        QByteArray("\x1a\x45\xdf\xa3\x80\0\0\0", 8),
        QByteArray("\x30\x26\xb2\x75\x8e\x66\xcf\x11\xa6\xd9\0\xaa\0\x62\xce\x6c", 16),
        QByteArray("\0\0\0\x08wide\0\0\0\x08mdat", 16),
    };
    for (const QByteArray &head : heads)
        EXPECT_FALSE(oEXIV2::initWithMemData(head + QByteArray(64, '\0'))) << head.toStdString();
}

TEST(ImageRecord, ReportsOnWhatIsNoImageSaySo)
{
    const QString path = test::sample(QStringLiteral("tone.flac"));
    const QString text = QStringLiteral("Exiv2 exception: ") + path
        + QStringLiteral(": The file contains data of an unknown image type");
    EXPECT_EQ(oEXIV2Reports::structureOfFile(path), text);
    EXPECT_EQ(oEXIV2Reports::rawXmpOfFile(path), text);
    EXPECT_FALSE(oEXIV2Reports::outputOnFile(path));
}

TEST(ImageRecord, EveryTruncationIsReadOrRefused)
{
    const std::array files{
        withMetadata(picture("JPEG"), photoExif()), withMetadata(picture("PNG"), photoExif()),
        withMetadata(test::contentOf(test::sample(QStringLiteral("pages.tif"))).first(2400), photoExif()),
        test::heif(heif_compression_HEVC, {64, 48}, test::tiffBytes(photoExif()))};
    const TestFolder folder;
    for (const QByteArray &file : files) {
        ASSERT_FALSE(file.isEmpty());
        for (qsizetype length = 0; length < file.size(); length += test::stepOfSweep(11)) {
            const QString path = folder.write(QStringLiteral("cut"), file.first(length));
            oEXIV2::initWithFilename(path);
            oEXIV2::initWithHeifFilePath(path);
        }
    }
}

TEST(ImageRecord, CyclicDirectoryEnds)
{
    const QByteArray cycle = QByteArray("II*\0\x08\0\0\0\x01\0\x0e\x01\x02\0\x03\0\0\0ab\0\0\x08\0\0\0", 26)
        + QByteArray(8, '\0');
    const auto record = recordOf(cycle, QStringLiteral("a.tif"));
    EXPECT_TRUE(!record || record->isImage());
}

TEST(ImageRecord, ThreadsReadAtOnce)
{
    const TestFolder folder;
    Exiv2::XmpData xmp;
    xmp["Xmp.dc.source"] = "x";
    const QString path
        = folder.write(QStringLiteral("a.jpg"), withMetadata(picture("JPEG"), photoExif(), xmp));
    const QString heic = folder.write(QStringLiteral("a.heic"), test::heif(heif_compression_HEVC));
    const QString expected = RecordBuilder({}).dataAboutFile(path).value()->stringForExportText();
    constexpr int kThreads = 4;
    std::vector<std::jthread> threads;
    threads.reserve(kThreads);
    std::atomic<int> wrong = 0;
    for (int i = 0; i < kThreads; ++i) {
        threads.emplace_back([&] {
            for (int round = 0; round < 50; ++round) {
                wrong += RecordBuilder({}).dataAboutFile(path).value()->stringForExportText() != expected;
                wrong += !RecordBuilder({}).dataAboutFile(heic).value()->isImage();
            }
        });
    }
    threads.clear();
    EXPECT_EQ(wrong, 0);
}

} // namespace quorvin
