// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/desktop/BackgroundRun.h"

#include <QStringList>
#include <QWidget>

class QLabel;
class QPushButton;

namespace quorvin {

/// Tells what beside their metadata still gives images away, and offers to clear it. Not to be seen while
/// there is nothing. Main thread.
class TracesOffer final : public QWidget {
    Q_OBJECT
public:
    explicit TracesOffer(QWidget *parent = nullptr);

    /// Looks elsewhere for the traces of these files.
    void lookAt(const QStringList &paths);

Q_SIGNALS:
    /// What could be cleared of these is.
    void cleared(const QStringList &paths);

private:
    struct Found {
        QStringList withOrigin;
        QStringList withThumbnails;
    };

    static Found found(const QStringList &paths, const RunControl &control);
    void tell(const Found &found);
    void clear();

    QLabel *_text;
    QPushButton *_clear;
    QStringList _paths; ///< that have some
    BackgroundRun<Found> _search;
    BackgroundRun<QStringList> _clearing;
};

} // namespace quorvin
