// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/MissingFiles.h"

#include "platform/NativePath.h"
#include "projects/ProjectItems.h"
#include "projects/ProjectRelink.h"
#include "shell/commands/CommandSet.h"
#include "shell/desktop/Counts.h"
#include "shell/filelist/FilelistController.h"
#include "shell/session/FileDialogs.h"
#include "shell/session/LiveSettings.h"
#include "shell/window/MainView.h"
#include "shell/window/OpenedProject.h"
#include "shell/window/StatusLine.h"
#include "shell/window/WindowProject.h"

#include <QFileDialog>

#include <vector>

namespace quorvin {

namespace {

/// Of files that have failed, with the facts that the project has of them.
std::vector<ProjectFile> failedFiles(const std::vector<FilelistItemPtr> &list, const Project *project)
{
    QHash<QString, KeptFacts> kept;
    for (const ProjectFile &file : project ? project->files : std::vector<ProjectFile>())
        kept.insert(file.path, file.facts);
    std::vector<ProjectFile> failed;
    for (const FilelistItemPtr &file : list) {
        if (file->isFailed())
            failed.push_back({.path = file->filename(), .facts = kept.value(file->filename())});
    }
    return failed;
}

/// The same place of the list for a file elsewhere.
FilelistItemPtr itemAt(const FilelistItem &file, const QString &path)
{
    return itemOf({.path = path, .shownComponents = shownComponentsOf(file.prefixedPath())});
}

} // namespace

MissingFiles::MissingFiles(WindowProject &project, LiveSettings &settings, MainView &view,
                           FilelistController &files, CommandSet &commands)
    : QObject(&project), _project(project), _settings(settings), _view(view), _files(files)
{
    commands.on(Command::relinkMissing, [this] { choose(); });
    view.statusLine().follow(
        _search,
        {tr("Stop; the list stays as it is"),
         [](int met, int) { return tr("Looking for missing files: %1").arg(groupedCount(met)); },
         [this] { _search.cancel(); }});
}

void MissingFiles::choose()
{
    auto *dialog = makeFolderDialog(_view.window(), tr("Look for Missing Files In"), _settings, tr("Look"));
    connect(dialog, &QFileDialog::fileSelected, this, &MissingFiles::relinkFrom);
    dialog->open();
}

void MissingFiles::relinkFrom(const QString &folder)
{
    _search.start(
        "Relink",
        [failed = failedFiles(_files.filelist(), _project.saved()), folder](const RunControl &run) {
            std::vector<ProjectFile> missing = failed;
            std::erase_if(missing, [](const ProjectFile &file) { return !isMissing(file.path); });
            return Relinked{missing.size(), relinkedPaths(missing, folder, run.stop(), [&](std::size_t met) {
                                run.report(static_cast<int>(met));
                            })};
        },
        [this](const Relinked &relinked) { take(relinked); });
}

void MissingFiles::take(const Relinked &relinked)
{
    if (relinked.sought == 0)
        return _view.statusLine().say(tr("No file is missing"));
    _view.statusLine().say(
        tr("%1 of %2 found")
            .arg(groupedCount(relinked.found.size()), countOfFiles(static_cast<qint64>(relinked.sought))));
    if (relinked.found.isEmpty())
        return;
    std::vector<FilelistItemPtr> list;
    QStringList roots;
    FilelistItemPtr first;
    for (const FilelistItemPtr &file : _files.filelist()) {
        const QString path = relinked.found.value(file->filename());
        list.push_back(path.isEmpty() ? file : itemAt(*file, path));
        roots.append(list.back()->filename());
        if (!first && !path.isEmpty())
            first = list.back();
    }
    _files.setFiles(list, roots);
    if (const int row = _files.arranged().rowOf(first); row >= 0)
        _files.selectRow(row);
}

} // namespace quorvin
