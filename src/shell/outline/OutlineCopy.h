// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QModelIndex>
#include <QString>

#include <memory>

class QMimeData;
class QTreeView;

namespace quorvin {

class ExtTreeModel;

/// The selected rows of the tree in the order in which it shows them, without what a closed group hides.
QModelIndexList selectedRowsInOrder(const QTreeView &tree);

/// The rows as text and as an HTML table.
std::unique_ptr<QMimeData> mimeDataOf(const ExtTreeModel &model, const QModelIndexList &rows);

/// The values of the rows, one a line; groups have none.
QString valuesOf(const ExtTreeModel &model, const QModelIndexList &rows);

} // namespace quorvin
