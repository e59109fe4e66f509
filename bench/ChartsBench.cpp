// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ManyRecords.h"
#include "Turns.h"
#include "shell/app/AppController.h"
#include "shell/charts/CountModel.h"
#include "shell/charts/MapCanvas.h"
#include "shell/charts/MapWindow.h"
#include "shell/charts/StatWindow.h"
#include "shell/commands/CommandSet.h"
#include "shell/window/MainWindowController.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QTableView>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <functional>
#include <random>
#include <vector>

namespace {

using namespace quorvin;
using bench::longestTurnFor;
using bench::longestTurnUntil;
using bench::millisecondsOf;

constexpr int kFiles = 100'000;
constexpr int kFrames = 60;

FilelistItemPtr readFile(int number, const QuorvinDataPtr &record)
{
    const QString path = QStringLiteral("/x/IMG_%1.jpg").arg(number);
    auto file = FilelistItem::itemWithFilename(path, path);
    file->setResult(record);
    file->setIsDone(true);
    return file;
}

/// A window with these files, which are read already.
struct FilledWindow {
    Settings settings{QString()};
    AppController application{settings};
    MainWindowController *window = application.openEmptyWindow();

    explicit FilledWindow(const std::vector<FilelistItemPtr> &files)
    {
        longestTurnFor(500);
        window->files().setFiles(files, {});
        longestTurnFor(1500);
    }
};

/// Opens a window by the command and tells how long that takes, how long until `isThere`, and the longest
/// turn of the event loop meanwhile.
void open(benchmark::State &state, FilledWindow &filled, Command command,
          const std::function<bool()> &isThere)
{
    QElapsedTimer clock;
    clock.start();
    state.counters["open_ms"] = millisecondsOf([&] { filled.window->commands().run(command); });
    state.counters["turn_ms"] = longestTurnUntil(isThere);
    state.counters["there_ms"] = static_cast<double>(clock.elapsed());
}

/// Records of 150 parameters, each of many files.
std::vector<FilelistItemPtr> filesOfFewRecords()
{
    std::vector<QuorvinDataPtr> records;
    for (const FilelistItemPtr &file : bench::manyRecords().files) {
        if (const QuorvinDataPtr record = file->quorvinData())
            records.push_back(record);
    }
    std::vector<FilelistItemPtr> files;
    for (int i = 0; i < kFiles; ++i)
        files.push_back(readFile(i, records[static_cast<std::size_t>(i) % records.size()]));
    return files;
}

/// The statistics of 100,000 files: opened, and another parameter counted and drawn.
void statisticsWindow(benchmark::State &state)
{
    for ([[maybe_unused]] auto _ : state) {
        FilledWindow filled(filesOfFewRecords());
        // The index learns of all files first.
        bool isIndexed = false;
        filled.window->files().filtering().lookAtIndex([&](const RecordIndex &, const std::stop_token &) {
            return std::function<void()>([&isIndexed] { isIndexed = true; });
        });
        longestTurnUntil([&isIndexed] { return isIndexed; });
        const auto tableOf = [&] {
            const auto *stat = filled.window->findChild<StatWindow *>();
            return stat
                ? static_cast<const CountModel *>(const_cast<StatWindow *>(stat)->table().model())->table()
                : nullptr;
        };
        open(state, filled, Command::showStatWindow, [&] { return tableOf() != nullptr; });
        longestTurnFor(500);
        const QString wanted = QStringLiteral("Video/Bit rate");
        QElapsedTimer clock;
        clock.start();
        filled.window->findChild<StatWindow *>()->showParameter(wanted);
        state.counters["count_turn_ms"]
            = longestTurnUntil([&] { return tableOf() && tableOf()->count().parameter == wanted; });
        state.counters["counted_ms"] = static_cast<double>(clock.elapsed());
        filled.window->close();
    }
}
BENCHMARK(statisticsWindow)->Name("charts/statistics window")->Iterations(1)->Unit(benchmark::kMillisecond);

/// So many files around towns of their own.
std::vector<FilelistItemPtr> locatedFiles()
{
    std::mt19937 random(1);
    std::normal_distribution<> around(0, 0.5);
    std::uniform_real_distribution<> latitudes(-50, 65);
    std::uniform_real_distribution<> longitudes(-170, 170);
    std::vector<FilelistItemPtr> files;
    Location town;
    for (int i = 0; i < kFiles; ++i) {
        if (i % 200 == 0)
            town = {latitudes(random), longitudes(random)};
        RecordContents contents;
        contents.mapLocation = Location{town.latitude + around(random), town.longitude + around(random)};
        files.push_back(readFile(i, std::make_shared<const QuorvinData>(std::move(contents))));
    }
    return files;
}

/// The longest and the mean frame while the map moves on or grows.
void measureFrames(benchmark::State &state, MapCanvas &canvas, const char *name,
                   const std::function<void()> &step)
{
    double longest = 0;
    double sum = 0;
    for (int i = 0; i < kFrames; ++i) {
        const double frame = millisecondsOf([&] {
            step();
            canvas.repaint();
        });
        longest = std::max(longest, frame);
        sum += frame;
        longestTurnFor(10);
    }
    state.counters[std::string(name) + "_longest_ms"] = longest;
    state.counters[std::string(name) + "_mean_ms"] = sum / kFrames;
}

/// The map of 100,000 files: opened, moved and enlarged.
void mapWindow(benchmark::State &state)
{
    for ([[maybe_unused]] auto _ : state) {
        FilledWindow filled(locatedFiles());
        const auto mapOf = [&] { return filled.window->findChild<MapWindow *>(); };
        open(state, filled, Command::showMapWindow,
             [&] { return mapOf() && mapOf()->table().model()->rowCount() == kFiles; });
        longestTurnFor(1500);
        MapCanvas &canvas = mapOf()->canvas();
        const auto press = [&canvas](Qt::Key key) {
            return [&canvas, key] {
                QKeyEvent event(QEvent::KeyPress, key, {});
                QCoreApplication::sendEvent(&canvas, &event);
            };
        };
        measureFrames(state, canvas, "pan_world", press(Qt::Key_Left));
        canvas.zoomIn();
        canvas.zoomIn();
        longestTurnFor(500);
        measureFrames(state, canvas, "pan_near", press(Qt::Key_Right));
        canvas.showAll();
        measureFrames(state, canvas, "zoom", press(Qt::Key_Plus));
        state.counters["follow_turn_ms"] = bench::longestTurnOf([&] { canvas.showAll(); }, 1000);
        filled.window->close();
    }
}
BENCHMARK(mapWindow)->Name("charts/map window")->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace
