// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QPointer>

class QWidget;
class QWindow;

namespace quorvin {

/// Lets every drop on a window be answered as a copy, also to a source that offers nothing but a move, as
/// many do while Shift is held: the toolkit would else answer with the move, and the source might remove its
/// file. Main thread.
class CopyDrops : public QObject {
    Q_OBJECT
public:
    /// Belongs to the window.
    explicit CopyDrops(QWidget *window);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *_window;
    QPointer<QWindow> _handle;
};

} // namespace quorvin
