// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QButtonGroup>
#include <QWidget>

#include <vector>

class QAction;

namespace quorvin {

/// The tabs of a window, as one row of which one is chosen; arrow keys go from one to the next.
class TabSelector : public QWidget {
    Q_OBJECT
public:
    /// A tab for each action; the actions say which is chosen.
    explicit TabSelector(const std::vector<QAction *> &tabs, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QButtonGroup _buttons;
};

} // namespace quorvin
