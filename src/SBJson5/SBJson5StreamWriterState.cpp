// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "SBJson5/SBJson5StreamWriterState.h"

#include <array>

namespace quorvin {

const SBJson5StreamWriterStateRow &rowOfState(SBJson5StreamWriterState state)
{
    using enum SBJson5StreamWriterState;
    static constexpr std::array<SBJson5StreamWriterStateRow, 7> kRows{{
        {0, false, true, Complete}, // Start
        {0, true, true, ObjectValue}, // ObjectStart
        {',', true, true, ObjectValue}, // ObjectKey
        {':', false, false, ObjectKey}, // ObjectValue
        {0, false, true, ArrayValue}, // ArrayStart
        {',', false, true, ArrayValue}, // ArrayValue
        {0, false, true, Complete}, // Complete
    }};
    return kRows[static_cast<std::size_t>(state)];
}

} // namespace quorvin
