// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "BenchFiles.h"
#include "intake/DataCacher.h"
#include "jobs/InProcessRunner.h"
#include "process/ReaderRunner.h"

#include <QDir>
#include <QEventLoop>
#include <QTemporaryFile>
#include <QThread>

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
    const auto roots = std::make_shared<RootSet>(QStringList(mediaFiles().begin(), mediaFiles().end()));
    const auto readers = [roots] { return makeReaderRunner(roots); };
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
BENCHMARK(readersAgainstInProcess)->UseManualTime()->Iterations(6)->Unit(benchmark::kMillisecond);

/// From nothing to the first answer of a reader.
void startOfReader(benchmark::State &state)
{
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(makeReaderRunner()->run({RecordRequest{QStringLiteral("/none"), {}}, {}}));
}
BENCHMARK(startOfReader)->UseRealTime()->Unit(benchmark::kMillisecond);

/// From asking for a stop, while a file keeps its reader busy for ever, to the end of the pool's threads.
void cancelOfStuckFile(benchmark::State &state)
{
    // A TIFF whose empty directory names itself as the next one.
    QTemporaryFile file(QDir::tempPath() + QStringLiteral("/XXXXXX.tif"));
    if (!file.open())
        return state.SkipWithError("no temporary file");
    file.write(QByteArray("II*\0\x08\0\0\0\0\0\x08\0\0\0", 14) + QByteArray(8, '\0'));
    file.flush();
    AnalysisSetup setup;
    setup.makeRunner = [] { return makeReaderRunner(); };
    for ([[maybe_unused]] auto _ : state) {
        DataCacher pool([setup] { return setup; });
        pool.processFiles({FilelistItem::itemWithFilename(file.fileName(), QString())});
        QThread::msleep(200);
        state.SetIterationTime(secondsOf([&] { pool.cancelThreadsAndWait(); }));
    }
}
BENCHMARK(cancelOfStuckFile)->UseManualTime()->Iterations(10)->Unit(benchmark::kMillisecond);

} // namespace
