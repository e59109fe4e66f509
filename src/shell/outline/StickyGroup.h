// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

class QAbstractScrollArea;

namespace quorvin {

/// The name of a group, which stays over the top of a view while the group's rows scroll below it. A click
/// leads to the group.
class StickyGroup final : public QWidget {
    Q_OBJECT
public:
    /// Belongs to the view, which says whether it is seen.
    explicit StickyGroup(QAbstractScrollArea *view);

    /// At the top of `frame`, which is in the view, and so high; the next group pushes it out as far as there
    /// is no `room` for it. The name stands behind the disclosure sign, which is as wide as `indentation`.
    void setGroup(const QString &name, const QRect &frame, int height, int room, int indentation);

Q_SIGNALS:
    void clicked();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    QAbstractScrollArea *_view;
    QString _name;
    QRect _text;
    QRect _sign;
};

} // namespace quorvin
