// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/GeneralFacts.h"
#include "shell/outline/ExtTreeModel.h"

#include <QTreeView>

namespace quorvin {

class OutlineDelegate;
struct RowLook;

/// The lines of General, one a stream or photographic fact: as high as its rows, since the sheet around it
/// scrolls. A double click or Return opens a line. Main thread.
class StreamTable final : public QTreeView {
    Q_OBJECT
public:
    explicit StreamTable(QWidget *parent = nullptr);

    void setLines(const std::vector<GeneralLine> &lines);
    bool isEmpty() const { return _content.rowCount() == 0; }
    void setLook(const RowLook &look);
    /// Device-independent pixels, with the room between names and values.
    void setNamesWidth(int width);

    /// What the one selected line leads to; null when there are none or several, or it leads nowhere.
    const ExtTreeItem *selectedStream() const;
    bool canCopy() const;
    /// The selected lines, from the top.
    void copy() const;
    void copyValues() const;
    void openCurrent();

    void doItemsLayout() override;

Q_SIGNALS:
    void streamOpened(const QString &key, quint64 streamIndex);
    void locationOpened();
    void selectionDidChange();
    void menuWanted(const QPoint &globalPosition);
    /// That part of the table is to be seen, since the keyboard is there.
    void rowReached(const QRect &row);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    /// Left to the sheet.
    void wheelEvent(QWheelEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;

private:
    void open(const QModelIndex &index);

    ExtTreeModel _content;
    OutlineDelegate *_delegate;
};

} // namespace quorvin
