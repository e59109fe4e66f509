// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ManyRecords.h"
#include "statistics/CountTable.h"
#include "statistics/ParameterCoverage.h"
#include "statistics/ParameterTally.h"

#include <benchmark/benchmark.h>

namespace {

using namespace quorvin;
using bench::manyRecords;
using bench::processorSecondsOf;

/// The limit: the terms of all files looked at once.
double onePassSeconds()
{
    constexpr quint16 kWanted = 7;
    const RecordIndex &index = manyRecords().index;
    std::size_t found = 0;
    const double seconds = processorSecondsOf([&] {
        for (const auto &entry : index.entries()) {
            for (const quint16 term : index.terms(entry))
                found += term == kWanted ? 1 : 0;
        }
    });
    benchmark::DoNotOptimize(found);
    return seconds;
}

void count(benchmark::State &state, const char *parameter, bool inRanges)
{
    const auto &records = manyRecords();
    std::size_t values = 0;
    for ([[maybe_unused]] auto _ : state) {
        const CountTable table(countOf(QString::fromUtf8(parameter), records.index, records.files),
                               {.inRanges = inRanges});
        values = table.count().values.size();
        benchmark::DoNotOptimize(table.rows().size());
    }
    state.counters["values"] = static_cast<double>(values);
    state.counters["one_pass_ms"] = onePassSeconds() * 1e3;
}

void coverage(benchmark::State &state)
{
    const auto &records = manyRecords();
    std::size_t parameters = 0;
    for ([[maybe_unused]] auto _ : state)
        parameters = coverageOf(records.index, records.files).size();
    state.counters["parameters"] = static_cast<double>(parameters);
    state.counters["one_pass_ms"] = onePassSeconds() * 1e3;
}

BENCHMARK_CAPTURE(count, values, "Video/Format", false)
    ->Name("statistics/values of a parameter")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(count, ranges, "Video/Bit rate", true)
    ->Name("statistics/ranges of a parameter")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(count, unique, "File/Name", false)->Name("statistics/names")->Unit(benchmark::kMillisecond);
BENCHMARK(coverage)->Name("statistics/coverage of all parameters")->Unit(benchmark::kMillisecond);

} // namespace
