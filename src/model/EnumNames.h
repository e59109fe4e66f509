// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace quorvin {

/// The enumerators of an enumeration at compile time, from the name that the compiler gives a function.

/// The name without its enumeration; "" for a number that has no enumerator.
template <auto Enumerator>
constexpr std::string_view nameOfEnumerator()
{
    // Ends in "Enumerator = quorvin::Setting::mapType]", or in "Enumerator = (quorvin::Setting)99]".
    std::string_view name = __PRETTY_FUNCTION__;
    name = name.substr(name.find("Enumerator = ") + 13);
    name = name.substr(0, name.find_first_of(";]"));
    return name.starts_with('(') ? std::string_view() : name.substr(name.rfind(':') + 1);
}

/// The same with a zero byte behind it.
template <auto Enumerator>
inline constexpr auto kTerminatedName = [] {
    constexpr std::string_view name = nameOfEnumerator<Enumerator>();
    std::array<char, name.size() + 1> letters{};
    std::ranges::copy(name, letters.begin());
    return letters;
}();

/// How many enumerators there are, counted from 0 to the first number without one.
template <typename Enum, std::size_t From = 0>
constexpr std::size_t countOfEnumerators()
{
    if constexpr (nameOfEnumerator<static_cast<Enum>(From)>().empty())
        return From;
    else
        return countOfEnumerators<Enum, From + 1>();
}

/// Whether a table has a row for each enumerator, in their order; `member` is the enumerator of a row.
template <typename Enum, typename Table, typename Row>
constexpr bool hasRowOfEach(const Table &table, Enum Row::*member)
{
    if (table.size() != countOfEnumerators<Enum>())
        return false;
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (table[i].*member != static_cast<Enum>(i))
            return false;
    }
    return true;
}

} // namespace quorvin
