// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QTimer>
#include <QWidget>

#include <functional>

class QLabel;
class QToolButton;

namespace quorvin {

/// One sentence on what has just come of something, with at most one thing to do about it. Goes away by
/// itself, and when it was acted upon; while the pointer or the keyboard is on it, it stays. Main thread.
class StatusMessage : public QWidget {
    Q_OBJECT
public:
    /// So long it stays.
    static constexpr int kMilliseconds = 10'000;

    explicit StatusMessage(QWidget *parent = nullptr);

    /// In place of what is there; "" says nothing. The button is there when it has a text.
    void say(const QString &text, const QString &actionText = {}, std::function<void()> action = {});
    /// "" when nothing is said.
    QString text() const;

private:
    void goAway();

    QLabel *_text;
    QToolButton *_button;
    std::function<void()> _action;
    QTimer _timer;
};

} // namespace quorvin
