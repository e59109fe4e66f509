// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/SelectionSum.h"

#include "shell/filelist/FilelistController.h"

#include <algorithm>
#include <utility>

namespace quorvin {

namespace {

/// A long selection that is being extended is not summed up at every step.
constexpr int kLongSelectionMilliseconds = 60;
/// So often the sum follows what is read; and most of the time is left to the reading.
constexpr int kRecordsMilliseconds = 250;
constexpr int kRestFactor = 10;

} // namespace

SelectionSum::SelectionSum(FilelistController &files, QObject *parent) : QObject(parent), _files(files)
{
    _delay.setSingleShot(true);
    connect(&_delay, &QTimer::timeout, this, &SelectionSum::make);
    connect(&files.selection(), &QItemSelectionModel::selectionChanged, this,
            &SelectionSum::selectionDidChange);
    connect(&files, &FilelistController::totalsDidChange, this, &SelectionSum::recordsDidChange);
}

void SelectionSum::selectionDidChange()
{
    const int count = _files.selectedCount();
    _run.cancel();
    if (count >= 2) {
        // When the list itself is changing, its rows are not yet what they will be.
        _delay.start(count <= kFewFiles ? 0 : kLongSelectionMilliseconds);
    } else {
        _delay.stop();
        setSum(nullptr);
    }
}

void SelectionSum::recordsDidChange()
{
    if (_files.selectedCount() < 2)
        return selectionDidChange();
    if (!_delay.isActive())
        _delay.start(std::max(kRecordsMilliseconds, kRestFactor * _lastMilliseconds));
}

std::vector<FilelistItemPtr> SelectionSum::selectedFiles() const
{
    const std::vector<FilelistItemPtr> &all = _files.arranged().files();
    std::vector<FilelistItemPtr> selected;
    for (const int row : _files.selectedRows()) {
        if (static_cast<std::size_t>(row) < all.size())
            selected.push_back(all[static_cast<std::size_t>(row)]);
    }
    return selected;
}

void SelectionSum::make()
{
    // It ends soon, and what has come meanwhile is counted the next time.
    if (_run.isUnderWay())
        return recordsDidChange();
    std::vector<FilelistItemPtr> files = selectedFiles();
    if (files.size() < 2)
        return setSum(nullptr);
    _sinceStart.start();
    if (files.size() <= kFewFiles)
        return setSum(std::make_shared<const FileSum>(sumOf(files)));
    _run.start(
        "SelectionSum",
        [files = std::move(files)](const RunControl &run) { return sumOf(files, run.stop()); },
        [this](FileSum sum) { setSum(std::make_shared<const FileSum>(std::move(sum))); });
}

void SelectionSum::setSum(std::shared_ptr<const FileSum> sum)
{
    if (sum)
        _lastMilliseconds = static_cast<int>(_sinceStart.elapsed());
    if (sum == _sum || (sum && _sum && *sum == *_sum))
        return;
    _sum = std::move(sum);
    Q_EMIT changed();
}

} // namespace quorvin
