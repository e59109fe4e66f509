// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/ProjectMarks.h"

#include "shell/commands/CommandSet.h"
#include "shell/desktop/Counts.h"
#include "shell/filelist/FilelistController.h"
#include "shell/window/MainView.h"
#include "shell/window/StatusLine.h"
#include "shell/window/WindowProject.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quorvin {

ProjectMarks::ProjectMarks(WindowProject &project, MainView &view, FilelistController &files,
                           CommandSet &commands)
    : QObject(&project), _project(project), _view(view), _files(files)
{
    commands.on(Command::checkChanges, [this] { check(DigestCheck::All); });
    connect(&project, &WindowProject::savedDidChange, this, [this](bool isNew) {
        _files.setMarks({});
        if (!isNew)
            check(DigestCheck::Doubtful);
    });
    connect(&project, &WindowProject::didChange, this, [this] {
        if (_project.saved())
            return;
        _checking.cancel();
        _files.setMarks({});
    });
    view.statusLine().follow(
        _checking,
        {tr("Stop; the marks of the files stay as they are"),
         [](int done, int total) {
             return tr("Looking for changes: %1 of %2").arg(groupedCount(done), groupedCount(total));
         },
         [this] { _checking.cancel(); }});
}

void ProjectMarks::check(DigestCheck digests)
{
    const Project *saved = _project.saved();
    if (!saved)
        return;
    _checking.start(
        "ProjectChanges",
        [project = *saved, digests](const RunControl &run) {
            return changesSince(project, digests, run.stop(), [&](std::size_t done, std::size_t total) {
                run.report(static_cast<int>(done), static_cast<int>(total));
            });
        },
        [this, digests](const ProjectChanges &found) { take(found, digests); });
}

void ProjectMarks::take(const ProjectChanges &found, DigestCheck digests)
{
    QHash<QString, QString> marks;
    QStringList added;
    for (const FileChange &change : found.changes) {
        marks.insert(change.path, markText(change));
        if (change.kind == FileChange::New)
            added.append(change.path);
    }
    _files.setMarks(marks);
    const QString text = changesText(found.changes);
    if (!added.isEmpty())
        _view.statusLine().say(text, tr("Add New Files"),
                               [this, added] { _files.processAdditionalFiles(added); });
    else if (!text.isEmpty())
        _view.statusLine().say(text);
    else if (!found.problems.empty())
        _view.statusLine().say(tr("“%1” cannot be compared with the project: %2")
                                   .arg(found.problems.front().path, found.problems.front().reason));
    else if (digests == DigestCheck::All)
        _view.statusLine().say(tr("Nothing has changed since the project was saved"));
}

QString markText(const FileChange &change)
{
    if (change.kind == FileChange::Vanished)
        return ProjectMarks::tr("Vanished since the project was saved");
    if (change.kind == FileChange::New)
        return ProjectMarks::tr("New since the project was saved");
    QStringList facts;
    for (const auto &[fact, name] : {std::pair(ChangedFact::Size, ProjectMarks::tr("size")),
                                     std::pair(ChangedFact::Modified, ProjectMarks::tr("date")),
                                     std::pair(ChangedFact::Content, ProjectMarks::tr("content"))}) {
        if (change.facts.testFlag(fact))
            facts.append(name);
    }
    return ProjectMarks::tr("Changed since the project was saved: %1").arg(facts.join(QLatin1String(", ")));
}

QString changesText(const std::vector<FileChange> &changes)
{
    QStringList parts;
    for (const auto &[kind, text] : {std::pair(FileChange::Changed, ProjectMarks::tr("%1 changed")),
                                     std::pair(FileChange::Vanished, ProjectMarks::tr("%1 vanished")),
                                     std::pair(FileChange::New, ProjectMarks::tr("%1 new"))}) {
        const auto count = std::ranges::count(changes, kind, &FileChange::kind);
        if (count > 0)
            parts.append(text.arg(groupedCount(count)));
    }
    return parts.isEmpty()
        ? QString()
        : ProjectMarks::tr("Since the project was saved: %1").arg(parts.join(QLatin1String(", ")));
}

} // namespace quorvin
