// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QtGlobal>

namespace quorvin {

/// What a text measures, with the unit in which its value is counted.
enum class QuantityKind : quint8 {
    Text, ///< no quantity
    Number, ///< with a unit that is counted as it is, such as "fps", or none
    Duration, ///< s
    Size, ///< B
    Rate, ///< b/s
    Fraction, ///< 1/500; with the unit s an exposure
    FNumber, ///< F5.6
    Pixels, ///< px, of a side; px² of both sides
    Date, ///< s since the beginning of 1970, in universal time where the text tells no zone
    Position, ///< degrees, north and east positive
};

} // namespace quorvin
