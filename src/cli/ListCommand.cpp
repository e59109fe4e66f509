// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/ListCommand.h"

#include "cli/Console.h"
#include "cli/FileRun.h"
#include "platform/NativePath.h"

namespace quorvin::cli {

Status runList(const Context &context)
{
    FileRun run(context);
    const char end = context.arguments.zeroSeparated ? '\0' : '\n';
    for (const FilelistItemPtr &item : run.filelist())
        context.console.write(encodePath(item->prefixedPath()) + '\t' + encodePath(item->filename()) + end);
    return context.console.finish(true) && !run.hasFailures() ? AllWell : SomethingFailed;
}

} // namespace quorvin::cli
