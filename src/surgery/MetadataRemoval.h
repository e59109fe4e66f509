// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"
#include "model/RemovalResult.h"

#include <QString>

namespace quorvin {

/// Takes metadata from images, with exiv2: any thread, after the set-up of the library. An error is of words
/// for a person: the format can't be written, or not without loss.

/// What would go from a file, and what would stay; nothing is written.
Expected<RemovalResult> plannedRemoval(const oEXIV2Metadata &options, const QString &path);

/// Writes the file `original` without it into `copy`, a file that is there and empty; where nothing is to be
/// taken it stays so. Both are read and compared afterwards: unless exactly what was asked for is gone, and
/// all else is there byte for byte, it is an error. After an error `copy` is of no use.
Expected<RemovalResult> removeMetadata(const oEXIV2Metadata &options, const QString &original,
                                       const QString &copy);

} // namespace quorvin
