// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/session/FileDialogs.h"

#include "shell/session/LastFolder.h"

#include <QFileDialog>

namespace quorvin {

QFileDialog *makeFileDialog(QWidget *window, const QString &title, LiveSettings &settings)
{
    auto *dialog = new QFileDialog(window, title);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowModality(Qt::WindowModal);
    startInLastFolder(*dialog, settings);
    return dialog;
}

QFileDialog *makeFolderDialog(QWidget *window, const QString &title, LiveSettings &settings,
                              const QString &button)
{
    QFileDialog *dialog = makeFileDialog(window, title, settings);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    dialog->setLabelText(QFileDialog::Accept, button);
    return dialog;
}

QFileDialog *makeExportDialog(QWidget *window, const QString &title, LiveSettings &settings,
                              const QString &name, const QString &extension)
{
    QFileDialog *dialog = makeFileDialog(window, title, settings);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(extension);
    dialog->setNameFilter(QFileDialog::tr("%1 files (*.%1)").arg(extension));
    dialog->setLabelText(QFileDialog::Accept, QFileDialog::tr("Export"));
    dialog->selectFile(name + u'.' + extension);
    return dialog;
}

} // namespace quorvin
