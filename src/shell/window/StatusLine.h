// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

class QLabel;
class QProgressBar;

namespace quorvin {

class WindowWorker;
struct ListTotals;
class WorkNote;

/// The line under the window: count and duration, how far the analysis is, and a walk or an export that is
/// under way.
class StatusLine : public QWidget {
    Q_OBJECT
public:
    explicit StatusLine(QWidget *parent = nullptr);

    /// Shows nothing for an empty list.
    void setTotals(const ListTotals &totals);
    void setProgress(const WindowWorker &worker);

    /// What went wrong with the last thing that was asked for; "" when nothing did.
    void setProblem(const QString &text);

    WorkNote &walk() { return *_walk; }
    WorkNote &exporting() { return *_exporting; }

private:
    QLabel *_total;
    QLabel *_problem;
    WorkNote *_walk;
    WorkNote *_exporting;
    QProgressBar *_bgProgress;
    QLabel *_count;
};

} // namespace quorvin
