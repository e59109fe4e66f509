// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/StatusLine.h"

#include "intake/FilelistTotals.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QToolButton>

#include <limits>

namespace quorvin {

namespace {

constexpr int kDelayMilliseconds = 400; ///< short work never flashes
constexpr int kBarWidth = 160;

} // namespace

StatusLine::StatusLine(QWidget *parent)
    : QWidget(parent),
      _total(new QLabel),
      _problem(new QLabel),
      _walk(new QLabel),
      _cancel(new QToolButton),
      _bgProgress(new QProgressBar),
      _count(new QLabel)
{
    _total->setTextInteractionFlags(Qt::TextSelectableByMouse);
    _cancel->setText(tr("Cancel"));
    _cancel->setToolTip(tr("Stop looking for files; the list stays as it is"));
    _bgProgress->setTextVisible(false);
    _bgProgress->setFixedSize(kBarWidth, 10);
    _bgProgress->setAccessibleName(tr("Analysed files"));
    auto *line = new QHBoxLayout(this);
    line->setContentsMargins(10, 4, 10, 4);
    line->setSpacing(8);
    line->addWidget(_total);
    line->addWidget(_problem);
    line->addStretch();
    line->addWidget(_walk);
    line->addWidget(_cancel);
    line->addWidget(_bgProgress);
    line->addWidget(_count);
    setFixedHeight(std::max(fontMetrics().height() + 10, _cancel->sizeHint().height() + 4));
    showWalk(false);
    setProblem({});
    _bgProgress->hide();
    _count->hide();
    _walkDelay.setSingleShot(true);
    _walkDelay.setInterval(kDelayMilliseconds);
    connect(&_walkDelay, &QTimer::timeout, this, [this] { showWalk(true); });
    connect(_cancel, &QToolButton::clicked, this, &StatusLine::walkCancelled);
}

void StatusLine::setTotal(const QString &text)
{
    _total->setText(text);
    _total->setVisible(!text.isEmpty());
}

void StatusLine::setProblem(const QString &text)
{
    _problem->setText(text);
    _problem->setVisible(!text.isEmpty());
}

void StatusLine::setProgress(const WindowWorker &worker)
{
    constexpr qint64 kMost = std::numeric_limits<int>::max();
    _bgProgress->setMaximum(static_cast<int>(std::min(worker.countToProcess(), kMost)));
    _bgProgress->setValue(static_cast<int>(std::min(worker.countProcessed(), kMost)));
    _bgProgress->setToolTip(FilelistTotals::progressText(worker));
    _count->setText(tr("%1 of %2").arg(worker.countProcessed()).arg(worker.countToProcess()));
    if (worker.processingIsDone() || worker.countToProcess() >= 2) {
        _bgProgress->setVisible(!worker.processingIsDone());
        _count->setVisible(!worker.processingIsDone());
    }
}

void StatusLine::startWalk()
{
    setWalkCount(0);
    _walkDelay.start();
}

void StatusLine::setWalkCount(int found)
{
    _walk->setText(tr("Looking for files: %n found", nullptr, found));
}

void StatusLine::endWalk()
{
    _walkDelay.stop();
    showWalk(false);
}

void StatusLine::showWalk(bool shows)
{
    _walk->setVisible(shows);
    _cancel->setVisible(shows);
}

} // namespace quorvin
