// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "places/MapView.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace quorvin {
namespace {

constexpr Location kLausanne{46.5197, 6.6323};
constexpr Location kSuva{-18.1416, 178.4415};

void expectNear(const QPointF &point, const QPointF &expected, double tolerance)
{
    EXPECT_NEAR(point.x(), expected.x(), tolerance);
    EXPECT_NEAR(point.y(), expected.y(), tolerance);
}

TEST(Projection, knowsWherePlacesLie)
{
    expectNear(flattened(MapType::WebMercator, {0, 0}), {0.5, 0.5}, 1e-12);
    expectNear(flattened(MapType::WholeEarth, {90, -180}), {0, 0}, 1e-12);
    // The tile 8/132/90 of the usual scheme holds Lausanne.
    expectNear(flattened(MapType::WebMercator, kLausanne) * 256, {132.716, 90.540}, 1e-3);
    expectNear(flattened(MapType::WebMercator, {85.0511287798, 180}), {1, 0}, 1e-9);
    EXPECT_EQ(flattened(MapType::WebMercator, {90, 0}).y(), 0);
    EXPECT_EQ(flattened(MapType::WebMercator, {-90, 0}).y(), 1);
    for (const MapType type : {MapType::WebMercator, MapType::WholeEarth}) {
        for (const Location &place : {kLausanne, kSuva, Location{-77.85, 166.67}}) {
            const Location back = unflattened(type, flattened(type, place));
            EXPECT_NEAR(back.latitude, place.latitude, 1e-9);
            EXPECT_NEAR(back.longitude, place.longitude, 1e-9);
        }
    }
    EXPECT_EQ(unflattened(MapType::WholeEarth, {2, -1}), (Location{90, 180}));
}

TEST(Projection, measuresWays)
{
    EXPECT_NEAR(metresBetween(kLausanne, {46.2044, 6.1432}), 51400, 300);
    EXPECT_NEAR(metresBetween({0, 179.5}, {0, -179.5}), 111195, 1);
    EXPECT_NEAR(metresBetween({90, 0}, {-90, 50}), 20015114, 10);
    EXPECT_NEAR(bearing({0, 179.5}, {0, -179.5}), 90, 1e-9);
    EXPECT_NEAR(bearing({10, 10}, {10, -10}), 271.7, 0.1);
    EXPECT_EQ(bearing(kSuva, kSuva), 0);
    EXPECT_EQ(bearing({10, 20}, {20, 20}), 0);
    EXPECT_NEAR(bearing({10, 20}, {0, 20}), 180, 1e-9);
}

TEST(Projection, refusesImpossiblePositions)
{
    constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
    for (const Location &place : {Location{90, 180}, Location{-90, -180}, kSuva})
        EXPECT_TRUE(isPossible(place));
    for (const Location &place : {Location{90.001, 0}, Location{0, -180.5}, Location{kNoNumber, 0},
                                  Location{0, kNoNumber}, Location{HUGE_VAL, 0}})
        EXPECT_FALSE(isPossible(place));
}

TEST(MapView, keepsWhatLiesUnderThePointer)
{
    const QPointF at{120, 500};
    for (const MapType type : {MapType::WebMercator, MapType::WholeEarth}) {
        const MapView view{type, flattened(type, kLausanne), 20000, {1000, 700}};
        const MapView nearer = view.zoomed(2.5, at);
        EXPECT_DOUBLE_EQ(nearer.worldWidth, 50000);
        expectNear(nearer.toFlat(at), view.toFlat(at), 1e-12);
        expectNear(view.panned({30, -40}).toPixel(view.toFlat(at)), at + QPointF{30, -40}, 1e-6);
        // As near as can be, turning the wheel on moves nothing.
        const MapView nearest = view.zoomed(1e9, at);
        expectNear(nearest.toFlat(at), view.toFlat(at), 1e-12);
        EXPECT_EQ(nearest.zoomed(2, at), nearest);
        EXPECT_NEAR(nearest.worldWidth, kEquatorMetres, 1);
    }
}

TEST(MapView, staysWithTheWorld)
{
    const QSizeF size{1000, 700};
    for (const MapType type : {MapType::WebMercator, MapType::WholeEarth}) {
        const QRectF world = flatWorld(type);
        const MapView whole = MapView::wholeWorld(type, size);
        EXPECT_TRUE(whole.flatRect().adjusted(-1e-9, -1e-9, 1e-9, 1e-9).contains(world));
        EXPECT_EQ(whole.panned({400, 300}).zoomed(0.1, {0, 0}), whole);
        const MapView away = whole.zoomed(10, {500, 350}).panned({1e9, -1e9});
        expectNear(away.centre, world.bottomLeft(), 1e-12);
    }
    const MapView none = MapView{}.zoomed(2, {0, 0});
    EXPECT_TRUE(std::isfinite(none.worldWidth) && none.worldWidth > 0);
}

TEST(MapView, fitsBoundsAndSpots)
{
    const QSizeF size{1000, 700};
    const QPointF lausanne = flattened(MapType::WebMercator, kLausanne);
    const QRectF bounds(lausanne, QSizeF{0.01, 0.002});
    const MapView view = MapView::fitting(MapType::WebMercator, size, bounds);
    const QRectF shown{view.toPixel(bounds.topLeft()), view.toPixel(bounds.bottomRight())};
    EXPECT_NEAR(shown.left(), 48, 1e-6);
    EXPECT_NEAR(shown.right(), 952, 1e-6);
    EXPECT_NEAR(shown.center().y(), 350, 1e-6);

    const MapView spot = MapView::fitting(MapType::WebMercator, size, {lausanne, QSizeF{0, 0}});
    expectNear(spot.centre, lausanne, 1e-12);
    EXPECT_GT(spot.worldWidth, 500'000);
    EXPECT_LT(spot.worldWidth, 5'000'000);
    EXPECT_GT(MapView::fitting(MapType::WebMercator, {10, 10}, bounds).worldWidth, 0);
}

} // namespace
} // namespace quorvin
