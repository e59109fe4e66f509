// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/StatusLine.h"

#include "filefacts/Durations.h"
#include "intake/FilelistTotals.h"
#include "shell/desktop/BackgroundRun.h"
#include "shell/desktop/Counts.h"
#include "shell/desktop/PlainText.h"
#include "shell/info/ElidedLabel.h"
#include "shell/window/StatusMessage.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QToolButton>

#include <limits>
#include <utility>

namespace quorvin {

namespace {

constexpr int kBarWidth = 160;

QString durationText(qint64 duration)
{
    return duration == 0 ? QStringLiteral("00:00:00") : Utilities::formatDurationUpToSeconds(duration);
}

/// "1 file", "5 files", "2 files (of 5 total)", with a duration "00:01:30 in 5 files", and behind that what
/// was not read: "5 files · 1 not read"; "" for an empty list.
QString textOf(const ListTotals &totals)
{
    if (totals.all == 0)
        return {};
    QString text = totals.shown == totals.all
        ? countOfFiles(totals.shown)
        : StatusLine::tr("%1 (of %2 total)").arg(countOfFiles(totals.shown), groupedCount(totals.all));
    if (totals.duration)
        text = StatusLine::tr("%1 in %2").arg(durationText(*totals.duration), text);
    if (totals.unread > 0)
        text += StatusLine::tr(" · %1 not read").arg(groupedCount(totals.unread));
    return text;
}

} // namespace

StatusLine::StatusLine(QWidget *parent)
    : QWidget(parent),
      _line(new QHBoxLayout(this)),
      _total(plainLabel()),
      _failed(new QToolButton),
      _selected(plainLabel()),
      _message(new StatusMessage),
      _place(new ElidedLabel(Qt::ElideRight)),
      _bgProgress(new QProgressBar),
      _count(plainLabel()),
      _stop(new QToolButton)
{
    _total->setTextInteractionFlags(Qt::TextSelectableByMouse);
    _bgProgress->setTextVisible(false);
    _bgProgress->setFixedSize(kBarWidth, 10);
    _bgProgress->setAccessibleName(tr("Analysed files"));
    _line->setContentsMargins(10, 4, 10, 4);
    _line->setSpacing(8);
    _line->addWidget(_total);
    _line->addWidget(_failed);
    _line->addWidget(_selected);
    _line->addWidget(_message);
    _line->addWidget(_place, 1);
    _line->addStretch();
    _line->addWidget(_bgProgress);
    _line->addWidget(_count);
    _line->addWidget(_stop);
    _place->setForegroundRole(QPalette::PlaceholderText);
    _place->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
    _failed->setAutoRaise(true);
    _failed->setToolTip(plainTip(tr("Go to the next file that could not be read (F8)")));
    connect(_failed, &QToolButton::clicked, this, &StatusLine::nextFailedWanted);
    _stop->setText(tr("Stop"));
    const QString tip = tr("Stop reading; what is read stays, and F5 goes on with the rest");
    _stop->setToolTip(plainTip(tip));
    _stop->setAccessibleDescription(tip);
    connect(_stop, &QToolButton::clicked, this, &StatusLine::stopWanted);
    setFixedHeight(std::max(fontMetrics().height() + 10, QToolButton().sizeHint().height() + 4));
    setSelectedCount(0);
    setPlace({});
    _failed->hide();
    _bgProgress->hide();
    _count->hide();
    _stop->hide();
}

void StatusLine::setTotals(const ListTotals &totals)
{
    const QString text = textOf(totals);
    _total->setText(text);
    _total->setVisible(!text.isEmpty());
    _failed->setText(tr("Failed files: %1").arg(groupedCount(totals.failed)));
    _failed->setVisible(totals.failed > 0);
}

void StatusLine::setSelectedCount(int rows)
{
    _selected->setText(tr("%1 selected").arg(groupedCount(rows)));
    _selected->setVisible(rows > 1);
}

void StatusLine::setPlace(const QString &place)
{
    _place->setWholeText(place);
    _place->setVisible(!place.isEmpty());
}

void StatusLine::say(const QString &text, const QString &actionText, std::function<void()> action)
{
    _message->say(text, actionText, std::move(action));
}

QString StatusLine::saying() const
{
    return _message->text();
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
    const QString counts
        = tr("%1 of %2").arg(groupedCount(worker.countProcessed()), groupedCount(worker.countToProcess()));
    _bgProgress->setToolTip(plainTip(tr("%1 processed").arg(counts)));
    _count->setText(counts);
    if (worker.processingIsDone() || worker.countToProcess() >= 2) {
        _bgProgress->setVisible(!worker.processingIsDone());
        _count->setVisible(!worker.processingIsDone());
        _stop->setVisible(!worker.processingIsDone());
    }
}

} // namespace quorvin
