// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/Commands.h"

#include "cli/AttachmentsCommand.h"
#include "cli/CompareCommand.h"
#include "cli/ExportCommand.h"
#include "cli/ExtractCommand.h"
#include "cli/GeneralCommand.h"
#include "cli/ListCommand.h"
#include "cli/MapCommand.h"
#include "cli/RawCommand.h"
#include "cli/SettingsCommand.h"
#include "cli/StatsCommand.h"
#include "cli/StripCommand.h"

#include <array>

namespace quorvin::cli {

namespace {

using namespace Qt::StringLiterals;

QList<Option> noOptions()
{
    return {};
}

Reads files(const Arguments &)
{
    return Reads::Files;
}

Reads nothing(const Arguments &)
{
    return Reads::Nothing;
}

constexpr std::array kCommands{
    Command{.name = "export"_L1,
            .description = "the information of every file"_L1,
            .options = exportOptions,
            .reads = files,
            .run = runExport,
            .check = checkExport},
    Command{.name = "general"_L1,
            .description = "a summary of every file"_L1,
            .options = generalOptions,
            .reads = files,
            .run = runGeneral},
    Command{.name = "list"_L1,
            .description = "the files, one a line: path as listed, tab, full path"_L1,
            .options = listOptions,
            .reads = listReads,
            .run = runList,
            .check = checkList},
    Command{.name = "raw"_L1,
            .description = "the report of a library, as it comes"_L1,
            .options = rawOptions,
            .reads = rawReads,
            .run = runRaw},
    Command{.name = "compare"_L1,
            .description = "a table of the parameters of all files, a column a file"_L1,
            .options = compareOptions,
            .reads = files,
            .run = runCompare,
            .check = checkCompare},
    Command{.name = "strip"_L1,
            .description = "removes metadata from images, in place, whole or not at all"_L1,
            .options = stripOptions,
            .reads = files,
            .run = runStrip,
            .check = checkStrip},
    Command{.name = "extract"_L1,
            .description = "covers, thumbnails and previews, into a folder"_L1,
            .options = extractOptions,
            .reads = files,
            .run = runExtract,
            .check = checkExtract},
    Command{.name = "attachments"_L1,
            .description = "attached files of Matroska files, into a folder"_L1,
            .options = attachmentsOptions,
            .reads = files,
            .run = runAttachments,
            .check = checkAttachments},
    Command{.name = "stats"_L1,
            .description = "values, counts and figures of one parameter over the files"_L1,
            .options = statsOptions,
            .reads = files,
            .run = runStats,
            .check = checkStats},
    Command{.name = "map"_L1,
            .description = "where the files were recorded, for a map program"_L1,
            .options = mapOptions,
            .reads = files,
            .run = runMap},
    Command{.name = "settings"_L1,
            .description = "the settings: key, type, default, value"_L1,
            .options = noOptions,
            .reads = nothing,
            .run = runSettings},
};

constexpr int kMostJobs = 256; ///< each has a process of its own

Expected<void> takeJobs(Arguments &arguments, const QStringList &values)
{
    bool ok = false;
    arguments.jobs = values.last().toInt(&ok);
    if (!ok || arguments.jobs < 1 || arguments.jobs > kMostJobs)
        return failure(u"--jobs takes a whole number from 1 to %1"_s.arg(kMostJobs));
    return {};
}

} // namespace

std::span<const Command> commands()
{
    return kCommands;
}

QList<Option> commonOptions()
{
    return {
        {.names = {u"set"_s},
         .description = u"Use this setting for this run; may be given several times."_s,
         .valueName = u"KEY=VALUE"_s,
         .take = put<&Arguments::overrides>},
        {.names = {u"j"_s, u"jobs"_s},
         .description = u"Number of threads; default: one for each core."_s,
         .valueName = u"N"_s,
         .take = takeJobs},
        {.names = {u"files-from"_s},
         .description = u"Read more paths from FILE, one a line; - is standard input."_s,
         .valueName = u"FILE"_s,
         .take = put<&Arguments::filesFrom>},
        {.names = {u"0"_s},
         .description = u"Paths of --files-from end in a zero byte; so do the lines of list."_s,
         .take = put<&Arguments::zeroSeparated>},
        {.names = {u"no-progress"_s},
         .description = u"Show no progress."_s,
         .take = put<&Arguments::noProgress>},
        {.names = {u"version"_s},
         .description = u"Show the versions of the program and its libraries."_s,
         .take = put<&Arguments::version>},
        {.names = {u"h"_s, u"help"_s}, .description = u"Show this help."_s, .take = put<&Arguments::help>},
    };
}

} // namespace quorvin::cli
