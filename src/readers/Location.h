// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Location.h"
#include "model/QuorvinData.h"

#include <optional>

namespace quorvin {

/// Where a file was recorded, if it says so: an image by the coordinates among its General facts, media by
/// ISO 6709 in decimal degrees, without the altitude. Absent for a file without a position that can be read.
std::optional<Location> findMapLocation(const RecordContents &record);

/// The position at the start of an ISO 6709 text such as +48.8577+002.295/.
std::optional<Location> locationFromIso6709(const QString &text);

} // namespace quorvin
