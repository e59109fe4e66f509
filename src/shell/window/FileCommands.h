// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/commands/Command.h"

#include <QObject>

#include <functional>

class QWidget;

namespace quorvin {

class CommandSet;
class ExtTreeItem;
class AttachmentController;
class FilelistController;
class LiveSettings;
class MainView;

/// The commands that act on the current file itself: where it lies, and what of it can be changed through the
/// selected row of the Extended tree. Main thread.
class FileCommands : public QObject {
    Q_OBJECT
public:
    /// Belongs to the window. The others must outlive this object.
    FileCommands(LiveSettings &settings, MainView &view, FilelistController &files, QWidget *window);

    void registerAt(CommandSet &commands);
    /// Adds what the selected row offers.
    void describe(CommandState &state) const;

private:
    /// Null when the tree is not shown, or not one row is selected.
    const ExtTreeItem *selectedRow() const;
    void connectAttachments();
    void revealInFinder();
    void revealInFinder(const QString &path);
    void copyGeneralInfo();
    /// `change` is done when the user agrees.
    void askFirst(const QString &title, const QString &text, const QString &explanation, const QString &verb,
                  const std::function<void()> &change);
    void removeExtendedAttribute();
    void touchDate();

    MainView &_view;
    FilelistController &_files;
    QWidget *_window;
    AttachmentController *_attachments;
};

} // namespace quorvin
