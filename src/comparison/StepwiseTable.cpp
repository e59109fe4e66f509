// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "comparison/StepwiseTable.h"

#include <QHash>

#include <algorithm>
#include <iterator>
#include <utility>

namespace quorvin {

namespace {

constexpr int kNowhere = -1;

/// Gives each name that comes again a number.
QStringList distinct(QStringList names)
{
    QHash<QString, int> known;
    known.reserve(names.size());
    for (QString &name : names) {
        if (const int times = known[name]++; times > 0)
            name += QChar(QChar::Null) + QString::number(times);
    }
    return names;
}

int firstOf(Qt::Orientation orientation)
{
    return orientation == Qt::Vertical ? 0 : 1;
}

} // namespace

int StepwiseTable::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(_rows.size());
}

int StepwiseTable::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : firstOf(Qt::Horizontal) + static_cast<int>(_columns.size());
}

int StepwiseTable::entryOfColumn(int column) const
{
    return column > 0 && column < columnCount() ? _columns[static_cast<std::size_t>(column - 1)] : kNowhere;
}

std::vector<int> &StepwiseTable::entriesOf(Qt::Orientation orientation)
{
    return orientation == Qt::Vertical ? _rows : _columns;
}

const std::vector<int> &StepwiseTable::entriesOf(Qt::Orientation orientation) const
{
    return orientation == Qt::Vertical ? _rows : _columns;
}

StepwiseTable::Change StepwiseTable::changeTo(Qt::Orientation orientation, const QStringList &from,
                                              const QStringList &to, std::vector<int> wanted) const
{
    const QStringList before = distinct(from);
    const QStringList after = distinct(to);
    QHash<QString, int> targets;
    targets.reserve(to.size());
    for (const int entry : wanted)
        targets.insert(after[entry], entry);
    Change change{{}, std::move(wanted)};
    for (const int entry : entriesOf(orientation))
        change.targets.push_back(targets.value(before[entry], kNowhere));
    return change;
}

StepwiseTable::Change StepwiseTable::changeTo(Qt::Orientation orientation, std::vector<int> wanted) const
{
    Change change{entriesOf(orientation), std::move(wanted)};
    std::ranges::replace_if(
        change.targets, [&](int entry) { return !std::ranges::binary_search(change.wanted, entry); },
        kNowhere);
    return change;
}

void StepwiseTable::removeGone(Qt::Orientation orientation, const Change &change)
{
    std::vector<int> &entries = entriesOf(orientation);
    const auto isGone
        = [&](int position) { return change.targets[static_cast<std::size_t>(position)] == kNowhere; };
    for (int end = static_cast<int>(entries.size()); end > 0; --end) {
        int start = end;
        while (start > 0 && isGone(start - 1))
            --start;
        if (start == end)
            continue;
        const int first = firstOf(orientation) + start;
        const int last = firstOf(orientation) + end - 1;
        if (orientation == Qt::Vertical)
            beginRemoveRows({}, first, last);
        else
            beginRemoveColumns({}, first, last);
        entries.erase(entries.begin() + start, entries.begin() + end);
        orientation == Qt::Vertical ? endRemoveRows() : endRemoveColumns();
        end = start + 1;
    }
}

void StepwiseTable::retarget(Qt::Orientation orientation, const Change &change)
{
    std::vector<int> &entries = entriesOf(orientation);
    entries.clear();
    std::ranges::remove_copy(change.targets, std::back_inserter(entries), kNowhere);
}

void StepwiseTable::arrange(Qt::Orientation orientation, const Change &change)
{
    if (!std::ranges::is_sorted(entriesOf(orientation)))
        sort(orientation);
    insertMissing(orientation, change.wanted);
}

void StepwiseTable::sort(Qt::Orientation orientation)
{
    Q_EMIT layoutAboutToBeChanged();
    std::vector<int> &entries = entriesOf(orientation);
    const std::vector<int> before = entries;
    std::ranges::sort(entries);
    const int first = firstOf(orientation);
    const auto moved = [&](int position) {
        if (position < first)
            return position;
        const int entry = before[static_cast<std::size_t>(position - first)];
        return first + static_cast<int>(std::ranges::lower_bound(entries, entry) - entries.begin());
    };
    const QModelIndexList from = persistentIndexList();
    QModelIndexList to;
    for (const QModelIndex &index : from)
        to.append(orientation == Qt::Vertical ? createIndex(moved(index.row()), index.column())
                                              : createIndex(index.row(), moved(index.column())));
    changePersistentIndexList(from, to);
    Q_EMIT layoutChanged();
}

void StepwiseTable::insertMissing(Qt::Orientation orientation, const std::vector<int> &wanted)
{
    std::vector<int> &entries = entriesOf(orientation);
    for (std::ptrdiff_t at = 0; at < std::ssize(wanted); ++at) {
        const auto from = wanted.begin() + at;
        const auto end = at < std::ssize(entries)
            ? std::find(from, wanted.end(), entries[static_cast<std::size_t>(at)])
            : wanted.end();
        if (from == end)
            continue;
        const int first = firstOf(orientation) + static_cast<int>(at);
        const int last = first + static_cast<int>(end - from) - 1;
        if (orientation == Qt::Vertical)
            beginInsertRows({}, first, last);
        else
            beginInsertColumns({}, first, last);
        entries.insert(entries.begin() + at, from, end);
        orientation == Qt::Vertical ? endInsertRows() : endInsertColumns();
        at = end - wanted.begin() - 1;
    }
}

} // namespace quorvin
