// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace quorvin {

/// A start of the window program, taken apart.
struct StartArguments {
    bool newWindow = false; ///< a window of their own for the files, or an empty one
    QStringList overrides; ///< KEY=VALUE, for this run
    std::optional<QString> answer; ///< help or version: to be printed, and then the program ends
    QStringList paths; ///< absolute
};

/// `words` are those of the command line without the program's name, decoded as paths are. What looks like an
/// address of a file is one. The error is one line, for a person to read.
Expected<StartArguments> parseStartArguments(const QStringList &words);

} // namespace quorvin
