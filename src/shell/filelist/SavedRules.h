// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QMap>
#include <QString>

namespace quorvin {

class LiveSettings;

/// The rules that the user has kept, as texts by their names, in the settings. Main thread.
class SavedRules {
public:
    /// `settings` must outlive this object.
    explicit SavedRules(LiveSettings &settings) : _settings(settings) { }

    QMap<QString, QString> all() const;
    /// Under a name that has one already, in its place. "" as text takes it out.
    void keep(const QString &name, const QString &text);

private:
    LiveSettings &_settings;
};

} // namespace quorvin
