// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/outline/ParameterRow.h"

#include "shell/outline/ExtTreeModel.h"

#include <algorithm>

namespace quorvin {

namespace {

QModelIndex leafOf(const ExtTreeModel &tree, const QModelIndex &parent, const QString &key)
{
    for (int row = 0; row < tree.rowCount(parent); ++row) {
        const QModelIndex index = tree.index(row, ExtTreeModel::Name, parent);
        const ExtTreeItem &item = *tree.itemAt(index);
        if (!item.children() && item.key() == key)
            return index;
        if (const QModelIndex below = leafOf(tree, index, key); below.isValid())
            return below;
    }
    return {};
}

} // namespace

QModelIndex rowOfParameter(const ExtTreeModel &tree, const QString &section, quint32 stream,
                           const QString &key)
{
    for (int row = 0; row < tree.rowCount(); ++row) {
        const QModelIndex group = tree.index(row, ExtTreeModel::Name);
        const ExtTreeItem &item = *tree.itemAt(group);
        if (item.key() != section || std::max<quint64>(item.mediaStreamIndex(), 1) != std::max(stream, 1U))
            continue;
        const QModelIndex leaf = leafOf(tree, group, key);
        return leaf.isValid() ? leaf : group;
    }
    return {};
}

} // namespace quorvin
