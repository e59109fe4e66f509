// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

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

/// Putting a list into a table that is on the screen, by the row.
void listFill(benchmark::State &state)
{
    const auto list = files(static_cast<std::size_t>(state.range(0)));
    FilelistModel model;
    FilelistTable table(model);
    table.resize(200, 800);
    table.show();
    for ([[maybe_unused]] auto _ : state) {
        model.setFiles(list);
        QApplication::processEvents();
        benchmark::DoNotOptimize(table.visualRect(model.index(model.rowCount() - 1)));
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(listFill)->Arg(1'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

/// An arrow key in a long list: the selection moves, and both rows are drawn.
void listStep(benchmark::State &state)
{
    FilelistModel model;
    model.setFiles(files(static_cast<std::size_t>(state.range(0))));
    FilelistTable table(model);
    table.resize(200, 800);
    table.show();
    int row = model.rowCount() / 2;
    for ([[maybe_unused]] auto _ : state) {
        table.selectRow(++row % model.rowCount());
        QApplication::processEvents();
    }
}
BENCHMARK(listStep)->Arg(1'000)->Arg(100'000)->Unit(benchmark::kMicrosecond);

/// Drawing all rows that can be seen, by the row.
void listPaint(benchmark::State &state)
{
    FilelistModel model;
    model.setFiles(files(100'000));
    FilelistTable table(model);
    table.resize(200, 800);
    table.show();
    QApplication::processEvents();
    QImage image(table.size(), QImage::Format_ARGB32_Premultiplied);
    const int rows = table.height() / table.visualRect(model.index(0)).height();
    for ([[maybe_unused]] auto _ : state)
        table.render(&image);
    state.SetItemsProcessed(state.iterations() * rows);
}
BENCHMARK(listPaint)->Unit(benchmark::kMicrosecond);

} // namespace
