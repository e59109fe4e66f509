// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "places/Clusters.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <random>
#include <set>
#include <vector>

namespace quorvin {
namespace {

const MapView kView{MapType::WebMercator, {0.5, 0.5}, 4000, {800, 600}};

/// Some dense, some alone, some on one spot.
std::vector<MapPoint> scatteredPoints()
{
    std::mt19937 random(7);
    const auto fraction = [&] { return random() / 4294967296.0; };
    std::vector<MapPoint> points;
    for (quint32 i = 0; i < 3000; ++i) {
        const double reach = i % 3 == 0 ? 1 : 0.1;
        points.push_back({{0.5 + (fraction() - 0.5) * reach, 0.5 + (fraction() - 0.5) * reach}, i});
    }
    points.insert(points.end(), 50, {{0.55, 0.52}, 0});
    return points;
}

std::set<std::vector<quint32>> setsOf(const MapClusters &all, const QRectF &pixels)
{
    std::set<std::vector<quint32>> sets;
    for (const MapCluster &cluster : all.clusters) {
        const auto members = all.membersOf(cluster);
        if (pixels.contains(cluster.middle))
            sets.insert({members.begin(), members.end()});
    }
    return sets;
}

TEST(Clusters, haveEachPointOfTheViewOnce)
{
    const auto points = scatteredPoints();
    const MapClusters all = clustersOf(points, kView);
    std::vector<bool> isIn(points.size());
    for (const MapCluster &cluster : all.clusters) {
        const auto members = all.membersOf(cluster);
        ASSERT_FALSE(members.empty());
        EXPECT_TRUE(std::ranges::is_sorted(members));
        QPointF sum;
        for (const quint32 member : members) {
            EXPECT_FALSE(isIn[member]);
            isIn[member] = true;
            sum += kView.toPixel(points[member].flat);
        }
        EXPECT_LT((sum / static_cast<double>(members.size()) - cluster.middle).manhattanLength(), 1e-6);
    }
    EXPECT_TRUE(std::ranges::is_sorted(all.clusters, std::greater(), &MapCluster::size));
    const QRectF shown({0, 0}, kView.size);
    const double around = 2 * kClusterPixels;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const QPointF pixel = kView.toPixel(points[i].flat);
        EXPECT_TRUE(isIn[i] || !shown.contains(pixel));
        EXPECT_TRUE(!isIn[i] || shown.adjusted(-around, -around, around, around).contains(pixel));
    }
}

TEST(Clusters, standApartAndTogetherOnOneSpot)
{
    const auto points = scatteredPoints();
    const MapClusters all = clustersOf(points, kView);
    for (const MapCluster &one : all.clusters) {
        for (const MapCluster &other : all.clusters) {
            const QPointF way = one.middle - other.middle;
            EXPECT_TRUE(&one == &other || std::hypot(way.x(), way.y()) > kClusterPixels - 1e-6);
        }
        const auto onSpot = std::ranges::count_if(all.membersOf(one), [](quint32 i) { return i >= 3000; });
        EXPECT_TRUE(onSpot == 0 || onSpot == 50);
    }
    EXPECT_EQ(setsOf(clustersOf(points, kView), {-99, -99, 999, 999}), setsOf(all, {-99, -99, 999, 999}));
    EXPECT_TRUE(clustersOf({}, kView).clusters.empty());
}

TEST(Clusters, stayWhenTheViewIsMoved)
{
    const auto points = scatteredPoints();
    const auto inTheMiddle = setsOf(clustersOf(points, kView), {250, 200, 300, 200});
    EXPECT_GT(inTheMiddle.size(), 10U);
    for (const QPointF way : {QPointF(1, 0), QPointF(17.5, -30.25), QPointF(-90, 60)}) {
        const auto moved = setsOf(clustersOf(points, kView.panned(way)), {-99, -99, 999, 999});
        EXPECT_TRUE(std::ranges::includes(moved, inTheMiddle));
    }
}

TEST(Clusters, haveBounds)
{
    const std::vector<MapPoint> points{{{0.2, 0.9}, 0}, {{0.6, 0.1}, 1}, {{0.3, 0.4}, 2}, {{0.9, 0.95}, 3}};
    EXPECT_EQ(boundsOf(points, std::vector<quint32>{0, 1, 2}), QRectF(QPointF(0.2, 0.1), QPointF(0.6, 0.9)));
    EXPECT_EQ(boundsOf(points, std::vector<quint32>{2}), QRectF(0.3, 0.4, 0, 0));
}

} // namespace
} // namespace quorvin
