// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"

#include <QString>

namespace quorvin {

/// The metadata items of an ISO media file (MP4, QuickTime and their kin) as text, for diagnostics: by the
/// format that they stand in, each with identifier, type, locale, length in bytes and text; of raw bytes the
/// first 200, too. Fails for a file of another kind. Any thread.
Expected<QString> isoMetadataReport(const QString &path);

} // namespace quorvin
