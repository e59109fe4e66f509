// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/ArrangedFilelist.h"
#include "shell/filelist/FilelistModel.h"
#include "shell/filelist/FilelistTable.h"

#include <QApplication>
#include <QImage>

#include <benchmark/benchmark.h>

namespace {

using namespace quorvin;

std::vector<FilelistItemPtr> files(std::size_t count)
{
    std::vector<FilelistItemPtr> made;
    for (std::size_t i = 0; i < count; ++i) {
        const QString name = QStringLiteral("Holiday/IMG_%1.jpg").arg(i);
        made.push_back(FilelistItem::itemWithFilename(QStringLiteral("/home/anna/") + name, name));
    }
    return made;
}

/// A table on the screen, over its two lists.
struct List {
    FilelistModel whole;
    ArrangedFilelist arranged{whole};
    QItemSelectionModel selection{&arranged};
    FilelistTable table{arranged, selection};

    List()
    {
        table.resize(200, 800);
        table.show();
    }
};

/// Putting a list into a table that is on the screen, by the row.
void listFill(benchmark::State &state)
{
    const auto list = files(static_cast<std::size_t>(state.range(0)));
    List shown;
    for ([[maybe_unused]] auto _ : state) {
        shown.whole.setFiles(list);
        QApplication::processEvents();
        benchmark::DoNotOptimize(
            shown.table.visualRect(shown.arranged.index(shown.arranged.rowCount() - 1, 0)));
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(listFill)->Arg(1'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

/// An arrow key in a long list: the selection moves, and both rows are drawn.
void listStep(benchmark::State &state)
{
    List shown;
    shown.whole.setFiles(files(static_cast<std::size_t>(state.range(0))));
    const int rows = shown.arranged.rowCount();
    int row = rows / 2;
    for ([[maybe_unused]] auto _ : state) {
        shown.selection.setCurrentIndex(shown.arranged.index(++row % rows, 0),
                                        QItemSelectionModel::ClearAndSelect);
        QApplication::processEvents();
    }
}
BENCHMARK(listStep)->Arg(1'000)->Arg(100'000)->Unit(benchmark::kMicrosecond);

/// Drawing all rows that can be seen, by the row.
void listPaint(benchmark::State &state)
{
    List shown;
    shown.whole.setFiles(files(100'000));
    QApplication::processEvents();
    QImage image(shown.table.size(), QImage::Format_ARGB32_Premultiplied);
    const int rows = shown.table.height() / shown.table.visualRect(shown.arranged.index(0, 0)).height();
    for ([[maybe_unused]] auto _ : state)
        shown.table.render(&image);
    state.SetItemsProcessed(state.iterations() * rows);
}
BENCHMARK(listPaint)->Unit(benchmark::kMicrosecond);

/// Every second row of a long list, all of them selected, dragged to its middle.
void listReorder(benchmark::State &state)
{
    List shown;
    shown.whole.setFiles(files(static_cast<std::size_t>(state.range(0))));
    const int rows = shown.arranged.rowCount();
    std::vector<int> dragged;
    for (int row = 0; row < rows; row += 2)
        dragged.push_back(row);
    shown.selection.select(
        {shown.arranged.index(0, 0), shown.arranged.index(state.range(1) ? rows - 1 : 3, 0)},
        QItemSelectionModel::Select);
    for ([[maybe_unused]] auto _ : state) {
        shown.whole.moveFiles(dragged, rows / 2);
        QApplication::processEvents();
    }
}
BENCHMARK(listReorder)
    ->Args({1'000, 0})
    ->Args({100'000, 0})
    ->Args({100'000, 1})
    ->Unit(benchmark::kMillisecond);

/// Typing a name that no file has.
void listTypeAhead(benchmark::State &state)
{
    List shown;
    shown.whole.setFiles(files(100'000));
    for ([[maybe_unused]] auto _ : state)
        shown.table.keyboardSearch(QStringLiteral("z"));
}
BENCHMARK(listTypeAhead)->Unit(benchmark::kMillisecond);

} // namespace
