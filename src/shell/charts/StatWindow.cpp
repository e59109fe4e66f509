// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/charts/StatWindow.h"

#include "shell/charts/ChartTable.h"
#include "shell/charts/CountModel.h"
#include "shell/charts/CountPlot.h"
#include "shell/charts/ParameterChooser.h"
#include "shell/desktop/AccessibleRole.h"
#include "shell/desktop/Counts.h"
#include "shell/desktop/PlainText.h"
#include "shell/desktop/ValueDelegate.h"
#include "shell/filelist/FilelistController.h"
#include "statistics/CountText.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

constexpr QSize kFirstSize(1000, 640);
constexpr QSize kLeastWindowSize(600, 400);
constexpr int kLeastChooserLetters = 28;
constexpr auto kFirstParameter = "File/Kind"_L1; ///< each file has one

QItemSelection rangesOf(const std::vector<std::size_t> &rows, const QAbstractItemModel &model)
{
    QItemSelection ranges;
    for (const std::size_t row : rows) {
        const int place = static_cast<int>(row);
        ranges.append({model.index(place, 0), model.index(place, model.columnCount() - 1)});
    }
    return ranges;
}

} // namespace

StatWindow::StatWindow(FilelistController &files, LiveSettings &settings, QWidget *window)
    : QWidget(window, Qt::Window),
      _files(files),
      _counter(new StatCounter(files, this)),
      _export(new StatExport(settings, this)),
      _chooser(new ParameterChooser),
      _headline(plainLabel()),
      _layout(new QComboBox),
      _steps(new QComboBox),
      _follows(new QCheckBox(tr("Follow the selected parameter"))),
      _plot(new CountPlot),
      _model(new CountModel(this)),
      _table(new QTableView),
      _note(plainLabel()),
      _showOnly(new QPushButton(tr("Show Only These")))
{
    setAccessibleRole(this, QAccessible::Window);
    setWindowTitle(tr("Statistics"));
    layOut();
    connectParts();
    connectTable();
    setMinimumSize(kLeastWindowSize);
    resize(kFirstSize);
    rowsDidChange();
}

QWidget *StatWindow::makeControls()
{
    _layout->addItems({tr("Values"), tr("Ranges")});
    _layout->setAccessibleName(tr("Rows"));
    _layout->setToolTip(plainTip(tr("A row for each value, or for each range of values")));
    _steps->addItem(tr("As fine as fits"));
    for (const auto &[text, step] :
         {std::pair(tr("Years"), DateStep::Year), std::pair(tr("Months"), DateStep::Month),
          std::pair(tr("Days"), DateStep::Day), std::pair(tr("Hours"), DateStep::Hour),
          std::pair(tr("Month of the year"), DateStep::MonthOfYear),
          std::pair(tr("Hour of the day"), DateStep::HourOfDay)})
        _steps->addItem(text, static_cast<int>(step));
    setChoiceName(_steps, tr("Steps of dates"));
    _steps->hide();
    auto *controls = new QWidget;
    auto *row = new QHBoxLayout(controls);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(_layout);
    row->addWidget(_steps);
    row->addStretch();
    row->addWidget(_follows);
    return controls;
}

QWidget *StatWindow::makeButtons()
{
    _showOnly->setToolTip(plainTip(tr("Narrow the list to the files of the selected rows")));
    _exportButton = new QPushButton(tr("Export…"));
    auto *menu = new QMenu(_exportButton);
    for (const auto &[text, kind] : {std::pair(tr("Table as CSV…"), StatExport::Kind::Csv),
                                     std::pair(tr("Plot as PNG…"), StatExport::Kind::Png),
                                     std::pair(tr("Plot as PDF…"), StatExport::Kind::Pdf)})
        connect(menu->addAction(text), &QAction::triggered, this,
                [this, chosen = kind] { _export->exportCount(chosen, _model->table(), *_plot); });
    _exportButton->setMenu(menu);
    auto *copyButton = new QPushButton(tr("Copy"));
    copyButton->setToolTip(plainTip(tr("Copy the selected rows, or all")));
    connect(copyButton, &QPushButton::clicked, this, &StatWindow::copy);
    auto *buttons = new QWidget;
    auto *row = new QHBoxLayout(buttons);
    row->setContentsMargins(0, 0, 0, 0);
    row->addStretch();
    row->addWidget(_showOnly);
    row->addWidget(copyButton);
    row->addWidget(_exportButton);
    return buttons;
}

