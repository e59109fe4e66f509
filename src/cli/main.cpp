// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/Console.h"
#include "cli/FilterOption.h"
#include "cli/Help.h"
#include "cli/Inputs.h"
#include "cli/Parser.h"
#include "cli/Version.h"
#include "platform/NativePath.h"
#include "platform/Settings.h"
#include "platform/StandardStreams.h"
#include "platform/Startup.h"
#include "platform/UserLocale.h"
#include "readers/RecordBuilder.h"

#include <QCoreApplication>
#include <QLoggingCategory>

using namespace quorvin;
using namespace quorvin::cli;

namespace {

Status refuse(const Error &error, Console &console)
{
    console.refuse(error.description);
    return WrongCall;
}

int run(const QStringList &words, Console &console)
{
    const auto call = parseCall(words);
    if (!call)
        return refuse(call.error(), console);
    const Arguments &arguments = call->arguments;
    if (arguments.help || arguments.version) {
        console.write((arguments.help ? helpText(call->command) : versionText()).toUtf8());
        return console.finish(true) ? AllWell : SomethingFailed;
    }

    const auto filter = parseRule(arguments.filter);
    if (!filter) {
        console.refuse(QStringLiteral("--filter: ") + filter.error().reason,
                       linesOf(filter.error(), arguments.filter));
        return WrongCall;
    }
    Settings settings(Settings::userPath());
    for (const QString &assignment : arguments.overrides) {
        if (const auto set = settings.overrideFrom(assignment); !set)
            return refuse(set.error(), console);
    }
    // Readers set their libraries up themselves; nothing else of a call needs them so.
    if (!settings.boolean(Setting::readerProcesses))
        RecordBuilder::setupLibraries();
    const auto paths = inputPaths(arguments);
    if (!paths)
        return refuse(paths.error(), console);
    return call->command->run({arguments, *paths, settings, console, RuleMatcher(*filter)});
}

} // namespace

int main(int argc, char **argv)
{
    setUpProcess();
    // Whoever wants the log sets QT_LOGGING_RULES; on a terminal only errors and progress have a place.
    QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
    const QStringList words = decodeWords(argc, argv);
    const QCoreApplication application(argc, argv);
    Console console(takeStandardStreams());
    useUtf8CharacterType();
    return run(words, console);
}
