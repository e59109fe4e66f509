// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Location.h"
#include "model/QuorvinData.h"

#include <optional>

namespace quorvin {

/// Where the media was recorded, if the file says so. Absent for a file without a position, and for one that
/// cannot be read as ISO 6709 in decimal degrees. The altitude is left out.
std::optional<Location> findMapLocation(const RecordContents &record);

/// The position at the start of an ISO 6709 text such as +48.8577+002.295/.
std::optional<Location> locationFromIso6709(const QString &text);

} // namespace quorvin
