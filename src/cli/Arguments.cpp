// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/Arguments.h"

#include "export/ExportFormats.h"
#include "readers/RawReport.h"

#include <QCommandLineParser>

#include <algorithm>
#include <array>
#include <span>

namespace quorvin::cli {

namespace {

using namespace Qt::StringLiterals;

/// An option as the help shows it. One without a value name is a switch.
struct OptionForm {
    QStringList names;
    QString description;
    QString valueName;

    QCommandLineOption option() const { return {names, description, valueName}; }
};

/// A command: what it is called, what it does, and which options only it has.
struct CommandForm {
    QLatin1String name;
    QLatin1String description;
    QList<OptionForm> (*options)();
    bool (*takesPaths)(const Arguments &arguments);
};

QList<OptionForm> commonOptions()
{
    return {
        {{u"set"_s}, u"Use this setting for this run; may be given several times."_s, u"KEY=VALUE"_s},
        {{u"j"_s, u"jobs"_s}, u"Number of threads; default: one for each core."_s, u"N"_s},
        {{u"files-from"_s}, u"Read more paths from FILE, one a line; - is standard input."_s, u"FILE"_s},
        {{u"0"_s}, u"Paths of --files-from end in a zero byte; so do the lines of list."_s, {}},
        {{u"no-progress"_s}, u"Show no progress."_s, {}},
        {{u"version"_s}, u"Show the versions of the program and its libraries."_s, {}},
        {{u"h"_s, u"help"_s}, u"Show this help."_s, {}},
    };
}

QList<OptionForm> exportOptions()
{
    return {
        {{u"f"_s, u"format"_s},
         u"Format: %1 (default: txt)."_s.arg(exportFormats().join(", "_L1)),
         u"FORMAT"_s},
        {{u"o"_s, u"output"_s}, u"Write one compound file; - is standard output (the default)."_s, u"FILE"_s},
        {{u"d"_s, u"output-dir"_s}, u"Write one file for each input into this folder."_s, u"DIR"_s},
        {{u"skip-private"_s}, u"Leave out facts about your files, such as their folder and comments."_s, {}},
    };
}

QList<OptionForm> rawOptions()
{
    return {{{u"source"_s},
             u"What reports: %1 (default: mediainfo)."_s.arg(rawSources().join(", "_L1)),
             u"SOURCE"_s}};
}

QList<OptionForm> noOptions()
{
    return {};
}

bool always(const Arguments &)
{
    return true;
}

bool never(const Arguments &)
{
    return false;
}

constexpr std::array kCommands{
    CommandForm{"export"_L1, "the information of every file"_L1, exportOptions, always},
    CommandForm{"general"_L1, "a summary of every file"_L1, noOptions, always},
    CommandForm{"list"_L1, "the files, one a line: path as listed, tab, full path"_L1, noOptions, always},
    CommandForm{"raw"_L1, "the report of a library, as it comes"_L1, rawOptions,
                [](const Arguments &arguments) { return rawSourceTakesFiles(arguments.source); }},
    CommandForm{"settings"_L1, "the settings: key, type, default, value"_L1, noOptions, never},
};

QString optionsHelp(const QList<OptionForm> &options)
{
    QString text;
    for (const OptionForm &option : options) {
        QStringList names;
        for (const QString &name : option.names)
            names.append((name.size() == 1 ? u"-"_s : u"--"_s) + name);
        QString left = u"  "_s + names.join(", "_L1);
        if (!option.valueName.isEmpty())
            left += u' ' + option.valueName;
        text += left.leftJustified(28) + option.description + u'\n';
    }
    return text;
}

QString commandsHelp()
{
    QString text;
    for (const CommandForm &command : kCommands)
        text += (u"  "_s + command.name).leftJustified(28) + command.description + u'\n';
    return text;
}

QString generalHelp()
{
    return u"Usage: quorvin-cli COMMAND [OPTION]... [--] PATH...\n"
           "Tell what media files are and what is inside them. Folders are walked.\n\n"
           "Commands:\n%1\nOptions of all commands:\n%2\n"
           "'quorvin-cli COMMAND --help' tells the options of a command.\n"
           "Exit status: 0 all went well, 1 a file failed or an output could not be written, 2 the call was wrong.\n"_s
               .arg(commandsHelp(), optionsHelp(commonOptions()));
}

QString commandHelp(const CommandForm &command)
{
    const QList<OptionForm> own = command.options();
    return u"Usage: quorvin-cli %1 [OPTION]... [--] PATH...\nShow %2.\n\nOptions:\n%3"_s.arg(
        command.name, command.description, optionsHelp(own + commonOptions()));
}

std::optional<QString> valueIfSet(const QCommandLineParser &parser, const QString &name)
{
    return parser.isSet(name) ? std::optional(parser.value(name)) : std::nullopt;
}

/// The value of an option that takes one of a few words, or the first of them when it is not given.
tl::expected<QString, QString> choice(const QCommandLineParser &parser, const QString &name,
                                      const QStringList &words)
{
    const QString value = parser.isSet(name) ? parser.value(name) : words.first();
    if (!words.contains(value))
        return tl::unexpected(u"there is no %1 '%2' (%3)"_s.arg(name, value, words.join(", "_L1)));
    return value;
}

tl::expected<int, QString> jobsOf(const QCommandLineParser &parser)
{
    if (!parser.isSet(u"jobs"_s))
        return 0;
    bool ok = false;
    const int jobs = parser.value(u"jobs"_s).toInt(&ok);
    if (!ok || jobs < 1)
        return tl::unexpected(u"--jobs takes a whole number from 1 on"_s);
    return jobs;
}

void readCommonOptions(const QCommandLineParser &parser, Arguments &arguments)
{
    arguments.overrides = parser.values(u"set"_s);
    arguments.filesFrom = valueIfSet(parser, u"files-from"_s);
    arguments.zeroSeparated = parser.isSet(u"0"_s);
    arguments.noProgress = parser.isSet(u"no-progress"_s);
    arguments.version = parser.isSet(u"version"_s);
    arguments.paths = parser.positionalArguments();
}

std::optional<QString> readOwnOptions(const QCommandLineParser &parser, Arguments &arguments)
{
    if (arguments.command == "export"_L1) {
        const auto format = choice(parser, u"format"_s, exportFormats());
        if (!format)
            return format.error();
        arguments.format = *format;
        arguments.output = valueIfSet(parser, u"output"_s);
        arguments.outputDir = valueIfSet(parser, u"output-dir"_s);
        arguments.skipPrivate = parser.isSet(u"skip-private"_s);
        if (arguments.output && arguments.outputDir)
            return u"--output and --output-dir exclude each other"_s;
    }
    if (arguments.command == "raw"_L1) {
        const auto source = choice(parser, u"source"_s, rawSources());
        if (!source)
            return source.error();
        arguments.source = *source;
    }
    return std::nullopt;
}

std::optional<QString> checkPaths(const CommandForm &command, const Arguments &arguments)
{
    const bool given = !arguments.paths.isEmpty() || arguments.filesFrom;
    if (command.takesPaths(arguments) && !given)
        return u"no paths given"_s;
    if (!command.takesPaths(arguments) && given)
        return u"no paths expected"_s;
    return std::nullopt;
}

tl::expected<Arguments, QString> parseCommand(const CommandForm &command, const QStringList &words)
{
    QCommandLineParser parser;
    for (const OptionForm &option : command.options() + commonOptions())
        parser.addOption(option.option());
    if (!parser.parse(words))
        return tl::unexpected(parser.errorText().section(u'\n', 0, 0));

    Arguments arguments;
    arguments.command = command.name;
    if (parser.isSet(u"help"_s)) {
        arguments.helpText = commandHelp(command);
        return arguments;
    }
    readCommonOptions(parser, arguments);
    if (arguments.version)
        return arguments;
    if (const auto problem = readOwnOptions(parser, arguments))
        return tl::unexpected(*problem);
    const auto jobs = jobsOf(parser);
    if (!jobs)
        return tl::unexpected(jobs.error());
    arguments.jobs = *jobs;
    if (const auto problem = checkPaths(command, arguments))
        return tl::unexpected(*problem);
    return arguments;
}

} // namespace

tl::expected<Arguments, QString> parseArguments(const QStringList &words)
{
    if (words.isEmpty())
        return tl::unexpected(u"no command given"_s);
    Arguments arguments;
    if (words.first() == "--help"_L1 || words.first() == "-h"_L1) {
        arguments.helpText = generalHelp();
        return arguments;
    }
    if (words.first() == "--version"_L1) {
        arguments.version = true;
        return arguments;
    }
    const auto command = std::ranges::find_if(
        kCommands, [&](const CommandForm &form) { return form.name == words.first(); });
    if (command == kCommands.end())
        return tl::unexpected(u"there is no command '%1'"_s.arg(words.first()));
    return parseCommand(*command, words);
}

} // namespace quorvin::cli
