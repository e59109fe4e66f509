// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/outline/CellHeights.h"

#include <utility>

namespace quorvin {

namespace {

constexpr qsizetype kMostHeights = 100'000; ///< for all widths together

} // namespace

std::optional<int> CellHeights::known(const Place &place) const
{
    const auto found = _heights.constFind(place);
    return found == _heights.constEnd() ? std::nullopt : std::optional(*found);
}

bool CellHeights::mayMeasureAhead(int treeWidth, qsizetype letters)
{
    if (std::exchange(_treeWidth, treeWidth) != treeWidth)
        _ahead = 0;
    _ahead += letters;
    return _ahead <= kMostLettersAhead;
}

void CellHeights::learn(const Place &place, int height)
{
    if (_heights.size() >= kMostHeights)
        _heights.clear();
    _heights.insert(place, height);
}

void CellHeights::forget()
{
    _heights.clear();
    _ahead = 0;
}

} // namespace quorvin
