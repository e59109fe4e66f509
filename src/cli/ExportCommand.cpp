// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/ExportCommand.h"

#include "cli/Console.h"
#include "cli/FileRun.h"
#include "export/ExportFormats.h"
#include "export/QuorvinExporter.h"

#include <QDir>

namespace quorvin::cli {

namespace {

using namespace Qt::StringLiterals;

bool writesToConsole(const Arguments &arguments)
{
    return !arguments.outputDir && arguments.output.value_or(u"-"_s) == "-"_L1;
}

QString outputName(const Arguments &arguments)
{
    return writesToConsole(arguments) ? u"standard output"_s : *arguments.output;
}

std::unique_ptr<ExportTarget> exportTarget(const Context &context)
{
    const Arguments &arguments = context.arguments;
    QuorvinExporter exporter;
    exporter.setFormat(arguments.format);
    exporter.setSkipFilePrivate(arguments.skipPrivate);
    if (arguments.outputDir)
        return exporter.toFolder(*arguments.outputDir);
    return writesToConsole(arguments) ? exporter.toDevice(context.console.output())
                                      : exporter.toFile(*arguments.output);
}

/// One document of all entries, where the options say. Absent when it could not be written, which is told;
/// else whether it has an entry.
std::optional<bool> writeDocument(const Context &context, FileRun &run, ExportTarget &target)
{
    bool hasEntry = false;
    auto written = ExportTarget::Result();
    while (written) {
        const auto entry = run.nextEntry();
        if (!entry)
            break;
        if (writesToConsole(context.arguments))
            context.console.beginOutput();
        hasEntry = true;
        written = target.add(*entry);
    }
    written = written.and_then([&] { return target.finish(); });
    if (!written) {
        context.console.complain(outputName(context.arguments), written.error().description);
        return std::nullopt;
    }
    return hasEntry;
}

/// One document for each entry; one that can't be written costs its own line only.
void writeFolder(FileRun &run, ExportTarget &target)
{
    while (const auto entry = run.nextEntry()) {
        if (const auto written = target.add(*entry); !written)
            run.fail(entry->filename, written.error().description);
    }
}

} // namespace

QList<Option> exportOptions()
{
    return {
        {.names = {u"f"_s, u"format"_s},
         .description = u"Format: %1 (default: txt)."_s.arg(exportFormats().join(", "_L1)),
         .valueName = u"FORMAT"_s,
         .choices = exportFormats(),
         .take = put<&Arguments::format>},
        {.names = {u"o"_s, u"output"_s},
         .description = u"Write one compound file; - is standard output (the default)."_s,
         .valueName = u"FILE"_s,
         .take = put<&Arguments::output>},
        {.names = {u"d"_s, u"output-dir"_s},
         .description = u"Write one file for each input into this folder."_s,
         .valueName = u"DIR"_s,
         .take = put<&Arguments::outputDir>},
        {.names = {u"skip-private"_s},
         .description = u"Leave out facts about your files, such as their folder and comments."_s,
         .take = put<&Arguments::skipPrivate>},
    };
}

Expected<void> checkExport(const Arguments &arguments)
{
    if (arguments.output && arguments.outputDir)
        return failure(u"--output and --output-dir exclude each other"_s);
    return {};
}

Status runExport(const Context &context)
{
    const Arguments &arguments = context.arguments;
    if (arguments.outputDir && !QDir().mkpath(*arguments.outputDir)) {
        context.console.complain(*arguments.outputDir, u"the folder can not be made"_s);
        return SomethingFailed;
    }
    FileRun run(context);
    const auto target = exportTarget(context);
    bool endsInLineFeed = true;
    if (arguments.outputDir) {
        writeFolder(run, *target);
    } else {
        const auto hasEntry = writeDocument(context, run, *target);
        if (!hasEntry)
            return SomethingFailed;
        endsInLineFeed = !*hasEntry || !writesToConsole(arguments);
    }
    return context.console.finish(endsInLineFeed) && !run.hasFailures() ? AllWell : SomethingFailed;
}

} // namespace quorvin::cli
