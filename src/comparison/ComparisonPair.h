// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/QuorvinData.h"

#include <QStringList>

namespace quorvin {

/// What became of the parameters of a file in another one that was made from it. A parameter is named
/// "SECTION/NAME"; a section of which all went, or came, by its own name alone. In the order of the rows of a
/// comparison, each name once.
struct ComparisonPair {
    QStringList lost; ///< the first file has it, the second does not, or has "" for it
    QStringList added; ///< the other way round
    QStringList changed;

    bool areEqual() const { return lost.isEmpty() && added.isEmpty() && changed.isEmpty(); }
    bool operator==(const ComparisonPair &) const = default;
};

/// What is so of any two files, their names, folders and dates, is left out. Any thread.
ComparisonPair comparedPair(const QuorvinData &first, const QuorvinData &second);

} // namespace quorvin
