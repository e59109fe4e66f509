// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/outline/ExtTreeModel.h"

namespace quorvin {

void ExtTreeModel::setContent(ExtTreeItems items)
{
    beginResetModel();
    _nodes.clear();
    _content = std::move(items);
    _topCount = static_cast<int>(_content.size());
    addNodes(_content, -1);
    for (std::size_t i = 0; i < _nodes.size(); ++i) {
        const auto &children = _nodes[i].item->children();
        if (!children)
            continue;
        _nodes[i].firstChild = static_cast<int>(_nodes.size());
        _nodes[i].childCount = static_cast<int>(children->size());
        addNodes(*children, static_cast<int>(i));
    }
    endResetModel();
}

void ExtTreeModel::addNodes(const ExtTreeItems &items, int parent)
{
    int row = 0;
    for (const ExtTreeItemPtr &item : items)
        _nodes.push_back({item.get(), parent, row++, 0, 0});
}

void ExtTreeModel::setNamesAlignment(Qt::Alignment alignment)
{
    _namesAlignment = alignment;
    Q_EMIT headerDataChanged(Qt::Horizontal, Name, Name);
}

const ExtTreeItem *ExtTreeModel::itemAt(const QModelIndex &index) const
{
    return index.isValid() ? nodeOf(index).item : nullptr;
}

QModelIndex ExtTreeModel::index(int row, int column, const QModelIndex &parent) const
{
    if (row < 0 || row >= rowCount(parent) || column < 0 || column >= ColumnCount)
        return {};
    const int first = parent.isValid() ? nodeOf(parent).firstChild : 0;
    return createIndex(row, column, static_cast<quintptr>(first) + static_cast<quintptr>(row));
}

QModelIndex ExtTreeModel::parent(const QModelIndex &child) const
{
    const int above = child.isValid() ? nodeOf(child).parent : -1;
    if (above < 0)
        return {};
    return createIndex(_nodes[static_cast<std::size_t>(above)].row, 0, static_cast<quintptr>(above));
}

int ExtTreeModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return _topCount;
    return parent.column() == Name ? nodeOf(parent).childCount : 0;
}

QVariant ExtTreeModel::accessibleText(const QModelIndex &index, const ExtTreeItem &item) const
{
    if (index.column() == Name || item.value())
        return {};
    // A cell that is empty on the screen says nothing to those who hear it.
    const int count = nodeOf(index).childCount;
    return count == 1 ? tr("1 entry") : tr("%1 entries").arg(count);
}

QVariant ExtTreeModel::data(const QModelIndex &index, int role) const
{
    const ExtTreeItem *item = itemAt(index);
    if (!item)
        return {};
    const StyledText *styled = index.column() == Value && item->value() ? &*item->value() : nullptr;
    switch (role) {
    case Qt::DisplayRole:
        return index.column() == Name ? item->name() : item->stringValue();
    case GroupRole:
        return !item->value();
    case Qt::AccessibleTextRole:
        return accessibleText(index, *item);
    case ItalicRole:
        return styled ? static_cast<int>(styled->italicLength) : 0;
    case TitleRole:
        return styled ? static_cast<int>(styled->titleStart) : -1;
    default:
        return {};
    }
}

QVariant ExtTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue((section == Name ? _namesAlignment : Qt::AlignLeading) | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    return section == Name ? tr("Parameter") : tr("Value");
}

} // namespace quorvin
