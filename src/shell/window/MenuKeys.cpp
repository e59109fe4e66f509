// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/MenuKeys.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMainWindow>
#include <QMenuBar>
#include <QShortcut>

namespace quorvin {

MenuKeys::MenuKeys(QMainWindow *window) : QObject(window)
{
    connect(new QShortcut(QKeySequence(Qt::Key_F10), window), &QShortcut::activated, this, [window] {
        QMenuBar *bar = window->menuBar();
        bar->setFocus(Qt::MenuBarFocusReason);
        bar->setActiveAction(bar->actions().constFirst());
    });
    connect(new QShortcut(QKeySequence(Qt::SHIFT | Qt::Key_F10), window), &QShortcut::activated, this, [] {
        if (QWidget *focus = QApplication::focusWidget()) {
            QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), focus->mapToGlobal(QPoint()));
            QApplication::sendEvent(focus, &event);
        }
    });
}

} // namespace quorvin
