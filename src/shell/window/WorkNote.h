// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QTimer>
#include <QWidget>

#include <functional>

namespace quorvin {

class BackgroundRunBase;

/// What a note says of a run.
struct WorkWords {
    QString cancelTip; ///< what cancelling does
    std::function<QString(int done, int total)> progress;
    std::function<void()> cancel;
};

/// Says what work is under way, with a button that cancels it; shows once the work has gone on for a moment,
/// and goes with its end.
class WorkNote : public QWidget {
    Q_OBJECT
public:
    /// The run has just been started.
    WorkNote(BackgroundRunBase &run, const WorkWords &words, QWidget *parent = nullptr);

private:
    QTimer _delay;
};

} // namespace quorvin
