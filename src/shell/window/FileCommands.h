// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/commands/Command.h"

#include <QObject>
#include <QStringList>

#include <functional>

class QWidget;

namespace quorvin {

class CommandSet;
class ExtTreeItem;
class ExtractionController;
class FilelistController;
class MainView;
class QuorvinData;
class StatusLine;
struct Session;

/// The commands that act on the current file itself: where it lies, what is inside it, and what of it can be
/// changed through the selected row of the Extended tree. Main thread.
class FileCommands : public QObject {
    Q_OBJECT
public:
    /// Belongs to the window. The others must outlive this object.
    FileCommands(Session &session, MainView &view, FilelistController &files, QWidget *window);

    void registerAt(CommandSet &commands);
    /// Adds what the selected row offers.
    void describe(CommandState &state) const;

    /// Shows the file in its folder; `context`, which may go before that is answered, says in `status` when
    /// nothing can.
    static void reveal(const QString &path, StatusLine &status, QObject *context);
    static void copyGeneralInfo(const QuorvinData &record);

Q_SIGNALS:
    /// As `ExtractionController` says it.
    void temporaryFilesSaved(const QStringList &paths, const QString &folder);

private:
    /// Null when the tree is not shown, or not one row is selected.
    const ExtTreeItem *selectedRow() const;
    void connectExtraction();
    /// Those of the selected files that carry pictures.
    QStringList pathsWithPictures() const;
    void displayCovers();
    void revealInFinder(const QString &path);
    /// `change` is done when the user agrees.
    void askFirst(const QString &title, const QString &text, const QString &explanation, const QString &verb,
                  const std::function<void()> &change);
    void removeExtendedAttribute();
    void touchDate();

    MainView &_view;
    FilelistController &_files;
    QWidget *_window;
    ExtractionController *_extraction;
};

} // namespace quorvin
