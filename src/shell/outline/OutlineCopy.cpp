// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/outline/OutlineCopy.h"

#include "export/HtmlText.h"
#include "shell/outline/ExtTreeModel.h"

#include <QMimeData>
#include <QTreeView>

#include <algorithm>
#include <utility>
#include <vector>

namespace quorvin {

namespace {

bool isShown(const QTreeView &tree, const QModelIndex &row)
{
    for (QModelIndex above = row.parent(); above.isValid(); above = above.parent()) {
        if (!tree.isExpanded(above))
            return false;
    }
    return true;
}

/// The rows that lead to a row, from the top.
std::vector<int> pathOf(const QModelIndex &row)
{
    std::vector<int> path;
    for (QModelIndex at = row; at.isValid(); at = at.parent())
        path.push_back(at.row());
    std::ranges::reverse(path);
    return path;
}

QString htmlLineOf(const ExtTreeItem &item)
{
    if (item.children())
        return QStringLiteral("<tr><td><b>%1</b></td><td></td></tr>")
            .arg(stringByEncodingHTMLEntities(item.extValue(), true));
    return QStringLiteral("<tr><td>%1</td><td>%2</td></tr>")
        .arg(stringByEncodingHTMLEntities(item.name(), true),
             stringWithNewLinesAsBRs(stringByEncodingHTMLEntities(item.stringValue(), true)));
}

} // namespace

QModelIndexList selectedRowsInOrder(const QTreeView &tree)
{
    std::vector<std::pair<std::vector<int>, QModelIndex>> placed;
    for (const QModelIndex &row : tree.selectionModel()->selectedRows()) {
        if (isShown(tree, row))
            placed.emplace_back(pathOf(row), row);
    }
    std::ranges::sort(placed, {}, &std::pair<std::vector<int>, QModelIndex>::first);
    QModelIndexList rows;
    for (const auto &[path, row] : placed)
        rows.append(row);
    return rows;
}

std::unique_ptr<QMimeData> mimeDataOf(const ExtTreeModel &model, const QModelIndexList &rows)
{
    QStringList text;
    QStringList html;
    for (const QModelIndex &row : rows) {
        const ExtTreeItem *item = model.itemAt(row);
        text.append(item->extValue());
        html.append(htmlLineOf(*item));
    }
    auto content = std::make_unique<QMimeData>();
    content->setText(text.join(u'\n'));
    content->setHtml(QStringLiteral("<table cellspacing=0>%1</table>").arg(html.join(u'\n')));
    return content;
}

QString valuesOf(const ExtTreeModel &model, const QModelIndexList &rows)
{
    QStringList values;
    for (const QModelIndex &row : rows) {
        if (const ExtTreeItem *item = model.itemAt(row); item->value())
            values.append(item->stringValue());
    }
    return values.join(u'\n');
}

} // namespace quorvin
