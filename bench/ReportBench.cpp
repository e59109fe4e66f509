// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "BenchFiles.h"
#include "Turns.h"
#include "shell/app/AppController.h"
#include "shell/info/CustomPane.h"
#include "shell/info/InfoView.h"
#include "shell/info/ReportText.h"
#include "shell/window/MainView.h"
#include "shell/window/MainWindowController.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

using namespace quorvin;

constexpr int kBoxes = 900'000; ///< each has some 220 letters of a trace
constexpr qsizetype kHead = 32; ///< bytes of the film's first box

/// The film of the samples with very many small boxes.
void writeFilmOfBoxes(const QString &path)
{
    for (const QString &file : bench::mediaFiles()) {
        if (!file.endsWith(QLatin1String("movie.mp4")))
            continue;
        QFile film(file);
        QFile large(path);
        if (!film.open(QIODevice::ReadOnly) || !large.open(QIODevice::WriteOnly))
            qFatal("no film");
        large.write(film.read(kHead));
        large.write(QByteArray("\0\0\0\x0c"
                               "freeabcd",
                               12)
                        .repeated(kBoxes));
        large.write(film.readAll());
    }
}

/// Of this process, since it began to be counted anew.
double mostMegabytes()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.simplified().split(' ').at(1).toDouble() / 1024;
    }
    return 0;
}

/// A trace of some 200 MB in the Custom tab: when it is there, the longest turn of the event loop, and the
/// memory of the window's process above what it has before, at the most.
void longReport(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("boxes.mp4"));
    writeFilmOfBoxes(path);
    for ([[maybe_unused]] auto _ : state) {
        Settings settings{QString()};
        AppController application(settings);
        MainWindowController *window = application.openEmptyWindow();
        window->files().processFiles({path});
        bench::longestTurnUntil([&] { return window->files().canExport(); });
        InfoView &info = window->myView().info();
        info.setCurrentTab(Tab::Custom);
        info.custom().showReport(QStringLiteral("mediainfo-trace"));
        const double before = mostMegabytes();
        const auto *report = info.custom().findChild<ReportText *>();
        QElapsedTimer clock;
        clock.start();
        state.counters["turn_ms"]
            = bench::longestTurnUntil([&] { return report->text().size() > 100'000'000; });
        state.counters["there_ms"] = static_cast<double>(clock.elapsed());
        state.counters["letters"] = static_cast<double>(report->text().size());
        state.counters["after_turn_ms"] = bench::longestTurnFor(1000);
        state.counters["more_mb"] = mostMegabytes() - before;
        state.counters["leave_turn_ms"]
            = bench::longestTurnOf([&] { window->files().removeSelectedItems(); });
        window->close();
    }
}
BENCHMARK(longReport)->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace
