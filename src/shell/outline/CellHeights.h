// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QHash>

#include <optional>

namespace quorvin {

/// How high the wrapped cells of a tree are, as far as they were measured; device-independent pixels.
class CellHeights {
public:
    /// A cell in a column of that width.
    struct Place {
        quintptr row = 0; ///< the internal id of its index
        int column = 0;
        int width = 0;
        bool isOpen = false; ///< shows a long value as a whole

        bool operator==(const Place &) const = default;
        friend size_t qHash(const Place &place, size_t seed)
        {
            return qHashMulti(seed, place.row, place.column, place.width, place.isOpen);
        }
    };

    /// Cells of so many letters are measured before they are seen, in a tree of one width.
    static constexpr qsizetype kMostLettersAhead = 10'000;

    /// Absent for a cell that was not measured in that width.
    std::optional<int> known(const Place &place) const;
    /// Whether a cell of so many letters may be measured that nobody sees yet; counts it. `treeWidth`:
    /// another one than at the last call begins to count anew.
    bool mayMeasureAhead(int treeWidth, qsizetype letters);
    void learn(const Place &place, int height);
    /// The cells have other texts, or another font.
    void forget();

private:
    QHash<Place, int> _heights;
    int _treeWidth = 0;
    qsizetype _ahead = 0; ///< letters measured in that width
};

} // namespace quorvin
