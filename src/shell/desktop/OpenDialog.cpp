// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/desktop/OpenDialog.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>

#include <algorithm>

namespace quorvin {

namespace {

bool isInSandbox()
{
    return QFile::exists(QStringLiteral("/.flatpak-info")) || qEnvironmentVariableIsSet("SNAP");
}

} // namespace

OpenDialog::OpenDialog(QWidget *parent, const QString &title) : QFileDialog(parent, title)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setOption(DontUseNativeDialog, !isInSandbox());
    setFileMode(ExistingFiles);
    // Both of its views share one selection.
    _list = findChild<QListView *>(QStringLiteral("listView"));
    if (_list)
        connect(_list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
                &OpenDialog::enableButton);
}

QStringList OpenDialog::selectionWithFolders() const
{
    const auto *typed = findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    if (!_list || (typed && typed->hasFocus()))
        return {};
    QStringList paths;
    for (const QModelIndex &row : _list->selectionModel()->selectedRows())
        paths.append(row.data(QFileSystemModel::FilePathRole).toString());
    const bool hasFolder
        = std::ranges::any_of(paths, [](const QString &path) { return QFileInfo(path).isDir(); });
    return hasFolder ? paths : QStringList();
}

/// The toolkit takes a folder for nothing to be opened.
void OpenDialog::enableButton()
{
    const auto *buttons = findChild<QDialogButtonBox *>();
    QPushButton *open = buttons ? buttons->button(QDialogButtonBox::Open) : nullptr;
    if (open && !selectionWithFolders().isEmpty())
        open->setEnabled(true);
}

void OpenDialog::accept()
{
    const QStringList paths = selectionWithFolders();
    if (paths.isEmpty())
        return QFileDialog::accept();
    Q_EMIT filesSelected(paths);
    done(Accepted);
}

} // namespace quorvin
