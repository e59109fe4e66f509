// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QModelIndex>
#include <QString>

#include <vector>

namespace quorvin {

class ExtTreeModel;

/// A row of a tree by its names, so that it is found again in the tree of another file.
class RowPlace {
public:
    RowPlace(const ExtTreeModel &model, const QModelIndex &row);

    /// Invalid when there is no such row.
    QModelIndex exactIn(const ExtTreeModel &model) const;
    /// The very row, in a tree of the same file that lacks other rows or has more of them; invalid when it
    /// lacks this one.
    QModelIndex sameIn(const ExtTreeModel &model) const;
    /// The row, or one shortly before it in its group, or the group; invalid without the group.
    QModelIndex nearestIn(const ExtTreeModel &model) const;

private:
    /// The names of one level: that of the row, and then of rows above it.
    struct Name {
        QString text;
        int earlier = 0; ///< so many rows of that name stand before it in its group
    };
    using Names = std::vector<Name>;

    /// The row that is named by so many of the levels.
    QModelIndex exactIn(const ExtTreeModel &model, std::size_t levels) const;

    std::vector<Names> _levels; ///< from the top
    QString _value;
    int _twins = 0; ///< so many rows of its name and its value stand before it in its group
};

} // namespace quorvin
