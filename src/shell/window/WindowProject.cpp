// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/WindowProject.h"

#include "model/FailureKind.h"
#include "platform/NativePath.h"
#include "projects/FactKeeping.h"
#include "projects/ProjectWriter.h"
#include "shell/commands/CommandSet.h"
#include "shell/desktop/Counts.h"
#include "shell/desktop/PlainText.h"
#include "shell/filelist/FilelistController.h"
#include "shell/info/ExtendedPane.h"
#include "shell/info/InfoView.h"
#include "shell/session/FileDialogs.h"
#include "shell/session/Session.h"
#include "shell/window/MainView.h"
#include "shell/window/ProjectState.h"
#include "shell/window/StatusLine.h"

#include <QFileDialog>
#include <QPushButton>

#include <utility>

namespace quorvin {

namespace {

/// Facts and all; what was stopped is not written.
Expected<Project> writtenProject(Project project, const QString &path, bool withDigests,
                                 const RunControl &run)
{
    keepFacts(project, withDigests, run.stop(), [&](std::size_t done, std::size_t total) {
        run.report(static_cast<int>(done), static_cast<int>(total));
    });
    if (run.isStopped())
        return failure(FailureKind::Stopped);
    return saveProject(project, path).map([&] { return std::move(project); });
}

} // namespace

WindowProject::WindowProject(Session &session, MainView &view, FilelistController &files, QWidget *window)
    : QObject(window), _session(session), _view(view), _files(files), _window(window)
{
    connect(&files.walks(), &FolderWalks::projectWanted, this, &WindowProject::take);
    connect(&files.walks(), &FolderWalks::found, this, [this](const FolderWalks::Request &request) {
        if (request.index == FolderWalks::Request::kReplace)
            leave();
    });
    view.statusLine().follow(_opening,
                             {tr("Stop; the window stays as it is"),
                              [](int, int) { return tr("Opening the project"); },
                              [this] { _opening.cancel(); }});
    view.statusLine().follow(
        _writing,
        {tr("Stop; the project stays as it was"),
         [](int done, int total) {
             return tr("Saving the project: %1 of %2").arg(groupedCount(done), groupedCount(total));
         },
         [this] {
             _writing.cancel();
             _isCloseWaiting = false;
             Q_EMIT stayed();
         }});
}

void WindowProject::registerAt(CommandSet &commands)
{
    commands.on(Command::saveProject, [this] { save({}); });
    commands.on(Command::saveProjectAs, [this] { saveAs({}); });
}

void WindowProject::describe(CommandState &state) const
{
    state.belongsToProject = !_path.isEmpty();
}

QString WindowProject::name() const
{
    return pathStem(_path);
}

Project WindowProject::current() const
{
    return projectOf(_view, _files, _session.settings);
}

bool WindowProject::hasChanges() const
{
    return _saved && !_areChangesForgotten && isWorthSaving(current(), *_saved);
}

void WindowProject::take(const QString &path, bool replaces)
{
    if (replaces || (_files.isUntouched() && _path.isEmpty() && !isOpening()))
        open(path, replaces);
    else
        Q_EMIT newWindowWanted({path});
}

void WindowProject::open(const QString &path, bool replaces)
{
    _opening.start(
        "ProjectOpen", [path](const RunControl &run) { return openProject(path, run.stop()); },
        [this, path, replaces](Expected<OpenedProject> opened) {
            if (opened && !replaces && !_files.isUntouched())
                Q_EMIT newWindowWanted({path}); // files came meanwhile
            else if (opened)
                show(path, std::move(*opened));
            else
                tellFailure(tr("“%1” cannot be opened.").arg(lastPathComponent(path)),
                            opened.error().description);
        });
}

void WindowProject::show(const QString &path, OpenedProject opened)
{
    _files.walks().cancel();
    _files.setFiles(opened.files, opened.roots);
    const QString problem = applyProject(opened.project, _view, _files, _session.settings);
    if (!problem.isEmpty())
        _view.statusLine().say(problem);
    if (const auto tab = tabOf(opened.project))
        Q_EMIT tabWanted(*tab);
    _session.recentFiles.note({path});
    _path = path;
    // What this version cannot show as it was written is no change of the user's.
    Project shown = current();
    shown.files = std::move(opened.project.files);
    shown.folders = std::move(opened.project.folders);
    _saved = std::move(shown);
    _areChangesForgotten = false;
    Q_EMIT didChange();
    Q_EMIT savedDidChange(false);
}

void WindowProject::leave()
{
    if (_path.isEmpty())
        return;
    _path.clear();
    _saved.reset();
    _view.info().extended().watchForAll();
    Q_EMIT didChange();
}

void WindowProject::save(const std::function<void()> &then)
{
    if (_path.isEmpty())
        saveAs(then);
    else
        write(_path, then);
}

void WindowProject::saveAs(const std::function<void()> &then)
{
    auto *dialog = makeFileDialog(_window, tr("Save Project As"), _session.settings);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(kProjectExtension);
    dialog->setNameFilter(tr("Projects (*.%1)").arg(kProjectExtension));
    if (!_path.isEmpty())
        dialog->setDirectory(withoutLastPathComponent(_path));
    dialog->selectFile((_path.isEmpty() ? tr("List") : name()) + u'.' + kProjectExtension);
    connect(dialog, &QFileDialog::fileSelected, this, [this, then](const QString &path) {
        write(isProjectPath(path) ? path : path + u'.' + kProjectExtension, then);
    });
    connect(dialog, &QFileDialog::rejected, this, &WindowProject::stayed);
    dialog->open();
}

void WindowProject::write(const QString &path, const std::function<void()> &then)
{
    const bool withDigests = _session.settings.boolean(Setting::computeFileHashes);
    _writing.start(
        "ProjectSave",
        [project = current(), path, withDigests](const RunControl &run) {
            return writtenProject(project, path, withDigests, run);
        },
        [this, path, then](const Expected<Project> &written) {
            const bool closes = std::exchange(_isCloseWaiting, false);
            takeWritten(path, written);
            if (written && then)
                then();
            else if (written && closes)
                Q_EMIT closeWanted();
        });
}

void WindowProject::takeWritten(const QString &path, const Expected<Project> &written)
{
    if (!written) {
        tellFailure(tr("“%1” could not be saved.").arg(lastPathComponent(path)), written.error().description);
        return Q_EMIT stayed();
    }
    _path = path;
    _saved = *written;
    _areChangesForgotten = false;
    _view.info().extended().watchForWindow(_view.info().extended().watched());
    _session.recentFiles.note({path});
    _view.statusLine().say(tr("Saved “%1”").arg(lastPathComponent(path)));
    Q_EMIT didChange();
    Q_EMIT savedDidChange(true);
}

void WindowProject::tellFailure(const QString &text, const QString &reason)
{
    plainMessage(_window, tr("Project"), text, reason, QMessageBox::Close)->open();
}

void WindowProject::afterSaving(const std::function<void()> &action)
{
    if (!hasChanges())
        return action();
    if (_question && _question->isVisible())
        return _question->raise();
    _question = plainMessage(_window, tr("Project"), tr("Save the changes to “%1”?").arg(name()),
                             tr("Otherwise the project stays as it was saved last."), QMessageBox::Cancel);
    const QPushButton *save = _question->addButton(tr("Save"), QMessageBox::AcceptRole);
    const QPushButton *discard = _question->addButton(tr("Don’t Save"), QMessageBox::DestructiveRole);
    _question->setDefaultButton(QMessageBox::Cancel);
    _question->setEscapeButton(QMessageBox::Cancel);
    connect(save, &QPushButton::clicked, this, [this, action] { write(_path, action); });
    connect(discard, &QPushButton::clicked, this, action);
    connect(_question->button(QMessageBox::Cancel), &QPushButton::clicked, this, &WindowProject::stayed);
    _question->open();
}

bool WindowProject::mayClose()
{
    if (_areChangesForgotten)
        return true;
    if (_writing.isUnderWay()) {
        _isCloseWaiting = true;
        return false;
    }
    if (!hasChanges())
        return true;
    afterSaving([this] {
        forgetChanges();
        Q_EMIT closeWanted();
    });
    return false;
}

} // namespace quorvin
