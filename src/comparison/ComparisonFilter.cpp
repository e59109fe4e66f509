// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "comparison/ComparisonFilter.h"

#include <cstddef>

namespace quorvin {

bool isWanted(const ComparisonRow &row, ComparisonFilter filter)
{
    if (filter == ComparisonFilter::All)
        return true;
    if (row.isHeading())
        return filter == ComparisonFilter::Equal ? row.differing < row.rows : row.differing > 0;
    return row.allEqual == (filter == ComparisonFilter::Equal);
}

std::vector<int> wantedRows(const ComparisonContent &content, ComparisonFilter filter)
{
    std::vector<int> wanted;
    for (std::size_t i = 0; i < content.size(); ++i) {
        if (isWanted(content[i], filter))
            wanted.push_back(static_cast<int>(i));
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
