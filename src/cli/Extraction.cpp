// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/Extraction.h"

#include "cli/Console.h"
#include "cli/FileRun.h"
#include "filefacts/Paths.h"
#include "platform/AtomicFile.h"
#include "platform/NativePath.h"

namespace quorvin::cli {

using namespace Qt::StringLiterals;

Option extractionFolderOption(const QString &description)
{
    return {.names = {u"d"_s, u"output-dir"_s},
            .description = description,
            .valueName = u"DIR"_s,
            .take = put<&Arguments::outputDir>};
}

Status runExtraction(const Context &context, ExtractionRequest::Kind kind)
{
    const auto folder = Utilities::createFolder(*context.arguments.outputDir);
    if (!folder) {
        context.console.complain(*context.arguments.outputDir, u"the folder can not be made"_s);
        return SomethingFailed;
    }
    FileRun run(context);
    const auto runner = run.makeRunner();
    while (const FilelistItemPtr file = run.nextWantedFile()) {
        const JobResult result = runner->run(run.extractionOf(file->filename(), absolutePath(*folder), kind));
        if (!result) {
            AtomicFile::removeLeftovers(*folder);
            run.fail(file->filename(), result.error().description);
            continue;
        }
        const auto &[paths, problems] = std::get<SavedFiles>(*result);
        for (const QString &path : paths)
            context.console.write(encodePath(path) + '\n');
        for (const QString &problem : problems)
            run.fail(file->filename(), problem);
    }
    return run.finish(true);
}

} // namespace quorvin::cli
