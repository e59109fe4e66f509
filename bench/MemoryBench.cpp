// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "BenchFiles.h"
#include "platform/HeapMemory.h"
#include "shell/filelist/FilelistController.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <algorithm>
#include <memory>

namespace {

using namespace quorvin;

constexpr int kFiles = 20'000;
constexpr int kRefreshes = 3;
constexpr qint64 kRestMilliseconds = 3'000; ///< after which what is free has been given back

/// Resident memory of this process, in MB.
double residentMegabytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toDouble() * static_cast<double>(::sysconf(_SC_PAGESIZE))
        * 1e-6;
}

void rest()
{
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < kRestMilliseconds)
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 50);
}

/// Runs the event loop until all files are done, and gives its longest turn.
double longestTurnUntilDone(const FilelistController &list)
{
    double longest = 0;
    const auto isDone = [&] {
        return list.worker().processingIsDone()
            && std::ranges::all_of(list.filelist(),
                                   [](const FilelistItemPtr &file) { return file->isDone(); });
    };
    while (!isDone()) {
        for (int i = 0; i < 100; ++i) {
            // Leaves the processors to the readers.
            QThread::msleep(2);
            longest = std::max(longest, bench::secondsOf([] { QCoreApplication::processEvents(); }));
        }
    }
    return longest;
}

/// What a long list takes at first, after it was read again and again, and when it is gone; and the longest
/// turn of the event loop while all of it is read again.
void listMemory(benchmark::State &state)
{
    keepHeapCompact();
    const QTemporaryDir folder;
    const auto &files = bench::mediaFiles();
    for (std::size_t i = 0; i < kFiles; ++i)
        QFile::link(files[i % files.size()], folder.filePath(QString::number(i)));
    for ([[maybe_unused]] auto _ : state) {
        Settings values{QString()};
        values.set(Setting::MTMode, 256);
        LiveSettings settings(values);
        auto list = std::make_unique<FilelistController>(settings);
        list->processFiles({folder.path()});
        while (list->filelist().empty())
            QCoreApplication::processEvents();
        longestTurnUntilDone(*list);
        rest();
        state.counters["first_MB"] = residentMegabytes();
        double turn = 0;
        for (int i = 0; i < kRefreshes; ++i) {
            list->selection().select({list->arranged().index(0, 0), list->arranged().index(kFiles - 1, 0)},
                                     QItemSelectionModel::ClearAndSelect);
            turn = std::max(turn, bench::secondsOf([&] { list->refreshInfo(); }));
            turn = std::max(turn, longestTurnUntilDone(*list));
        }
        rest();
        state.counters["refreshed_MB"] = residentMegabytes();
        state.counters["turn_s"] = turn;
        list.reset();
        rest();
        state.counters["empty_MB"] = residentMegabytes();
    }
}
BENCHMARK(listMemory)->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace
