// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/ExtTreeItem.h"

#include <QAbstractItemModel>

#include <vector>

namespace quorvin {

/// A General or Extended tree as two columns, name and value. Main thread.
class ExtTreeModel : public QAbstractItemModel {
    Q_OBJECT
public:
    enum Columns { Name, Value, ColumnCount };
    /// How a cell is to be drawn; its text is the display role.
    enum Roles {
        GroupRole = Qt::UserRole, ///< bool: the row stands over others and has no value
        ItalicRole, ///< int: so many letters of the beginning are italic; 0 for none
        TitleRole, ///< int: from this letter on the text is a title; -1 for none
    };

    using QAbstractItemModel::QAbstractItemModel;

    void setContent(ExtTreeItems items);
    const ExtTreeItems &content() const { return _content; }
    /// The header's text stands where the names do.
    void setNamesAlignment(Qt::Alignment alignment);
    /// Null for an invalid index.
    const ExtTreeItem *itemAt(const QModelIndex &index) const;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex & = {}) const override { return ColumnCount; }
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    /// Where an item stands; an index carries the place of its node.
    struct Node {
        const ExtTreeItem *item = nullptr;
        int parent = -1; ///< node of the item above; -1 at the top
        int row = 0;
        int firstChild = 0; ///< children lie one behind another
        int childCount = 0;
    };

    QVariant accessibleText(const QModelIndex &index, const ExtTreeItem &item) const;
    void addNodes(const ExtTreeItems &items, int parent);
    const Node &nodeOf(const QModelIndex &index) const { return _nodes[index.internalId()]; }

    ExtTreeItems _content; ///< keeps the items of the nodes
    std::vector<Node> _nodes; ///< level by level
    int _topCount = 0;
    Qt::Alignment _namesAlignment = Qt::AlignLeading;
};

} // namespace quorvin
