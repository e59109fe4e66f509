// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

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
    char separator; ///< written before a value or key; 0 for nothing
    bool expectingKey; ///< only a string may follow
    bool onOwnLine; ///< the human-readable form starts a new line, else it puts a blank
    SBJson5StreamWriterState next; ///< after a value or key
};

const SBJson5StreamWriterStateRow &rowOfState(SBJson5StreamWriterState state);

} // namespace quorvin
