// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "statistics/Bins.h"

#include <QLatin1String>

#include <optional>
#include <span>

namespace quorvin {

/// A question that people of a trade ask of their files.
struct CountPreset {
    QLatin1String trade;
    QLatin1String title;
    QLatin1String parameter; ///< as `ParameterTally` takes it
    bool inRanges = false;
    std::optional<DateStep> step = {};
};

/// All presets, those of a trade together.
std::span<const CountPreset> countPresets();

} // namespace quorvin
