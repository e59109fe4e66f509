// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/SettingsCommand.h"

#include "cli/Console.h"
#include "platform/Settings.h"

namespace quorvin::cli {

Status runSettings(const Context &context)
{
    for (const SettingRow &row : settingsTable()) {
        const QStringList fields{row.key, nameOfType(row.type), row.defaultText,
                                 context.settings.text(row.setting)};
        context.console.write(fields.join(u'\t').toUtf8() + '\n');
    }
    return context.console.finish(true) ? AllWell : SomethingFailed;
}

} // namespace quorvin::cli
