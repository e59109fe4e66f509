// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/WorkNote.h"

#include "shell/desktop/BackgroundRun.h"
#include "shell/desktop/PlainText.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

namespace quorvin {

namespace {

constexpr int kDelayMilliseconds = 400; ///< short work never flashes

} // namespace

WorkNote::WorkNote(BackgroundRunBase &run, const WorkWords &words, QWidget *parent) : QWidget(parent)
{
    auto *text = plainLabel();
    auto *cancel = new QToolButton;
    cancel->setText(tr("Cancel"));
    cancel->setToolTip(plainTip(words.cancelTip));
    cancel->setAccessibleDescription(words.cancelTip);
    auto *line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(8);
    line->addWidget(text);
    line->addWidget(cancel);
    hide();
    _delay.setSingleShot(true);
    _delay.setInterval(kDelayMilliseconds);
    _delay.start();
    connect(&_delay, &QTimer::timeout, this, &QWidget::show);
    connect(cancel, &QToolButton::clicked, this, words.cancel);
    connect(&run, &BackgroundRunBase::progressed, this,
            [text, words](int done, int total) { text->setText(words.progress(done, total)); });
    const auto end = [this] {
        _delay.stop();
        hide();
        deleteLater();
    };
    connect(&run, &BackgroundRunBase::ended, this, end);
    connect(&run, &QObject::destroyed, this, end);
}

} // namespace quorvin
