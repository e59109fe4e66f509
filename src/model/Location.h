// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace quorvin {

/// Where a file was recorded.
struct Location {
    double latitude = 0; ///< degrees, north positive
    double longitude = 0; ///< degrees, east positive

    bool operator==(const Location &) const = default;
};

} // namespace quorvin
