// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/compare/RowHeights.h"

#include "comparison/ComparisonController.h"
#include "shell/compare/ComparisonDelegate.h"
#include "shell/compare/ParameterHeader.h"

#include <QTableView>
#include <QTextLayout>

#include <algorithm>

namespace quorvin {

namespace {

/// A cell that is cut has a line more for the sign that says so.
constexpr int kMostLines = CellText::kMostLines + 1;

} // namespace

RowHeights::RowHeights(QTableView &table, const ComparisonController &content, const ParameterHeader &names,
                       const ComparisonDelegate &cells)
    : _table(table), _content(content), _names(names), _cells(cells)
{
}

int RowHeights::textWidth(int column) const
{
    const int width = column == 0 ? _names.width() : _table.columnWidth(column);
    return std::max(width - 2 * TableLook::kMargin - (column == 0 ? 1 : 0), 1);
}

void RowHeights::noteLetters()
{
    if (!_letters || _letters->usual.font() != _cells.look.font)
        _letters = Letters{LetterWidths(_cells.look.font), LetterWidths(_cells.look.heavyFont())};
}

void RowHeights::noteWidths()
{
    _widths.clear();
    for (int column = 0; column < _content.columnCount(); ++column)
        _widths.push_back(textWidth(column));
}

int RowHeights::heightOfLines(int height) const
{
    return std::max(height + 2 * TableLook::kLead, _cells.look.rowHeight);
}

int RowHeights::plainHeight(int row) const
{
    return heightOfLines(QFontMetrics(_cells.look.font).height()) + _names.headingGap(row);
}

int RowHeights::guess(int row)
{
    const ComparisonRow &content = *_content.rowAt(row);
    LetterWidths::Lines most;
    if (!content.isHeading() && _cells.look.wraps) {
        // What differs from the reference is heavier.
        const bool isHeavy = _content.referenceFile() && !content.allEqual;
        const auto count = std::min(_widths.size(), static_cast<std::size_t>(content.values.size()));
        for (std::size_t column = 0; column < count && most.count < kMostLines; ++column) {
            const LetterWidths &letters
                = isHeavy || (column == 0 && _cells.look.hasHeavyNames) ? _letters->heavy : _letters->usual;
            const auto lines
                = letters.linesIn(content.values[static_cast<qsizetype>(column)], _widths[column]);
            most.count = std::max(most.count, lines.count);
            most.isExact = most.isExact && lines.isExact;
        }
    }
    _isMeasured[static_cast<std::size_t>(row)] = most.isExact;
    if (most.isExact)
        return plainHeight(row);
    return heightOfLines(std::min(most.count, kMostLines) * QFontMetrics(_cells.look.font).lineSpacing());
}

void RowHeights::guessAll()
{
    noteWidths();
    const int rows = _content.rowCount();
    if (rows > 0)
        noteLetters();
    _isMeasured.assign(static_cast<std::size_t>(rows), false);
    QHeaderView *header = _table.verticalHeader();
    // Each would lay the header out for itself.
    header->setUpdatesEnabled(false);
    for (int row = 0; row < rows; ++row)
        header->resizeSection(row, guess(row));
    header->setUpdatesEnabled(true);
}

int RowHeights::exactHeight(int row) const
{
    int height = 0;
    const QString *last = nullptr;
    const ComparisonRow &content = *_content.rowAt(row);
    const int most = kMostLines * QFontMetrics(_cells.look.font).lineSpacing();
    for (int column = 0; column < static_cast<int>(_widths.size()) && height < most; ++column) {
        const int width = _widths[static_cast<std::size_t>(column)];
        const QString &text = content.values[column];
        const bool isKnown
            = last && *last == text && column > 1 && width >= _widths[static_cast<std::size_t>(column - 1)];
        last = &text;
        if (isKnown || _letters->heavy.linesIn(text, width).isExact)
            continue;
        const CellText cell = column == 0 ? _names.cellOf(row) : _cells.cellOf(_content.index(row, column));
        QTextLayout layout;
        height = std::max(height, cell.layOut(layout, width).height);
    }
    return std::max(heightOfLines(height), plainHeight(row));
}

bool RowHeights::measure(int first, int last)
{
    bool hasChanged = false;
    for (int row = std::max(first, 0); row <= last; ++row) {
        if (isMeasured(row))
            continue;
        _isMeasured[static_cast<std::size_t>(row)] = true;
        const int height = exactHeight(row);
        if (height == _table.rowHeight(row))
            continue;
        _table.verticalHeader()->resizeSection(row, height);
        hasChanged = true;
    }
    return hasChanged;
}

} // namespace quorvin
