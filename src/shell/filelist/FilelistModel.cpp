// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/FilelistModel.h"

#include "shell/desktop/Icons.h"
#include "shell/desktop/PlainText.h"
#include "shell/filelist/FilelistRow.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <numeric>
#include <utility>

namespace quorvin {

namespace {

/// With more runs of rows than this to be taken out, the list is told as a new one.
constexpr int kMostRuns = 32;

FilelistRow::State stateOf(const FilelistItem &file)
{
    if (file.isFailed())
        return FilelistRow::Failed;
    if (file.isDone())
        return FilelistRow::Ready;
    if (file.isInProcess())
        return FilelistRow::Reading;
    return file.isWanted() ? FilelistRow::Waiting : FilelistRow::Unread;
}

/// Of neighbours, in rows that ascend.
int runsOf(const std::vector<int> &rows)
{
    int runs = 0;
    for (std::size_t i = 0; i < rows.size(); ++i)
        runs += i == 0 || rows[i] != rows[i - 1] + 1;
    return runs;
}

/// With each of the new files at its row of the result.
std::vector<FilelistItemPtr> merged(std::vector<FilelistItemPtr> old, const std::vector<int> &rows,
                                    const std::vector<FilelistItemPtr> &files)
{
    std::vector<FilelistItemPtr> all;
    all.reserve(old.size() + files.size());
    auto next = std::move_iterator(old.begin());
    const auto end = std::move_iterator(old.end());
    for (std::size_t i = 0; i < files.size(); ++i) {
        while (next != end && all.size() < static_cast<std::size_t>(rows[i]))
            all.push_back(*next++);
        all.push_back(files[i]);
    }
    all.insert(all.end(), next, end);
    return all;
}

QString toolTipOf(const FilelistItem &file, const QString &mark)
{
    QStringList lines{file.filename(), file.failureReason(), mark};
    lines.removeAll(QString());
    return lines.join(u'\n');
}

QString accessibleTextOf(const FilelistItem &file)
{
    switch (stateOf(file)) {
    case FilelistRow::Failed:
        return FilelistModel::tr("%1, can not process the file: %2")
            .arg(file.prefixedPath(), file.failureReason());
    case FilelistRow::Waiting:
        return FilelistModel::tr("%1, waiting").arg(file.prefixedPath());
    case FilelistRow::Unread:
        return FilelistModel::tr("%1, not read").arg(file.prefixedPath());
    case FilelistRow::Reading:
        return FilelistModel::tr("%1, being read").arg(file.prefixedPath());
    case FilelistRow::Ready:
        break;
    }
    return file.prefixedPath();
}

} // namespace

FilelistModel::FilelistModel(QObject *parent) : QAbstractListModel(parent)
{
    _coversTimer.setSingleShot(true);
    connect(&_coversTimer, &QTimer::timeout, this, [this] { filesChanged(std::exchange(_coversReady, {})); });
    connect(&_icons, &FileIcons::coverReady, this, [this](const FilelistItemPtr &file) {
        _coversReady.push_back(file);
        if (!_coversTimer.isActive())
            _coversTimer.start(0);
    });
}

FilelistItemPtr FilelistModel::fileAt(int row) const
{
    return row >= 0 && row < rowCount() ? _files[static_cast<std::size_t>(row)] : nullptr;
}

int FilelistModel::rowOf(const FilelistItemPtr &file) const
{
    if (_rows.empty()) {
        _rows.reserve(rowCount());
        for (int row = 0; row < rowCount(); ++row)
            _rows.insert(_files[static_cast<std::size_t>(row)].get(), row);
    }
    return _rows.value(file.get(), -1);
}

std::vector<FilelistItemPtr> FilelistModel::setFiles(std::vector<FilelistItemPtr> files)
{
    beginResetModel();
    std::vector<FilelistItemPtr> old = std::exchange(_files, std::move(files));
    _rows.clear();
    endResetModel();
    return old;
}

void FilelistModel::insertFiles(int row, const std::vector<FilelistItemPtr> &files)
{
    if (files.empty())
        return;
    beginInsertRows({}, row, row + static_cast<int>(files.size()) - 1);
    _files.insert(_files.begin() + row, files.begin(), files.end());
    _rows.clear();
    endInsertRows();
}

void FilelistModel::insertFilesAt(const std::vector<int> &rows, const std::vector<FilelistItemPtr> &files)
{
    if (runsOf(rows) > kMostRuns) {
        beginResetModel();
        _files = merged(std::move(_files), rows, files);
        _rows.clear();
        return endResetModel();
    }
    for (std::size_t first = 0; first < rows.size();) {
        std::size_t last = first + 1;
        while (last < rows.size() && rows[last] == rows[last - 1] + 1)
            ++last;
        const auto begin = files.begin() + static_cast<std::ptrdiff_t>(first);
        const auto end = files.begin() + static_cast<std::ptrdiff_t>(last);
        insertFiles(std::min(rows[first], rowCount()), {begin, end});
        first = last;
    }
}

std::vector<FilelistItemPtr> FilelistModel::removeFiles(std::vector<int> rows)
{
    std::ranges::sort(rows);
    if (runsOf(rows) > kMostRuns)
        return removeScattered(rows);
    std::vector<FilelistItemPtr> removed;
    removed.reserve(rows.size());
    for (const int row : rows)
        removed.push_back(fileAt(row));
    removeRuns(std::move(rows));
    return removed;
}

void FilelistModel::removeRuns(std::vector<int> rows)
{
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
        _rows.clear();
        endRemoveRows();
    }
}

