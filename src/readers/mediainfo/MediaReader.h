// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/DigestProgress.h"
#include "model/Error.h"
#include "model/RecordContents.h"
#include "model/RecordOptions.h"
#include "platform/RegularFile.h"

namespace quorvin {

/// Reads a file with the MediaInfo library. `filename` is the path as the list shows it, `file` that file,
/// open. The error is the reason, for a person to read; it is logged too. Any thread, after the set-up of the
/// library.
Expected<RecordContents> readMedia(const QString &filename, const RegularFile &file,
                                   const RecordOptions &options, const DigestWatch &watch);

} // namespace quorvin
