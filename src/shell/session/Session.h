// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/session/LiveSettings.h"
#include "shell/session/RecentFiles.h"
#include "shell/session/TemporaryFolders.h"

#include <QPointer>

namespace quorvin {

/// What all windows of a run share. Main thread.
struct Session {
    /// `values` must outlive the session.
    explicit Session(Settings &values) : settings(values) { }

    LiveSettings settings;
    RecentFiles recentFiles{settings};
    TemporaryFolders temporaryFolders;
    /// The list whose rows are dragged at the moment; null when there is none.
    QPointer<QObject> draggingSource;
};

} // namespace quorvin
