// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/compare/ComparisonGrid.h"

#include "shell/compare/ColumnGrip.h"
#include "shell/compare/ComparisonDelegate.h"
#include "shell/compare/FileHeader.h"
#include "shell/compare/HeaderCorner.h"
#include "shell/compare/ParameterHeader.h"
#include "shell/desktop/Counts.h"

#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyle>

#include <algorithm>
#include <utility>

namespace quorvin {

namespace {

constexpr int kLeastNames = 80;
constexpr int kLeastFirstNames = 120;
constexpr int kMostFirstNames = 240;
constexpr int kHeaderAir = 10; ///< above and below the names of files together
/// A row that is measured can bring others into sight that are not.
constexpr int kMostMeasurings = 8;

} // namespace

ComparisonGrid::ComparisonGrid(ComparisonController &content, QWidget *parent)
    : QTableView(parent),
      _content(content),
      _cells(new ComparisonDelegate(this)),
      _names(new ParameterHeader(this)),
      _files(new FileHeader(this)),
      _corner(new HeaderCorner(this)),
      _grip(new ColumnGrip(this)),
      _heights(*this, content, *_names, *_cells)
{
    setVerticalHeader(_names);
    setHorizontalHeader(_files);
    setModel(&content);
    setItemDelegate(_cells);
    setFrameShape(NoFrame);
    setShowGrid(false);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    setCornerButtonEnabled(false);
    _grip->raise();
    connectHeaders();
}

void ComparisonGrid::connectHeaders()
{
    connect(_files, &QHeaderView::sectionResized, this,
            [this](int column, int, int width) { columnWasResized(column, width); });
    // The header is still at it.
    connect(_files, &QHeaderView::sectionMoved, this, &ComparisonGrid::columnsDidMove, Qt::QueuedConnection);
    connect(_grip, &ColumnGrip::dragged, this,
            [this](int x) { dragNames(layoutDirection() == Qt::LeftToRight ? x : width() - x); });
    connect(_grip, &ColumnGrip::doubleClicked, this, [this] {
        setNamesWidth(0);
        Q_EMIT namesWidthChosen(0);
    });
}

void ComparisonGrid::setLook(const TableLook &look)
{
    _cells->look = look;
    _names->look = look;
    setFont(look.font);
    _names->setFont(look.font);
    _files->setFont(look.font);
    _corner->setFont(look.font);
    const QFontMetrics metrics(look.font);
    _names->setMinimumSectionSize(metrics.height());
    _files->setMinimumSectionSize(ColumnWidths::kLeast);
    _files->setFixedHeight(metrics.height() + kHeaderAir);
    _corner->setAlignment(look.rightAlignsNames ? Qt::AlignTrailing : Qt::AlignLeading);
    layOutRows();
}

void ComparisonGrid::setNamesWidth(int width)
{
    if (std::exchange(_namesWidth, width) == width)
        return;
    updateGeometries();
    layOutRows();
}

void ComparisonGrid::dragNames(int width)
{
    setNamesWidth(std::max(width, kLeastNames));
    Q_EMIT namesWidthChosen(_namesWidth);
}

void ComparisonGrid::setColumnWidths(const ColumnWidths &widths)
{
    _widths = widths;
    applyColumnWidths();
    layOutRows();
}

void ComparisonGrid::applyColumnWidths()
{
    const QScopedValueRollback placing(_isPlacing, true);
    for (int column = 1; column < _content.columnCount(); ++column)
        setColumnWidth(column, _widths.width(column - 1));
}

void ComparisonGrid::columnWasResized(int column, int width)
{
    if (_isPlacing || _isChanging || column < 1)
        return;
    _widths.setWidth(column - 1, width);
    Q_EMIT columnWidthsChosen();
    layOutRows();
}

void ComparisonGrid::columnsDidMove()
{
    std::vector<int> order;
    for (int place = 1; place < _files->count(); ++place)
        order.push_back(_content.fileOfColumn(_files->logicalIndex(place)));
    if (std::ranges::is_sorted(order))
        return;
    // Widths belong to places.
    for (int place = 1; place < _files->count(); ++place)
        _widths.setWidth(place - 1, _files->sectionSize(_files->logicalIndex(place)));
    Q_EMIT columnWidthsChosen();
    Q_EMIT filesMoved(order);
}

void ComparisonGrid::change(const std::function<void()> &change)
{
    const std::vector<Place> before = places();
    {
        const QScopedValueRollback changing(_isChanging, true);
        setUpdatesEnabled(false);
        change();
        // The files stand in the order of the content, whatever was dragged before.
        for (int place = 0; place < _files->count(); ++place)
            _files->moveSection(_files->visualIndex(place), place);
        if (_content.columnCount() > 0)
            setColumnHidden(0, true);
    }
    applyColumnWidths();
    _heights.guessAll();
    restore(before);
    setUpdatesEnabled(true);
}

std::vector<ComparisonGrid::Place> ComparisonGrid::places() const
{
    std::vector<Place> places;
    const auto add = [&](const QModelIndex &cell) {
        const QRect rect = visualRect(cell);
        if (cell.isValid() && rect.intersects(viewport()->rect()))
            places.push_back({cell, rect.topLeft()});
    };
    add(currentIndex());
    if (_content.rowCount() == 0
        || (verticalScrollBar()->value() == 0 && horizontalScrollBar()->value() == 0))
        return places;
    const int column = columnAt(layoutDirection() == Qt::LeftToRight ? 0 : viewport()->width() - 1);
    for (int row = std::max(rowAt(0), 0); row <= lastSeenRow(); ++row)
        add(_content.index(row, column));
    return places;
}

void ComparisonGrid::restore(const std::vector<Place> &places)
{
    updateGeometries();
    const auto found = std::ranges::find_if(places, [](const Place &place) { return place.cell.isValid(); });
    if (found != places.end()) {
        const QModelIndex cell = found->cell;
        putRowAt(cell.row(), found->at.y());
        const int shift = visualRect(cell).left() - found->at.x();
        QScrollBar *bar = horizontalScrollBar();
        bar->setValue(bar->value() + (layoutDirection() == Qt::LeftToRight ? shift : -shift));
    }
    measureSeen();
}

void ComparisonGrid::putRowAt(int row, int y)
{
    updateGeometries();
    verticalScrollBar()->setValue(verticalScrollBar()->value() + rowViewportPosition(row) - y);
}

bool ComparisonGrid::isHeading(int row) const
{
    const ComparisonRow *content = _content.rowAt(row);
    return content && content->isHeading();
}

int ComparisonGrid::lastSeenRow() const
{
    const int last = rowAt(viewport()->height() - 1);
    return last >= 0 ? last : _content.rowCount() - 1;
}

void ComparisonGrid::layOutRows()
{
    if (_isChanging)
        return;
    const std::vector<Place> before = places();
    _heights.guessAll();
    restore(before);
}

void ComparisonGrid::measureSeen()
{
    if (_isPlacing || _isChanging || _content.rowCount() == 0)
        return;
    const QScopedValueRollback placing(_isPlacing, true);
    for (int i = 0; i < kMostMeasurings; ++i) {
        const int first = rowAt(0);
        const int last = lastSeenRow();
        int fixed = std::max(first, 0);
        while (fixed < last && !_heights.isMeasured(fixed))
            ++fixed;
        const int y = rowViewportPosition(fixed);
        if (!_heights.measure(first, last))
            return;
        putRowAt(fixed, y);
        viewport()->update();
        _names->viewport()->update();
    }
}

void ComparisonGrid::scrollContentsBy(int dx, int dy)
{
    QTableView::scrollContentsBy(dx, dy);
    if (dy != 0)
        measureSeen();
    if (dx == 0 || _content.rowCount() == 0)
        return;
    // The words of headings stay where they are.
    for (int row = std::max(rowAt(0), 0); row <= lastSeenRow(); ++row) {
        if (isHeading(row))
            viewport()->update(0, rowViewportPosition(row), viewport()->width(), rowHeight(row));
    }
}

void ComparisonGrid::updateGeometries()
{
    const int part = std::clamp(width() * 22 / 100, kLeastFirstNames, kMostFirstNames);
    const int most = std::max(width() - ColumnWidths::kUsual / 2, kLeastNames);
    _names->setFixedWidth(std::min(_namesWidth > 0 ? _namesWidth : part, most));
    QTableView::updateGeometries();
    const QRect names = _names->geometry();
    _corner->setGeometry(names.left(), _files->geometry().top(), names.width(), _files->height());
    const int border = layoutDirection() == Qt::LeftToRight ? names.right() : names.left();
    _grip->setGeometry(border - ColumnGrip::kWidth / 2, 0, ColumnGrip::kWidth, names.bottom() + 1);
}

void ComparisonGrid::resizeEvent(QResizeEvent *event)
{
    const int names = _names->width();
    QTableView::resizeEvent(event);
    if (names != _names->width())
        layOutRows();
    else
        measureSeen();
}

void ComparisonGrid::changeEvent(QEvent *event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        _content.setTextColor(palette().color(QPalette::Text));
}

void ComparisonGrid::focusInEvent(QFocusEvent *event)
{
    QTableView::focusInEvent(event);
    _names->viewport()->update();
}

void ComparisonGrid::focusOutEvent(QFocusEvent *event)
{
    QTableView::focusOutEvent(event);
    _names->viewport()->update();
}

void ComparisonGrid::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    if (_content.rowCount() == 0)
        return;
    QPainter painter(viewport());
    for (int row = std::max(rowAt(0), 0); row <= lastSeenRow(); ++row) {
        if (isHeading(row))
            paintHeading(painter, row);
    }
}

void ComparisonGrid::paintHeading(QPainter &painter, int row) const
{
    const ComparisonRow &heading = *_content.rowAt(row);
    const QRect room(0, rowViewportPosition(row), viewport()->width(), rowHeight(row));
    QColor line = palette().color(QPalette::Text);
    line.setAlphaF(0.12F);
    painter.fillRect(QRect(room.left(), room.bottom(), room.width(), 1), line);
    painter.setFont(font());
    style()->drawItemText(
        &painter,
        room.adjusted(TableLook::kMargin, TableLook::kLead + _names->headingGap(row), -TableLook::kMargin, 0),
        static_cast<int>(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeading)) | Qt::AlignTop
            | Qt::TextSingleLine,
        palette(), true,
        tr("%1 of %2 differ").arg(groupedCount(heading.differing), groupedCount(heading.rows)),
        QPalette::PlaceholderText);
}

} // namespace quorvin
