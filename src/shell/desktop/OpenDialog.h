// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QFileDialog>

class QListView;

namespace quorvin {

/// Chooses files and folders, several at once, and tells of them by `filesSelected`. A double click or Return
/// on a folder enters it, the button takes it. The dialogs of desktops know either files or folders, so this
/// is the toolkit's own; but in a sandbox, where only what the desktop's dialog has given can be read, it is
/// that one, and knows files only. Goes when it is closed. Main thread.
class OpenDialog final : public QFileDialog {
    Q_OBJECT
public:
    OpenDialog(QWidget *parent, const QString &title);

    void accept() override;

private:
    /// The paths of the selected rows if a folder is among them; else none, and the toolkit knows what to do.
    QStringList selectionWithFolders() const;
    void enableButton();

    QListView *_list = nullptr; ///< null for the desktop's dialog
};

} // namespace quorvin