std::vector<FilelistItemPtr> FilelistModel::removeScattered(const std::vector<int> &rows)
{
    std::vector<FilelistItemPtr> removed;
    removed.reserve(rows.size());
    beginResetModel();
    for (const int row : rows)
        removed.push_back(std::move(_files[static_cast<std::size_t>(row)]));
    std::erase(_files, nullptr);
    _rows.clear();
    endResetModel();
    return removed;
}

void FilelistModel::moveFiles(const std::vector<int> &rows, int before)
{
    std::vector<bool> moves(_files.size());
    for (const int row : rows)
        moves[static_cast<std::size_t>(row)] = true;
    std::vector<int> order(_files.size());
    std::iota(order.begin(), order.end(), 0);
    const auto place = order.begin() + before;
    const auto isMoved = [&](int row) { return bool(moves[static_cast<std::size_t>(row)]); };
    std::stable_partition(order.begin(), place, std::not_fn(isMoved));
    std::stable_partition(place, order.end(), isMoved);
    if (std::ranges::is_sorted(order))
        return;

    Q_EMIT layoutAboutToBeChanged();
    std::vector<FilelistItemPtr> files(_files.size());
    std::vector<int> newRows(_files.size());
    for (std::size_t row = 0; row < order.size(); ++row) {
        const auto old = static_cast<std::size_t>(order[row]);
        files[row] = std::move(_files[old]);
        newRows[old] = static_cast<int>(row);
    }
    _files = std::move(files);
    _rows.clear();
    const QModelIndexList kept = persistentIndexList();
    QModelIndexList now;
    for (const QModelIndex &index : kept)
        now.append(this->index(newRows[static_cast<std::size_t>(index.row())]));
    changePersistentIndexList(kept, now);
    Q_EMIT layoutChanged();
}

void FilelistModel::filesChanged(const std::vector<FilelistItemPtr> &files)
{
    if (files.size() >= _files.size())
        return allFilesChanged();
    std::vector<int> rows;
    rows.reserve(files.size());
    for (const FilelistItemPtr &file : files) {
        if (const int row = rowOf(file); row >= 0)
            rows.push_back(row);
    }
    std::ranges::sort(rows);
    for (std::size_t first = 0; first < rows.size();) {
        std::size_t last = first;
        while (last + 1 < rows.size() && rows[last + 1] <= rows[last] + 1)
            ++last;
        Q_EMIT dataChanged(index(rows[first]), index(rows[last]));
        first = last + 1;
    }
}

void FilelistModel::allFilesChanged()
{
    if (!_files.empty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

void FilelistModel::setMarks(const QHash<QString, QString> &marks)
{
    _marks = marks;
    allFilesChanged();
}

QString FilelistModel::markOf(const FilelistItem &file) const
{
    return _marks.isEmpty() ? QString() : _marks.value(file.filename());
}

Qt::ItemFlags FilelistModel::flags(const QModelIndex &index) const
{
    return QAbstractListModel::flags(index) | (index.isValid() ? Qt::ItemIsDragEnabled : Qt::NoItemFlags);
}

int FilelistModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(_files.size());
}

QVariant FilelistModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const FilelistItemPtr &shown = _files[static_cast<std::size_t>(index.row())];
    const FilelistItem &file = *shown;
    switch (role) {
    case Qt::DisplayRole:
        return file.prefixedPath();
    case Qt::DecorationRole:
        if (file.isFailed())
            return symbolIcon(QStringLiteral("dialog-warning"));
        return _icons.pictureFor(shown, file.quorvinData()).icon;
    case FilelistRow::CoverRole:
        return !file.isFailed() && _icons.pictureFor(shown, file.quorvinData()).isCover;
    case Qt::ToolTipRole:
        return plainTip(toolTipOf(file, markOf(file)));
    case Qt::AccessibleTextRole: {
        const QString mark = markOf(file);
        return mark.isEmpty() ? accessibleTextOf(file) : accessibleTextOf(file) + QLatin1String(", ") + mark;
    }
    case FilelistRow::StateRole:
        return stateOf(file);
    case FilelistRow::PathRole:
        return file.filename();
    case FilelistRow::ReasonRole:
        return file.failureReason();
    case FilelistRow::MarkRole:
        return markOf(file);
    default:
        return {};
    }
}

} // namespace quorvin
