// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/QuantityKind.h"

#include <QLatin1String>
#include <QStringView>

#include <optional>

namespace quorvin {

/// What a display text says, in the unit of its kind.
struct Quantity {
    QuantityKind kind = QuantityKind::Text;
    double value = 0; ///< finite
    QLatin1String unit; ///< "" without one; of numbers as it stands, without prefixes of a thousand

    bool operator==(const Quantity &) const = default;
};

/// Reads a display text as a whole: what has words beside its quantity is Text, but for a remark in
/// parentheses at its end. Any thread.
Quantity quantityOf(QStringView text);

/// The order of two quantities: below, at or above 0; absent when they have nothing in common. A number
/// without unit is compared with any, in the unit of that one's kind.
std::optional<int> compareQuantities(const Quantity &left, const Quantity &right);

} // namespace quorvin
