// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/app/StartArguments.h"

#include "model/Version.h"
#include "platform/FileUri.h"
#include "platform/GivenPath.h"

namespace quorvin {

namespace {

constexpr QLatin1String
    kHelp("Usage: quorvin [--new-window] [--set KEY=VALUE] [FILE|FOLDER…]\n"
          "\n"
          "Shows what media files are and what is inside them. Where Quorvin runs "
          "already, its window takes the files.\n"
          "\n"
          "  --new-window     open a window of their own for the files, or an empty one\n"
          "  --set KEY=VALUE  change a setting for this run, or for the one that runs already;\n"
          "                   quorvin-cli settings prints them\n"
          "  -h, --help       show this help\n"
          "  -v, --version    show the version\n"
          "\n"
          "quorvin-cli tells the same in a terminal.\n");

} // namespace

Expected<StartArguments> parseStartArguments(const QStringList &words)
{
    StartArguments arguments;
    bool onlyPaths = false;
    for (qsizetype i = 0; i < words.size(); ++i) {
        const QString &word = words[i];
        if (onlyPaths || !word.startsWith(u'-') || word == QLatin1String("-")) {
            const auto uri = pathFromUri(word);
            const auto path = uri ? Expected<QString>(*uri) : pathOfGiven(word);
            if (!path)
                return tl::unexpected(path.error());
            arguments.paths.append(*path);
        } else if (word == QLatin1String("--"))
            onlyPaths = true;
        else if (word == QLatin1String("--new-window"))
            arguments.newWindow = true;
        else if (word == QLatin1String("--set") && i + 1 < words.size())
            arguments.overrides.append(words[++i]);
        else if (word == QLatin1String("--help") || word == QLatin1String("-h"))
            arguments.answer = QString::fromUtf8(kHelp.data(), kHelp.size());
        else if (word == QLatin1String("--version") || word == QLatin1String("-v"))
            arguments.answer = QStringLiteral("quorvin %1\n").arg(programVersion());
        else
            return failure(QStringLiteral("there is no option '%1'").arg(word));
    }
    return arguments;
}

} // namespace quorvin
