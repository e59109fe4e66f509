// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/ProjectOptions.h"

#include "cli/Console.h"
#include "cli/Output.h"
#include "platform/GivenPath.h"
#include "platform/NativePath.h"
#include "platform/Settings.h"
#include "projects/ProjectChanges.h"
#include "projects/ProjectItems.h"
#include "projects/ProjectReader.h"
#include "projects/ProjectWriter.h"

namespace quorvin::cli {

namespace {

using namespace Qt::StringLiterals;

FilesProgress progressOn(const Context &context)
{
    return [&context](std::size_t done, std::size_t total) {
        if (done == 0)
            context.console.startProgress(context.arguments.noProgress ? 0 : total);
        context.console.progressTo(done);
    };
}

QByteArray wordOf(FileChange::Kind kind)
{
    switch (kind) {
    case FileChange::Changed:
        return QByteArrayLiteral("changed");
    case FileChange::Vanished:
        return QByteArrayLiteral("vanished");
    case FileChange::New:
        break;
    }
    return QByteArrayLiteral("new");
}

Status tellChanges(const Context &context, const ProjectChanges &found)
{
    const char end = context.arguments.zeroSeparated ? '\0' : '\n';
    for (const FileChange &change : found.changes)
        context.console.write(wordOf(change.kind) + '\t' + encodePath(change.path) + end);
    for (const ChangeProblem &problem : found.problems)
        context.console.complain(problem.path, problem.reason);
    if (!context.console.finish(true) || !found.problems.empty())
        return SomethingFailed;
    return found.changes.empty() ? AllWell : Differing;
}

} // namespace

bool isProjectAllowed(const Context &context, const std::vector<FilelistItemPtr> &inputs)
{
    const auto &target = context.arguments.saveProject;
    if (!target)
        return true;
    std::vector<FilelistItemPtr> read = inputs;
    for (const QString &path : context.paths)
        read.push_back(FilelistItem::itemWithFilename(path, path));
    const auto allowed = checkOutputFile(*target, kProjectExtension, false, read);
    if (!allowed)
        context.console.refuse(allowed.error().description);
    return allowed.has_value();
}

bool saveProjectOf(const Context &context, const std::vector<FilelistItemPtr> &files)
{
    Project project;
    project.files = projectFilesOf(files);
    project.filter.rule = context.arguments.filter;
    keepFacts(project, context.settings.boolean(Setting::computeFileHashes), {}, progressOn(context));
    const auto saved = pathOfGiven(*context.arguments.saveProject).and_then([&](const QString &path) {
        return saveProject(project, path);
    });
    if (!saved)
        context.console.complain(*context.arguments.saveProject, saved.error().description);
    return saved.has_value();
}

Status listChanges(const Context &context)
{
    const QString &given = *context.arguments.changed;
    const auto project = pathOfGiven(given).and_then(readProject);
    if (!project) {
        context.console.complain(given, project.error().description);
        return SomethingFailed;
    }
    const ProjectChanges found = changesSince(*project, DigestCheck::All, {}, progressOn(context));
    context.console.endProgress();
    return tellChanges(context, found);
}

} // namespace quorvin::cli
