// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/StatusLine.h"

#include "filefacts/Durations.h"
#include "intake/FilelistTotals.h"
#include "shell/desktop/BackgroundRun.h"
#include "shell/desktop/PlainText.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QToolButton>

#include <limits>

namespace quorvin {

namespace {

constexpr int kBarWidth = 160;

/// "5 files", "2 files (of 5 total)", and with a duration "00:01:30 in 5 files"; "" for an empty list.
QString textOf(const ListTotals &totals)
{
    if (totals.all == 0)
        return {};
    QString count = totals.shown == totals.all
        ? StatusLine::tr("%1 files").arg(totals.shown)
        : StatusLine::tr("%1 files (of %2 total)").arg(totals.shown).arg(totals.all);
    if (!totals.duration)
        return count;
    const QString duration = totals.duration == 0 ? QStringLiteral("00:00:00")
                                                  : Utilities::formatDurationUpToSeconds(*totals.duration);
    return StatusLine::tr("%1 in %2").arg(duration, count);
}

} // namespace

StatusLine::StatusLine(QWidget *parent)
    : QWidget(parent),
      _line(new QHBoxLayout(this)),
      _total(plainLabel()),
      _problem(plainLabel()),
      _bgProgress(new QProgressBar),
      _count(plainLabel())
{
    _total->setTextInteractionFlags(Qt::TextSelectableByMouse);
    _bgProgress->setTextVisible(false);
    _bgProgress->setFixedSize(kBarWidth, 10);
    _bgProgress->setAccessibleName(tr("Analysed files"));
    _line->setContentsMargins(10, 4, 10, 4);
    _line->setSpacing(8);
    _line->addWidget(_total);
    _line->addWidget(_problem);
    _line->addStretch();
    _line->addWidget(_bgProgress);
    _line->addWidget(_count);
    setFixedHeight(std::max(fontMetrics().height() + 10, QToolButton().sizeHint().height() + 4));
    setProblem({});
    _bgProgress->hide();
    _count->hide();
}

void StatusLine::setTotals(const ListTotals &totals)
{
    const QString text = textOf(totals);
    _total->setText(text);
    _total->setVisible(!text.isEmpty());
}

void StatusLine::setProblem(const QString &text)
{
    _problem->setText(text);
    _problem->setVisible(!text.isEmpty());
}

void StatusLine::follow(BackgroundRunBase &run, const WorkWords &words)
{
    connect(&run, &BackgroundRunBase::started, this, [this, &run, words] {
        _line->insertWidget(_line->indexOf(_bgProgress), new WorkNote(run, words));
    });
}

void StatusLine::setProgress(const WindowWorker &worker)
{
    constexpr qint64 kMost = std::numeric_limits<int>::max();
    _bgProgress->setMaximum(static_cast<int>(std::min(worker.countToProcess(), kMost)));
    _bgProgress->setValue(static_cast<int>(std::min(worker.countProcessed(), kMost)));
    const auto counts = tr("%1 of %2 processed").arg(worker.countProcessed()).arg(worker.countToProcess());
    _bgProgress->setToolTip(plainTip(counts));
    _count->setText(tr("%1 of %2").arg(worker.countProcessed()).arg(worker.countToProcess()));
    if (worker.processingIsDone() || worker.countToProcess() >= 2) {
        _bgProgress->setVisible(!worker.processingIsDone());
        _count->setVisible(!worker.processingIsDone());
    }
}

} // namespace quorvin
