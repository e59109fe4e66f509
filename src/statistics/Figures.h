// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Quantity.h"
#include "statistics/ParameterCount.h"

#include <QLatin1String>
#include <QtGlobal>

#include <optional>
#include <vector>

namespace quorvin {

/// What most values of a parameter measure.
struct Measure {
    QuantityKind kind = QuantityKind::Number;
    QLatin1String unit; ///< as that of a quantity

    bool operator==(const Measure &) const = default;
};

/// The figures of a parameter over its streams, each of which counts once, in the unit of the measure.
struct Figures {
    Measure measure;
    double least = 0;
    double greatest = 0;
    double mean = 0;
    double median = 0; ///< between two neighbours in the middle, as the quartiles
    double lowerQuartile = 0;
    double upperQuartile = 0;
    bool isWhole = true; ///< all are whole numbers
    qint64 streams = 0; ///< that are compared
    std::vector<quint32> values = {}; ///< those of the count that are, from the least up
    std::vector<quint32> incomparable = {}; ///< the others, in the order of the count
};

/// Absent unless most streams have values of one measure, or of others that can be compared with it. Any
/// thread.
std::optional<Figures> figuresOf(const ParameterCount &count);

} // namespace quorvin
