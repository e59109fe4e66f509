// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QToolBar>

namespace quorvin {

class CommandSet;

/// The tool bar of a window: commands at its start, the tabs in its middle.
class ToolBar : public QToolBar {
    Q_OBJECT
public:
    /// `commands` must outlive the bar.
    explicit ToolBar(const CommandSet &commands, QWidget *parent = nullptr);

    /// All of it: nothing gives way into a menu of its own.
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool event(QEvent *event) override;
    /// Plain: the lines that a style draws round a bar are brighter than anything else in the dark.
    void paintEvent(QPaintEvent *event) override;

private:
    void centreTabs();

    QWidget *_tabs; ///< stands free, over the room that is kept for it
    QWidget *_room;
};

} // namespace quorvin
