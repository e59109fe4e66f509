// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "places/BaseMap.h"

#include "places/basemap/Pn2File.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace quorvin {
namespace {

const QColor kSea = Qt::blue;
const QColor kLand = Qt::green;
const QColor kLake = Qt::cyan;
const QColor kBeyond = Qt::black;

/// Lines are not seen.
MapColors areaColors()
{
    const QColor none = Qt::transparent;
    return {kSea, kLand, kLake, none, none, none, none, none, none, kBeyond};
}

QImage painted(const MapView &view)
{
    QImage image(view.size.toSize(), QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    BaseMap::instance().paint(painter, view, areaColors());
    return image;
}

QColor colorAt(MapType type, const Location &place, double worldWidth)
{
    const MapView view{type, flattened(type, place), worldWidth, {80, 60}};
    return painted(view).pixelColor(40, 30);
}

TEST(BaseMap, hasLandAndWaterWhereTheyAre)
{
    struct Case {
        const char *name;
        Location place;
        QColor color;
    };
    const Case cases[] = {
        {"Bern", {46.95, 7.45}, kLand},        {"the Atlantic", {30, -40}, kSea},
        {"the Caspian Sea", {42, 50.5}, kSea}, {"Lake Victoria", {-1, 33}, kLake},
        {"Lake Superior", {47.7, -87}, kLake}, {"west of the date line", {67, 179.5}, kLand},
        {"east of it", {67, -179.5}, kLand},   {"the edge of Antarctica", {-84.9, 60}, kLand},
        {"the Arctic", {84.9, 0}, kSea},
    };
    for (const MapType type : {MapType::WebMercator, MapType::WholeEarth}) {
        for (const double worldWidth : {1500.0, 30000.0, kEquatorMetres}) {
            for (const Case &each : cases)
                EXPECT_EQ(colorAt(type, each.place, worldWidth), each.color)
                    << each.name << " at " << worldWidth;
        }
    }
    EXPECT_EQ(colorAt(MapType::WholeEarth, {-89.9, 0}, 4000), kLand);
    EXPECT_EQ(colorAt(MapType::WholeEarth, {89.9, 0}, 4000), kSea);
}

TEST(BaseMap, endsWithTheWorldAndThePicture)
{
    const QImage world = painted(MapView::wholeWorld(MapType::WholeEarth, {400, 300}));
    EXPECT_EQ(world.pixelColor(200, 48), kBeyond);
    EXPECT_EQ(world.pixelColor(200, 52), kSea);
    EXPECT_EQ(world.pixelColor(200, 248), kLand);
    EXPECT_EQ(world.pixelColor(200, 252), kBeyond);

    QImage image(100, 100, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.translate(20, 20);
    const QTransform before = painter.transform();
    BaseMap::instance().paint(painter, MapView::wholeWorld(MapType::WebMercator, {60, 60}), areaColors());
    EXPECT_EQ(painter.transform(), before);
    EXPECT_FALSE(painter.hasClipping());
    for (const QPoint &point : {QPoint(19, 50), QPoint(80, 50), QPoint(50, 19), QPoint(50, 80)})
        EXPECT_EQ(image.pixelColor(point), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(21, 50), kSea);
}

TEST(BaseMap, comesBackFromItsBytes)
{
    ArcLayers layers;
    layers[0] = {{{{10800, -21600}, {-10800, 21600}, {0, 0}}, {{1, 1}, {-1, -1}}}, {{}}};
    layers[4] = {{{{5, 64}, {5, -64}}}};
    const std::string bytes = baseMapBytes(layers);
    EXPECT_EQ(baseMapFromBytes(bytes), layers);
    for (std::size_t size = 0; size < bytes.size(); ++size)
        EXPECT_FALSE(baseMapFromBytes(bytes.substr(0, size))) << size;
    EXPECT_FALSE(baseMapFromBytes(bytes + '\0'));
    EXPECT_FALSE(baseMapFromBytes(std::string(40, '\xff')));
}

std::string bytesOf(std::initializer_list<int> bytes)
{
    std::string text;
    for (const int byte : bytes)
        text.push_back(static_cast<char>(byte));
    return text;
}

/// Three features, of which the last is a hole in the one before.
const std::string kPn2 = bytesOf({2, 0, 0, 0, 3, 0}) // the head
    + bytesOf({0, 0, 0, 0, 1, 0, 0, 0, 2}) // a line of two chunks
    + bytesOf({0, 10, 0xff, 0xf6, 0, 2, 1, 2, 0xff, 0xfe}) // a point and two by it
    + bytesOf({0, 20, 0, 20, 0, 0}) //
    + bytesOf({4, 0, 0, 0, 2, 2}) // two that belong together
    + bytesOf({2, 0, 0, 0, 2, 0, 0, 0, 1, 0, 0, 0, 0, 0, 1, 100, 100}) //
    + bytesOf({3, 0, 0, 0, 2, 0, 0, 0, 1, 0, 5, 0, 5, 0, 0});

TEST(Pn2File, isReadToItsLastByte)
{
    const auto shapes = shapesOfPn2(kPn2);
    ASSERT_TRUE(shapes) << shapes.error();
    const std::vector<ArcShape> expected{{{{10, -10}, {11, -8}, {9, -12}, {20, 20}}},
                                         {{{0, 0}, {100, 100}}, {{5, 5}}}};
    EXPECT_EQ(*shapes, expected);

    const auto coloured
        = shapesOfPn2(bytesOf({2, 0, 0, 0, 1, 1, 0, 0, 0, 0, 1, 7, 0, 0, 0, 1, 0, 1, 0, 1, 0, 0}));
    ASSERT_TRUE(coloured) << coloured.error();
    EXPECT_EQ(*coloured, (std::vector<ArcShape>{{{{1, 1}}}}));
}

TEST(Pn2File, isRefusedWhenItIsDamaged)
{
    for (std::size_t size = 0; size < kPn2.size(); ++size)
        EXPECT_FALSE(shapesOfPn2(kPn2.substr(0, size))) << size;
    std::string far = kPn2;
    far[15] = 0x7f;
    EXPECT_EQ(shapesOfPn2(far).error(), "is damaged in the feature at byte 6");
    std::string unknown = kPn2;
    unknown[6] = 9;
    EXPECT_FALSE(shapesOfPn2(unknown));
}

} // namespace
} // namespace quorvin
