// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/outline/ExtTreeModel.h"
#include "shell/outline/GroupMemory.h"
#include "shell/outline/OutlinePlaces.h"

#include <QTreeView>

namespace quorvin {

class OutlineDelegate;
class OutlineHeader;
class StickyGroup;

/// The tree of all parameters of a file. Remembers over files which groups are open and which row stands
/// where; the group of the first visible row stays at the top. A click on a disclosure sign with Ctrl opens
/// or closes all.
class ExtendedOutline : public QTreeView {
    Q_OBJECT
public:
    explicit ExtendedOutline(QWidget *parent = nullptr);

    const ExtTreeModel &content() const { return _content; }
    /// Shows the tree, its groups open but for those that were closed before, and scrolled so that the row
    /// that was looked at stands where it stood, if this tree has it too. `opensAll`: also what was closed,
    /// which stays so in other trees. `isSameFile`: some rows of the tree that is shown are left out now, or
    /// are back; rows are then told apart by their values too.
    void setContent(ExtTreeItems items, bool opensAll = false, bool isSameFile = false);

    /// Marks the text wherever it stands; "" marks nothing.
    void setSearch(const QString &text);
    /// Selects the next row that has it, or the one before, from the selected row or, at an end, from that
    /// end. False when there is none.
    bool selectHit(bool backwards, bool fromEnd);

    void expandAllIn();
    void collapseAllIn();

    /// Selects the group and brings it to the top of what is seen. Does nothing when there is none.
    void showGroup(const QString &key, quint64 streamIndex);
    void scrollRowToTheTop(const QModelIndex &row);
    /// Selects the row and brings it in sight. A group that the user has closed opens for it, and is not
    /// noted as open.
    void showRow(const QModelIndex &row);
    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;

    /// The item of the one selected row; null when there are none or several.
    const ExtTreeItem *selectedItem() const;

    void setWrapLongLines(bool wraps);
    void setRightAlignsParameters(bool aligns);
    void setRowHeight(int height);
    /// Device-independent pixels, as far as the view has them; 0: a part of the view's width.
    void setNamesWidth(int width);
    void doItemsLayout() override;

    /// The selected rows as text and HTML; with a clicked row outside of the selection that row alone.
    void copy(const QModelIndex &clicked = {}) const;
    /// The values of the selected rows, without their names.
    void copyValues() const;
    bool canCopy() const { return selectionModel()->hasSelection(); }

Q_SIGNALS:
    void menuWanted(const QPoint &globalPosition);
    /// The selection has changed, so that there may be something to copy or not.
    void selectionDidChange();
    /// The user has dragged the border between names and values; 0: it is to go by the view's width again.
    void namesWidthChosen(int width);

protected:
    void drawRow(QPainter *painter, const QStyleOptionViewItem &options,
                 const QModelIndex &index) const override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void changeEvent(QEvent *event) override;
    void updateGeometries() override;
    void scrollContentsBy(int dx, int dy) override;
    void selectionChanged(const QItemSelection &selected, const QItemSelection &deselected) override;

private:
    /// Opens all items, but for the groups that are to stay closed.
    void expandAllItems(bool opensAll);
    void setAllExpanded(bool expanded);
    void noteToggle(const QModelIndex &index, bool opens);
    bool isOnDisclosureSign(const QPoint &position, const QModelIndex &index) const;
    /// The keys that open and close a long value.
    bool toggleLongValue(const QKeyEvent &event);
    /// Where the name of a group begins; the air above it is not the name's.
    int nameTop(const QModelIndex &group) const;
    QModelIndex groupOfFirstRow() const;
    int stickyHeight() const;
    void updateStickyGroup();

    ExtTreeModel _content;
    GroupMemory _groups;
    OutlineDelegate *_delegate;
    OutlineHeader *_header;
    StickyGroup *_sticky;
    OutlinePlaces _places;
    bool _isToggling = false; ///< groups open and close without the user
    bool _isLayingOut = false;
};

} // namespace quorvin
