// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

class QFileDialog;
class QWidget;

namespace quorvin {

class LiveSettings;

/// Dialogs that belong to a window and keep it waiting, begin in the folder that was used last, and go when
/// they are closed. They are still to be opened. `settings` must outlive them. Main thread.

QFileDialog *makeFileDialog(QWidget *window, const QString &title, LiveSettings &settings);
/// Asks for a folder; `button` says what for.
QFileDialog *makeFolderDialog(QWidget *window, const QString &title, LiveSettings &settings,
                              const QString &button);
/// Asks where a document of that extension is exported to, at first under that name without extension.
QFileDialog *makeExportDialog(QWidget *window, const QString &title, LiveSettings &settings,
                              const QString &name, const QString &extension);

} // namespace quorvin
