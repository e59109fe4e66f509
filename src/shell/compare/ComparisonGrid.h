// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "comparison/ComparisonController.h"
#include "shell/compare/ColumnWidths.h"
#include "shell/compare/RowHeights.h"
#include "shell/compare/TableLook.h"

#include <QPersistentModelIndex>
#include <QPoint>
#include <QTableView>

#include <functional>
#include <vector>

namespace quorvin {

class ColumnGrip;
class ComparisonDelegate;
class FileHeader;
class HeaderCorner;
class ParameterHeader;

/// How a comparison stands on the screen: the parameters stay at the side while the files scroll, rows are as
/// high as their cells, headings reach over all columns, and what is looked at stays in its place when the
/// content changes. Main thread.
class ComparisonGrid : public QTableView {
    Q_OBJECT
public:
    /// `content` must outlive the table.
    explicit ComparisonGrid(ComparisonController &content, QWidget *parent = nullptr);

    void setLook(const TableLook &look);
    /// Of the parameters, as far as the view has them; 0: a part of the view's width. Device-independent
    /// pixels.
    void setNamesWidth(int width);
    void setColumnWidths(const ColumnWidths &widths);
    const ColumnWidths &columnWidths() const { return _widths; }

    /// Does what changes the content; the row that is looked at stays where it is, if it is still there.
    void change(const std::function<void()> &change);

Q_SIGNALS:
    /// The files by their places, once one has been dragged to another.
    void filesMoved(const std::vector<int> &order);
    /// The user has dragged a border; a names' width of 0: it is to go by the view's width again.
    void columnWidthsChosen();
    void namesWidthChosen(int width);

protected:
    ComparisonController &content() { return _content; }
    const ComparisonController &content() const { return _content; }
    ComparisonDelegate &cells() { return *_cells; }
    ParameterHeader &names() { return *_names; }
    FileHeader &files() { return *_files; }
    /// False beyond the rows.
    bool isHeading(int row) const;

    void paintEvent(QPaintEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void updateGeometries() override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    /// A cell that is seen, and where it stands in the viewport.
    struct Place {
        QPersistentModelIndex cell;
        QPoint at;
    };

    void connectHeaders();
    void columnsDidMove();
    void columnWasResized(int column, int width);
    void applyColumnWidths();
    void dragNames(int width);
    int lastSeenRow() const;
    void layOutRows();
    /// Measures the rows that are seen; those that were measured before stay where they are.
    void measureSeen();
    /// The current cell, and then one of each row that is seen; only the former at the top of the table.
    std::vector<Place> places() const;
    /// The first of the cells that are still there comes back to its place.
    void restore(const std::vector<Place> &places);
    void putRowAt(int row, int y);
    void paintHeading(QPainter &painter, int row) const;

    ComparisonController &_content;
    ComparisonDelegate *_cells;
    ParameterHeader *_names;
    FileHeader *_files;
    HeaderCorner *_corner;
    ColumnGrip *_grip;
    RowHeights _heights;
    ColumnWidths _widths;
    int _namesWidth = 0;
    bool _isPlacing = false; ///< widths, heights and places change without the user
    bool _isChanging = false; ///< so does the content
};

} // namespace quorvin
