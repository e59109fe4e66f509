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
    /// Belongs to the view, which says where it stands and whether it is seen.
    explicit StickyGroup(QAbstractScrollArea *view);

    /// Both rectangles are in this widget.
    void setGroup(const QString &name, const QRect &text, const QRect &sign);

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
