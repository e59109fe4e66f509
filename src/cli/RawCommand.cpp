// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/RawCommand.h"

#include "cli/Console.h"
#include "cli/FileRun.h"
#include "readers/RawReport.h"

namespace quorvin::cli {

using namespace Qt::StringLiterals;

QList<Option> rawOptions()
{
    return {{.names = {u"source"_s},
             .description = u"What reports: %1 (default: mediainfo)."_s.arg(rawSources().join(", "_L1)),
             .valueName = u"SOURCE"_s,
             .choices = rawSources(),
             .take = put<&Arguments::source>}};
}

Reads rawReads(const Arguments &arguments)
{
    return rawSourceTakesFiles(arguments.source) ? Reads::Files : Reads::Nothing;
}

Status runRaw(const Context &context)
{
    const QString &source = context.arguments.source;
    if (rawReads(context.arguments) == Reads::Nothing) {
        context.console.write(rawReport(source, {})->toUtf8());
        return context.console.finish(false) ? AllWell : SomethingFailed;
    }
    FileRun run(context);
    bool endsInLineFeed = true;
    const auto runner = run.makeRunner();
    while (const FilelistItemPtr file = run.nextFile()) {
        const JobResult result = runner->run(run.reportOf(file->filename(), source));
        if (!result) {
            run.fail(file->filename(), result.error().description);
            continue;
        }
        const QString &report = std::get<Report>(*result).text;
        endsInLineFeed = report.isEmpty() ? endsInLineFeed : report.endsWith(u'\n');
        context.console.write(report.toUtf8());
    }
    return run.finish(endsInLineFeed);
}

} // namespace quorvin::cli
