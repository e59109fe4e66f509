// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/outline/ExtTreeModel.h"
#include "shell/outline/GroupMemory.h"

#include <QTreeView>

class QMimeData;

namespace quorvin {

class OutlineDelegate;

/// The tree of all parameters of a file. Remembers over files which groups are open; a click on a disclosure
/// sign with Ctrl opens or closes all.
class ExtendedOutline : public QTreeView {
    Q_OBJECT
public:
    explicit ExtendedOutline(QWidget *parent = nullptr);

    const ExtTreeModel &content() const { return _content; }
    /// Shows the tree, its groups open but for those that were closed before.
    void setContent(ExtTreeItems items);

    void expandAllIn();
    void collapseAllIn();

    /// Selects the group and brings it to the top of what is seen. Does nothing when there is none.
    void showGroup(const QString &key, quint64 streamIndex);
    void scrollRowToTheTop(const QModelIndex &row);

    /// The item of the one selected row; null when there are none or several.
    const ExtTreeItem *selectedItem() const;

    void setWrapLongLines(bool wraps);
    void setRightAlignsParameters(bool aligns);
    void setRowHeight(int height);

    /// The selected rows as text and HTML; with a clicked row outside of the selection that row alone.
    void copy(const QModelIndex &clicked = {}) const;
    bool canCopy() const { return selectionModel()->hasSelection(); }
    QMimeData *mimeDataOf(const QModelIndexList &rows) const;

Q_SIGNALS:
    void menuWanted(const QPoint &globalPosition);
    /// The selection has changed, so that there may be something to copy or not.
    void selectionDidChange();

protected:
    void drawBranches(QPainter *painter, const QRect &rect, const QModelIndex &index) const override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void selectionChanged(const QItemSelection &selected, const QItemSelection &deselected) override;

private:
    /// Opens all items, but for the groups that are to stay closed.
    void expandAllItems();
    void setAllExpanded(bool expanded);
    bool isOnDisclosureSign(const QPoint &position, const QModelIndex &index) const;
    static QString pboardHtmlLineForItem(const ExtTreeItem &item);
    QModelIndexList selectedRowsInOrder() const;

    ExtTreeModel _content;
    GroupMemory _groups;
    OutlineDelegate *_delegate;
    bool _isToggling = false; ///< groups open and close without the user
};

} // namespace quorvin
