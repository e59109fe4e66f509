// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/ArrangedFilelist.h"

#include "shell/filelist/FilelistModel.h"

namespace quorvin {

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
