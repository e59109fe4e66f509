// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace quorvin::cli {

/// The version of the program, its libraries and exiftool, and what guards the readers; a line each.
QString versionText();

} // namespace quorvin::cli
