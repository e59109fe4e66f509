// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/outline/WatchedParameter.h"

#include <QWidget>

class QGridLayout;

namespace quorvin {

/// The parameters that are watched, over the tree, at one place from file to file. Hidden while there are
/// none. Main thread.
class WatchStrip final : public QWidget {
    Q_OBJECT
public:
    explicit WatchStrip(QWidget *parent = nullptr);

    void setParameters(const WatchedParameters &parameters);
    const WatchedParameters &parameters() const { return _parameters; }
    /// What a file has of them; null: nothing is known of it.
    void showTree(const ExtTreeItems *tree);
    /// Device-independent pixels, so that values stand under one another.
    void setNamesWidth(int width);

Q_SIGNALS:
    /// The user has taken one out.
    void unwatched(int index);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void addRow(int row, const QString &title);
    QWidget *widgetAt(int row, int column) const;

    WatchedParameters _parameters;
    QGridLayout *_grid;
    int _namesWidth = 0;
};

} // namespace quorvin
