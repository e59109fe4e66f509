// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "BenchFiles.h"
#include "intake/FilelistFiller.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <fstream>

namespace {

using namespace quorvin;
using bench::secondsOf;

constexpr int kFolders = 100;
constexpr int kFilesInFolder = 1000;

void makeTree(const QString &root)
{
    for (int folder = 0; folder < kFolders; ++folder) {
        const std::string path = root.toStdString() + "/Holiday " + std::to_string(folder);
        const std::string command = "mkdir '" + path + "'";
        if (std::system(command.c_str()) != 0)
            return;
        for (int file = 0; file < kFilesInFolder; ++file)
            std::ofstream(path + "/IMG_" + std::to_string(file) + ".jpg");
    }
}

/// Walking and sorting 100,000 files against `find | sort` over the same folder.
void walkAgainstFindAndSort(benchmark::State &state)
{
    const QTemporaryDir root(QStringLiteral("/dev/shm/quorvin-bench-XXXXXX"));
    makeTree(root.path());
    const std::string command = "find '" + root.path().toStdString() + "' -type f | sort >/dev/null";
    double ours = 0;
    double theirs = 0;
    for ([[maybe_unused]] auto _ : state) {
        theirs += secondsOf([&] { benchmark::DoNotOptimize(std::system(command.c_str())); });
        const double round = secondsOf([&] {
            benchmark::DoNotOptimize(FilelistFiller::fillerWithSourceArray({root.path()}).filelist().size());
        });
        ours += round;
        state.SetIterationTime(round);
    }
    state.counters["files"] = kFolders * kFilesInFolder;
    state.counters["ratio"] = ours / theirs;
}
BENCHMARK(walkAgainstFindAndSort)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
