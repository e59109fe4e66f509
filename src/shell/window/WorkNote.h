// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QTimer>
#include <QWidget>

class QLabel;

namespace quorvin {

/// Says what work is under way, with a button that cancels it; shows once the work has gone on for a moment.
class WorkNote : public QWidget {
    Q_OBJECT
public:
    /// `cancelTip` tells what cancelling does.
    WorkNote(const QString &cancelTip, QWidget *parent = nullptr);

    void start();
    void setText(const QString &text);
    void end();

Q_SIGNALS:
    void started();
    void ended();
    void cancelled();

private:
    QLabel *_text;
    QTimer _delay;
};

} // namespace quorvin
