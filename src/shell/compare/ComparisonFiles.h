// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/FilelistItem.h"

#include <QString>
#include <QStringList>

#include <span>
#include <vector>

namespace quorvin {

/// The files of a list that stand in its comparison.
struct ComparisonFiles {
    std::vector<QuorvinDataPtr> records;
    QStringList paths; ///< full, one for each record
    int available = 0; ///< files of the list that have a record, with those that the limit left out
};

/// The first files of the list that have a record, no more than the limit. Any thread.
ComparisonFiles filesForComparison(std::span<const FilelistItemPtr> arranged, int limit);

/// "70 of 120 files; change in preferences" where the limit left some out, else "".
QString comparisonLimitText(const ComparisonFiles &files);

/// "12 of 40 differ": what stands at the heading of a section.
QString differingText(int differing, int rows);

} // namespace quorvin
