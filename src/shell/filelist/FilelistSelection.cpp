// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/FilelistSelection.h"

#include "shell/filelist/ArrangedFilelist.h"

#include <algorithm>
#include <functional>

namespace quorvin {

namespace {

/// Whoever shows a selection takes long for one of thousands of ranges.
constexpr int kMostRanges = 1000;

} // namespace

FilelistSelection::FilelistSelection(ArrangedFilelist &files, QObject *parent)
    : QItemSelectionModel(&files, parent), _files(files)
{
}

int FilelistSelection::selectedRow() const
{
    const QModelIndex current = currentIndex();
    if (current.isValid() && isSelected(current))
        return current.row();
    const auto all = rows();
    return all.empty() ? -1 : all.front();
}

std::vector<int> FilelistSelection::rows() const
{
    std::vector<int> rows;
    for (const QItemSelectionRange &range : selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row);
    }
    std::ranges::sort(rows);
    return rows;
}

int FilelistSelection::count() const
{
    int count = 0;
    for (const QItemSelectionRange &range : selection())
        count += range.height();
    return count;
}

void FilelistSelection::selectRow(int row)
{
    setCurrentIndex(_files.index(row, 0), ClearAndSelect);
}

void FilelistSelection::selectFiles(const std::vector<FilelistItemPtr> &files, SelectionFlag how)
{
    std::vector<int> rows;
    rows.reserve(files.size());
    for (const FilelistItemPtr &file : files) {
        if (const int row = _files.rowOf(file); row >= 0)
            rows.push_back(row);
    }
    std::ranges::sort(rows);
    QItemSelection selection;
    for (std::size_t first = 0; first < rows.size() && selection.size() < kMostRanges;) {
        std::size_t last = first;
        while (last + 1 < rows.size() && rows[last + 1] == rows[last] + 1)
            ++last;
        selection.append({_files.index(rows[first], 0), _files.index(rows[last], 0)});
        first = last + 1;
    }
    if (selection.isEmpty())
        return;
    select(selection, how);
    setCurrentIndex(selection.front().topLeft(), NoUpdate);
}

void FilelistSelection::rearrange(const FilelistItemPtr &current)
{
    std::vector<FilelistItemPtr> selected;
    for (const int row : rows())
        selected.push_back(_files.fileAt(row));
    const FilelistItemPtr displaced = current == _standIn.lock() ? _displaced.lock() : nullptr;
    _files.rearrange();
    const auto isShown = [this](const FilelistItemPtr &file) { return file && _files.rowOf(file) >= 0; };
    if (isShown(displaced)) {
        _displaced.reset();
        return selectRow(_files.rowOf(displaced));
    }
    std::erase_if(selected, std::not_fn(isShown));
    if (!selected.empty()) {
        const QModelIndex place
            = _files.index(_files.rowOf(isShown(current) ? current : selected.front()), 0);
        if (count() != static_cast<int>(selected.size()) || currentIndex() != place) {
            clearSelection();
            selectFiles(selected);
            setCurrentIndex(place, NoUpdate);
        }
        return;
    }
    _displaced = displaced ? displaced : current;
    _standIn = _files.fileAt(0);
    if (_files.rowCount() > 0)
        selectRow(0);
}

} // namespace quorvin
