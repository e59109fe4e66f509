// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/ExportCommand.h"

#include "cli/Console.h"
#include "cli/Document.h"
#include "cli/FileRun.h"
#include "cli/FilterOption.h"
#include "export/ExportFormats.h"
#include "export/QuorvinExporter.h"
#include "filefacts/Paths.h"

namespace quorvin::cli {

namespace {

using namespace Qt::StringLiterals;

QuorvinExporter exporterFor(const Arguments &arguments)
{
    QuorvinExporter exporter;
    exporter.setFormat(arguments.format);
    exporter.setSkipFilePrivate(arguments.skipPrivate);
    return exporter;
}

ExportTarget::Result writeAll(FileRun &run, Console &console, QIODevice &device, ExportTarget &target)
{
    auto written = ExportTarget::Result();
    while (written) {
        const auto entry = run.nextEntry();
        if (!entry)
            break;
        console.beginOutput(device);
        written = target.add(*entry);
    }
    return written.and_then([&] { return target.finish(); });
}

Status exportDocument(const Context &context)
{
    const QuorvinExporter exporter = exporterFor(context.arguments);
    FileRun run(context);
    const Document document(context);
    if (!document.isAllowed(QuorvinExporter::extensionForExportFormat(exporter.format()), run.filelist()))
        return WrongCall;
    const bool written = document.write([&](QIODevice &device) {
        return writeAll(run, context.console, device, *exporter.toDevice(device));
    });
    return written ? run.finish(!document.isOutput()) : SomethingFailed;
}

/// One document for each entry; one that can't be written costs its own line only.
Status exportFolder(const Context &context)
{
    const QString &folder = *context.arguments.outputDir;
    if (!Utilities::createFolder(folder)) {
        context.console.complain(folder, u"the folder can not be made"_s);
        return SomethingFailed;
    }
    FileRun run(context);
    const auto target = exporterFor(context.arguments).toFolder(folder);
    while (const auto entry = run.nextEntry()) {
        if (const auto written = target->add(*entry); !written)
            run.fail(entry->filename, written.error().description);
    }
    if (const auto finished = target->finish(); !finished)
        run.fail(folder, finished.error().description);
    return run.finish(true);
}

} // namespace

QList<Option> exportOptions()
{
    return {
        formatOption(u"Format"_s, exportFormats(), u"txt"_s),
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
        forceOption(),
        filterOption(),
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
    return context.arguments.outputDir ? exportFolder(context) : exportDocument(context);
}

} // namespace quorvin::cli
