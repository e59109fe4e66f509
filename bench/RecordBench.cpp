// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "BenchFiles.h"
#include "readers/RecordBuilder.h"

#include <MediaInfoDLL/MediaInfoDLL_Static.h>
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <cstddef>
#include <string>
#include <vector>

namespace {

using namespace quorvin;
using bench::mediaFiles;
using bench::secondsOf;

void bareLibrary(const std::wstring &path)
{
    void *handle = MediaInfo_New();
    MediaInfo_Open(handle, path.c_str());
    MediaInfo_Delete(handle);
}

/// A record of each file against New, Open and Delete of the bare library, turn and turn about over the same
/// files.
void recordAgainstBareLibrary(benchmark::State &state)
{
    const RecordBuilder builder({});
    double ours = 0;
    double bare = 0;
    for ([[maybe_unused]] auto _ : state) {
        double round = 0;
        for (const QString &path : mediaFiles()) {
            const std::wstring wide = path.toStdWString();
            bare += secondsOf([&] { bareLibrary(wide); });
            round += secondsOf([&] { benchmark::DoNotOptimize(builder.dataAboutFile(path)); });
        }
        ours += round;
        state.SetIterationTime(round);
    }
    state.counters["files"] = static_cast<double>(mediaFiles().size());
    state.counters["ratio"] = ours / bare;
}
BENCHMARK(recordAgainstBareLibrary)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(5);

/// What the records of all files take while they are kept, covers not counted.
void memoryOfRecord(benchmark::State &state)
{
    const RecordBuilder builder({});
    double bytes = 0;
    for ([[maybe_unused]] auto _ : state) {
        std::vector<QuorvinDataPtr> records;
        records.reserve(mediaFiles().size());
        std::size_t covers = 0;
        for (const QString &path : mediaFiles()) {
            if (const auto record = builder.dataAboutFile(path)) {
                records.push_back(*record);
                covers += static_cast<std::size_t>((*record)->generalInfo().cover.pixels.size());
            }
        }
        const std::size_t before = mallinfo2().uordblks;
        const auto count = static_cast<double>(records.size());
        records.clear();
        bytes = static_cast<double>(before - mallinfo2().uordblks - covers) / count;
    }
    state.counters["KiB_a_record"] = bytes / 1024;
}
BENCHMARK(memoryOfRecord)->Iterations(3)->Unit(benchmark::kMillisecond);

} // namespace
