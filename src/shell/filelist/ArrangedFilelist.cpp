// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/ArrangedFilelist.h"

#include "shell/filelist/FilelistFiltering.h"
#include "shell/filelist/FilelistModel.h"

#include <algorithm>

namespace quorvin {

namespace {

/// With more runs of rows than this that come or go, the list is told as a new one: whoever shows the rows
/// follows each run by itself, in a time that grows with the list.
constexpr int kMostChangedRuns = 32;

/// So many files are asked within a few milliseconds.
constexpr int kSlice = 4'096;

std::size_t indexOf(int row)
{
    return static_cast<std::size_t>(row);
}

} // namespace

ArrangedFilelist::ArrangedFilelist(FilelistModel &whole, QObject *parent)
    : QSortFilterProxyModel(parent), _whole(whole)
{
    const auto forget = [this] { _files.reset(); };
    connect(this, &ArrangedFilelist::rowsInserted, this, forget);
    connect(this, &ArrangedFilelist::rowsRemoved, this, forget);
    connect(this, &ArrangedFilelist::layoutChanged, this, forget);
    connect(this, &ArrangedFilelist::modelReset, this, forget);
    connect(this, &ArrangedFilelist::rowsAboutToBeRemoved, this, [this] { _isLosingRows = true; });
    connect(this, &ArrangedFilelist::rowsRemoved, this, [this] { _isLosingRows = false; });
    setSourceModel(&whole);
    const auto startOver = [this] { _decisions = {}; };
    connect(&whole, &FilelistModel::rowsInserted, this, startOver);
    connect(&whole, &FilelistModel::rowsRemoved, this, startOver);
    connect(&whole, &FilelistModel::layoutChanged, this, startOver);
    connect(&whole, &FilelistModel::modelReset, this, startOver);
    connect(&whole, &FilelistModel::dataChanged, this,
            [this](const QModelIndex &first, const QModelIndex &last) {
                rowsDidChange(first.row(), last.row());
            });
    connect(&_sliceTimer, &QTimer::timeout, this, &ArrangedFilelist::decideSlice);
}

void ArrangedFilelist::setFilter(const FilelistFiltering &filter)
{
    _filter = &filter;
    invalidateFilter();
}

void ArrangedFilelist::decide()
{
    if (_sliceTimer.isActive())
        _isStale = true;
    else
        decideAnew();
}

void ArrangedFilelist::stopDeciding()
{
    _sliceTimer.stop();
    _isStale = false;
    _decisions = {};
}

void ArrangedFilelist::decideAnew()
{
    stopDeciding();
    decideSlice();
}

void ArrangedFilelist::decideSlice()
{
    const int first = static_cast<int>(_decisions.passes.size());
    const int end = std::min(_whole.rowCount(), first + kSlice);
    for (int row = first; row < end; ++row)
        decideRow(row);
    if (end < _whole.rowCount())
        return _sliceTimer.start(0);
    _sliceTimer.stop();
    Q_EMIT decided();
    if (_isStale)
        decideAnew();
}

void ArrangedFilelist::decideRow(int sourceRow)
{
    const bool passes = filterAcceptsRow(sourceRow, {});
    const bool isChanged = passes != mapFromSource(_whole.index(sourceRow)).isValid();
    _decisions.passes.push_back(passes);
    if (passes && _decisions.passing)
        _decisions.passing->push_back(_whole.fileAt(sourceRow));
    _decisions.runs += isChanged && !_decisions.isLastChanged;
    _decisions.isLastChanged = isChanged;
}

void ArrangedFilelist::rowsDidChange(int first, int last)
{
    const int end = std::min(last + 1, static_cast<int>(_decisions.passes.size()));
    if (end - first > kSlice)
        _isStale = true;
    else
        for (int row = first; row < end; ++row)
            if (const bool passes = filterAcceptsRow(row, {}); passes != _decisions.passes[indexOf(row)]) {
                _decisions.passes[indexOf(row)] = passes;
                _decisions.passing.reset();
            }
}

void ArrangedFilelist::rearrange()
{
    if (static_cast<int>(_decisions.passes.size()) != _whole.rowCount())
        return;
    _isArranging = true;
    if (_decisions.runs > kMostChangedRuns) {
        setSourceModel(nullptr);
        setSourceModel(&_whole);
        // The rows are mapped when somebody asks for them.
        rowCount();
    } else if (_decisions.runs > 0) {
        invalidateFilter();
    }
    _isArranging = false;
    if (sortColumn() < 0)
        _files = std::move(_decisions.passing);
    _decisions = {};
}

bool ArrangedFilelist::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    if (_isArranging)
        return _decisions.passes[indexOf(sourceRow)];
    return QSortFilterProxyModel::filterAcceptsRow(sourceRow, sourceParent)
        && (!_filter || _filter->passes(_whole.files()[indexOf(sourceRow)]));
}

FilelistItemPtr ArrangedFilelist::fileAt(int row) const
{
    return _whole.fileAt(rowInWholeList(row));
}

int ArrangedFilelist::rowOf(const FilelistItemPtr &file) const
{
    return mapFromSource(_whole.index(_whole.rowOf(file))).row();
}

int ArrangedFilelist::rowInWholeList(int row) const
{
    return mapToSource(index(row, 0)).row();
}

const std::vector<FilelistItemPtr> &ArrangedFilelist::files() const
{
    if (sortColumn() < 0 && rowCount() == _whole.rowCount())
        return _whole.files();
    if (!_files) {
        _files.emplace();
        _files->reserve(static_cast<std::size_t>(rowCount()));
        for (int row = 0; row < rowCount(); ++row)
            _files->push_back(fileAt(row));
    }
    return *_files;
}

} // namespace quorvin
