// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace quorvin::test {

/// What came of a run of the command line.
struct Outcome {
    int status = -1; ///< -1: it was ended
    QByteArray output;
    QByteArray errors;
};

/// Runs it with these words, without settings of the user's.
Outcome runCommandLine(const QStringList &words, const QByteArray &input = {},
                       const QString &language = QStringLiteral("C.UTF-8"));
/// The same, by a line of the shell in which "cli" is the program.
Outcome runInShell(const QString &line);
/// The same, with both ends of the program on one terminal that is so wide: all it shows is in `output`.
Outcome runOnTerminal(const QStringList &words, int width = 80,
                      const QString &terminal = QStringLiteral("xterm"));

} // namespace quorvin::test
