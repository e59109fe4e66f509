// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/ListCommand.h"

#include "cli/Console.h"
#include "cli/FileRun.h"
#include "cli/FilterOption.h"
#include "platform/NativePath.h"

#include <sys/stat.h>

#include <cerrno>

namespace quorvin::cli {

namespace {

using namespace Qt::StringLiterals;

/// A line of the list, with what is behind the paths.
void write(const Context &context, const FilelistItem &file, const QByteArray &behind = {})
{
    const char end = context.arguments.zeroSeparated ? '\0' : '\n';
    context.console.write(encodePath(file.prefixedPath()) + '\t' + encodePath(file.filename()) + behind
                          + end);
}

void listAll(const Context &context, FileRun &run)
{
    for (const FilelistItemPtr &file : run.filelist()) {
        struct stat facts { };
        if (::lstat(encodePath(file->filename()).constData(), &facts) != 0)
            run.fail(file->filename(), posixFailure(errno).value().description);
        else
            write(context, *file);
    }
}

/// Those that are not there to be read tell so in their place of the list, or by a complaint.
void listRead(const Context &context, FileRun &run)
{
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
        write(context, *result->file,
              onlyFailed ? '\t' + result->record.error().description.simplified().toUtf8() : QByteArray());
    }
}

} // namespace

QList<Option> listOptions()
{
    return {
        filterOption(),
        {.names = {u"failed"_s},
         .description = u"Only files that can not be read, with a tab and the reason behind."_s,
         .take = put<&Arguments::onlyFailed>},
    };
}

Status runList(const Context &context)
{
    FileRun run(context);
    if (context.arguments.onlyFailed || !context.filter.isEmpty())
        listRead(context, run);
    else
        listAll(context, run);
    return run.finish(true);
}

} // namespace quorvin::cli
