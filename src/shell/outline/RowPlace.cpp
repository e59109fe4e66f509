// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/outline/RowPlace.h"

#include "shell/outline/ExtTreeModel.h"
#include "shell/outline/GroupMemory.h"

#include <algorithm>

namespace quorvin {

namespace {

constexpr int kMostNeighbours = 4;

QString nameOf(const ExtTreeItem &item)
{
    if (auto id = GroupMemory::treeIdForItem(item))
        return *id;
    return item.key() ? *item.key() : item.name();
}

int countEarlier(const ExtTreeModel &model, const QModelIndex &row, const QString &name)
{
    int count = 0;
    for (int i = 0; i < row.row(); ++i)
        count += nameOf(*model.itemAt(row.siblingAtRow(i))) == name ? 1 : 0;
    return count;
}

bool areTwins(const ExtTreeItem &item, const QString &name, const QString &value)
{
    return nameOf(item) == name && item.stringValue() == value;
}

QModelIndex childNamed(const ExtTreeModel &model, const QModelIndex &parent, const QString &name, int earlier)
{
    for (int i = 0; i < model.rowCount(parent); ++i) {
        const QModelIndex child = model.index(i, ExtTreeModel::Name, parent);
        if (nameOf(*model.itemAt(child)) == name && earlier-- == 0)
            return child;
    }
    return {};
}

} // namespace

RowPlace::RowPlace(const ExtTreeModel &model, const QModelIndex &row)
    : _value(model.itemAt(row)->stringValue())
{
    const QString ownName = nameOf(*model.itemAt(row));
    for (int i = 0; i < row.row(); ++i)
        _twins += areTwins(*model.itemAt(row.siblingAtRow(i)), ownName, _value) ? 1 : 0;
    for (QModelIndex at = row.siblingAtColumn(ExtTreeModel::Name); at.isValid(); at = at.parent()) {
        Names names;
        for (int i = at.row(); i >= 0 && at.row() - i <= kMostNeighbours; --i) {
            const QModelIndex neighbour = at.siblingAtRow(i);
            const QString name = nameOf(*model.itemAt(neighbour));
            names.push_back({name, countEarlier(model, neighbour, name)});
        }
        _levels.push_back(std::move(names));
    }
    std::ranges::reverse(_levels);
}

QModelIndex RowPlace::exactIn(const ExtTreeModel &model) const
{
    return exactIn(model, _levels.size());
}

QModelIndex RowPlace::exactIn(const ExtTreeModel &model, std::size_t levels) const
{
    QModelIndex found;
    for (std::size_t i = 0; i < levels; ++i) {
        const Name &name = _levels[i].front();
        found = childNamed(model, found, name.text, name.earlier);
        if (!found.isValid())
            break;
    }
    return found;
}

QModelIndex RowPlace::sameIn(const ExtTreeModel &model) const
{
    const std::size_t above = _levels.size() - 1;
    const QModelIndex group = exactIn(model, above);
    if (above > 0 && !group.isValid())
        return {};
    int earlier = _twins;
    for (int i = 0; i < model.rowCount(group); ++i) {
        const QModelIndex child = model.index(i, ExtTreeModel::Name, group);
        if (areTwins(*model.itemAt(child), _levels.back().front().text, _value) && earlier-- == 0)
            return child;
    }
    return {};
}

QModelIndex RowPlace::nearestIn(const ExtTreeModel &model) const
{
    QModelIndex found;
    for (const Names &names : _levels) {
        QModelIndex child;
        for (const Name &name : names) {
            child = childNamed(model, found, name.text, name.earlier);
            // A group stands for no other.
            if (child.isValid() || !found.isValid())
                break;
        }
        if (!child.isValid())
            break;
        found = child;
    }
    return found;
}

} // namespace quorvin
