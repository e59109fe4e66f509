// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/FilelistModel.h"

#include "shell/desktop/Icons.h"

#include <algorithm>

namespace quorvin {

namespace {

FilelistModel::State stateOf(const FilelistItem &file)
{
    if (file.isFailed())
        return FilelistModel::Failed;
    return file.isDone() ? FilelistModel::Ready : FilelistModel::Waiting;
}

QString toolTipOf(const FilelistItem &file)
{
    const QString reason = file.failureReason();
    return reason.isEmpty() ? file.filename() : file.filename() + u'\n' + reason;
}

QString accessibleTextOf(const FilelistItem &file)
{
    switch (stateOf(file)) {
    case FilelistModel::Failed:
        return FilelistModel::tr("%1, can not process the file: %2")
            .arg(file.prefixedPath(), file.failureReason());
    case FilelistModel::Waiting:
        return FilelistModel::tr("%1, waiting").arg(file.prefixedPath());
    case FilelistModel::Ready:
        break;
    }
    return file.prefixedPath();
}

} // namespace

FilelistModel::FilelistModel(QObject *parent) : QAbstractListModel(parent)
{
    connect(&_icons, &FileIcons::coverReady, this, [this] { rowsChanged(0, rowCount() - 1); });
}

FilelistItemPtr FilelistModel::fileAt(int row) const
{
    return row >= 0 && row < rowCount() ? _files[static_cast<std::size_t>(row)] : nullptr;
}

int FilelistModel::rowOf(const FilelistItemPtr &file) const
{
    const auto found = std::ranges::find(_files, file);
    return found == _files.end() ? -1 : static_cast<int>(found - _files.begin());
}

void FilelistModel::setFiles(std::vector<FilelistItemPtr> files)
{
    beginResetModel();
    _files = std::move(files);
    endResetModel();
}

void FilelistModel::insertFiles(int row, const std::vector<FilelistItemPtr> &files)
{
    if (files.empty())
        return;
    beginInsertRows({}, row, row + static_cast<int>(files.size()) - 1);
    _files.insert(_files.begin() + row, files.begin(), files.end());
    endInsertRows();
}

std::vector<FilelistItemPtr> FilelistModel::removeFiles(std::vector<int> rows)
{
    std::ranges::sort(rows);
    std::vector<FilelistItemPtr> removed;
    removed.reserve(rows.size());
    for (const int row : rows)
        removed.push_back(fileAt(row));
    // From the end, a run of neighbours at a time, so that the rows before stay what they are.
    while (!rows.empty()) {
        const int last = rows.back();
        int first = last;
        while (!rows.empty() && rows.back() == first) {
            rows.pop_back();
            --first;
        }
        beginRemoveRows({}, first + 1, last);
        _files.erase(_files.begin() + first + 1, _files.begin() + last + 1);
        endRemoveRows();
    }
    return removed;
}

void FilelistModel::rowsChanged(int first, int last)
{
    if (first >= 0 && last >= first && last < rowCount())
        Q_EMIT dataChanged(index(first), index(last));
}

int FilelistModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(_files.size());
}

QVariant FilelistModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const FilelistItem &file = *_files[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return file.prefixedPath();
    case Qt::DecorationRole:
        if (file.isFailed())
            return themedIcon(QStringLiteral("dialog-warning"));
        return file.isDone() ? _icons.iconFor(file, file.quorvinData())
                             : symbolIcon(QStringLiteral("icon-dashedbox"));
    case Qt::ToolTipRole:
        return toolTipOf(file);
    case Qt::AccessibleTextRole:
        return accessibleTextOf(file);
    case StateRole:
        return stateOf(file);
    case PathRole:
        return file.filename();
    case ReasonRole:
        return file.failureReason();
    default:
        return {};
    }
}

} // namespace quorvin
