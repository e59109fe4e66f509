// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pictures/WholePicture.h"

#include "process/ReaderRunner.h"
#include "support/Pictures.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

struct WholePicture : testing::Test {
    test::TestFolder folder;

    /// "12x16 of 24x32", with "animated" for one of several; or why there is none.
    static QString described(const Expected<Picture> &picture)
    {
        if (!picture)
            return picture.error().description;
        EXPECT_TRUE(picture->isValid());
        return u"%1x%2 of %3x%4%5"_s.arg(picture->width)
            .arg(picture->height)
            .arg(picture->fullWidth)
            .arg(picture->fullHeight)
            .arg(picture->isAnimated ? u" animated"_s : QString());
    }
    QString shown(const QByteArray &file, int side = 4096) const
    {
        return described(pictureOfFile(folder.write(u"picture"_s, file), side));
    }
};

/// It says that it has 60,000 pixels a side.
QByteArray hugeJpeg()
{
    QByteArray file = test::picture("jpeg");
    const qsizetype frame = file.indexOf("\xff\xc0");
    return file.replace(frame + 5, 4, "\xea\x60\xea\x60");
}

} // namespace

TEST_F(WholePicture, StandsUprightAndFits)
{
    Exiv2::ExifData turned;
    turned["Exif.Image.Orientation"] = std::uint16_t{6};
    const QByteArray photo = test::withMetadata(test::picture("jpeg", {160, 120}), turned);
    EXPECT_EQ(shown(photo), u"120x160 of 120x160"_s);
    EXPECT_EQ(shown(photo, 40), u"30x40 of 120x160"_s);
    EXPECT_EQ(shown(test::heif(heif_compression_AV1), 32), u"32x24 of 64x48"_s);
    EXPECT_EQ(shown(test::picture("tiff")), u"16x12 of 16x12"_s);

    QImage image(2, 1, QImage::Format_ARGB32);
    image.setPixelColor(0, 0, QColor(1, 2, 3));
    image.setPixelColor(1, 0, QColor(200, 100, 50, 128));
    const QImage crossed = imageOf(pictureOf(image));
    EXPECT_EQ(crossed.pixelColor(0, 0), QColor(1, 2, 3));
    EXPECT_EQ(crossed.pixelColor(1, 0).alpha(), 128);
}

TEST_F(WholePicture, HasFewerPixelsAsADraft)
{
    const auto draft = [this](const QByteArray &file, int side) {
        return described(pictureOfFile(folder.write(u"picture"_s, file), side, Picture::Detail::Draft));
    };
    // No higher, as the toolkit scales what has more pixels in threads.
    const QByteArray photo = test::picture("jpeg", {4800, 27});
    EXPECT_EQ(draft(photo, 820), u"600x3 of 4800x27"_s);
    EXPECT_EQ(draft(photo, 1800), u"1800x10 of 4800x27"_s) << "three eighths";
    EXPECT_EQ(draft(photo, 599), shown(photo, 599)) << "there is no smaller one";
    EXPECT_EQ(draft(photo, 4096), u"3600x20 of 4800x27"_s);
    EXPECT_EQ(draft(test::picture("jpeg", {4000, 30}), 820), u"820x6 of 4000x30"_s) << "it is small";
    EXPECT_EQ(draft(test::picture("jpeg", {8000, 2}), 1500), u"1000x1 of 8000x2"_s);
    EXPECT_EQ(draft(test::picture("png", {4800, 27}), 820), u"820x4 of 4800x27"_s);
}

TEST_F(WholePicture, TellsWhyThereIsNone)
{
    EXPECT_EQ(shown("no picture"), u"it cannot be decoded"_s);
    EXPECT_EQ(shown(test::picture("png").first(60)), u"it cannot be decoded"_s);
    EXPECT_EQ(shown(hugeJpeg()), u"60000 × 60000 pixels are too many"_s);
    EXPECT_EQ(described(pictureOfFile(folder / u"none"_s, 100)), u"No such file or directory"_s);
}

TEST_F(WholePicture, ComesFromTheReaderWithTheCoverOfASong)
{
    const auto reader = makeReaderRunner();
    const auto outcome = [&](const QString &name) {
        const auto result = reader->run({PictureRequest{test::sample(name), 64}, {}});
        return described(result.map([](const JobAnswer &answer) { return std::get<Picture>(answer); }));
    };
    EXPECT_TRUE(outcome(u"photo.jpg"_s).startsWith(u"64x"_s));
    EXPECT_TRUE(outcome(u"two-covers.mp3"_s).contains(u" of "_s));
    EXPECT_EQ(outcome(u"tone.wav"_s), u"it cannot be decoded"_s);
}

} // namespace quorvin