void StatWindow::layOut()
{
    _headline->setWordWrap(true);
    _note->setWordWrap(true);
    _note->hide();
    _chooser->setMinimumWidth(fontMetrics().averageCharWidth() * kLeastChooserLetters);
    auto *plotAndTable = new QSplitter(Qt::Vertical);
    plotAndTable->setChildrenCollapsible(false);
    plotAndTable->addWidget(_plot);
    plotAndTable->addWidget(_table);
    // Readers go by this order, which the splitter turns round.
    _plot->lower();
    auto *right = new QWidget;
    auto *column = new QVBoxLayout(right);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(_headline);
    column->addWidget(makeControls());
    column->addWidget(plotAndTable, 1);
    column->addWidget(_note);
    column->addWidget(makeButtons());
    auto *halves = new QSplitter;
    halves->setChildrenCollapsible(false);
    halves->addWidget(_chooser);
    halves->addWidget(right);
    _chooser->lower();
    halves->setStretchFactor(1, 1);
    halves->setSizes({kFirstSize.width() / 3, kFirstSize.width() * 2 / 3});
    auto *whole = new QVBoxLayout(this);
    whole->addWidget(halves);
}

void StatWindow::connectParts()
{
    connect(_counter, &StatCounter::counted, this, &StatWindow::showCount);
    connect(_counter, &StatCounter::covered, _chooser, &ParameterChooser::setCoverage);
    connect(_chooser, &ParameterChooser::chosen, this, &StatWindow::choose);
    connect(_layout, &QComboBox::activated, this, &StatWindow::applyView);
    connect(_steps, &QComboBox::activated, this, &StatWindow::applyView);
    connect(_plot, &CountPlot::rowsChosen, this, &StatWindow::chooseRows);
    connect(_showOnly, &QPushButton::clicked, this, &StatWindow::showOnlyThese);
    connect(_export, &StatExport::exported, this,
            [this](const QString &path) { tell(tr("Exported to “%1”").arg(path)); });
    connect(new QShortcut(QKeySequence::Close, this), &QShortcut::activated, this, &QWidget::close);
    connect(new QShortcut(QKeySequence(Qt::Key_Escape), this), &QShortcut::activated, this, &QWidget::close);
}

void StatWindow::connectTable()
{
    connect(_plot, &CountPlot::isCutDidChange, this, &StatWindow::showNote);
    setUpChartTable(*_table, _model, tr("Counts"));
    _table->setItemDelegate(new ValueDelegate(_table));
    QHeaderView *header = _table->horizontalHeader();
    // Columns are as wide as the rows in sight want them: a count has thousands.
    header->setResizeContentsPrecision(0);
    header->setSectionResizeMode(QHeaderView::Interactive);
    header->setSectionResizeMode(CountModel::Value, QHeaderView::Stretch);
    _table->installEventFilter(this);
    connect(_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &StatWindow::rowsDidChange);
    connect(_table, &QTableView::clicked, this,
            [this] { selectFiles(QGuiApplication::keyboardModifiers().testFlag(Qt::ControlModifier)); });
}

void StatWindow::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    _counter->setActive(true);
    if (_counter->question().parameter.isEmpty())
        choose(kFirstParameter, nullptr);
}

void StatWindow::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    _counter->setActive(false);
}

