// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/SearchText.h"

#include <QModelIndex>
#include <QString>

#include <vector>

namespace quorvin {

class ExtTreeModel;

/// Letters of a text, in its own units.
struct LetterRange {
    qsizetype start = 0;
    qsizetype length = 0;

    bool operator==(const LetterRange &) const = default;
};

/// Where the text that is looked for stands in another one, from its beginning and at most `most` times, in
/// places that do not overlap and that divide no letter from its accents. None may be found where the whole
/// text has it, when whole letters melt together as they are compared.
std::vector<LetterRange> hitPlaces(const SearchText &wanted, const QString &text, std::size_t most);

/// The next row behind `from`, in the order in which all are seen when every group is open, in whose name or
/// value the text stands; with an invalid `from` the first one. Backwards: the one before, or the last.
/// Invalid when there is none.
QModelIndex nextHit(const ExtTreeModel &tree, const SearchText &wanted, const QModelIndex &from,
                    bool backwards);

} // namespace quorvin
