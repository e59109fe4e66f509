// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/ListCommand.h"

#include "cli/Console.h"
#include "cli/FileRun.h"
#include "platform/NativePath.h"

#include <sys/stat.h>

#include <cerrno>

namespace quorvin::cli {

Status runList(const Context &context)
{
    FileRun run(context);
    const char end = context.arguments.zeroSeparated ? '\0' : '\n';
    for (const FilelistItemPtr &item : run.filelist()) {
        struct stat facts { };
        if (::lstat(encodePath(item->filename()).constData(), &facts) != 0) {
            run.fail(item->filename(), posixFailure(errno).value().description);
            continue;
        }
        context.console.write(encodePath(item->prefixedPath()) + '\t' + encodePath(item->filename()) + end);
    }
    return run.finish(true);
}

} // namespace quorvin::cli
