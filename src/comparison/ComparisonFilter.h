// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "comparison/ComparisonRows.h"

#include <vector>

namespace quorvin {

/// Which parameters of a comparison are wanted.
enum class ComparisonFilter {
    All,
    Different, ///< those that are not equal in all files
    Equal,
};

/// A heading is wanted when a row of its section is.
bool isWanted(const ComparisonRow &row, ComparisonFilter filter);

/// The rows that are wanted, as ascending indexes. Any thread.
std::vector<int> wantedRows(const ComparisonContent &content, ComparisonFilter filter);

/// The wanted rows alone. Any thread.
ComparisonContent filtered(const ComparisonContent &content, ComparisonFilter filter);

} // namespace quorvin
