// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QButtonGroup>
#include <QWidget>

#include <vector>

class QAction;

namespace quorvin {

/// The tabs of a window as one row of buttons, of which one is down.
class TabSelector : public QWidget {
    Q_OBJECT
public:
    /// A button for each action; the actions say which is down.
    explicit TabSelector(const std::vector<QAction *> &tabs, QWidget *parent = nullptr);

private:
    QButtonGroup _buttons;
};

} // namespace quorvin
