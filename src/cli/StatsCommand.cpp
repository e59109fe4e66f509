// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/StatsCommand.h"

#include "cli/Console.h"
#include "cli/Document.h"
#include "cli/FileRun.h"
#include "cli/FilterOption.h"
#include "filter/ParameterNames.h"
#include "statistics/CountTable.h"
#include "statistics/CountText.h"
#include "statistics/ParameterCoverage.h"
#include "statistics/ParameterTally.h"

namespace quorvin::cli {

namespace {

using namespace Qt::StringLiterals;

void addNames(ParameterNames &names, const QuorvinData &record)
{
    record.groups().visitShown([&](const auto &group, const auto &parameter) {
        names.add(group.key, group.subgroupOf(parameter), *parameter.term);
        return true;
    });
}

/// Says that no file has the parameter, and what may have been meant.
Status refuseUnknown(const Context &context, const ParameterNames &known)
{
    const QString &parameter = context.arguments.parameter;
    QStringList likely;
    for (const QString &name : namesLike(parameter, known.names()))
        likely.append(u'\'' + name + u'\'');
    const QString problem = u"--parameter: no file has '%1'"_s.arg(parameter);
    context.console.refuse(likely.isEmpty() ? problem
                                            : problem + u"; did you mean "_s + likely.join(" or "_L1) + u'?');
    return WrongCall;
}

} // namespace

QList<Option> statsOptions()
{
    const QStringList formats = countFormats();
    return {
        {.names = {u"parameter"_s},
         .description = u"What to count: a heading of the Extended tab without its number, a slash, and a"
                        " name below it, as in 'Video/Bit rate'; required."_s,
         .valueName = u"SECTION/NAME"_s,
         .take = put<&Arguments::parameter>},
        formatOption(u"Format"_s, formats, u"txt"_s),
        outputOption(),
        forceOption(),
        filterOption(),
    };
}

Expected<void> checkStats(const Arguments &arguments)
{
    const QString &parameter = arguments.parameter;
    if (parameter.isEmpty())
        return failure(u"stats needs --parameter SECTION/NAME"_s);
    const qsizetype slash = parameter.indexOf(u'/');
    if (slash < 1 || slash + 1 == parameter.size())
        return failure(
            u"--parameter takes SECTION/NAME, such as 'Video/Bit rate', not '%1'"_s.arg(parameter));
    return {};
}

Status runStats(const Context &context)
{
    const Arguments &arguments = context.arguments;
    FileRun run(context);
    const Document document(context);
    if (!document.isAllowed(arguments.format, run.filelist()))
        return WrongCall;
    ParameterTally tally(arguments.parameter);
    ParameterNames others; ///< wanted only as long as no file has the parameter
    while (const auto next = run.nextRecord()) {
        if (!next->record) {
            run.fail(next->file->filename(), next->record.error().description);
        } else if (run.passes(*next)) {
            tally.add(next->file, **next->record);
            if (!tally.hasValues())
                addNames(others, **next->record);
        }
    }
    const CountTable table(tally.finish(), {});
    if (table.count().values.empty() && table.count().countedFiles() > 0) {
        run.finish(false);
        return refuseUnknown(context, others);
    }
    const bool isWritten = document.write([&](QIODevice &device) {
        context.console.beginOutput(device);
        return writeCount(arguments.format, table, device);
    });
    return isWritten ? run.finish(arguments.format == "txt"_L1 || !document.isOutput()) : SomethingFailed;
}

} // namespace quorvin::cli
