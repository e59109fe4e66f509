// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

class QAbstractItemView;
class QPainter;

namespace quorvin {

/// A thin frame at the inner edge of the rectangle, in the colour of what has the keyboard.
void paintFocusRing(QPainter &painter, const QRect &rect, const QPalette &palette);

/// A thin frame round a view while it has the keyboard, so that one sees where the keys go; none round an
/// empty one. Takes no room and no clicks. Main thread.
class FocusRing final : public QWidget {
    Q_OBJECT
public:
    /// Belongs to the view, which has its model already.
    explicit FocusRing(QAbstractItemView *view);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void follow();

    QAbstractItemView *_view;
};

} // namespace quorvin
