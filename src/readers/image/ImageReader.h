// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/DigestProgress.h"
#include "model/Error.h"
#include "model/RecordContents.h"
#include "model/RecordOptions.h"
#include "platform/RegularFile.h"

namespace quorvin {

/// Reads an image with exiv2, or, where exiv2 finds HEIF or AVIF, with libheif. `filename` is the path as the
/// list shows it, `file` that file, open. An error says that the file is no image for them; nobody needs to
/// hear of it. Any thread, after the set-up of the library.
Expected<RecordContents> readImage(const QString &filename, const RegularFile &file,
                                   const RecordOptions &options, const DigestWatch &watch);

} // namespace quorvin
