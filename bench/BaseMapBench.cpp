// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "BenchFiles.h"
#include "places/BaseMap.h"
#include "places/MapLabels.h"
#include "places/Towns.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

using namespace quorvin;

const MapColors kColors{Qt::blue,      Qt::white,    Qt::cyan,  Qt::cyan,  Qt::darkGray,
                        Qt::lightGray, Qt::darkBlue, Qt::black, Qt::white, Qt::gray};

QImage picture()
{
    return {1000, 700, QImage::Format_ARGB32_Premultiplied};
}

MapView viewOf(double worldWidth)
{
    return MapView{MapType::WebMercator, flattened(MapType::WebMercator, {50, 10}), worldWidth, {1000, 700}}
        .bounded();
}

/// The limit: as many corners as the coasts have in a picture of the world, filled by the bare library.
double barePolygonsSeconds()
{
    constexpr int kCorners = 250;
    constexpr int kAcross = 10;
    constexpr int kPolygons = kAcross * 7;
    constexpr double kCell = 100;
    QImage image = picture();
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    return bench::secondsOf([&painter] {
        for (int polygon = 0; polygon < kPolygons; ++polygon) {
            const QPointF middle((polygon % kAcross + 0.5) * kCell, (polygon / kAcross + 0.5) * kCell);
            QPolygonF corners;
            for (int corner = 0; corner < kCorners; ++corner) {
                const double angle = corner * 2 * std::numbers::pi / kCorners;
                const double radius = 35 + corner % 3;
                corners << middle + QPointF(std::cos(angle), std::sin(angle)) * radius;
            }
            QPainterPath path;
            path.addPolygon(corners);
            painter.fillPath(path, Qt::white);
        }
    });
}

void base(benchmark::State &state, double worldWidth)
{
    const BaseMap &map = BaseMap::instance();
    QImage image = picture();
    QPainter painter(&image);
    for ([[maybe_unused]] auto _ : state)
        map.paint(painter, viewOf(worldWidth), kColors);
    state.counters["bare_polygons_ms"] = barePolygonsSeconds() * 1e3;
}

void names(benchmark::State &state)
{
    const Towns &towns = Towns::instance();
    QImage image = picture();
    QPainter painter(&image);
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(paintTownNames(painter, viewOf(5000), kColors, towns, {}));
}

void nearest(benchmark::State &state)
{
    const Towns &towns = Towns::instance();
    double place = 0;
    for ([[maybe_unused]] auto _ : state) {
        place += 37.7;
        benchmark::DoNotOptimize(
            towns.nearest({std::fmod(place, 180) - 90, std::fmod(place * 7, 360) - 180}));
    }
    const double seconds = bench::secondsOf([&towns] {
        double least = 180;
        for (const Town &town : towns.towns())
            least = std::min(least, std::abs(town.location.latitude) + std::abs(town.location.longitude));
        benchmark::DoNotOptimize(least);
    });
    state.counters["one_pass_us"] = seconds * 1e6;
}

BENCHMARK_CAPTURE(base, world, 1000)->Name("map/base of the world")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(base, europe, 5000)->Name("map/base of Europe")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(base, town, 1e6)->Name("map/base of a town")->Unit(benchmark::kMillisecond);
BENCHMARK(names)->Name("map/names of towns")->Unit(benchmark::kMillisecond);
BENCHMARK(nearest)->Name("map/nearest town")->Unit(benchmark::kMicrosecond);

} // namespace
