// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "BenchFiles.h"
#include "shell/app/AppController.h"
#include "shell/window/MainView.h"
#include "shell/window/MainWindowController.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QStringList>

#include <benchmark/benchmark.h>

#include <algorithm>

namespace {

using namespace quorvin;

constexpr double kMillisecond = 1e-3;

/// From the files to the first of them on the screen; then the longest turn of the event loop until the last
/// is done, and how long the window takes to close while it is at it again.
void windowRun(benchmark::State &state)
{
    const QStringList paths(bench::mediaFiles().begin(), bench::mediaFiles().end());
    double first = 0;
    double stall = 0;
    double close = 0;
    for ([[maybe_unused]] auto _ : state) {
        Settings settings{QString()};
        AppController application(settings);
        MainWindowController *window = application.openEmptyWindow();
        QApplication::processEvents();
        QElapsedTimer timer;
        timer.start();
        FilelistController &files = window->files();
        files.processFiles(paths);
        while (!files.canExport() || !window->worker().processingIsDone()) {
            const double turn = bench::secondsOf([] { QApplication::processEvents(); });
            stall = std::max(stall, turn);
            if (first == 0 && files.canExport())
                first = static_cast<double>(timer.elapsed()) * kMillisecond;
        }
        files.processFiles(paths);
        while (window->worker().countProcessed() == 0)
            QApplication::processEvents();
        close = std::max(close, bench::secondsOf([&] { window->close(); }));
    }
    state.counters["first_s"] = first;
    state.counters["stall_s"] = stall;
    state.counters["close_s"] = close;
}
BENCHMARK(windowRun)->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace
