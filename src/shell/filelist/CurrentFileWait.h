// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/FilelistItem.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

namespace quorvin {

/// That the current file is being read, for whoever shows it: a file that comes at once is never told of, one
/// that takes long can be skipped. Main thread.
class CurrentFileWait : public QObject {
    Q_OBJECT
public:
    /// From then on it is worth a word, and from then on a way out.
    static constexpr int kReadingMilliseconds = 400;
    static constexpr int kLongMilliseconds = 2000;

    enum Stage {
        None, ///< nothing is waited for, or not for long
        Reading,
        Long, ///< its seconds are worth telling, and it can be skipped
    };

    explicit CurrentFileWait(QObject *parent = nullptr);

    Stage stage() const { return _stage; }
    /// Null when nothing is waited for.
    const FilelistItemPtr &file() const { return _file; }
    /// Since it was asked for; 0 when nothing is waited for.
    int seconds() const;

    /// Waits for this file from now on; for one that it waits for already it goes on.
    void start(const FilelistItemPtr &file);
    /// It has come, or nobody looks at it any more.
    void stop();
    /// Whoever looks at it has had enough. Does nothing before the wait is long.
    void skip();

Q_SIGNALS:
    /// The stage, or in a long wait the seconds.
    void changed();
    void skipWanted(const quorvin::FilelistItemPtr &file);

private:
    void tick();

    FilelistItemPtr _file;
    QElapsedTimer _since;
    QTimer _timer;
    Stage _stage = None;
};

} // namespace quorvin
