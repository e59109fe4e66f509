// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace quorvin {

/// The tabs of a window, by the numbers under which settings keep them.
enum class Tab { General, Extended, Comparison, Custom };

inline constexpr int kTabCount = 4;

/// The tab of that number; the first one for what is no tab's number.
constexpr Tab tabFrom(int number)
{
    return number >= 0 && number < kTabCount ? static_cast<Tab>(number) : Tab::General;
}

/// The tab so many steps on from this one; behind the last comes the first.
constexpr Tab tabBeside(Tab tab, int steps)
{
    return static_cast<Tab>((static_cast<int>(tab) + steps + kTabCount) % kTabCount);
}

} // namespace quorvin
