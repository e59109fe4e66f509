// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "comparison/ComparisonController.h"

#include "platform/NativePath.h"

#include <QCoreApplication>

#include <algorithm>
#include <numeric>
#include <utility>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

bool isSameParameter(const ComparisonRow &left, const ComparisonRow &right)
{
    return left.key == right.key && left.number() == right.number() && left.section == right.section;
}

QStringList namesOf(const ComparisonContent &content)
{
    QStringList names;
    for (const ComparisonRow &row : content)
        names.append(row.section + QChar(QChar::Null) + QString::number(row.number()) + QChar(QChar::Null)
                     + row.key);
    return names;
}

std::vector<int> firstNumbers(qsizetype count)
{
    std::vector<int> numbers(static_cast<std::size_t>(count));
    std::iota(numbers.begin(), numbers.end(), 0);
    return numbers;
}

/// Asks the same about each cell of a row; neighbours often share their text.
template <typename Use>
void forEachHit(const ComparisonRow &row, const QString &text, Use use)
{
    bool isHit = false;
    const QString *before = nullptr;
    for (qsizetype i = 0; i < row.values.size(); ++i) {
        const QString &value = row.values[i];
        if (!before || !shareText(*before, value))
            isHit = value.contains(text, Qt::CaseInsensitive);
        before = &value;
        if (isHit)
            use(static_cast<int>(i));
    }
}

/// What a reader says of a cell, or with -1 of the head of its row: no cell is empty, and a heading tells
/// what is drawn over all its columns.
QString accessibleText(const ComparisonRow &row, int file)
{
    if (row.isHeading())
        return QCoreApplication::translate("ComparisonController", "%1, %2 of %3 differ")
            .arg(row.values.value(0))
            .arg(row.differing)
            .arg(row.rows);
    const QString &value = row.values[file + 1];
    return value.isEmpty() ? QCoreApplication::translate("ComparisonController", "nothing") : value;
}

} // namespace

void ComparisonController::setContent(ComparisonContent content, QStringList contentDescription)
{
    if (content.empty())
        contentDescription.clear();
    const Change files = changeTo(Qt::Horizontal, _contentDescription, contentDescription,
                                  firstNumbers(contentDescription.size()));
    const Change rows = changeOfRows(content);
    const int reference = _reference ? files.targets[static_cast<std::size_t>(*_reference)] : -1;
    removeGone(Qt::Vertical, rows);
    removeGone(Qt::Horizontal, files);

    _content = std::move(content);
    _contentDescription = std::move(contentDescription);
    _reference = reference < 0 ? std::nullopt : std::optional(reference);
    retarget(Qt::Vertical, rows);
    retarget(Qt::Horizontal, files);
    arrange(Qt::Horizontal, files);
    arrange(Qt::Vertical, rows);
    tellAllChanged();
}

/// Mostly a further file brings no row of its own.
StepwiseTable::Change ComparisonController::changeOfRows(const ComparisonContent &content) const
{
    std::vector<int> wanted = wantedRows(content, _filter);
    return std::ranges::equal(_content, content, isSameParameter)
        ? changeTo(Qt::Vertical, std::move(wanted))
        : changeTo(Qt::Vertical, namesOf(_content), namesOf(content), std::move(wanted));
}

void ComparisonController::setFilter(ComparisonFilter filter)
{
    if (std::exchange(_filter, filter) == filter)
        return;
    const Change rows = changeTo(Qt::Vertical, wantedRows(_content, filter));
    removeGone(Qt::Vertical, rows);
    arrange(Qt::Vertical, rows);
}

