// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/window/WorkNote.h"

#include <QWidget>

#include <functional>

class QHBoxLayout;
class QLabel;
class QProgressBar;
class QToolButton;

namespace quorvin {

class BackgroundRunBase;
class ElidedLabel;
class StatusMessage;
class WindowWorker;
struct ListTotals;

/// The line under the window: count and duration, which files failed, how far the analysis is, and whatever
/// long work is under way.
class StatusLine : public QWidget {
    Q_OBJECT
public:
    explicit StatusLine(QWidget *parent = nullptr);

    /// Shows nothing for an empty list.
    void setTotals(const ListTotals &totals);
    /// Said from two rows on.
    void setSelectedCount(int rows);
    /// Where the current file was recorded; "" for nothing.
    void setPlace(const QString &place);
    void setProgress(const WindowWorker &worker);

    /// What has come of the last thing that was asked for, as `StatusMessage` says it.
    void say(const QString &text, const QString &actionText = {}, std::function<void()> action = {});
    /// What is said at the moment; "" for nothing.
    QString saying() const;

    /// From now on each time that the run is started it has a note here until it ends. The run may go before
    /// this object.
    void follow(BackgroundRunBase &run, const WorkWords &words);

Q_SIGNALS:
    /// Reading is to stop.
    void stopWanted();
    /// The next file that failed is to be selected.
    void nextFailedWanted();

private:
    QHBoxLayout *_line;
    QLabel *_total;
    QToolButton *_failed; ///< how many have failed; goes to the next one
    QLabel *_selected;
    StatusMessage *_message;
    ElidedLabel *_place;
    QProgressBar *_bgProgress;
    QLabel *_count;
    QToolButton *_stop;
};

} // namespace quorvin
