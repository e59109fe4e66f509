// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

#include <functional>
#include <vector>

class QLabel;
class QVBoxLayout;

namespace quorvin {

/// Says what narrows a list, a line for each filter with a button that takes it away, and how many files are
/// left. Hidden while nothing does. Main thread.
class FilterStrip : public QWidget {
    Q_OBJECT
public:
    struct Line {
        QString text;
        std::function<void()> remove;
    };

    explicit FilterStrip(QWidget *parent = nullptr);

    void setLines(const std::vector<Line> &lines);
    /// "3 of 14 files".
    void setCounts(const QString &text);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QWidget *lineWidget(const Line &line);

    QVBoxLayout *_lines;
    QLabel *_counts;
};

} // namespace quorvin
