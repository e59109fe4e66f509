// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/Help.h"

#include "cli/Commands.h"

namespace quorvin::cli {

namespace {

using namespace Qt::StringLiterals;

constexpr int kLeftColumn = 28;

QString optionsHelp(const QList<Option> &options)
{
    QString text;
    for (const Option &option : options) {
        QStringList names;
        for (const QString &name : option.names)
            names.append((name.size() == 1 ? u"-"_s : u"--"_s) + name);
        QString left = u"  "_s + names.join(", "_L1);
        if (!option.valueName.isEmpty())
            left += u' ' + option.valueName;
        text += left.leftJustified(kLeftColumn) + option.description + u'\n';
    }
    return text;
}

QString commandsHelp()
{
    QString text;
    for (const Command &command : commands())
        text += (u"  "_s + command.name).leftJustified(kLeftColumn) + command.description + u'\n';
    return text;
}

} // namespace

QString helpText(const Command *command)
{
    if (command)
        return u"Usage: quorvin-cli %1 [OPTION]... [--] PATH...\nShow %2.\n\nOptions:\n%3"_s.arg(
            command->name, command->description, optionsHelp(command->options() + commonOptions()));
    return u"Usage: quorvin-cli COMMAND [OPTION]... [--] PATH...\n"
           "Tell what media files are and what is inside them. Folders are walked; a project (a file\n"
           "with the extension quorvinproj) stands for the files in it.\n\n"
           "Commands:\n%1\nOptions of all commands:\n%2\n"
           "'quorvin-cli COMMAND --help' tells the options of a command.\n"
           "Exit status: 0 all went well, 1 a file failed or an output could not be written, 2 the call was "
           "wrong,\n"
           "3 files that were asked for differences differ.\n"_s.arg(commandsHelp(),
                                                                     optionsHelp(commonOptions()));
}

} // namespace quorvin::cli
