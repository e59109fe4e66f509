// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/session/LiveSettings.h"

namespace quorvin {

LiveSettings::LiveSettings(Settings &settings, QObject *parent) : QObject(parent), _settings(settings) { }

void LiveSettings::set(Setting setting, const QVariant &value)
{
    const SettingRow &row = settingRow(setting);
    const auto typed = settingFromText(row, settingText(row.type, value));
    if (!typed)
        return;
    const QString before = text(setting);
    _settings.set(setting, *typed);
    if (text(setting) != before)
        Q_EMIT changed(setting);
}

Expected<void> LiveSettings::overrideFrom(const QString &assignment)
{
    QStringList before;
    for (const SettingRow &row : settingsTable())
        before.append(text(row.setting));
    if (auto problem = _settings.overrideFrom(assignment); !problem)
        return problem;
    for (const SettingRow &row : settingsTable()) {
        if (text(row.setting) != before[static_cast<qsizetype>(row.setting)])
            Q_EMIT changed(row.setting);
    }
    return {};
}

} // namespace quorvin
