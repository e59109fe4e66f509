// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/CompareCommand.h"

#include "cli/ComparePairs.h"
#include "cli/Console.h"
#include "cli/Document.h"
#include "cli/FileRun.h"
#include "cli/FilterOption.h"
#include "comparison/ComparisonExport.h"
#include "comparison/ComparisonFilter.h"
#include "comparison/ComparisonRows.h"

namespace quorvin::cli {

namespace {

using namespace Qt::StringLiterals;

/// The rows that are wanted, one after the other, and whether there was any.
class WantedRows {
public:
    explicit WantedRows(ComparisonFilter filter) : _filter(filter) { }

    /// Gives the paths of the files.
    QStringList read(FileRun &run)
    {
        QStringList paths;
        while (const auto entry = run.nextEntry()) {
            _builder.add(*entry->data);
            paths.append(entry->filename);
        }
        return paths;
    }

    const ComparisonRow *next()
    {
        const ComparisonRow *row = _builder.next();
        while (row && !isWanted(*row, _filter))
            row = _builder.next();
        _hasAny = _hasAny || row;
        return row;
    }

    bool hasAny() const { return _hasAny; }

private:
    ComparisonFilter _filter;
    ComparisonBuilder _builder;
    bool _hasAny = false;
};

Status compareFiles(const Context &context)
{
    const Arguments &arguments = context.arguments;
    WantedRows rows(arguments.onlyDiffering ? ComparisonFilter::Different : ComparisonFilter::All);
    FileRun run(context);
    const Document document(context);
    if (!document.isAllowed(arguments.format, run.filelist()))
        return WrongCall;
    const bool written = document.write([&](QIODevice &device) {
        const QStringList paths = rows.read(run);
        context.console.beginOutput(device);
        return ComparisonExport::write(
            arguments.format, [&] { return rows.next(); }, paths, device);
    });
    if (!written)
        return SomethingFailed;
    const Status status = run.finish(!document.isOutput());
    return status == AllWell && arguments.onlyDiffering && rows.hasAny() ? Differing : status;
}

} // namespace

QList<Option> compareOptions()
{
    const QStringList formats = ComparisonExport::formats();
    return {
        formatOption(u"Format of the table"_s, formats, u"csv"_s),
        outputOption(),
        {.names = {u"only-differing"_s},
         .description = u"Leave out what is equal in all files; exit with 3 if anything is left."_s,
         .take = put<&Arguments::onlyDiffering>},
        {.names = {u"pair"_s},
         .description
         = u"Take two folders: a line for each file of both, whatever its extension, with what is"
           " lost, added and changed; exit with 3 if anything is."_s,
         .take = put<&Arguments::pair>},
        forceOption(),
        filterOption(),
    };
}

Expected<void> checkCompare(const Arguments &arguments)
{
    if (arguments.pair && arguments.given.contains("format"_L1))
        return failure(u"--pair tells of files in lines of its own: it goes without --format"_s);
    if (arguments.pair && arguments.given.contains("filter"_L1))
        return failure(u"--pair compares all files of both folders: it goes without --filter"_s);
    return {};
}

Status runCompare(const Context &context)
{
    return context.arguments.pair ? comparePairs(context) : compareFiles(context);
}

} // namespace quorvin::cli
