// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>

#include <tl/expected.hpp>

#include <optional>

namespace quorvin::cli {

/// A call of the program, taken apart and checked.
struct Arguments {
    QString command; ///< "" when only help or the version is wanted
    std::optional<QString> helpText; ///< set when help is wanted
    bool version = false;

    QString format; ///< a key of `exportFormats`
    std::optional<QString> output; ///< absent: standard output
    std::optional<QString> outputDir;
    bool skipPrivate = false;
    QString source; ///< a key of `rawSources`

    QStringList overrides; ///< KEY=VALUE
    int jobs = 0; ///< 0: one for each core
    std::optional<QString> filesFrom; ///< "-": standard input
    bool zeroSeparated = false;
    bool noProgress = false;
    QStringList paths; ///< as given
};

/// `words` are those of the command line without the program's name, decoded as paths are. The error is one
/// line, for a person to read.
tl::expected<Arguments, QString> parseArguments(const QStringList &words);

} // namespace quorvin::cli
