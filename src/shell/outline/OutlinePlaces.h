// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/outline/RowPlace.h"

#include <QPersistentModelIndex>

#include <optional>

class QTreeView;

namespace quorvin {

/// Which row of a tree stands where, and which has the keyboard, so that both are kept from file to file, and
/// while the tree of one file is narrowed.
class OutlinePlaces {
public:
    /// Before the tree is filled anew. `covered`: so much of the view's top is under something.
    void note(const QTreeView &view, const ExtTreeModel &content, int covered);
    /// When it is filled and laid out: scrolls it, and selects the row that had the keyboard. A row that is
    /// not there is waited for until another one is chosen. `isSameFile`: as that which was noted.
    void restore(QTreeView &view, const ExtTreeModel &content, bool isSameFile);

private:
    std::optional<RowPlace> _topRow; ///< the row that is to stay where it is from file to file
    std::optional<RowPlace> _currentRow;
    QPersistentModelIndex _restored; ///< where that stands now
    int _topRowY = 0; ///< in the viewport
    int _unplacedAt = -1; ///< where a tree without that row was shown; -1: the last one has it
};

} // namespace quorvin
