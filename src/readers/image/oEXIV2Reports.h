// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"

#include <QString>

/// What exiv2 tells of an image as text, for diagnostics. Any thread, after the set-up of the library.
namespace quorvin::oEXIV2Reports {

/// Every metadata item, a line each, as exiv2 prints it; "" for an image without any. Fails for a file that
/// cannot be read.
Expected<QString> outputOnFile(const QString &path);
/// The layout of a file as exiv2 describes it, or the text of exiv2's error.
Expected<QString> structureOfFile(const QString &path);
/// The raw XMP packet, "" without one, or the text of exiv2's error.
Expected<QString> rawXmpOfFile(const QString &path);
/// The same, laid out as `arrangedXmp` does it.
Expected<QString> arrangedXmpOfFile(const QString &path);

} // namespace quorvin::oEXIV2Reports
