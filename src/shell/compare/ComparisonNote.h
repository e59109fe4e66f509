// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace quorvin {

/// How many of the files a comparison shows.
struct ComparedCounts {
    qsizetype shown = 0;
    qsizetype all = 0; ///< that could be shown
    qsizetype closed = 0; ///< of those not shown, whose columns the user has closed

    bool operator==(const ComparedCounts &) const = default;
};

/// The strip over a comparison that does not show all files: how many it shows, why, and what to do. Nothing
/// is seen of it while all are shown. Main thread.
class ComparisonNote final : public QWidget {
    Q_OBJECT
public:
    explicit ComparisonNote(QWidget *parent = nullptr);

    void setCounts(const ComparedCounts &counts);

Q_SIGNALS:
    void preferencesWanted();
    void closedWanted();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QLabel *_text;
    QPushButton *_closed;
    QPushButton *_preferences;
};

} // namespace quorvin
