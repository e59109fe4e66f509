// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ManyRecords.h"
#include "places/Clusters.h"

#include <benchmark/benchmark.h>

#include <random>
#include <vector>

namespace {

using namespace quorvin;

/// Half of them in some towns, the others everywhere.
std::vector<MapPoint> manyPoints()
{
    constexpr quint32 kPoints = 100'000;
    constexpr quint32 kTowns = 40;
    std::mt19937 random(1);
    std::uniform_real_distribution<double> anywhere(0, 1);
    std::normal_distribution<double> aroundTown(0, 1e-4);
    std::vector<QPointF> towns(kTowns);
    for (QPointF &town : towns)
        town = {anywhere(random), anywhere(random)};
    std::vector<MapPoint> points;
    for (quint32 i = 0; i < kPoints; ++i) {
        const QPointF place = i % 2 == 0
            ? QPointF(anywhere(random), anywhere(random))
            : towns[random() % kTowns] + QPointF(aroundTown(random), aroundTown(random));
        points.push_back({place, i});
    }
    return points;
}

/// With the limit beside it: one pass over the points.
void clusters(benchmark::State &state, double worldWidth)
{
    const auto points = manyPoints();
    const MapView view{MapType::WebMercator, {0.5, 0.5}, worldWidth, {1200, 800}};
    std::size_t found = 0;
    for ([[maybe_unused]] auto _ : state)
        found = clustersOf(points, view).clusters.size();
    QPointF sum;
    const double seconds = bench::processorSecondsOf([&] {
        for (const MapPoint &point : points)
            sum += point.flat;
    });
    benchmark::DoNotOptimize(sum);
    state.counters["clusters"] = static_cast<double>(found);
    state.counters["one_pass_ms"] = seconds * 1e3;
}

BENCHMARK_CAPTURE(clusters, world, 800)->Name("places/clusters of the world")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(clusters, land, 20'000)->Name("places/clusters of a land")->Unit(benchmark::kMillisecond);

} // namespace
