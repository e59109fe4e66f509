// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "BenchFiles.h"
#include "Turns.h"
#include "shell/app/AppController.h"
#include "shell/window/MainView.h"
#include "shell/window/MainWindowController.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

namespace {

using namespace quorvin;
using bench::longestTurnFor;
using bench::longestTurnOf;
using bench::longestTurnUntil;
using bench::millisecondsOf;

constexpr int kFiles = 100'000;
constexpr int kFolders = 100;
constexpr std::size_t kFew = 20; ///< a file has at most some ten thousand links

/// Many files in a hundred folders, all links to a few in `seeds`, on the same disk.
void fill(const QString &folder, const QString &seeds)
{
    const auto &files = bench::mediaFiles();
    std::vector<QByteArray> few;
    for (std::size_t i = 0; i < std::min(files.size(), kFew); ++i) {
        const QString seed = QStringLiteral("%1/%2").arg(seeds).arg(i);
        QFile::copy(files[i], seed);
        few.push_back(QFile::encodeName(seed));
    }
    for (int i = 0; i < kFolders; ++i)
        QDir(folder).mkdir(QString::number(i));
    for (int i = 0; i < kFiles; ++i) {
        const QString name = QStringLiteral("%1/%2/IMG_%3").arg(folder).arg(i % kFolders).arg(i);
        if (::link(few[static_cast<std::size_t>(i) % few.size()].constData(),
                   QFile::encodeName(name).constData())
            != 0)
            qFatal("no more links");
    }
}

/// From the drop to the first row, and to the first record.
void measureIntake(benchmark::State &state, FilelistController &files, const QString &folder)
{
    QElapsedTimer clock;
    clock.start();
    files.processFiles({folder});
    const double add = longestTurnUntil([&] { return !files.filelist().empty(); });
    state.counters["first_row_ms"] = static_cast<double>(clock.elapsed());
    const double first = longestTurnUntil([&] { return files.canExport(); });
    state.counters["first_record_ms"] = static_cast<double>(clock.elapsed());
    state.counters["add_turn_ms"] = std::max(add, first);
    state.counters["read_turn_ms"] = longestTurnFor(5000);
}

void measureReading(benchmark::State &state, FilelistController &files)
{
    state.counters["refresh_turn_ms"] = longestTurnOf([&] { files.refreshAll(); }, 3000);
    state.counters["stop_turn_ms"] = longestTurnOf([&] { files.stopReading(); });
    state.counters["go_on_turn_ms"] = longestTurnOf([&] { files.goOn(); });
}

/// Three keys in the field for names, and all of them deleted.
void measureFiltering(benchmark::State &state, FilelistController &files)
{
    double longest = 0;
    for (const char *text : {"1", "12", "123", ""}) {
        const FilelistFilter criteria{.filenameText = QString::fromLatin1(text)};
        longest = std::max(longest, longestTurnOf([&] { files.filtering().setCriteria(criteria); }));
    }
    state.counters["filter_turn_ms"] = longest;
}

/// Every so many rows, taken out, brought back and moved.
void measureEditing(benchmark::State &state, FilelistController &files, int step, const std::string &name)
{
    std::vector<int> rows;
    QItemSelection selection;
    for (int row = 1; row < kFiles; row += step) {
        rows.push_back(row);
        selection.append(QItemSelectionRange(files.arranged().index(row, 0)));
    }
    // Nobody selects so many by hand: without the turn that this takes.
    files.selection().select(selection, QItemSelectionModel::ClearAndSelect);
    longestTurnFor(300);
    state.counters["remove" + name] = longestTurnOf([&] { files.removeSelectedItems(); });
    state.counters["undo" + name] = longestTurnOf([&] { files.undoRemoval(); });
    state.counters["move" + name] = longestTurnOf([&] { files.moveFiles(rows, kFiles / 2); });
}

/// The longest turn of the event loop in each of the things that one does with a very long list.
void longList(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QTemporaryDir seeds;
    fill(folder.path(), seeds.path());
    for ([[maybe_unused]] auto _ : state) {
        Settings settings{QString()};
        settings.set(Setting::MTMode, 256);
        AppController application(settings);
        MainWindowController *window = application.openEmptyWindow();
        FilelistController &files = window->files();
        longestTurnFor(500);
        measureIntake(state, files, folder.path());
        measureReading(state, files);
        files.stopReading();
        longestTurnFor(500);
        measureFiltering(state, files);
        measureEditing(state, files, 2, "_half_turn_ms");
        measureEditing(state, files, kFiles / 30, "_few_turn_ms");
        state.counters["export_turn_ms"] = millisecondsOf([&] { files.arrayWithDataForExport(); });
        state.counters["close_turn_ms"] = millisecondsOf([&] { window->close(); });
    }
}
BENCHMARK(longList)->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace
