// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "comparison/ComparisonExport.h"
#include "comparison/ComparisonFilter.h"
#include "comparison/ComparisonRows.h"
#include "comparison/StepwiseTable.h"

#include <QColor>

#include <optional>
#include <vector>

namespace quorvin {

/// The table of a comparison: the first column has the names of the parameters, each further one a file. Its
/// rows are those of the content that the filter wants.
///
/// New content and another filter come as removals, moves and insertions of rows and columns, so that
/// selection, current cell and column widths stay where they were. A file is known again by its path, a row
/// by its section and key.
///
/// Main thread.
class ComparisonController final : public StepwiseTable, public ComparisonExportDelegate {
public:
    enum Role {
        HeadingRole = Qt::UserRole, ///< bool: the row is the heading of a section; it can't be selected
        AllEqualRole, ///< bool
        DifferingRole, ///< int, of a heading: how many of its rows differ; absent in other rows
        RowsRole, ///< int, of a heading: how many rows its section has, whatever the filter; absent as above
        DiffersFromReferenceRole, ///< bool: the cell's value is not that of the reference file
        ReferenceRole, ///< bool, also of headers: the column is that of the reference file
    };
    enum class Direction { Forward, Backward };

    explicit ComparisonController(QObject *parent = nullptr) : StepwiseTable(parent) { }

    /// Rows as `comparisonRows` makes them, and the path of each file. Without rows there are no files
    /// either.
    void setContent(ComparisonContent content, QStringList contentDescription);
    /// What the filter leaves of it is shown.
    const ComparisonContent &content() const { return _content; }
    const QStringList &contentDescription() const { return _contentDescription; }

    void setFilter(ComparisonFilter filter);
    ComparisonFilter filter() const { return _filter; }

    /// The file that others are held against, counted from 0; absent: none. It stays the same file when the
    /// content changes, and there is none when it goes.
    void setReferenceFile(std::optional<int> file);
    std::optional<int> referenceFile() const { return _reference; }

    bool highlightDifferences() const { return _highlightDifferences; }
    void setHighlightDifferences(bool highlight);
    /// As it was left the last time; text has the colour of the view until the highlight is changed.
    void loadHighlight(bool highlight, int value);
    /// How much equal rows are dimmed, in tenths: 0 not at all, 10 (and more) as far as a view goes, which
    /// need not let them out of sight.
    int highlightValue() const { return _highlightValue; }
    void setHighlightValue(int value);
    /// The value for people: "70%".
    QString highlightText() const;
    /// The colour of plain text; `reducedColor` follows it.
    void setTextColor(const QColor &color);
    const QColor &textColor() const { return _textColor; }
    const QColor &reducedColor() const { return _reducedColor; }
    void setReducedColor(const QColor &color);
    /// The colour of a row's text; absent: as the view has it. Of rows that are not selected it is also the
    /// foreground role.
    std::optional<QColor> textColorOf(int row, bool isSelected) const;

    /// Null beyond the rows.
    const ComparisonRow *rowAt(int row) const;
    /// -1 when no such row is shown. An empty key asks for the heading.
    int rowOf(const QString &section, quint32 stream, const QString &key) const;
    /// The file of a column, counted from 0; -1 for that of the parameters.
    int fileOfColumn(int column) const { return entryOfColumn(column); }
    static int columnOfFile(int file) { return file + 1; }

    /// The next cell whose text contains this one, whatever its case; row by row, from the other end when
    /// this one is reached. Headings are not searched. Without a valid start the search begins at an end.
    /// Invalid when there is none, or `text` is "".
    QModelIndex find(const QString &text, const QModelIndex &from, Direction direction) const;
    /// The number of such cells.
    int numberOfHits(const QString &text) const;
    /// The next row that is not equal in all files, from the other end when this one is reached; `from` may
    /// be -1. -1 when there is none.
    int nextDifference(int from, Direction direction) const;

    /// The rows that a copy takes: the selected ones, ascending, unless one that is not selected was clicked;
    /// then that one.
    static std::vector<int> rowsToCopy(std::vector<int> selectedRows, std::optional<int> clickedRow);
    /// These rows for the clipboard.
    QString htmlOf(const std::vector<int> &rows) const;
    QString textOf(const std::vector<int> &rows) const;

    /// What is shown, as `ComparisonExport` writes it.
    QString csvExportString() const override;
    QString htmlExportString() const override;
    ComparisonContent shownContent() const { return filtered(_content, _filter); }

    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /// Of a file its name, and its path as tool tip; of a row its first value.
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    Change changeOfRows(const ComparisonContent &content) const;
    void tellAllChanged();
    void reduceColor();
    bool differsFromReference(const ComparisonRow &row, int file) const;
    std::vector<const ComparisonRow *> rowsAt(const std::vector<int> &rows) const;
    QVariant cellData(const ComparisonRow &row, const QModelIndex &cell, int role) const;
    QVariant fileHeaderData(int file, int role) const;

    ComparisonContent _content;
    QStringList _contentDescription;
    ComparisonFilter _filter = ComparisonFilter::All;
    std::optional<int> _reference; ///< a file of the content
    bool _highlightChanged = false;
    bool _highlightDifferences = false;
    int _highlightValue = 0;
    QColor _textColor;
    QColor _reducedColor;
};

} // namespace quorvin
