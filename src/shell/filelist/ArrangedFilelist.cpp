// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/ArrangedFilelist.h"

#include "shell/filelist/FilelistFiltering.h"
#include "shell/filelist/FilelistModel.h"

namespace quorvin {

namespace {

/// With more runs of rows than this that come or go, the list is told as a new one: whoever shows the rows
/// follows each run by itself, in a time that grows with the list.
constexpr int kMostChangedRuns = 32;

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
}

void ArrangedFilelist::setFilter(const FilelistFiltering &filter)
{
    _filter = &filter;
    rearrange();
}

void ArrangedFilelist::rearrange()
{
    const int count = _whole.rowCount();
    std::vector<bool> decided;
    decided.reserve(static_cast<std::size_t>(count));
    int runs = 0;
    bool wasChanged = false;
    for (int row = 0; row < count; ++row) {
        decided.push_back(filterAcceptsRow(row, {}));
        const bool isChanged = decided.back() != mapFromSource(_whole.index(row)).isValid();
        runs += isChanged && !wasChanged;
        wasChanged = isChanged;
    }
    _decided = std::move(decided);
    if (runs > kMostChangedRuns) {
        setSourceModel(nullptr);
        setSourceModel(&_whole);
        // The rows are mapped when somebody asks for them.
        rowCount();
    } else if (runs > 0) {
        invalidateFilter();
    }
    _decided.clear();
}

bool ArrangedFilelist::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    if (!_decided.empty())
        return _decided[static_cast<std::size_t>(sourceRow)];
    return QSortFilterProxyModel::filterAcceptsRow(sourceRow, sourceParent)
        && (!_filter || _filter->passes(_whole.fileAt(sourceRow)));
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
