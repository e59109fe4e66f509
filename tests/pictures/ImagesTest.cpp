// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pictures/Images.h"

#include "support/TestFolder.h"

#include <QImage>

#include <gtest/gtest.h>

namespace quorvin {

using namespace Utilities;

TEST(Images, LongerSideFitsAndSmallPicturesStay)
{
    EXPECT_EQ(thumbnailedImageFromURL(test::sample(QStringLiteral("photo.jpg")), 256).size(),
              QSize(256, 192));
    EXPECT_EQ(thumbnailedImageFromURL(test::sample(QStringLiteral("profiled.png")), 256).size(),
              QSize(200, 150));
    EXPECT_TRUE(thumbnailedImageFromURL(test::sample(QStringLiteral("tone.wav")), 256).isNull());
    EXPECT_EQ(
        resizedImageFromData(test::contentOf(test::sample(QStringLiteral("photo.jpg"))), {100, 400}).size(),
        QSize(100, 75));
}

TEST(Images, OrientationIsAppliedToThumbnailsOnly)
{
    QByteArray turned = test::contentOf(test::sample(QStringLiteral("photo.jpg")));
    const qsizetype tag = turned.indexOf(QByteArray::fromHex("0112000300000001"));
    ASSERT_GT(tag, 0);
    turned[tag + 9] = 6;
    EXPECT_EQ(thumbnailedImageFromData(turned, 256).size(), QSize(192, 256));
    EXPECT_EQ(resizedImageFromData(turned, {256, 256}).size(), QSize(256, 192));
}

TEST(Images, LyingHeaderCostsNothing)
{
    QByteArray png = test::contentOf(test::sample(QStringLiteral("profiled.png")));
    png.replace(16, 8, QByteArray::fromHex("0000ea600000ea60"));
    EXPECT_TRUE(thumbnailedImageFromData(png, 256).isNull());
    EXPECT_TRUE(thumbnailedImageFromData("not a picture", 256).isNull());
    EXPECT_EQ(pngDataFromImage({}), QByteArray());
    EXPECT_EQ(QImage::fromData(pngDataFromImage(QImage(3, 2, QImage::Format_RGB32))).size(), QSize(3, 2));
}

} // namespace quorvin
