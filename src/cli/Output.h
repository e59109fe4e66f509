// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/FilelistItem.h"
#include "model/Error.h"

#include <QString>

#include <optional>
#include <vector>

namespace quorvin::cli {

/// Where the option -o of a command leads to. One thread.

enum class Place {
    Output, ///< absent, "-", or a name of standard output
    Errors, ///< a name of standard error
    File,
};
Place placeOf(const std::optional<QString> &output);

/// Whether a document with this extension may be written to the file: it is none of the files that the call
/// reads, and, unless forced, no file of another kind. The error is one line.
Expected<void> checkOutputFile(const QString &output, const QString &extension, bool isForced,
                               const std::vector<FilelistItemPtr> &inputs);

} // namespace quorvin::cli
