// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/outline/HitPlaces.h"

#include "shell/outline/ExtTreeModel.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace quorvin {

namespace {

/// A text folded a letter at a time, with its accents, and where each of them began.
struct FoldedLetters {
    explicit FoldedLetters(const QString &text)
    {
        QTextBoundaryFinder letters(QTextBoundaryFinder::Grapheme, text);
        qsizetype start = 0;
        for (qsizetype end = letters.toNextBoundary(); end > start; end = letters.toNextBoundary()) {
            folded += foldedUtf8(QStringView(text).mid(start, end - start));
            origins.resize(static_cast<std::size_t>(folded.size()), {start, end - start});
            start = end;
        }
    }

    QByteArray folded;
    std::vector<LetterRange> origins; ///< by the byte of the folded text
};

void addLeaves(const ExtTreeModel &tree, const QModelIndex &above, std::vector<QModelIndex> &leaves)
{
    for (int row = 0; row < tree.rowCount(above); ++row) {
        const QModelIndex index = tree.index(row, ExtTreeModel::Name, above);
        leaves.push_back(index);
        addLeaves(tree, index, leaves);
    }
}

bool isHitAt(const ExtTreeModel &tree, const SearchText &wanted, const QModelIndex &row)
{
    const ExtTreeItem &item = *tree.itemAt(row);
    return item.value() && (wanted.isIn(item.name()) || wanted.isIn(item.stringValue()));
}

} // namespace

std::vector<LetterRange> hitPlaces(const SearchText &wanted, const QString &text, std::size_t most)
{
    std::vector<LetterRange> places;
    if (!wanted.isIn(text))
        return places;
    const FoldedLetters letters(text);
    const QByteArray &needle = wanted.folded();
    for (qsizetype at = letters.folded.indexOf(needle); at >= 0 && places.size() < most;
         at = letters.folded.indexOf(needle, at + needle.size())) {
        const LetterRange &first = letters.origins[static_cast<std::size_t>(at)];
        const LetterRange &last = letters.origins[static_cast<std::size_t>(at + needle.size() - 1)];
        // Half of what one letter folds to may begin where the place before ends.
        if (places.empty() || first.start >= places.back().start + places.back().length)
            places.push_back({first.start, last.start + last.length - first.start});
    }
    return places;
}

QModelIndex nextHit(const ExtTreeModel &tree, const SearchText &wanted, const QModelIndex &from,
                    bool backwards)
{
    std::vector<QModelIndex> rows;
    addLeaves(tree, {}, rows);
    if (backwards)
        std::ranges::reverse(rows);
    const auto here = std::ranges::find(rows, from.siblingAtColumn(ExtTreeModel::Name));
    const auto first = here == rows.end() ? rows.begin() : here + 1;
    const auto found
        = std::find_if(first, rows.end(), [&](const QModelIndex &row) { return isHitAt(tree, wanted, row); });
    return found == rows.end() ? QModelIndex() : *found;
}

} // namespace quorvin
