// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/compare/ComparisonView.h"

#include "shell/commands/CommandSet.h"
#include "shell/compare/ComparisonControls.h"
#include "shell/compare/ComparisonNote.h"
#include "shell/compare/ComparisonTable.h"
#include "shell/compare/FindBar.h"
#include "shell/desktop/AccessibleRole.h"
#include "shell/desktop/FocusRing.h"
#include "shell/session/LiveSettings.h"

#include <QClipboard>
#include <QFrame>
#include <QGuiApplication>
#include <QMimeData>
#include <QVBoxLayout>

#include <numeric>
#include <utility>

namespace quorvin {

namespace {

using enum ComparisonController::Direction;

} // namespace

ComparisonView::ComparisonView(LiveSettings &settings, QWidget *parent)
    : QWidget(parent),
      _settings(settings),
      _controls(new ComparisonControls(settings)),
      _note(new ComparisonNote),
      _findBar(new FindBar),
      _table(new ComparisonTable(_content))
{
    setAccessibleRole(this, QAccessible::Grouping);
    layOut();
    connectTable();
    connectParts();
    _table->setColumnWidths(ColumnWidths(settings.string(Setting::extComparisonColumnWidths)));
    _content.setTextColor(_table->palette().color(QPalette::Text));
    _content.setFilter(_controls->filter());
    _content.loadHighlight(settings.boolean(Setting::extComparisonHighlight),
                           settings.integer(Setting::extComparisonHighlightValue));
    applySetting(Setting::extComparisonNamesWidth);
    connect(&settings, &LiveSettings::changed, this, &ComparisonView::applySetting);
}

void ComparisonView::layOut()
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(_controls);
    column->addWidget(_note);
    column->addWidget(_findBar);
    auto *line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    line->setForegroundRole(QPalette::Mid);
    column->addWidget(line);
    column->addWidget(_table, 1);
    new FocusRing(_table);
}

void ComparisonView::connectTable()
{
    connect(_table, &ComparisonTable::selectionDidChange, this, &ComparisonView::selectionDidChange);
    connect(_table, &ComparisonTable::menuWanted, this, &ComparisonView::menuWanted);
    connect(_table, &ComparisonTable::cellOpened, this, &ComparisonView::openCell);
    connect(_table, &ComparisonTable::referenceWanted, this, &ComparisonView::toggleReference);
    connect(_table, &ComparisonTable::closeWanted, this, &ComparisonView::closeColumn);
    connect(_table, &ComparisonGrid::filesMoved, this, &ComparisonView::reorder);
    connect(_table, &ComparisonGrid::columnWidthsChosen, this,
            [this] { _settings.set(Setting::extComparisonColumnWidths, _table->columnWidths().text()); });
    connect(_table, &ComparisonGrid::namesWidthChosen, this,
            [this](int width) { _settings.set(Setting::extComparisonNamesWidth, width); });
}

void ComparisonView::connectParts()
{
    connect(_controls, &ComparisonControls::filterChosen, this, [this](ComparisonFilter filter) {
        _table->change([this, filter] { _content.setFilter(filter); });
        Q_EMIT selectionDidChange();
    });
    connect(_note, &ComparisonNote::preferencesWanted, this, &ComparisonView::preferencesWanted);
    connect(_note, &ComparisonNote::closedWanted, this, [this] {
        _compared.reopenAll();
        Q_EMIT filesWanted();
    });
    connect(_findBar, &FindBar::textChanged, this, &ComparisonView::look);
    connect(_findBar, &FindBar::nextWanted, this, [this] { findNext(false); });
    connect(_findBar, &FindBar::previousWanted, this, [this] { findNext(true); });
    connect(_findBar, &FindBar::closed, _table, qOverload<>(&QWidget::setFocus));
}

void ComparisonView::applySetting(Setting setting)
{
    if (setting == Setting::extComparisonHighlight)
        _content.setHighlightDifferences(_settings.boolean(setting));
    else if (setting == Setting::extComparisonHighlightValue)
        _content.setHighlightValue(_settings.integer(setting));
    else if (setting == Setting::extComparisonNamesWidth)
        _table->setNamesWidth(_settings.integer(setting));
    else if (setting == Setting::compareFilesLimit)
        Q_EMIT filesWanted();
}

const ComparisonRow *ComparisonView::extComparisonSelectionInfo() const
{
    const std::vector<int> rows = _table->selectedRows();
    return rows.empty() ? nullptr : _content.rowAt(rows.front());
}

void ComparisonView::setLook(const TableLook &look)
{
    _table->setLook(look);
}

void ComparisonView::setFilter(ComparisonFilter filter)
{
    _controls->setFilter(filter);
}

void ComparisonView::setFiles(const std::vector<FilelistItemPtr> &files)
{
    const bool isOther = _compared.take(files, _settings.integer(Setting::compareFilesLimit));
    _note->setCounts(_compared.counts());
    if (isOther)
        build();
}

