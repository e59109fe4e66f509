// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/FocusKeeper.h"

#include "shell/info/CoverView.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>

#include <utility>

namespace quorvin {

namespace {

bool isArrow(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Left || key == Qt::Key_Right;
}

} // namespace

FocusKeeper::FocusKeeper(QWidget *list, QWidget *content) : QObject(content), _list(list), _content(content)
{
    list->installEventFilter(this);
    content->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, &FocusKeeper::focusDidChange);
}

bool FocusKeeper::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == _list) {
        if (event->type() == QEvent::Show && std::exchange(_isOwed, false))
            _list->setFocus(Qt::OtherFocusReason);
        return false;
    }
    if (watched == _content && event->type() == QEvent::Show)
        windowDidShow();
    if (event->type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key == Qt::Key_Tab || key == Qt::Key_Backtab)
        _isOwed = false;
    return isArrow(key) && qobject_cast<QAbstractButton *>(watched);
}

void FocusKeeper::windowDidShow()
{
    // The toolkit would give the keyboard to the first widget of the window instead.
    const QWidget *window = _list->window();
    if (window->focusWidget() != _list || _list->isVisibleTo(window))
        return;
    _isOwed = true;
    placeInContent()->setFocus(Qt::OtherFocusReason);
}

void FocusKeeper::focusDidChange(QWidget *old, QWidget *now)
{
    if (old && old != _list)
        old->removeEventFilter(this);
    if (now && _content->isAncestorOf(now)) {
        now->installEventFilter(this);
        // A page that goes hands the keyboard on as well, but with no button held.
        if (QApplication::mouseButtons() != Qt::NoButton)
            _isOwed = false;
    }
    if (old && old == _list && now && !old->isVisible() && _content->isVisible()) {
        _isOwed = true;
        placeInContent()->setFocus(Qt::OtherFocusReason);
    }
}

QWidget *FocusKeeper::placeInContent() const
{
    if (QWidget *last = _content->focusWidget(); last && last->isVisible())
        return last;
    QWidget *fallback = nullptr;
    for (QWidget *next = _content->nextInFocusChain(); next != _content; next = next->nextInFocusChain()) {
        if (!(next->focusPolicy() & Qt::TabFocus) || !next->isEnabled() || !next->isVisible()
            || !_content->isAncestorOf(next))
            continue;
        if (!qobject_cast<QAbstractButton *>(next) && !qobject_cast<CoverView *>(next))
            return next;
        if (!fallback)
            fallback = next;
    }
    return fallback ? fallback : _content;
}

} // namespace quorvin
