// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace quorvin::cli {

/// The options and paths of a call, as given. What an option may say has been checked; what its value leads
/// to has not.
struct Arguments {
    QStringList overrides; ///< KEY=VALUE
    int jobs = 0; ///< 0: one for each core
    std::optional<QString> filesFrom; ///< "-": standard input
    bool zeroSeparated = false;
    bool noProgress = false;
    bool version = false;
    bool help = false;
    QStringList given; ///< the long names of the options of the call
    QStringList paths;

    QString format; ///< a word that the command's option offers
    std::optional<QString> output; ///< absent: standard output
    std::optional<QString> outputDir;
    bool skipPrivate = false;
    bool force = false;
    bool onlyDiffering = false;
    bool pair = false;
    QString filter; ///< the text of a rule
    bool onlyFailed = false;
    std::optional<QString> saveProject;
    std::optional<QString> changed; ///< a project
    bool stripExif = false;
    bool stripMakernote = false;
    bool stripGps = false;
    bool stripIptc = false;
    bool stripXmp = false;
    bool dryRun = false;
    bool keepTimes = false;
    bool allowHardLinks = false;
    std::optional<QString> receipt;
    QString source; ///< a key of `rawSources`
    QString parameter; ///< SECTION/NAME
};

} // namespace quorvin::cli
