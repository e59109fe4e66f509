// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "BenchFiles.h"
#include "intake/DataCacher.h"
#include "readers/process/JobRunner.h"

#include <QEventLoop>

#include <benchmark/benchmark.h>

namespace {

using namespace quorvin;
using bench::mediaFiles;
using bench::secondsOf;

constexpr std::size_t kFiles = 2000;

/// Ends the loop when all files were delivered.
struct Countdown final : DataCacherDelegate {
    std::size_t left = kFiles;
    QEventLoop loop;

    void dataCacherNewObjectReady(const DataCacherDelivery &delivery) override
    {
        delivery.file->releaseQuorvinData();
        if (--left == 0)
            loop.quit();
    }
};

double secondsOfPool(const std::function<std::unique_ptr<JobRunner>()> &makeRunner, int threads)
{
    std::vector<FilelistItemPtr> files;
    for (std::size_t i = 0; i < kFiles; ++i)
        files.push_back(FilelistItem::itemWithFilename(mediaFiles()[i % mediaFiles().size()], QString()));
    AnalysisSetup setup;
    setup.makeRunner = makeRunner;
    setup.options.keepCover = false;
    Countdown countdown;
    DataCacher pool([setup] { return setup; });
    pool.setThreadCount(threads);
    pool.setDelegate(&countdown);
    const double seconds = secondsOf([&] {
        pool.processFiles(files);
        countdown.loop.exec();
    });
    pool.cancelThreadsAndWait();
    return seconds;
}

/// Throughput in reader processes against in-process analysis, on one and on two threads, turn and turn
/// about.
void readersAgainstInProcess(benchmark::State &state)
{
    const auto readers = [] { return makeReaderRunner({}); };
    double here1 = 0;
    double here2 = 0;
    double there1 = 0;
    double there2 = 0;
    for ([[maybe_unused]] auto _ : state) {
        here1 += secondsOfPool(makeInProcessRunner, 1);
        there1 += secondsOfPool(readers, 1);
        here2 += secondsOfPool(makeInProcessRunner, 2);
        const double round = secondsOfPool(readers, 2);
        there2 += round;
        state.SetIterationTime(round);
    }
    state.counters["throughput_1_thread"] = here1 / there1;
    state.counters["throughput_2_threads"] = here2 / there2;
    state.counters["two_readers_against_one"] = there1 / there2;
    state.counters["files_a_second"] = static_cast<double>(kFiles * state.iterations()) / there2;
}
BENCHMARK(readersAgainstInProcess)->UseManualTime()->Iterations(3)->Unit(benchmark::kMillisecond);

/// From nothing to the first answer of a reader.
void startOfReader(benchmark::State &state)
{
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(makeReaderRunner({})->run(Job::record(QStringLiteral("/none"), {})));
}
BENCHMARK(startOfReader)->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace
