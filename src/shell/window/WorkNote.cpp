// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/WorkNote.h"

#include "shell/desktop/PlainText.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

namespace quorvin {

namespace {

constexpr int kDelayMilliseconds = 400; ///< short work never flashes

} // namespace

WorkNote::WorkNote(const QString &cancelTip, QWidget *parent) : QWidget(parent), _text(plainLabel())
{
    auto *cancel = new QToolButton;
    cancel->setText(tr("Cancel"));
    cancel->setToolTip(plainTip(cancelTip));
    cancel->setAccessibleDescription(cancelTip);
    auto *line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(8);
    line->addWidget(_text);
    line->addWidget(cancel);
    hide();
    _delay.setSingleShot(true);
    _delay.setInterval(kDelayMilliseconds);
    connect(&_delay, &QTimer::timeout, this, &QWidget::show);
    connect(cancel, &QToolButton::clicked, this, &WorkNote::cancelled);
}

void WorkNote::start()
{
    _text->clear();
    _delay.start();
    Q_EMIT started();
}

void WorkNote::setText(const QString &text)
{
    _text->setText(text);
}

void WorkNote::end()
{
    _delay.stop();
    hide();
    Q_EMIT ended();
}

} // namespace quorvin
