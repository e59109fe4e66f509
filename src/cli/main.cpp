// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/Console.h"
#include "cli/Help.h"
#include "cli/Inputs.h"
#include "cli/Parser.h"
#include "cli/Version.h"
#include "platform/NativePath.h"
#include "platform/Settings.h"
#include "platform/StandardStreams.h"
#include "platform/UnfinishedFiles.h"
#include "platform/UserLocale.h"
#include "readers/RecordBuilder.h"

#include <QCoreApplication>
#include <QLoggingCategory>

using namespace quorvin;
using namespace quorvin::cli;

namespace {

int usageError(Console &console, const QString &problem)
{
    console.complain(problem);
    console.complain(QStringLiteral("try 'quorvin-cli --help'"));
    return WrongCall;
}

int run(const QStringList &words, Console &console)
{
    const auto call = parseCall(words);
    if (!call)
        return usageError(console, call.error().description);
    const Arguments &arguments = call->arguments;
    if (arguments.help || arguments.version) {
        console.write((arguments.help ? helpText(call->command) : versionText()).toUtf8());
        return console.finish(true) ? AllWell : SomethingFailed;
    }

    Settings settings(Settings::userPath());
    for (const QString &assignment : arguments.overrides) {
        if (const auto set = settings.overrideFrom(assignment); !set)
            return usageError(console, set.error().description);
    }
    // Readers set their libraries up themselves; nothing else of a call needs them so.
    if (!settings.boolean(Setting::readerProcesses))
        RecordBuilder::setupLibraries();
    const auto paths = inputPaths(arguments);
    if (!paths)
        return usageError(console, paths.error().description);
    return call->command->run({arguments, *paths, settings, console});
}

} // namespace

int main(int argc, char **argv)
{
    // Whoever wants the log sets QT_LOGGING_RULES; on a terminal only errors and progress have a place.
    QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
    UnfinishedFiles::removeOnInterrupt();
    const QStringList words = decodeWords(argc, argv);
    const QCoreApplication application(argc, argv);
    Console console(takeStandardStreams());
    useUtf8CharacterType();
    return run(words, console);
}
