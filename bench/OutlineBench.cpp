// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "BenchFiles.h"
#include "readers/RecordBuilder.h"
#include "shell/outline/ExtendedOutline.h"

#include <QApplication>

#include <benchmark/benchmark.h>

#include <algorithm>

namespace {

using namespace quorvin;

/// Filling the Extended tree with a record and drawing it; the slowest record counts by itself.
void outlineFill(benchmark::State &state)
{
    std::vector<QuorvinDataPtr> records;
    for (const QString &path : bench::mediaFiles()) {
        if (auto record = RecordBuilder({}).dataAboutFile(path))
            records.push_back(*record);
    }
    ExtendedOutline outline;
    outline.resize(800, 600);
    outline.show();
    double slowest = 0;
    for ([[maybe_unused]] auto _ : state) {
        for (const QuorvinDataPtr &record : records) {
            const double one = bench::secondsOf([&] {
                outline.setContent(record->extendedContent());
                QApplication::processEvents();
            });
            slowest = std::max(slowest, one);
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(records.size()));
    state.counters["slowest_s"] = slowest;
}
BENCHMARK(outlineFill)->Unit(benchmark::kMillisecond);

} // namespace
