// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"
#include "projects/Project.h"
#include "shell/commands/Command.h"
#include "shell/desktop/BackgroundRun.h"
#include "shell/window/OpenedProject.h"

#include <QMessageBox>
#include <QPointer>

#include <functional>
#include <optional>

namespace quorvin {

class CommandSet;
class FilelistController;
class MainView;
struct Session;

/// The project that a window belongs to, if any: how it is opened, saved, left, and asked for when it has
/// changes. Files are read and written elsewhere. Main thread.
class WindowProject : public QObject {
    Q_OBJECT
public:
    /// Belongs to the window. The others must outlive this object.
    WindowProject(Session &session, MainView &view, FilelistController &files, QWidget *window);

    void registerAt(CommandSet &commands);
    void describe(CommandState &state) const;

    /// "" when the window belongs to none.
    QString name() const;
    /// A project is on its way into the window.
    bool isOpening() const { return _opening.isUnderWay(); }
    /// As it is on the disk, with its facts; null when the window belongs to none.
    const Project *saved() const { return _saved ? &*_saved : nullptr; }
    /// The list, or how it is looked at, is not as it was saved.
    bool hasChanges() const;

    /// Does it at once where there are no changes, else when the user has saved them or does not want them.
    void afterSaving(const std::function<void()> &action);
    /// Whether the window may close now. If not, a project is being written or the user is asked, and
    /// `closeWanted` may come.
    bool mayClose();
    /// Changes count for nothing any more.
    void forgetChanges() { _areChangesForgotten = true; }

Q_SIGNALS:
    /// The window belongs to another project, or to none.
    void didChange();
    /// The project is on the disk as `saved` has it: opened, or saved just now. `isNew`: it was written now.
    void savedDidChange(bool isNew);
    void tabWanted(quorvin::Tab tab);
    /// The user has agreed to what `mayClose` asked.
    void closeWanted();
    /// The user wants to stay, or saving has failed.
    void stayed();
    /// The project at that path is to have a window of its own.
    void newWindowWanted(const QStringList &paths);

private:
    /// A project was given to the list in place of files.
    void take(const QString &path, bool replaces);
    void open(const QString &path, bool replaces);
    void show(const QString &path, OpenedProject opened);
    void leave();
    Project current() const;
    /// `then` is called when it is saved.
    void save(const std::function<void()> &then);
    void saveAs(const std::function<void()> &then);
    void write(const QString &path, const std::function<void()> &then);
    void takeWritten(const QString &path, const Expected<Project> &written);
    void tellFailure(const QString &text, const QString &reason);

    Session &_session;
    MainView &_view;
    FilelistController &_files;
    QWidget *_window;
    QString _path;
    std::optional<Project> _saved;
    bool _areChangesForgotten = false;
    bool _isCloseWaiting = false; ///< for what is being written
    QPointer<QMessageBox> _question;
    BackgroundRun<Expected<OpenedProject>> _opening{this};
    BackgroundRun<Expected<Project>> _writing{this};
};

} // namespace quorvin
