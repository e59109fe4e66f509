// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/session/LastFolder.h"

#include "shell/session/LiveSettings.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

namespace quorvin {

namespace {

/// That of what was chosen: a path that is typed leads elsewhere than the folder that is shown.
QString folderOf(const QFileDialog &dialog)
{
    const QString shown = dialog.directory().absolutePath();
    const QStringList chosen = dialog.selectedFiles();
    return chosen.isEmpty() || chosen.first() == shown ? shown : QFileInfo(chosen.first()).absolutePath();
}

} // namespace

void startInLastFolder(QFileDialog &dialog, LiveSettings &settings)
{
    const QString last = settings.string(Setting::lastFolder);
    dialog.setDirectory(!last.isEmpty() && QDir(last).exists() ? last : QDir::homePath());
    QObject::connect(&dialog, &QFileDialog::accepted, &dialog,
                     [&dialog, &settings] { settings.set(Setting::lastFolder, folderOf(dialog)); });
}

} // namespace quorvin
