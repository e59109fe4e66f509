// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QToolBar>

namespace quorvin {

class CommandSet;
class FindField;

/// The tool bar of a window: commands at its start, the tabs in its middle, the search of all files at its
/// end.
class ToolBar : public QToolBar {
    Q_OBJECT
public:
    /// `commands` must outlive the bar.
    explicit ToolBar(const CommandSet &commands, QWidget *parent = nullptr);

    FindField &globalSearchField() { return *_globalSearchField; }

    /// All of it: nothing gives way into a menu of its own.
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool event(QEvent *event) override;
    /// Plain: the lines that a style draws round a bar are brighter than anything else in the dark.
    void paintEvent(QPaintEvent *event) override;

private:
    void centreTabs();
    void placeField();

    QWidget *_tabs; ///< stands free, over the room that is kept for it
    QWidget *_room;
    FindField *_globalSearchField; ///< comes up over its button
    QWidget *_findButton = nullptr;
};

} // namespace quorvin
