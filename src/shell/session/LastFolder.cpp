// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/session/LastFolder.h"

#include "shell/session/LiveSettings.h"

#include <QDir>
#include <QFileDialog>

namespace quorvin {

void startInLastFolder(QFileDialog &dialog, LiveSettings &settings)
{
    const QString last = settings.string(Setting::lastFolder);
    dialog.setDirectory(!last.isEmpty() && QDir(last).exists() ? last : QDir::homePath());
    QObject::connect(&dialog, &QFileDialog::accepted, &dialog, [&dialog, &settings] {
        settings.set(Setting::lastFolder, dialog.directory().absolutePath());
    });
}

} // namespace quorvin
