// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/CopyDrops.h"

#include <QDropEvent>
#include <QWidget>
#include <QWindow>

namespace quorvin {

namespace {

/// Reaches what a drop offers, which the toolkit only lets be read.
class Offer : public QDropEvent {
public:
    static void addCopy(QDropEvent &event) { (event.*(&Offer::m_actions)) |= Qt::CopyAction; }
};

} // namespace

CopyDrops::CopyDrops(QWidget *window) : QObject(window), _window(window)
{
    window->installEventFilter(this);
}

bool CopyDrops::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::WinIdChange:
        if (watched == _window && _window->windowHandle() != _handle) {
            _handle = _window->windowHandle();
            if (_handle)
                _handle->installEventFilter(this);
        }
        break;
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        if (watched == _handle)
            Offer::addCopy(*static_cast<QDropEvent *>(event));
        break;
    default:
        break;
    }
    return false;
}

} // namespace quorvin
