// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QSet>
#include <QString>

#include <optional>

namespace quorvin {

class ExtTreeItem;

/// Which groups of the Extended tree the user has closed, from file to file.
class GroupMemory {
public:
    /// What names a group across files: its key, with the stream's number where it has one. Absent for what
    /// is no group.
    static std::optional<QString> treeIdForItem(const ExtTreeItem &item);

    /// Whether a group may open; notes that it does. With `expandingAll` the tree is being filled, so that
    /// remembered groups stay closed.
    bool shouldExpandItem(const ExtTreeItem &item, bool expandingAll);
    /// Whether a group may close; notes that it does.
    bool shouldCollapseItem(const ExtTreeItem &item);
    /// From now on all groups start open, or closed.
    void expandAll();
    void collapseAll();

private:
    enum class TreesMode { AllOpen, AllClosed };

    void note(const QString &id, bool isOpen);

    QSet<QString> _excludedTrees; ///< groups that differ from the mode
    TreesMode _treesMode = TreesMode::AllOpen;
};

} // namespace quorvin
