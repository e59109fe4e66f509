// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/FindField.h"

#include <QKeyEvent>

namespace quorvin {

namespace {

constexpr int kPauseMilliseconds = 600; ///< without a key, and what stands there is meant

} // namespace

FindField::FindField(QWidget *parent) : SearchField(parent)
{
    setPlaceholderText(tr("Search all files"));
    setAccessibleName(tr("Search all files"));
    setAccessibleDescription(tr("Shows only files that have the text in a parameter"));
    // Comes into the keyboard's way by its command alone.
    setFocusPolicy(Qt::ClickFocus);
    hide();
    _pause.setSingleShot(true);
    _pause.setInterval(kPauseMilliseconds);
    connect(&_pause, &QTimer::timeout, this, &FindField::updateGlobalSearch);
    connect(this, &QLineEdit::textEdited, &_pause, qOverload<>(&QTimer::start));
    connect(this, &QLineEdit::textChanged, this, [this](const QString &now) {
        if (now.isEmpty() && !hasFocus())
            comeOrGo();
    });
}

void FindField::edit()
{
    setVisible(true);
    raise();
    setFocus(Qt::ShortcutFocusReason);
    selectAll();
}

void FindField::setSearch(const QString &text)
{
    if (text != this->text() && !_pause.isActive())
        setText(text);
    comeOrGo();
}

void FindField::place(const QRect &room, bool covers)
{
    _covers = covers;
    setGeometry(room);
    comeOrGo();
}

void FindField::comeOrGo()
{
    setVisible(hasFocus() || (!text().isEmpty() && !_covers));
}

void FindField::updateGlobalSearch()
{
    _pause.stop();
    Q_EMIT searchWanted(text());
}

void FindField::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return updateGlobalSearch();
    case Qt::Key_Escape:
    case Qt::Key_Down:
        return Q_EMIT left();
    default:
        SearchField::keyPressEvent(event);
    }
}

void FindField::focusOutEvent(QFocusEvent *event)
{
    SearchField::focusOutEvent(event);
    if (event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason)
        return;
    if (_pause.isActive())
        updateGlobalSearch();
    comeOrGo();
}

} // namespace quorvin
