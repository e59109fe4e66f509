// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "comparison/ComparisonFilter.h"

#include <numeric>
#include <optional>
#include <utility>

namespace quorvin {

namespace {

bool isWanted(const ComparisonRow &row, ComparisonFilter filter)
{
    return row.allEqual == (filter == ComparisonFilter::Equal);
}

} // namespace

std::vector<int> wantedRows(const ComparisonContent &content, ComparisonFilter filter)
{
    std::vector<int> wanted;
    if (filter == ComparisonFilter::All) {
        wanted.resize(content.size());
        std::iota(wanted.begin(), wanted.end(), 0);
        return wanted;
    }
    std::optional<int> heading;
    for (int i = 0; i < static_cast<int>(content.size()); ++i) {
        const ComparisonRow &row = content[static_cast<std::size_t>(i)];
        if (row.isHeading()) {
            heading = i;
        } else if (isWanted(row, filter)) {
            if (const auto above = std::exchange(heading, std::nullopt))
                wanted.push_back(*above);
            wanted.push_back(i);
        }
    }
    return wanted;
}

ComparisonContent filtered(const ComparisonContent &content, ComparisonFilter filter)
{
    ComparisonContent rows;
    for (const int row : wantedRows(content, filter))
        rows.push_back(content[static_cast<std::size_t>(row)]);
    return rows;
}

} // namespace quorvin
