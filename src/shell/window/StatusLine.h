// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QTimer>
#include <QWidget>

class QLabel;
class QProgressBar;
class QToolButton;

namespace quorvin {

class WindowWorker;

/// The line under the window: count and duration, how far the analysis is, and a walk that is under way.
class StatusLine : public QWidget {
    Q_OBJECT
public:
    explicit StatusLine(QWidget *parent = nullptr);

    /// "" hides it.
    void setTotal(const QString &text);
    void setProgress(const WindowWorker &worker);

    /// What went wrong with the last thing that was asked for; "" when nothing did.
    void setProblem(const QString &text);

    /// Shows the walk, once it has gone on for a moment.
    void startWalk();
    void setWalkCount(int found);
    void endWalk();

Q_SIGNALS:
    void walkCancelled();

private:
    void showWalk(bool shows);

    QLabel *_total;
    QLabel *_problem;
    QLabel *_walk;
    QToolButton *_cancel;
    QProgressBar *_bgProgress;
    QLabel *_count;
    QTimer _walkDelay;
};

} // namespace quorvin
