// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/Commands.h"

#include "cli/Console.h"
#include "cli/FileRun.h"
#include "export/QuorvinExporter.h"
#include "platform/NativePath.h"
#include "platform/Settings.h"
#include "readers/RawReport.h"

#include <QDir>

#include <algorithm>
#include <array>

namespace quorvin::cli {

namespace {

using namespace Qt::StringLiterals;

/// What every command works with.
struct Context {
    const Arguments &arguments;
    const Settings &settings;
    Console &console;
};

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

/// A folder of results goes on with the next file; one document that cannot be written is no use going on
/// with.
bool addToTarget(ExportTarget &target, const ExportEntry &entry, const Context &context, bool &failed)
{
    const auto added = target.add(entry);
    if (added)
        return true;
    failed = true;
    const bool goesOn = context.arguments.outputDir.has_value();
    context.console.complain(goesOn ? entry.filename : outputName(context.arguments), added.error());
    return goesOn;
}

int runExport(const Context &context)
{
    const Arguments &arguments = context.arguments;
    if (arguments.outputDir && !QDir().mkpath(*arguments.outputDir)) {
        context.console.complain(*arguments.outputDir, u"the folder can not be made"_s);
        return SomethingFailed;
    }
    FileRun run(arguments, context.settings, context.console);
    const auto target = exportTarget(context);
    bool failed = false;
    bool wroteAny = false;
    run.forEachRecord([&](const ExportEntry &entry) {
        wroteAny = true;
        return addToTarget(*target, entry, context, failed);
    });
    if (!failed) {
        const auto finished = target->finish();
        failed = !finished;
        if (failed)
            context.console.complain(outputName(arguments), finished.error());
    }
    if (failed)
        return SomethingFailed;
    const bool written = context.console.finish(!wroteAny || !writesToConsole(arguments));
    return written && !run.hasFailures() ? AllWell : SomethingFailed;
}

int runGeneral(const Context &context)
{
    FileRun run(context.arguments, context.settings, context.console);
    bool isFirst = true;
    run.forEachRecord([&](const ExportEntry &entry) {
        const QString rule(entry.pathPrefix.size(), u'-');
        const QString gap = std::exchange(isFirst, false) ? QString() : u"\n"_s;
        const QString block
            = gap + entry.pathPrefix + u'\n' + rule + u'\n' + entry.data->stringForExportGeneral() + u'\n';
        context.console.write(block.toUtf8());
        return true;
    });
    return context.console.finish(true) && !run.hasFailures() ? AllWell : SomethingFailed;
}

int runList(const Context &context)
{
    FileRun run(context.arguments, context.settings, context.console);
    const char end = context.arguments.zeroSeparated ? '\0' : '\n';
    for (const FilelistItemPtr &item : run.filelist())
        context.console.write(encodePath(item->prefixedPath()) + '\t' + encodePath(item->filename()) + end);
    return context.console.finish(true) && !run.hasFailures() ? AllWell : SomethingFailed;
}

int runRaw(const Context &context)
{
    const QString &source = context.arguments.source;
    if (!rawSourceTakesFiles(source)) {
        context.console.write(rawReport(source, {})->toUtf8());
        return context.console.finish(false) ? AllWell : SomethingFailed;
    }
    FileRun run(context.arguments, context.settings, context.console);
    bool endsInLineFeed = true;
    const auto runner = run.makeRunner();
    run.forEachFile([&](const FilelistItem &item) -> std::optional<QString> {
        const JobResult result = runner->run(Job::rawReport(item.filename(), source));
        if (!result)
            return result.error();
        const QString &report = result->report;
        endsInLineFeed = report.isEmpty() ? endsInLineFeed : report.endsWith(u'\n');
        context.console.write(report.toUtf8());
        return std::nullopt;
    });
    return context.console.finish(endsInLineFeed) && !run.hasFailures() ? AllWell : SomethingFailed;
}

int runSettings(const Context &context)
{
    for (const SettingRow &row : settingsTable()) {
        const QStringList fields{row.key, nameOfType(row.type), row.defaultText,
                                 context.settings.text(row.setting)};
        context.console.write(fields.join(u'\t').toUtf8() + '\n');
    }
    return context.console.finish(true) ? AllWell : SomethingFailed;
}

struct Runner {
    QLatin1String command;
    int (*run)(const Context &context);
};

constexpr std::array kRunners{
    Runner{"export"_L1, runExport}, Runner{"general"_L1, runGeneral},   Runner{"list"_L1, runList},
    Runner{"raw"_L1, runRaw},       Runner{"settings"_L1, runSettings},
};

} // namespace

int runCommand(const Arguments &arguments, const Settings &settings, Console &console)
{
    const auto runner
        = std::ranges::find_if(kRunners, [&](const Runner &row) { return row.command == arguments.command; });
    return runner == kRunners.end() ? int{WrongCall} : runner->run({arguments, settings, console});
}

} // namespace quorvin::cli
