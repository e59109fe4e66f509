// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "SBJson5/SBJson5StreamTokeniser.h"

#include <QString>

#include <array>
#include <cstddef>

namespace quorvin {

/// What a stream parser may find next.
enum class SBJson5StreamParserState : unsigned char {
    Start,
    ObjectStart,
    ObjectGotKey,
    ObjectSeparator,
    ObjectGotValue,
    ObjectNeedKey,
    ArrayStart,
    ArrayGotValue,
    ArrayNeedValue,
    Complete, ///< the outermost container is closed
    ScalarComplete, ///< a document of a single scalar was read
    Error,
};

constexpr quint16 bitOf(SBJson5Token token)
{
    return static_cast<quint16>(1U << static_cast<unsigned>(token));
}

/// How a state behaves.
struct SBJson5StreamParserStateRow {
    QLatin1String name; ///< for messages
    quint16 accepts; ///< bits of tokens
    SBJson5StreamParserState next; ///< after a token, or after the container that it opens; `Start` decides
    bool needKey; ///< a string is a key
};

inline const SBJson5StreamParserStateRow &rowOfState(SBJson5StreamParserState state)
{
    using enum SBJson5StreamParserState;
    using Token = SBJson5Token;
    static constexpr quint16 kString = bitOf(Token::String) | bitOf(Token::EncodedString);
    static constexpr quint16 kValue = bitOf(Token::ArrayOpen) | bitOf(Token::ObjectOpen)
        | bitOf(Token::Boolean) | bitOf(Token::Null) | bitOf(Token::Integer) | bitOf(Token::Real) | kString;
    static constexpr quint16 kSeparator = bitOf(Token::ValueSeparator);
    static constexpr quint16 kObjectClose = bitOf(Token::ObjectClose);
    static constexpr quint16 kArrayClose = bitOf(Token::ArrayClose);
    static constexpr std::array<SBJson5StreamParserStateRow, 12> kRows{{
        {QLatin1String("<aaiie!>"), kValue, Start, false},
        {QLatin1String("at beginning of object"), kObjectClose | kString, ObjectGotKey, true},
        {QLatin1String("after object key"), bitOf(Token::KeySeparator), ObjectSeparator, false},
        {QLatin1String("as object value"), kValue, ObjectGotValue, false},
        {QLatin1String("after object value"), kSeparator | kObjectClose, ObjectNeedKey, false},
        {QLatin1String("in place of object key"), kString, ObjectGotKey, true},
        {QLatin1String("at array start"), kArrayClose | kValue, ArrayGotValue, false},
        {QLatin1String("after array value"), kSeparator | kArrayClose, ArrayNeedValue, false},
        {QLatin1String("as array value"), kValue, ArrayGotValue, false},
        {QLatin1String("after complete json"), 0, Complete, false},
        {QLatin1String("(null)"), 0, ScalarComplete, false},
        {QLatin1String("in error"), 0, Error, false},
    }};
    return kRows[static_cast<std::size_t>(state)];
}

} // namespace quorvin
