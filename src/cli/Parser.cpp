// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/Parser.h"

#include "cli/Commands.h"

#include <QCommandLineParser>

#include <algorithm>

namespace quorvin::cli {

namespace {

using namespace Qt::StringLiterals;

Expected<void> takeOption(const Option &option, const QCommandLineParser &parser, Arguments &arguments)
{
    const QString &name = option.names.last();
    if (!parser.isSet(name))
        return option.choices.isEmpty() ? Expected<void>() : option.take(arguments, option.choices.first(1));
    arguments.given.append(name);
    const QStringList values = option.valueName.isEmpty() ? QStringList() : parser.values(name);
    if (!option.choices.isEmpty() && !option.choices.contains(values.last()))
        return failure(u"there is no %1 '%2' (%3)"_s.arg(name, values.last(), option.choices.join(", "_L1)));
    return option.take(arguments, values);
}

Expected<void> checkPaths(const Command &command, const Arguments &arguments)
{
    const bool given = !arguments.paths.isEmpty() || arguments.filesFrom;
    const bool wanted = command.reads(arguments) == Reads::Files;
    if (wanted != given)
        return failure(wanted ? u"no paths given"_s : u"no paths expected"_s);
    return {};
}

Expected<Call> parseCommand(const Command &command, const QStringList &words)
{
    const QList<Option> options = command.options() + commonOptions();
    QCommandLineParser parser;
    for (const Option &option : options)
        parser.addOption({option.names, option.description, option.valueName});
    if (!parser.parse(words))
        return failure(parser.errorText().section(u'\n', 0, 0));

    Call call{&command, {}};
    call.arguments.help = parser.isSet(u"help"_s);
    call.arguments.version = parser.isSet(u"version"_s);
    if (call.arguments.help || call.arguments.version)
        return call;
    for (const Option &option : options) {
        if (const auto taken = takeOption(option, parser, call.arguments); !taken)
            return tl::unexpected(taken.error());
    }
    call.arguments.paths = parser.positionalArguments();
    const auto agree = command.check ? command.check(call.arguments) : Expected<void>();
    const auto checked = agree.and_then([&] { return checkPaths(command, call.arguments); });
    return checked.map([&] { return call; });
}

} // namespace

Expected<Call> parseCall(const QStringList &words)
{
    if (words.isEmpty())
        return failure(u"no command given"_s);
    const QString &first = words.first();
    Call call;
    call.arguments.help = first == "--help"_L1 || first == "-h"_L1;
    call.arguments.version = first == "--version"_L1;
    if (call.arguments.help || call.arguments.version)
        return call;
    const auto command = std::ranges::find(commands(), first, &Command::name);
    if (command == commands().end())
        return failure(u"there is no command '%1'"_s.arg(first));
    return parseCommand(*command, words);
}

} // namespace quorvin::cli
