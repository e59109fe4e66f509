// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

namespace quorvin {

/// The border between two parts of a view, by which the one in front of it is made wider or narrower. Draws
/// nothing; its owner says where it stands. Main thread.
class ColumnGrip final : public QWidget {
    Q_OBJECT
public:
    static constexpr int kWidth = 7; ///< device-independent pixels, the border in their middle

    explicit ColumnGrip(QWidget *parent);

Q_SIGNALS:
    /// The border is to stand there, in the parent's coordinates.
    void dragged(int x);
    void doubleClicked();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    int _grabbedAt = 0; ///< how far from the border
};

} // namespace quorvin
