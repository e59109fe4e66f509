// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

namespace quorvin {

class LiveSettings;

/// What was opened lately, kept over runs in a setting of its own. Main thread.
class RecentFiles {
public:
    static constexpr qsizetype kMost = 12;

    /// `settings` must outlive this object.
    explicit RecentFiles(LiveSettings &settings) : _settings(settings) { }

    /// Newest first, as they were asked for: files and folders.
    QStringList paths() const;
    /// These come first from now on, in their order.
    void note(const QStringList &paths);
    void clear();

private:
    LiveSettings &_settings;
};

} // namespace quorvin
