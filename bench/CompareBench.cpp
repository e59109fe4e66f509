// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "BenchFiles.h"
#include "comparison/ComparisonController.h"
#include "comparison/ComparisonExport.h"
#include "comparison/ComparisonRows.h"
#include "shell/compare/ComparisonTable.h"

#include <QApplication>
#include <QFile>
#include <QScrollBar>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>
#include <vector>

namespace {

using namespace quorvin;
using bench::secondsOf;

constexpr int kSections = 10;

/// The record of a file with so many parameters; a third of them differ from file to file.
QuorvinDataPtr madeRecord(int file, int parameters)
{
    RecordContents record;
    record.filename = QStringLiteral("/media/file-%1.mov").arg(file);
    for (int section = 0; section < kSections; ++section) {
        record.groups.beginGroup(QStringLiteral("Section %1").arg(section));
        record.groups.beginStream(1);
        for (int i = section; i < parameters; i += kSections) {
            const QString key = QStringLiteral("Parameter_%1").arg(i);
            record.groups.add(internTerm(key, key),
                              QStringLiteral("value of %1, %2").arg(i).arg(i % 3 == 0 ? file : 0));
        }
    }
    record.groups.squeeze();
    return std::make_shared<const QuorvinData>(std::move(record));
}

std::vector<QuorvinDataPtr> madeRecords(int files, int parameters)
{
    std::vector<QuorvinDataPtr> records;
    for (int file = 0; file < files; ++file)
        records.push_back(madeRecord(file, parameters));
    return records;
}

QStringList pathsOf(const std::vector<QuorvinDataPtr> &records)
{
    QStringList paths;
    for (const QuorvinDataPtr &record : records)
        paths.append(record->filename());
    return paths;
}

/// Everything that the table of a window takes off the main thread.
void rowsOfATab(benchmark::State &state)
{
    const auto records = madeRecords(70, 500);
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(comparisonRows(records));
}
BENCHMARK(rowsOfATab)->Unit(benchmark::kMillisecond);

/// What a further file that is finished costs the main thread, with the rows made.
void anotherFileInTheTab(benchmark::State &state)
{
    const auto records = madeRecords(70, 2000);
    const std::span all(records);
    const ComparisonContent before = comparisonRows(all.first(69));
    const ComparisonContent after = comparisonRows(all);
    const QStringList paths = pathsOf(records);
    for ([[maybe_unused]] auto _ : state) {
        ComparisonController table;
        table.setContent(before, paths.first(69));
        state.SetIterationTime(secondsOf([&] { table.setContent(after, paths); }));
    }
}
BENCHMARK(anotherFileInTheTab)->UseManualTime()->Unit(benchmark::kMillisecond);

/// The first and the last hit of a search: all cells are looked at.
void searchOfATab(benchmark::State &state)
{
    const auto records = madeRecords(70, 2000);
    ComparisonController table;
    table.setContent(comparisonRows(records), pathsOf(records));
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(table.numberOfHits(QStringLiteral("nowhere")));
}
BENCHMARK(searchOfATab)->Unit(benchmark::kMillisecond);

/// Processor time of this thread, so that what else the machine does counts for nothing.
double turnMilliseconds()
{
    const auto now = [] {
        timespec time{};
        ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) * 1e-6;
    };
    const double start = now();
    QApplication::processEvents();
    return now() - start;
}

/// The longest turn of the event loop while a bar is moved from end to end.
double longestTurnOf(QScrollBar &bar, QAbstractSlider::SliderAction action)
{
    double longest = 0;
    for (bar.setValue(bar.minimum()); bar.value() < bar.maximum();) {
        bar.triggerAction(action);
        longest = std::max(longest, turnMilliseconds());
    }
    return longest;
}

/// A table on the screen that is scrolled through by the page, the line and the column, and brought back at
/// once.
void scrollOfATab(benchmark::State &state, bool wraps)
{
    const auto records = madeRecords(70, 2000);
    ComparisonController content;
    ComparisonTable table(content);
    table.setLook({.font = QApplication::font(), .rowHeight = 20, .wraps = wraps});
    table.resize(1400, 900);
    table.show();
    table.change([&] { content.setContent(comparisonRows(records), pathsOf(records)); });
    QApplication::processEvents();
    for ([[maybe_unused]] auto _ : state) {
        QScrollBar &rows = *table.verticalScrollBar();
        state.counters["page_ms"] = longestTurnOf(rows, QAbstractSlider::SliderPageStepAdd);
        state.counters["line_ms"] = longestTurnOf(rows, QAbstractSlider::SliderSingleStepAdd);
        state.counters["column_ms"]
            = longestTurnOf(*table.horizontalScrollBar(), QAbstractSlider::SliderSingleStepAdd);
        rows.setValue(rows.minimum());
        state.counters["end_ms"] = turnMilliseconds();
    }
}
BENCHMARK_CAPTURE(scrollOfATab, cut, false)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(scrollOfATab, wrapped, true)->Iterations(1)->Unit(benchmark::kMillisecond);

/// The whole table of the command line, from records to a document, against reading each value once.
void tableOfTheCommandLine(benchmark::State &state, const char *format)
{
    const auto records = madeRecords(1000, 150);
    const QTemporaryDir folder(QStringLiteral("/dev/shm/quorvin-bench-XXXXXX"));
    double reading = 0;
    double ours = 0;
    for ([[maybe_unused]] auto _ : state) {
        reading += secondsOf([&] {
            for (const QuorvinDataPtr &record : records) {
                for (const auto &group : record->groups().groups()) {
                    for (const auto &stream : group.streams) {
                        for (const auto &parameter : record->groups().parameters(stream))
                            benchmark::DoNotOptimize(record->groups().value(parameter));
                    }
                }
            }
        });
        const double round = secondsOf([&] {
            QFile file(folder.filePath(QStringLiteral("table")));
            if (file.open(QIODevice::WriteOnly))
                static_cast<void>(ComparisonExport::write(QLatin1String(format), comparisonRows(records),
                                                          pathsOf(records), file));
        });
        ours += round;
        state.SetIterationTime(round);
    }
    state.counters["ratio"] = ours / reading;
}
BENCHMARK_CAPTURE(tableOfTheCommandLine, csv, "csv")->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(tableOfTheCommandLine, html, "html")->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(tableOfTheCommandLine, json, "json")->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
