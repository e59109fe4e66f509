// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/ListCommand.h"

#include "cli/Console.h"
#include "cli/FileRun.h"
#include "cli/FilterOption.h"
#include "cli/ProjectOptions.h"
#include "platform/NativePath.h"
#include "projects/Project.h"

#include <sys/stat.h>

#include <cerrno>
#include <vector>

namespace quorvin::cli {

namespace {

using namespace Qt::StringLiterals;

using Listed = std::vector<FilelistItemPtr>;

/// A line of the list, with what is behind the paths.
void write(const Context &context, const FilelistItemPtr &file, Listed &listed, const QByteArray &behind = {})
{
    const char end = context.arguments.zeroSeparated ? '\0' : '\n';
    context.console.write(encodePath(file->prefixedPath()) + '\t' + encodePath(file->filename()) + behind
                          + end);
    listed.push_back(file);
}

Listed listAll(const Context &context, FileRun &run)
{
    Listed listed;
    for (const FilelistItemPtr &file : run.filelist()) {
        struct stat facts { };
        if (::lstat(encodePath(file->filename()).constData(), &facts) != 0)
            run.fail(file->filename(), posixFailure(errno).value().description);
        else
            write(context, file, listed);
    }
    return listed;
}

/// Those that are not there to be read tell so in their place of the list, or by a complaint.
Listed listRead(const Context &context, FileRun &run)
{
    Listed listed;
    const bool onlyFailed = context.arguments.onlyFailed;
    while (const auto result = run.nextRecord()) {
        const bool isFailed = !result->record;
        if (isFailed && onlyFailed)
            run.countFailure(result->record.error().description);
        else if (isFailed)
            run.fail(result->file->filename(), result->record.error().description);
        if (!run.passes(*result) || (onlyFailed && !isFailed))
            continue;
        // A reason is one line, whatever a library says.
        write(context, result->file, listed,
              onlyFailed ? '\t' + result->record.error().description.simplified().toUtf8() : QByteArray());
    }
    return listed;
}

} // namespace

QList<Option> listOptions()
{
    return {
        filterOption(),
        {.names = {u"failed"_s},
         .description = u"Only files that can not be read, with a tab and the reason behind."_s,
         .take = put<&Arguments::onlyFailed>},
        {.names = {u"save-project"_s},
         .description = u"Write a project of these files, with their sizes and dates, and their digests "
                        "with --set computeFileHashes=true."_s,
         .valueName = u"FILE"_s,
         .take = put<&Arguments::saveProject>},
        {.names = {u"changed"_s},
         .description = u"Of the project, without paths: 'changed', 'vanished' or 'new', a tab and the path; "
                        "status 3 if there is any."_s,
         .valueName = u"PROJECT"_s,
         .take = put<&Arguments::changed>},
    };
}

Reads listReads(const Arguments &arguments)
{
    return arguments.changed ? Reads::Nothing : Reads::Files;
}

Expected<void> checkList(const Arguments &arguments)
{
    const bool hasOther = arguments.onlyFailed || arguments.saveProject || !arguments.filter.isEmpty();
    if (arguments.changed && hasOther)
        return failure(u"--changed goes with no other option of list"_s);
    if (arguments.saveProject && !isProjectPath(*arguments.saveProject))
        return failure(u"--save-project takes a name that ends in .%1"_s.arg(kProjectExtension));
    return {};
}

Status runList(const Context &context)
{
    if (context.arguments.changed)
        return listChanges(context);
    FileRun run(context);
    if (!isProjectAllowed(context, run.filelist()))
        return WrongCall;
    const bool isRead = context.arguments.onlyFailed || !context.filter.isEmpty();
    const Listed listed = isRead ? listRead(context, run) : listAll(context, run);
    const bool isSaved = !context.arguments.saveProject || saveProjectOf(context, listed);
    const Status status = run.finish(true);
    return isSaved ? status : SomethingFailed;
}

} // namespace quorvin::cli
