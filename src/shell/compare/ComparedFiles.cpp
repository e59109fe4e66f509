// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/compare/ComparedFiles.h"

#include <QHash>

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>

namespace quorvin {

bool ComparedFiles::take(const std::vector<FilelistItemPtr> &files, int limit)
{
    std::vector<ComparedFile> taken;
    ComparedCounts counts;
    for (const FilelistItemPtr &file : files) {
        const bool isClosed = _closed.contains(file);
        QuorvinDataPtr record = file->quorvinData();
        if (!record)
            continue;
        ++counts.all;
        if (isClosed)
            ++counts.closed;
        else if (std::cmp_less(taken.size(), limit))
            taken.push_back({file, std::move(record)});
    }
    counts.shown = std::ssize(taken);
    // Those that nobody else has any more.
    std::erase_if(_closed, [](const FilelistItemPtr &file) { return file.use_count() == 1; });
    _counts = counts;
    if (taken == _files)
        return false;
    _files = std::move(taken);
    return true;
}

std::vector<int> ComparedFiles::order() const
{
    QHash<const FilelistItem *, int> places;
    for (const FilelistItem *file : _places)
        places.insert(file, static_cast<int>(places.size()));
    const auto placeOf = [&](int file) {
        return places.value(_files[static_cast<std::size_t>(file)].file.get(),
                            static_cast<int>(places.size()));
    };
    std::vector<int> order(_files.size());
    std::iota(order.begin(), order.end(), 0);
    std::ranges::stable_sort(order, {}, placeOf);
    return order;
}

void ComparedFiles::setOrder(const std::vector<ComparedFile> &files)
{
    _places.clear();
    for (const ComparedFile &file : files)
        _places.push_back(file.file.get());
}

QStringList ComparedFiles::columns(const std::vector<FilelistItemPtr> &files) const
{
    QHash<const FilelistItem *, int> places;
    for (const FilelistItem *file : _places)
        places.insert(file, static_cast<int>(places.size()));
    std::vector<FilelistItemPtr> open;
    std::ranges::copy_if(files, std::back_inserter(open),
                         [this](const FilelistItemPtr &file) { return !_closed.contains(file); });
    std::ranges::stable_sort(open, {}, [&](const FilelistItemPtr &file) {
        return places.value(file.get(), static_cast<int>(places.size()));
    });
    QStringList paths;
    for (const FilelistItemPtr &file : open)
        paths.append(file->filename());
    return paths;
}

void ComparedFiles::setColumns(const std::vector<FilelistItemPtr> &files, const QStringList &paths)
{
    QHash<QString, qsizetype> places;
    for (const QString &path : paths)
        places.insert(path, places.size());
    std::vector<FilelistItemPtr> open;
    _closed.clear();
    for (const FilelistItemPtr &file : files) {
        if (places.contains(file->filename()))
            open.push_back(file);
        else
            _closed.insert(file);
    }
    std::ranges::stable_sort(open, {},
                             [&](const FilelistItemPtr &file) { return places.value(file->filename()); });
    _places.clear();
    for (const FilelistItemPtr &file : open)
        _places.push_back(file.get());
}

void ComparedFiles::close(const FilelistItemPtr &file)
{
    _closed.insert(file);
}

ComparisonContent orderedRows(const std::vector<ComparedFile> &files, const std::vector<int> &order)
{
    ComparisonBuilder builder;
    for (const ComparedFile &file : files)
        builder.add(*file.record);
    return reordered(builder.take(), order);
}

ComparisonContent reordered(ComparisonContent content, const std::vector<int> &order)
{
    if (std::ranges::is_sorted(order))
        return content;
    for (ComparisonRow &row : content) {
        if (row.isHeading())
            continue;
        QStringList values{row.values.front()};
        values.reserve(row.values.size());
        for (const int file : order)
            values.append(row.values[file + 1]);
        row.values = std::move(values);
    }
    return content;
}

QStringList orderedPaths(const std::vector<ComparedFile> &files, const std::vector<int> &order)
{
    QStringList paths;
    for (const int file : order)
        paths.append(files[static_cast<std::size_t>(file)].file->filename());
    return paths;
}

} // namespace quorvin
