// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ManyRecords.h"
#include "filter/FilelistFilter.h"
#include "filter/IndexQuery.h"
#include "filter/RecordIndex.h"
#include "filter/RuleText.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <vector>

namespace {

using namespace quorvin;
using bench::kRecords;
using bench::kWalked;
using bench::ManyRecords;
using bench::manyRecords;
using bench::processorSecondsOf;

std::size_t count(IndexQuery &query, const RecordIndex &index)
{
    std::size_t found = 0;
    for (const auto &entry : index.entries())
        found += query.matches(index, entry) ? 1 : 0;
    return found;
}

/// How long the walk takes over all records, from some of them.
double walkSeconds(const QString &text, const Rule &rule)
{
    const auto &files = manyRecords().files;
    const FilelistFilterFunction function({.globalText = text, .rule = rule});
    std::size_t found = 0;
    const double seconds = processorSecondsOf([&] {
        for (std::size_t i = 0; i < kWalked; ++i)
            found += function.passes(*files[i]) ? 1 : 0;
    });
    benchmark::DoNotOptimize(found);
    return seconds * kRecords / kWalked;
}

void search(benchmark::State &state, const char *text, const char *ruleText)
{
    const RecordIndex &index = manyRecords().index;
    const Rule rule = parseRule(QString::fromUtf8(ruleText)).value();
    std::size_t found = 0;
    for ([[maybe_unused]] auto _ : state) {
        IndexQuery query(QString::fromUtf8(text), rule);
        query.mark(index, nullptr, {});
        found = count(query, index);
    }
    state.counters["found"] = static_cast<double>(found);
    state.counters["walk_ms"] = walkSeconds(QString::fromUtf8(text), rule) * 1e3;
}

/// A letter more: only what the shorter text marked, in the records that it found.
void nextLetter(benchmark::State &state)
{
    const RecordIndex &index = manyRecords().index;
    IndexQuery wider(QStringLiteral("can"), {});
    wider.mark(index, nullptr, {});
    std::vector<const RecordIndex::Entry *> candidates;
    for (const auto &entry : index.entries()) {
        if (wider.matches(index, entry))
            candidates.push_back(&entry);
    }
    std::size_t found = 0;
    for ([[maybe_unused]] auto _ : state) {
        IndexQuery query(QStringLiteral("cano"), {});
        query.mark(index, &wider, {});
        found = 0;
        for (const auto *entry : candidates)
            found += query.matches(index, *entry) ? 1 : 0;
    }
    state.counters["found"] = static_cast<double>(found);
}

void filename(benchmark::State &state)
{
    const auto &files = manyRecords().files;
    for ([[maybe_unused]] auto _ : state) {
        const FilelistFilterFunction function({.filenameText = QStringLiteral("img_99")});
        std::size_t found = 0;
        for (const FilelistItemPtr &file : files)
            found += function.passes(*file) ? 1 : 0;
        benchmark::DoNotOptimize(found);
    }
}

void feeding(benchmark::State &state)
{
    const ManyRecords &records = manyRecords();
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(records.index.bytes());
    state.counters["put_us"] = records.secondsOfPut * 1e6 / kRecords;
    state.counters["bytes_a_record"] = static_cast<double>(records.index.bytes()) / kRecords;
    state.counters["values"] = static_cast<double>(records.index.valueTable().size());
}

BENCHMARK(feeding)->Name("filter/index");
BENCHMARK_CAPTURE(search, three, "can", "")
    ->Name("filter/search three letters")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(search, one, "a", "")->Name("filter/search one letter")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(search, rare, "zzqx", "")->Name("filter/search nothing")->Unit(benchmark::kMillisecond);
BENCHMARK(nextLetter)->Name("filter/search next letter")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(search, rule, "",
                  "[Video/Width] >= 100 AND parameterValue CONTAINS 'main' OR [Audio/Bit rate] > 64 kb/s")
    ->Name("filter/rule of three conditions")
    ->Unit(benchmark::kMillisecond);
BENCHMARK(filename)->Name("filter/file name")->Unit(benchmark::kMillisecond);

} // namespace