void ComparisonView::build()
{
    const std::vector<ComparedFile> &files = _compared.files();
    if (files.empty()) {
        _building.cancel();
        _shown.clear();
        return show({}, {});
    }
    std::vector<ComparedFile> shown;
    for (const int file : _compared.order())
        shown.push_back(files[static_cast<std::size_t>(file)]);
    _building.start(
        "Comparison",
        [files, order = _compared.order()](const RunControl &) { return orderedRows(files, order); },
        [this, shown = std::move(shown),
         paths = orderedPaths(files, _compared.order())](ComparisonContent content) {
            _shown = shown;
            show(std::move(content), paths);
        });
}

void ComparisonView::show(ComparisonContent content, const QStringList &paths)
{
    const bool wasEmpty = isEmpty();
    _table->change([&] { _content.setContent(std::move(content), paths); });
    if (wasEmpty != isEmpty())
        Q_EMIT isEmptyDidChange();
    Q_EMIT selectionDidChange();
}

void ComparisonView::reorder(const std::vector<int> &order)
{
    std::vector<ComparedFile> shown;
    QStringList paths;
    for (const int file : order) {
        shown.push_back(_shown[static_cast<std::size_t>(file)]);
        paths.append(shown.back().file->filename());
    }
    _shown = std::move(shown);
    _compared.setOrder(_shown);
    show(reordered(_content.content(), order), paths);
    // What is being built stands in the old order.
    if (_building.isUnderWay())
        build();
}

void ComparisonView::moveCurrentColumn(int step)
{
    const int file = _table->currentFile();
    const int target = file + step;
    if (file < 0 || target < 0 || std::cmp_greater_equal(target, _shown.size()))
        return;
    std::vector<int> order(_shown.size());
    std::iota(order.begin(), order.end(), 0);
    std::swap(order[static_cast<std::size_t>(file)], order[static_cast<std::size_t>(target)]);
    reorder(order);
    _table->setCurrentFile(target);
}

FilelistItemPtr ComparisonView::fileAt(int file) const
{
    const auto index = static_cast<std::size_t>(file);
    return file >= 0 && index < _shown.size() ? _shown[index].file : nullptr;
}

void ComparisonView::toggleReference(int file)
{
    if (!fileAt(file))
        return;
    const bool isReference = _content.referenceFile() == file;
    _table->change([&] { _content.setReferenceFile(isReference ? std::nullopt : std::optional(file)); });
    Q_EMIT selectionDidChange();
}

void ComparisonView::closeColumn(int file)
{
    const FilelistItemPtr closed = fileAt(file);
    if (!closed)
        return;
    _compared.close(closed);
    Q_EMIT filesWanted();
}

void ComparisonView::openCell(const QModelIndex &cell)
{
    const ComparisonRow *row = _content.rowAt(cell.row());
    const FilelistItemPtr file = fileAt(_content.fileOfColumn(cell.column()));
    if (file && row && !row->isHeading())
        Q_EMIT parameterWanted(file, {row->section, row->stream, row->key});
}

void ComparisonView::openCurrent()
{
    openCell(_table->currentIndex());
}

ComparisonFilter ComparisonView::filter() const
{
    return _controls->filter();
}

void ComparisonView::setColumns(const std::vector<FilelistItemPtr> &files, const QStringList &paths)
{
    _compared.setColumns(files, paths);
    Q_EMIT filesWanted();
}

bool ComparisonView::canCopy() const
{
    return _table->hasFocus() && !_table->selectedRows().empty();
}

void ComparisonView::copy() const
{
    const std::vector<int> rows = _table->selectedRows();
    auto *content = new QMimeData;
    content->setHtml(_content.htmlOf(rows));
    content->setText(_content.textOf(rows));
    QGuiApplication::clipboard()->setMimeData(content);
}

void ComparisonView::selectAll()
{
    _table->selectAll();
}

void ComparisonView::find()
{
    if (!isEmpty())
        _findBar->open();
}

void ComparisonView::findNext(bool backward)
{
    if (_findBar->text().isEmpty())
        find();
    else
        _table->findNext(backward ? Backward : Forward);
}

void ComparisonView::look(const QString &text)
{
    _table->setSoughtText(text);
    _findBar->setHits(_content.numberOfHits(text));
    if (!text.isEmpty())
        _table->findNext(Forward);
}

void ComparisonView::describe(CommandState &state) const
{
    state.showsTable = !isEmpty();
    state.canFind = !isEmpty();
    state.selectsCell = _table->hasCurrentRow();
    state.selectsColumn = fileAt(_table->currentFile()) != nullptr;
    state.selectsReference = state.selectsColumn && _content.referenceFile() == _table->currentFile();
}

void ComparisonView::registerAt(CommandSet &commands)
{
    const auto on = [&](Command command, auto handler) { commands.on(command, std::move(handler)); };
    on(Command::makeReference, [this] { toggleReference(_table->currentFile()); });
    on(Command::closeColumn, [this] { closeColumn(_table->currentFile()); });
    on(Command::moveColumnBackward, [this] { moveCurrentColumn(-1); });
    on(Command::moveColumnForward, [this] { moveCurrentColumn(1); });
    on(Command::showNextDifference, [this] { _table->showNextDifference(Forward); });
    on(Command::showPreviousDifference, [this] { _table->showNextDifference(Backward); });
    on(Command::exportComparison, [this] { Q_EMIT exportWanted(); });
}

} // namespace quorvin
