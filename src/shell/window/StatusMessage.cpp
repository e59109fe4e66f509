// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/StatusMessage.h"

#include "shell/desktop/PlainText.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

#include <utility>

namespace quorvin {

StatusMessage::StatusMessage(QWidget *parent) : QWidget(parent), _text(plainLabel()), _button(new QToolButton)
{
    auto *line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(8);
    line->addWidget(_text);
    line->addWidget(_button);
    _text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    _timer.setSingleShot(true);
    _timer.setInterval(kMilliseconds);
    connect(&_timer, &QTimer::timeout, this, [this] {
        if (underMouse() || _button->hasFocus())
            _timer.start();
        else
            goAway();
    });
    connect(_button, &QToolButton::clicked, this, [this] {
        const auto action = std::exchange(_action, {});
        goAway();
        if (action)
            action();
    });
    hide();
}

void StatusMessage::say(const QString &text, const QString &actionText, std::function<void()> action)
{
    if (text.isEmpty())
        return goAway();
    _text->setText(text);
    _text->setToolTip(plainTip(text));
    _button->setText(actionText);
    _button->setVisible(!actionText.isEmpty());
    _action = std::move(action);
    show();
    _timer.start();
    QAccessibleEvent alert(_text, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

QString StatusMessage::text() const
{
    return isHidden() ? QString() : _text->text();
}

void StatusMessage::goAway()
{
    _timer.stop();
    _action = {};
    hide();
}

} // namespace quorvin
