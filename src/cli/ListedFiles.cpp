// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/ListedFiles.h"

#include "projects/ProjectReader.h"

namespace quorvin::cli {

namespace {

void addProject(ListedFiles &listed, const QString &path)
{
    const auto project = readProject(path);
    if (!project)
        return listed.problems.push_back({path, project.error().description});
    for (const ProjectFile &file : project->files) {
        listed.files.push_back(FilelistItem::itemWithFilename(file.path, file.shownPath()));
        listed.roots.append(file.path);
    }
}

} // namespace

ListedFiles listedFiles(const QStringList &paths)
{
    ListedFiles listed;
    QStringList projects;
    for (const QString &path : paths)
        (isProjectPath(path) ? projects : listed.roots).append(path);
    const FilelistFiller walk = FilelistFiller::fillerWithSourceArray(listed.roots);
    listed.files = walk.filelist();
    listed.problems = walk.problems();
    for (const QString &path : projects)
        addProject(listed, path);
    return listed;
}

} // namespace quorvin::cli
