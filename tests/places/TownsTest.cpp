// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "places/Towns.h"

#include "places/MapLabels.h"
#include "places/Projection.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace quorvin {
namespace {

Town townAt(const char *name, const Location &location, quint32 population = 1)
{
    return {QString::fromUtf8(name), {}, {}, {}, location, population};
}

QString nearestName(const Towns &towns, const Location &location)
{
    const auto found = towns.nearest(location);
    return found ? found->town->name : QString();
}

TEST(Towns, findsTheNearestOverPolesAndTheDateLine)
{
    const Towns towns({townAt("Suva", {-18.14, 178.44}), townAt("Apia", {-13.83, -171.77}),
                       townAt("Alert", {82.5, -62.3}), townAt("Vostok", {-78.46, 106.84}),
                       townAt("hamlet", {10, 10}), townAt("capital", {10, 10}, 5000),
                       townAt("nowhere", {91, 0})});
    EXPECT_EQ(towns.towns().size(), 6U);
    EXPECT_EQ(towns.towns().front().name, QStringLiteral("capital"));
    EXPECT_EQ(nearestName(towns, {-17, -179.9}), QStringLiteral("Suva"));
    EXPECT_EQ(nearestName(towns, {-14, 179.9}), QStringLiteral("Suva"));
    EXPECT_EQ(nearestName(towns, {-13, -175}), QStringLiteral("Apia"));
    EXPECT_EQ(nearestName(towns, {89.9, 117}), QStringLiteral("Alert"));
    EXPECT_EQ(nearestName(towns, {-90, 0}), QStringLiteral("Vostok"));
    EXPECT_EQ(nearestName(towns, {10.1, 10}), QStringLiteral("capital")) << "of two on one spot";
    const auto found = towns.nearest({-18.14, 179.44});
    EXPECT_NEAR(found->metres, 105'700, 500);
    EXPECT_NEAR(found->bearing, 90, 1);
    EXPECT_FALSE(towns.nearest({90.5, 0}));
    EXPECT_FALSE(towns.nearest({std::nan(""), 0}));
    EXPECT_FALSE(Towns({}).nearest({0, 0}));
}

TEST(Towns, knowsThoseOfTheSystem)
{
    const Towns &towns = Towns::instance();
    if (towns.towns().empty())
        GTEST_SKIP() << "the library of towns is not here";
    const auto lausanne = towns.nearest({46.516, 6.63});
    EXPECT_EQ(lausanne->town->name, QStringLiteral("Lausanne"));
    EXPECT_EQ(lausanne->town->country, QStringLiteral("Switzerland"));
    EXPECT_EQ(lausanne->town->timeZone, QStringLiteral("Europe/Zurich"));
    EXPECT_GT(lausanne->town->population, 100'000U);

    // What the tree finds, against a look at each of them.
    for (int step = 0; step < 12; ++step) {
        const Location place{std::fmod(step * 37.7, 180) - 90, std::fmod(step * 97.3, 360) - 180};
        const auto nearer = [&place](const Town &one, const Town &other) {
            return metresBetween(one.location, place) < metresBetween(other.location, place);
        };
        const Town &nearest = *std::min_element(towns.towns().begin(), towns.towns().end(), nearer);
        EXPECT_NEAR(towns.nearest(place)->metres, metresBetween(nearest.location, place), 1) << step;
    }
}

/// A town on each crossing of a fine net, the most populous in the middle of the picture.
Towns townsEverywhere()
{
    std::vector<Town> towns;
    for (int row = -20; row <= 20; ++row) {
        for (int column = -20; column <= 20; ++column)
            towns.push_back(townAt("Town of some length", {row / 2.0, column / 2.0},
                                   static_cast<quint32>(10'000 - row * row - column * column)));
    }
    return Towns(std::move(towns));
}

TEST(MapLabels, standClearOfEachOther)
{
    const MapView view{MapType::WholeEarth, {0.5, 0.25}, 9000, {600, 400}};
    QImage image(600, 400, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    const QRectF taken(250, 150, 200, 60);
    const TakenPlaces places = paintTownNames(painter, view, {}, townsEverywhere(), {taken});
    ASSERT_GT(places.size(), 5U);
    for (const QRectF &place : places) {
        EXPECT_TRUE(QRectF(0, 0, 600, 400).contains(place));
        EXPECT_FALSE(place.intersects(taken));
        EXPECT_EQ(std::count_if(places.begin(), places.end(),
                                [&place](const QRectF &other) { return other.intersects(place); }),
                  1);
    }
    EXPECT_LT(std::abs(paintTownNames(painter, view, {}, townsEverywhere(), {}).front().center().y() - 200),
              20)
        << "the most populous comes first";
}

TEST(MapLabels, scaleBarIsRoundAndTrue)
{
    for (const double worldWidth : {300.0, 5000.0, 77'777.0, 4e7}) {
        for (const double latitude : {0.0, 46.5, -70.0}) {
            const MapType type = MapType::WebMercator;
            const MapView view{type, flattened(type, {latitude, 0}), worldWidth, {1000, 700}};
            const ScaleBar bar = scaleBarOf(view);
            EXPECT_LE(bar.pixels, 120.001);
            EXPECT_GT(bar.pixels, 45);
            const double digit = bar.metres / std::pow(10, std::floor(std::log10(bar.metres) + 1e-9));
            EXPECT_TRUE(std::abs(digit - 1) < 1e-6 || std::abs(digit - 2) < 1e-6
                        || std::abs(digit - 5) < 1e-6);
            if (bar.metres > 100'000)
                continue; // along a parallel, which is no shortest way
            const Location end = unflattened(type, view.toFlat({500 + bar.pixels, 350}));
            EXPECT_NEAR(metresBetween({latitude, 0}, end) / bar.metres, 1, 0.01) << worldWidth;
        }
    }
}

} // namespace
} // namespace quorvin
