// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/compare/LetterWidths.h"
#include "shell/compare/TableLook.h"

#include <optional>
#include <vector>

class QTableView;

namespace quorvin {

class CellText;
class ComparisonController;
class ComparisonDelegate;
class ParameterHeader;

/// Makes each row of a comparison as high as its highest cell. All rows have a height at once, of which most
/// are guessed from their letters; a row is measured when it comes into sight. Main thread.
class RowHeights {
public:
    /// All must outlive this object; the delegate and the header are those of the table.
    RowHeights(QTableView &table, const ComparisonController &content, const ParameterHeader &names,
               const ComparisonDelegate &cells);

    /// Rows, columns or look have changed: forgets what was measured and gives every row a height.
    void guessAll();
    /// Measures those of these rows that were only guessed; whether any has another height now.
    bool measure(int first, int last);
    bool isMeasured(int row) const { return _isMeasured[static_cast<std::size_t>(row)]; }

private:
    struct Letters {
        LetterWidths usual;
        LetterWidths heavy;
    };

    int textWidth(int column) const;
    int heightOfLines(int height) const;
    int plainHeight(int row) const;
    int guess(int row);
    int exactHeight(int row) const;
    void noteLetters();
    void noteWidths();

    QTableView &_table;
    const ComparisonController &_content;
    const ParameterHeader &_names;
    const ComparisonDelegate &_cells;
    std::optional<Letters> _letters; ///< measured for the first rows: it takes a while
    std::vector<int> _widths; ///< for the text of each column
    std::vector<bool> _isMeasured; ///< by row
};

} // namespace quorvin