void ComparisonController::tellAllChanged()
{
    if (rowCount() == 0)
        return;
    const int lastRow = rowCount() - 1;
    Q_EMIT dataChanged(index(0, 0), index(lastRow, columnCount() - 1));
    Q_EMIT headerDataChanged(Qt::Vertical, 0, lastRow);
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

void ComparisonController::setReferenceFile(std::optional<int> file)
{
    _reference = file;
    tellAllChanged();
}

void ComparisonController::setHighlightDifferences(bool highlight)
{
    _highlightChanged = true;
    _highlightDifferences = highlight;
    tellAllChanged();
}

void ComparisonController::loadHighlight(bool highlight, int value)
{
    _highlightDifferences = highlight;
    setHighlightValue(value);
}

void ComparisonController::setHighlightValue(int value)
{
    _highlightValue = value;
    reduceColor();
}

QString ComparisonController::highlightText() const
{
    return QString::number(_highlightValue * 10) + u'%';
}

void ComparisonController::setTextColor(const QColor &color)
{
    _textColor = color;
    reduceColor();
}

void ComparisonController::setReducedColor(const QColor &color)
{
    _reducedColor = color;
    tellAllChanged();
}

void ComparisonController::reduceColor()
{
    QColor reduced = _textColor;
    reduced.setAlphaF(std::clamp(1.0F - static_cast<float>(_highlightValue) / 10, 0.0F, 1.0F));
    setReducedColor(reduced);
}

std::optional<QColor> ComparisonController::textColorOf(int row, bool isSelected) const
{
    const ComparisonRow *shown = rowAt(row);
    if (!_highlightDifferences)
        return _highlightChanged ? std::optional(_textColor) : std::nullopt;
    return shown && !isSelected && !shown->isHeading() && shown->allEqual ? _reducedColor : _textColor;
}

const ComparisonRow *ComparisonController::rowAt(int row) const
{
    return row >= 0 && row < rowCount()
        ? &_content[static_cast<std::size_t>(shownRows()[static_cast<std::size_t>(row)])]
        : nullptr;
}

int ComparisonController::rowOf(const QString &section, quint32 stream, const QString &key) const
{
    for (int row = 0; row < rowCount(); ++row) {
        const ComparisonRow &shown = *rowAt(row);
        if (shown.key == key && shown.number() == std::max<quint32>(stream, 1) && shown.section == section)
            return row;
    }
    return -1;
}

QModelIndex ComparisonController::find(const QString &text, const QModelIndex &from,
                                       Direction direction) const
{
    const bool isForward = direction == Direction::Forward;
    std::optional<std::pair<int, int>> next; // behind the start, the first to come
    std::optional<std::pair<int, int>> wrapped; // of all, where a search from the other end comes first
    const std::pair start(from.row(), from.column());
    for (int row = 0; row < rowCount() && !text.isEmpty(); ++row) {
        if (rowAt(row)->isHeading())
            continue;
        forEachHit(*rowAt(row), text, [&](int column) {
            const std::pair hit(row, column);
            if (!wrapped || !isForward)
                wrapped = hit;
            if (from.isValid() && (isForward ? !next && hit > start : hit < start))
                next = hit;
        });
        if (isForward && (next || (wrapped && !from.isValid())))
            break;
    }
    const auto found = next ? next : wrapped;
    return found ? index(found->first, found->second) : QModelIndex();
}

int ComparisonController::numberOfHits(const QString &text) const
{
    int hits = 0;
    for (int row = 0; row < rowCount() && !text.isEmpty(); ++row) {
        if (!rowAt(row)->isHeading())
            forEachHit(*rowAt(row), text, [&](int) { ++hits; });
    }
    return hits;
}

int ComparisonController::nextDifference(int from, Direction direction) const
{
    const int count = rowCount();
    const int step = direction == Direction::Forward ? 1 : -1;
    int row = from < 0 && step < 0 ? 0 : from;
    for (int tries = 0; tries < count; ++tries) {
        row = (row + step + count) % count;
        if (!rowAt(row)->isHeading() && !rowAt(row)->allEqual)
            return row;
    }
    return -1;
}

std::vector<int> ComparisonController::rowsToCopy(std::vector<int> selectedRows,
                                                  std::optional<int> clickedRow)
{
    const bool isElsewhere = clickedRow && std::ranges::find(selectedRows, *clickedRow) == selectedRows.end();
    if (isElsewhere)
        return {*clickedRow};
    std::ranges::sort(selectedRows);
    return selectedRows;
}

std::vector<const ComparisonRow *> ComparisonController::rowsAt(const std::vector<int> &rows) const
{
    std::vector<const ComparisonRow *> found;
    for (const int row : rows) {
        if (const ComparisonRow *shown = rowAt(row))
            found.push_back(shown);
    }
    return found;
}

QString ComparisonController::htmlOf(const std::vector<int> &rows) const
{
    return ComparisonExport::pboardHtml(rowsAt(rows));
}

QString ComparisonController::textOf(const std::vector<int> &rows) const
{
    return ComparisonExport::pboardText(rowsAt(rows));
}

QString ComparisonController::csvExportString() const
{
    return ComparisonExport::csvExportStringForContent(shownContent(), _contentDescription);
}

QString ComparisonController::htmlExportString() const
{
    return ComparisonExport::htmlExportStringForContent(shownContent(), _contentDescription);
}

bool ComparisonController::differsFromReference(const ComparisonRow &row, int file) const
{
    return _reference && !row.isHeading() && row.values[file + 1] != row.values[*_reference + 1];
}

QVariant ComparisonController::data(const QModelIndex &index, int role) const
{
    const ComparisonRow *row = index.column() < columnCount() ? rowAt(index.row()) : nullptr;
    return row ? cellData(*row, index, role) : QVariant();
}

QVariant ComparisonController::cellData(const ComparisonRow &row, const QModelIndex &cell, int role) const
{
    const int file = entryOfColumn(cell.column());
    switch (role) {
    case Qt::DisplayRole:
        return file + 1 < row.values.size() ? QVariant(row.values[file + 1]) : QVariant();
    case Qt::ForegroundRole: {
        const auto color = textColorOf(cell.row(), false);
        return color ? QVariant(*color) : QVariant();
    }
    case Qt::AccessibleTextRole:
        return accessibleText(row, file);
    case Qt::AccessibleDescriptionRole:
        return file >= 0 && differsFromReference(row, file)
            ? QVariant(QCoreApplication::translate("ComparisonController", "differs from the reference"))
            : QVariant();
    case HeadingRole:
        return row.isHeading();
    case AllEqualRole:
        return row.allEqual;
    case DifferingRole:
        return row.isHeading() ? QVariant(row.differing) : QVariant();
    case RowsRole:
        return row.isHeading() ? QVariant(row.rows) : QVariant();
    case DiffersFromReferenceRole:
        return file >= 0 && differsFromReference(row, file);
    case ReferenceRole:
        return file >= 0 && _reference == file;
    default:
        return {};
    }
}

QVariant ComparisonController::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical) {
        const ComparisonRow *row = rowAt(section);
        if (row && role == Qt::AccessibleTextRole)
            return accessibleText(*row, -1);
        return row && role == Qt::DisplayRole ? QVariant(row->values.value(0)) : QVariant();
    }
    if (section == 0)
        return role == Qt::DisplayRole
            ? QVariant(QCoreApplication::translate("ComparisonController", "Parameter"))
            : QVariant();
    const int file = entryOfColumn(section);
    return file >= 0 ? fileHeaderData(file, role) : QVariant();
}

QVariant ComparisonController::fileHeaderData(int file, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        return lastPathComponent(_contentDescription[file]);
    case Qt::ToolTipRole:
        return _contentDescription[file];
    case ReferenceRole:
        return _reference == file;
    default:
        return {};
    }
}

Qt::ItemFlags ComparisonController::flags(const QModelIndex &index) const
{
    const ComparisonRow *row = rowAt(index.row());
    if (!row)
        return Qt::NoItemFlags;
    return row->isHeading() ? Qt::ItemIsEnabled : Qt::ItemIsEnabled | Qt::ItemIsSelectable;
}

} // namespace quorvin
