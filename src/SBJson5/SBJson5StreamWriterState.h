// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <cstddef>

namespace quorvin {

/// What a stream writer may write next, and what stands before and after it.
enum class SBJson5StreamWriterState : unsigned char {
    Start, ///< nothing was written yet
    ObjectStart, ///< a map was opened
    ObjectKey, ///< a map holds an entry; a key or the end may follow
    ObjectValue, ///< a key was written
    ArrayStart, ///< a list was opened
    ArrayValue, ///< a list holds an element
    Complete, ///< the outermost value is whole
};

/// How a state behaves.
struct SBJson5StreamWriterStateRow {
    bool hasComma; ///< stands before the next value or key
    bool expectingKey; ///< only a string may follow
    bool onOwnLine; ///< of the human-readable form; otherwise a colon and a blank stand before it
    SBJson5StreamWriterState next; ///< after a value or key
};

inline const SBJson5StreamWriterStateRow &rowOfState(SBJson5StreamWriterState state)
{
    using enum SBJson5StreamWriterState;
    static constexpr std::array<SBJson5StreamWriterStateRow, 7> kRows{{
        {false, false, true, Complete}, // Start
        {false, true, true, ObjectValue}, // ObjectStart
        {true, true, true, ObjectValue}, // ObjectKey
        {false, false, false, ObjectKey}, // ObjectValue
        {false, false, true, ArrayValue}, // ArrayStart
        {true, false, true, ArrayValue}, // ArrayValue
        {false, false, true, Complete}, // Complete
    }};
    return kRows[static_cast<std::size_t>(state)];
}

} // namespace quorvin
