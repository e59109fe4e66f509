// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/outline/GroupMemory.h"

#include "model/ExtTreeItem.h"

namespace quorvin {

std::optional<QString> GroupMemory::treeIdForItem(const ExtTreeItem &item)
{
    if (!item.isGroupTree() || !item.key())
        return std::nullopt;
    return item.mediaStreamIndex() == 0 ? *item.key()
                                        : *item.key() + QString::number(item.mediaStreamIndex());
}

bool GroupMemory::shouldExpandItem(const ExtTreeItem &item, bool expandingAll)
{
    const auto id = treeIdForItem(item);
    if (!id)
        return true;
    const bool isExcluded = _excludedTrees.contains(*id);
    if (expandingAll && isExcluded == (_treesMode == TreesMode::AllOpen))
        return false;
    note(*id, true);
    return true;
}

bool GroupMemory::shouldCollapseItem(const ExtTreeItem &item)
{
    if (const auto id = treeIdForItem(item))
        note(*id, false);
    return true;
}

void GroupMemory::note(const QString &id, bool isOpen)
{
    if (isOpen == (_treesMode == TreesMode::AllOpen))
        _excludedTrees.remove(id);
    else
        _excludedTrees.insert(id);
}

void GroupMemory::expandAll()
{
    _treesMode = TreesMode::AllOpen;
    _excludedTrees.clear();
}

void GroupMemory::collapseAll()
{
    _treesMode = TreesMode::AllClosed;
    _excludedTrees.clear();
}

} // namespace quorvin