bool StatWindow::eventFilter(QObject *watched, QEvent *event)
{
    const auto *const key
        = event->type() == QEvent::KeyPress ? static_cast<const QKeyEvent *>(event) : nullptr;
    if (key && (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter)) {
        selectFiles(key->modifiers().testFlag(Qt::ControlModifier));
        return true;
    }
    if (key && key->matches(QKeySequence::Copy)) {
        copy();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void StatWindow::showParameter(const QString &parameter)
{
    _chooser->setChosen(parameter);
    choose(parameter, nullptr);
}

void StatWindow::follow(const QString &parameter)
{
    const bool isNew = parameter.compare(_counter->question().parameter, Qt::CaseInsensitive) != 0;
    if (isVisible() && _follows->isChecked() && !parameter.isEmpty() && isNew)
        showParameter(parameter);
}

void StatWindow::choose(const QString &parameter, const CountPreset *preset)
{
    _table->clearSelection();
    StatCounter::Question question{parameter, std::nullopt};
    if (preset && preset->inRanges)
        question.view = CountView{preset->inRanges, preset->step};
    _steps->setCurrentIndex(preset && preset->step ? _steps->findData(static_cast<int>(*preset->step)) : 0);
    _counter->ask(question);
}

void StatWindow::applyView()
{
    StatCounter::Question question = _counter->question();
    question.view = CountView{_layout->currentIndex() == 1, std::nullopt};
    if (const QVariant step = _steps->currentData(); step.isValid())
        question.view->step = static_cast<DateStep>(step.toInt());
    _counter->ask(question);
}

void StatWindow::showCount(const CountTablePtr &table)
{
    const CountTablePtr before = _model->table();
    const bool isSameLayout = before && before->count().parameter == table->count().parameter
        && std::ranges::equal(before->rows(), table->rows(), {}, &CountRow::text, &CountRow::text);
    const auto rows = isSameLayout ? selectedRows() : std::vector<std::size_t>();
    _model->setTable(table);
    _plot->setTable(table);
    _table->selectionModel()->select(rangesOf(rows, *_model), QItemSelectionModel::ClearAndSelect);
    if (!isSameLayout)
        _table->resizeColumnsToContents();
    _headline->setText(headlineOf(*table));
    setWindowTitle(tr("Statistics: %1").arg(table->count().parameter));
    showControls(*table);
    rowsDidChange();
}

void StatWindow::showControls(const CountTable &table)
{
    _layout->setEnabled(table.figures().has_value());
    _layout->setCurrentIndex(table.isInRanges() ? 1 : 0);
    _steps->setVisible(table.step().has_value());
    // Of steps too fine for the range there are coarser ones.
    const auto &view = _counter->question().view;
    if (table.step() && view && view->step)
        _steps->setCurrentIndex(_steps->findData(static_cast<int>(*table.step())));
    showNote();
}

void StatWindow::tell(const QString &note)
{
    _note->setText(note);
    _note->setVisible(!note.isEmpty());
}

void StatWindow::showNote()
{
    const CountTablePtr &table = _model->table();
    QStringList notes;
    if (table && table->count().unread > 0)
        notes.append(tr("%1 not read yet.").arg(countOfFiles(table->count().unread)));
    if (table && _plot->isCut())
        notes.append(tr("The plot shows the most frequent values; the table has all %1.")
                         .arg(groupedCount(static_cast<qint64>(table->counted().size()))));
    tell(notes.join(u' '));
}

std::vector<std::size_t> StatWindow::selectedRows() const
{
    std::vector<std::size_t> rows;
    for (const QItemSelectionRange &range : _table->selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(static_cast<std::size_t>(row));
    }
    std::ranges::sort(rows);
    return rows;
}

void StatWindow::rowsDidChange()
{
    const auto rows = selectedRows();
    _plot->setSelected(rows);
    const bool hasRule = _model->table() && _model->table()->ruleOf(rows);
    _showOnly->setEnabled(hasRule);
    _exportButton->setEnabled(_model->table() != nullptr);
}

void StatWindow::chooseRows(const std::vector<std::size_t> &rows, bool adds)
{
    const auto how = adds ? QItemSelectionModel::Select : QItemSelectionModel::ClearAndSelect;
    _table->selectionModel()->select(rangesOf(rows, *_model), how);
    _table->selectionModel()->setCurrentIndex(_model->index(static_cast<int>(rows.front()), 0),
                                              QItemSelectionModel::NoUpdate);
    _table->scrollTo(_table->currentIndex());
    selectFiles(adds);
}

void StatWindow::selectFiles(bool adds)
{
    const auto rows = selectedRows();
    if (rows.empty() || !_model->table())
        return;
    const auto files = _model->table()->filesOf(rows);
    FilelistSelection &selection = _files.selection();
    selection.selectFiles(files, adds ? FilelistSelection::Select : FilelistSelection::ClearAndSelect);
    // A list takes only so many pieces of a selection.
    const auto count = static_cast<qint64>(files.size());
    const bool isWhole = adds || selection.count() >= count;
    tell(isWhole ? tr("Selected: %1").arg(countOfFiles(count))
                 : tr("Selected: %1 of %2; Show Only These has all")
                       .arg(groupedCount(selection.count()), countOfFiles(count)));
}

void StatWindow::showOnlyThese()
{
    const auto rule = _model->table()->ruleOf(selectedRows());
    if (!rule)
        return;
    // What is counted is narrowed by the rule that stands.
    FilelistFilter criteria = _files.filtering().criteria();
    criteria.rule = Rule::all({criteria.rule, *rule}).simplified();
    _files.filtering().setCriteria(criteria);
}

void StatWindow::copy() const
{
    if (!_model->table())
        return;
    std::vector<CountRow> rows;
    for (const std::size_t row : selectedRows())
        rows.push_back(_model->table()->rows()[row]);
    const std::span<const CountRow> all = _model->table()->rows();
    QGuiApplication::clipboard()->setText(tabbedText(rows.empty() ? all : std::span<const CountRow>(rows)));
}

} // namespace quorvin
